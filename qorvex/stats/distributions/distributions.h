#pragma once

/// @file
/// All distributions, and the functions of any distribution.

#include "qorvex/stats/distributions/beta.h"
#include "qorvex/stats/distributions/binomial.h"
#include "qorvex/stats/distributions/chi_square.h"
#include "qorvex/stats/distributions/exponential.h"
#include "qorvex/stats/distributions/f_distribution.h"
#include "qorvex/stats/distributions/figures.h"
#include "qorvex/stats/distributions/gamma.h"
#include "qorvex/stats/distributions/hypergeometric.h"
#include "qorvex/stats/distributions/log_normal.h"
#include "qorvex/stats/distributions/normal.h"
#include "qorvex/stats/distributions/poisson.h"
#include "qorvex/stats/distributions/student_t.h"
