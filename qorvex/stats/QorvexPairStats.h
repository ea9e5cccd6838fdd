#pragma once

/// @file
/// Unit QorvexPairStats: regression and correlation of paired vectors, in which elements with equal
/// indices belong together.

#include "qorvex/base/errors.h"
#include "qorvex/stats/correlation.h"
#include "qorvex/stats/covariance_matrix.h"
#include "qorvex/stats/rank_correlation.h"
#include "qorvex/stats/regression.h"
