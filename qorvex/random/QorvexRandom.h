#pragma once

/// @file
/// Unit QorvexRandom: random variates from any source of uniform values.

#include "qorvex/base/errors.h"
#include "qorvex/base/random.h"
#include "qorvex/random/beta.h"
#include "qorvex/random/binomial_btpe.h"
#include "qorvex/random/binomial_inversion.h"
#include "qorvex/random/cauchy.h"
#include "qorvex/random/chi_square.h"
#include "qorvex/random/exponential.h"
#include "qorvex/random/fill.h"
#include "qorvex/random/gamma.h"
#include "qorvex/random/inverse_gaussian.h"
#include "qorvex/random/log_normal.h"
#include "qorvex/random/multivariate_normal.h"
#include "qorvex/random/multivariate_normal_source.h"
#include "qorvex/random/negative_binomial.h"
#include "qorvex/random/normal.h"
#include "qorvex/random/poisson.h"
#include "qorvex/random/random_stream.h"
#include "qorvex/random/student_t.h"
#include "qorvex/random/uniform_source.h"
#include "qorvex/random/von_mises.h"
#include "qorvex/random/weibull.h"
