#pragma once

/// @file
/// Unit QorvexVector: vectors of the ten numeric element types.
///
/// Routines that only read a vector take every contiguous range of its elements, without a copy:
/// see VectorView. Each exists twice, for elements in braces and an explicit type, as in
/// SumVector<double>({1, 2}), and for ranges.

#include "qorvex/base/errors.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/arithmetic.h"
#include "qorvex/vector/building.h"
#include "qorvex/vector/conversion.h"
#include "qorvex/vector/extremes.h"
#include "qorvex/vector/moving_average.h"
#include "qorvex/vector/polynomial.h"
#include "qorvex/vector/ranking.h"
#include "qorvex/vector/sign_tests.h"
#include "qorvex/vector/sorting.h"
#include "qorvex/vector/transforms.h"
