#pragma once

/// @file
/// Unit QorvexStatistics: estimators over vectors and frequency tables, and the classic routines of
/// probability distributions.

#include "qorvex/base/errors.h"
#include "qorvex/stats/beta_distribution.h"
#include "qorvex/stats/binomial.h"
#include "qorvex/stats/chi_square.h"
#include "qorvex/stats/class_frequencies.h"
#include "qorvex/stats/combinatorics.h"
#include "qorvex/stats/dispersion.h"
#include "qorvex/stats/exponential.h"
#include "qorvex/stats/f_distribution.h"
#include "qorvex/stats/grouped.h"
#include "qorvex/stats/hypergeometric.h"
#include "qorvex/stats/incomplete_gamma.h"
#include "qorvex/stats/location.h"
#include "qorvex/stats/log_normal.h"
#include "qorvex/stats/normal.h"
#include "qorvex/stats/order_statistics.h"
#include "qorvex/stats/poisson.h"
#include "qorvex/stats/quantiles.h"
#include "qorvex/stats/shape.h"
#include "qorvex/stats/student_t.h"
#include "qorvex/stats/trimmed_means.h"
#include "qorvex/stats/weighted_grouped.h"
