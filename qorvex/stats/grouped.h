#pragma once

/// @file
/// Statistics of a frequency table with classes of equal width.
///
/// Class i holds freq[i] values and begins at lower_bound + i * width. Every value counts as the
/// midpoint of its class, i * width + lower_bound + width / 2; quantiles are interpolated within a
/// class. T is the total frequency.
///
/// For all routines:
///
/// - Empty table: EMathError rsVectorIsEmpty, before all other errors. The outputs keep their
///   values after an error.
/// - Sums run over the classes in ascending order, in extended precision.
/// - Cumulative frequencies are uint32 and wrap around: quantiles need T < 2^32.
/// - NaN and infinite bounds, widths, means and standard deviations propagate as in IEEE 754
///   arithmetic.
/// - Cost: O(n), without allocation.

#include <span>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The mean; 0 if T = 0.
[[nodiscard]] QORVEX_EXPORT Extended GroupedMean(VectorView<std::uint32_t> freq,
                                                 Extended lower_bound, Extended width);

/// The median: the point below which half of the values lie. EInvalidOp if T = 0; EMathError
/// rsMedianNotFound if the cumulative frequencies wrap around before they reach T/2.
[[nodiscard]] QORVEX_EXPORT Extended GroupedMedian(VectorView<std::uint32_t> freq,
                                                   Extended lower_bound, Extended width);

/// Finds the mode if exactly one class has the largest frequency.
///
/// - True, with the mode: it divides the class in the ratio of the differences from the frequencies
///   of the two neighbours. Missing neighbours have the frequency 0.
/// - False if the largest frequency occurs more than once; `mode` keeps its value.
/// - EInvalidOp for a single class with frequency 0.
[[nodiscard]] QORVEX_EXPORT bool GroupedMode(VectorView<std::uint32_t> freq, Extended lower_bound,
                                             Extended width, Extended& mode);

/// The quartiles: the points below which a quarter and three quarters of the values lie. The errors
/// are those of GroupedMedian, with rsQuartilesNotFound instead of rsMedianNotFound.
QORVEX_EXPORT void GroupedQuartiles(VectorView<std::uint32_t> freq, Extended lower_bound,
                                    Extended width, Extended& q1, Extended& q3);

/// The nine deciles.
///
/// - Exception: for a decile that lies in the last class, or beyond it because the cumulative
///   frequencies wrap around, the result is the number of values before the last class instead.
/// - T = 0: all deciles are 0.
QORVEX_EXPORT void GetGroupedDeciles(VectorView<std::uint32_t> freq, Extended lower_bound,
                                     Extended width, std::span<Extended, 9> deciles);

/// @{
/// The variance: the sum of the squared differences from the mean over T - 1, or over T. The sample
/// form returns 0 if T < 2, the population form if T = 0.
[[nodiscard]] QORVEX_EXPORT Extended GroupedSampleVariance(VectorView<std::uint32_t> freq,
                                                           Extended lower_bound, Extended width);
[[nodiscard]] QORVEX_EXPORT Extended GroupedPopulationVariance(VectorView<std::uint32_t> freq,
                                                               Extended lower_bound,
                                                               Extended width);
/// @}

/// @{
/// The square root of the variance.
[[nodiscard]] QORVEX_EXPORT Extended GroupedSampleStdDev(VectorView<std::uint32_t> freq,
                                                         Extended lower_bound, Extended width);
[[nodiscard]] QORVEX_EXPORT Extended GroupedPopulationStdDev(VectorView<std::uint32_t> freq,
                                                             Extended lower_bound, Extended width);
/// @}

/// The sum of the values, and the sum of their squares.
QORVEX_EXPORT void GroupedSums(VectorView<std::uint32_t> freq, Extended lower_bound, Extended width,
                               Extended& sum, Extended& sum_sq);

/// The mean of |x - mean| for the given mean; 0 if T = 0.
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedMeanDev(VectorView<std::uint32_t> freq,
                                                       Extended lower_bound, Extended width,
                                                       Extended mean);

/// @{
/// Skewness: D / (T std_dev^3), called the sample skewness here, and T D / ((T-1)(T-2) std_dev^3),
/// called the population skewness. D is the sum of (midpoint - mean)^3.
///
/// - D counts every class once, whatever its frequency, so the figures are skewnesses of the values
///   only if all frequencies are 1.
/// - (T-1)(T-2) wraps around in int64.
/// - EMathError: rsVectorIsEmpty; rsVectorG2 if T < 3; rsStdDev if std_dev is zero within
///   QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedSampleSkew(VectorView<std::uint32_t> freq,
                                                          Extended lower_bound, Extended width,
                                                          Extended mean, Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedPopulationSkew(VectorView<std::uint32_t> freq,
                                                              Extended lower_bound, Extended width,
                                                              Extended mean, Extended std_dev);
/// @}

/// @{
/// Excess kurtosis: T (T+1) D / (std_dev^4 (T-1)(T-2)(T-3)) - 3 (T-1)^2 / ((T-2)(T-3)) for the
/// sample, and D / (std_dev^4 T) - 3 for the population. D is the sum of (midpoint - mean)^4.
///
/// - D counts every class once, whatever its frequency.
/// - The products of T wrap around: 3 (T-1)^2 in int32, the others in int64. The sample figure is
///   therefore meaningless from T = 26756 on.
/// - EMathError: rsVectorIsEmpty; rsVectorG3 if T < 4; rsStdDev if std_dev is zero within
///   QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedSampleKurtosis(VectorView<std::uint32_t> freq,
                                                              Extended lower_bound, Extended width,
                                                              Extended mean, Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedPopulationKurtosis(VectorView<std::uint32_t> freq,
                                                                  Extended lower_bound,
                                                                  Extended width, Extended mean,
                                                                  Extended std_dev);
/// @}

}  // namespace qorvex::inline QorvexStatistics
