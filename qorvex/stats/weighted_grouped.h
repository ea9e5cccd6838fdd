#pragma once

/// @file
/// Skewness and kurtosis of a frequency table with classes of equal width, in which every value
/// counts.
///
/// - The moments are those of GetSampleSkew and its neighbours for T values at the midpoints of
///   their classes, where T is the total frequency. Each deviation is weighted by the frequency of
///   its class.
/// - The figures depend neither on the lower bound of the table nor on its width, so these are
///   not asked for.
/// - The moments are computed in integers and rounded once: the result is the nearest 80-bit
///   number.
/// - Cost: O(n) for n classes.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/estimate.h"

namespace qorvex::inline QorvexStatistics {

/// The skewness: D / (T std_dev^3) of the population, where D is the sum of frequency * (midpoint -
/// mean)^3, and T D / ((T-1)(T-2) std_dev^3) of the sample.
///
/// EMathError, in this order: rsVectorIsEmpty for no classes; rsVectorG2 if T < 3; rsStdDev if all
/// values are in one class.
[[nodiscard]] QORVEX_EXPORT Extended WeightedGroupedSkew(VectorView<std::uint32_t> freq,
                                                         Estimate estimate = Estimate::kSample);

/// The excess kurtosis: D / (T std_dev^4) - 3 of the population, where D is the sum of frequency *
/// (midpoint - mean)^4, and T (T+1) D / ((T-1)(T-2)(T-3) std_dev^4) - 3 (T-1)^2 / ((T-2)(T-3)) of
/// the sample.
///
/// EMathError, in this order: rsVectorIsEmpty for no classes; rsVectorG3 if T < 4; rsStdDev if all
/// values are in one class.
[[nodiscard]] QORVEX_EXPORT Extended WeightedGroupedKurtosis(VectorView<std::uint32_t> freq,
                                                             Estimate estimate = Estimate::kSample);

}  // namespace qorvex::inline QorvexStatistics
