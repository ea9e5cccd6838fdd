#pragma once

/// @file
/// Skewness and excess kurtosis.
///
/// Each has a form with given mean and standard deviation, and one that computes them in a single
/// pass with SampleStdDevAndMean or PopulationStdDevAndMean.
///
/// - Equal elements: rounding can make the single-pass variance slightly positive or negative
///   instead of zero. The forms without a mean then return a meaningless figure, or raise
///   EInvalidOp instead of rsStdDev. Pass the two-pass mean and standard deviation where that
///   matters.
/// - NaN and infinite elements give NaN.
/// - Cost: O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The sample skewness n D / ((n-1)(n-2) std_dev^3), where D is the sum of (x - mean)^3.
/// EMathError: rsVectorIsEmpty; rsVectorG2 if n < 3; rsStdDev if std_dev is zero within
/// QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GetSampleSkew(VectorView<Extended> vector, Extended mean,
                                                   Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetSampleSkew(VectorView<Extended> vector);
/// @}

/// @{
/// The population skewness D / (n std_dev^3), with the errors of GetSampleSkew.
[[nodiscard]] QORVEX_EXPORT Extended GetPopulationSkew(VectorView<Extended> vector, Extended mean,
                                                       Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetPopulationSkew(VectorView<Extended> vector);
/// @}

/// @{
/// The sample excess kurtosis n (n+1) Q / (std_dev^4 (n-1)(n-2)(n-3)) - 3 (n-1)^2 / ((n-2)(n-3)),
/// where Q is the sum of (x - mean)^4. EMathError: rsVectorIsEmpty; rsVectorG3 if n < 4; rsStdDev
/// if std_dev is zero within QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GetSampleKurtosis(VectorView<Extended> vector, Extended mean,
                                                       Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetSampleKurtosis(VectorView<Extended> vector);
/// @}

/// @{
/// The population excess kurtosis Q / (n std_dev^4) - 3, with the errors of GetSampleKurtosis,
/// including rsVectorG3 for fewer than four elements.
[[nodiscard]] QORVEX_EXPORT Extended GetPopulationKurtosis(VectorView<Extended> vector,
                                                           Extended mean, Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetPopulationKurtosis(VectorView<Extended> vector);
/// @}

}  // namespace qorvex::inline QorvexStatistics
