#pragma once

/// @file
/// Autocorrelations of a series.

#include <cstddef>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// The autocorrelations of values at equal distances, for lags from 0 to the given one or n - 1.
///
/// - The covariance at a lag is the sum of the products of deviations from the one mean over n: G.
///   E. P. Box and G. M. Jenkins, Time Series Analysis, 1970.
/// - NaN stands for a missing value. Products with it are left out, and n is then the number of
///   products plus the lag.
/// - Empty unless there are two different values, all are finite, and their squares are in range.
/// - O(n times lags).
[[nodiscard]] std::vector<Extended> Autocorrelations(const TQorFloatVector& values,
                                                     std::size_t most_lags);

}  // namespace qorvex::gallery
