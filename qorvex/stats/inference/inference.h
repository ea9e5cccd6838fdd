#pragma once

/// @file
/// All tests of hypotheses and intervals.

#include "qorvex/stats/inference/binomial_test.h"
#include "qorvex/stats/inference/chi_square_tests.h"
#include "qorvex/stats/inference/intervals.h"
#include "qorvex/stats/inference/kolmogorov_smirnov.h"
#include "qorvex/stats/inference/rank_tests.h"
#include "qorvex/stats/inference/shapiro_wilk.h"
#include "qorvex/stats/inference/t_tests.h"
#include "qorvex/stats/inference/variance_tests.h"
