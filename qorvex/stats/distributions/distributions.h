#pragma once

/// @file
/// All distributions, and the functions of any distribution.

#include "qorvex/stats/distributions/beta.h"
#include "qorvex/stats/distributions/binomial.h"
#include "qorvex/stats/distributions/cauchy.h"
#include "qorvex/stats/distributions/chi_square.h"
#include "qorvex/stats/distributions/exponential.h"
#include "qorvex/stats/distributions/f_distribution.h"
#include "qorvex/stats/distributions/figures.h"
#include "qorvex/stats/distributions/gamma.h"
#include "qorvex/stats/distributions/generalised_inverse_gaussian.h"
#include "qorvex/stats/distributions/geometric.h"
#include "qorvex/stats/distributions/gumbel.h"
#include "qorvex/stats/distributions/hypergeometric.h"
#include "qorvex/stats/distributions/log_normal.h"
#include "qorvex/stats/distributions/logistic.h"
#include "qorvex/stats/distributions/negative_binomial.h"
#include "qorvex/stats/distributions/normal.h"
#include "qorvex/stats/distributions/poisson.h"
#include "qorvex/stats/distributions/student_t.h"
#include "qorvex/stats/distributions/uniform.h"
#include "qorvex/stats/distributions/von_mises.h"
#include "qorvex/stats/distributions/weibull.h"
