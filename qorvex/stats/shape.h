#pragma once

/// @file
/// Skewness and excess kurtosis.
///
/// Each comes with the mean and standard deviation given, or computed in a single pass by
/// SampleStdDevAndMean or PopulationStdDevAndMean. Of equal values, rounding may leave the
/// single-pass variance a little above zero or below it instead of zero: the forms without a mean
/// then give a meaningless figure, or raise EInvalidOp instead of rsStdDev. Pass the two-pass mean
/// and standard deviation where that matters. NaN and infinite elements give NaN. O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The sample skewness n D / ((n - 1)(n - 2) std_dev^3), for the sum D of the cubed differences
/// from the mean. EMathError: rsVectorIsEmpty; rsVectorG2 below three elements; rsStdDev when the
/// standard deviation is zero within QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GetSampleSkew(const TQorFloatVector& vector, Extended mean,
                                                   Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetSampleSkew(const TQorFloatVector& vector);
/// @}

/// @{
/// The population skewness D / (n std_dev^3), with the errors of GetSampleSkew.
[[nodiscard]] QORVEX_EXPORT Extended GetPopulationSkew(const TQorFloatVector& vector, Extended mean,
                                                       Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetPopulationSkew(const TQorFloatVector& vector);
/// @}

/// @{
/// The sample excess kurtosis n (n + 1) Q / (std_dev^4 (n - 1)(n - 2)(n - 3)) - 3 (n - 1)^2 / ((n -
/// 2)(n - 3)), for the sum Q of the fourth powers of the differences from the mean. EMathError:
/// rsVectorIsEmpty; rsVectorG3 below four elements; rsStdDev when the standard deviation is zero
/// within QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GetSampleKurtosis(const TQorFloatVector& vector, Extended mean,
                                                       Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetSampleKurtosis(const TQorFloatVector& vector);
/// @}

/// @{
/// The population excess kurtosis Q / (n std_dev^4) - 3, with the errors of GetSampleKurtosis:
/// fewer than four elements are refused here too.
[[nodiscard]] QORVEX_EXPORT Extended GetPopulationKurtosis(const TQorFloatVector& vector,
                                                           Extended mean, Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetPopulationKurtosis(const TQorFloatVector& vector);
/// @}

}  // namespace qorvex::inline QorvexStatistics
