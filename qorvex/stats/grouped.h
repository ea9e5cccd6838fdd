#pragma once

/// @file
/// Statistics of a table of frequencies: freq[i] values in the class i, which begins at lower_bound
/// + i * width. Every value counts as the midpoint i * width + lower_bound + width / 2 of its
/// class; order statistics interpolate within a class.
///
/// Sums run over the classes in ascending order, in extended precision. Cumulative frequencies are
/// uint32 and wrap around: order statistics need a total below 2^32. A NaN or infinite bound,
/// width, mean or standard deviation gives NaN or infinity as the processor makes it.
///
/// EMathError: first of all rsVectorIsEmpty, and where nothing is found or a division fails, with
/// the outputs untouched. Nothing is written to the table. O(n), without allocation.

#include <span>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The mean; 0 when all frequencies are 0.
[[nodiscard]] QORVEX_EXPORT Extended GroupedMean(const TQorLWordVector& freq, Extended lower_bound,
                                                 Extended width);

/// The point that half of the values are below. EInvalidOp when all frequencies are 0;
/// rsMedianNotFound when the cumulative frequencies wrap around before they reach it.
[[nodiscard]] QORVEX_EXPORT Extended GroupedMedian(const TQorLWordVector& freq,
                                                   Extended lower_bound, Extended width);

/// True, with the mode, when one class has a larger frequency than every other; otherwise false,
/// the mode untouched. The mode divides its class in the ratio of the differences from the two
/// neighbours' frequencies, where a neighbour beyond the table has none. EInvalidOp for one class
/// with frequency 0.
[[nodiscard]] QORVEX_EXPORT bool GroupedMode(const TQorLWordVector& freq, Extended lower_bound,
                                             Extended width, Extended& mode);

/// The points that a quarter and three quarters of the values are below, with the errors of
/// GroupedMedian, but rsQuartilesNotFound.
QORVEX_EXPORT void GroupedQuartiles(const TQorLWordVector& freq, Extended lower_bound,
                                    Extended width, Extended& q1, Extended& q3);

/// The nine points that a tenth, two tenths ... of the values are below. But one that lies in the
/// last class, or beyond it because the cumulative frequencies wrap around, gives instead the
/// number of values before the last class; all are 0 when all frequencies are 0.
QORVEX_EXPORT void GetGroupedDeciles(const TQorLWordVector& freq, Extended lower_bound,
                                     Extended width, std::span<Extended, 9> deciles);

/// @{
/// The sum of the squared differences from the mean over T - 1 or T, for the total T; 0 for T < 2
/// or T = 0.
[[nodiscard]] QORVEX_EXPORT Extended GroupedSampleVariance(const TQorLWordVector& freq,
                                                           Extended lower_bound, Extended width);
[[nodiscard]] QORVEX_EXPORT Extended GroupedPopulationVariance(const TQorLWordVector& freq,
                                                               Extended lower_bound,
                                                               Extended width);
/// @}

/// @{
/// The square root of the variance.
[[nodiscard]] QORVEX_EXPORT Extended GroupedSampleStdDev(const TQorLWordVector& freq,
                                                         Extended lower_bound, Extended width);
[[nodiscard]] QORVEX_EXPORT Extended GroupedPopulationStdDev(const TQorLWordVector& freq,
                                                             Extended lower_bound, Extended width);
/// @}

/// The sum of the values and the sum of their squares.
QORVEX_EXPORT void GroupedSums(const TQorLWordVector& freq, Extended lower_bound, Extended width,
                               Extended& sum, Extended& sum_sq);

/// The mean absolute difference from the given mean; 0 when all frequencies are 0.
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedMeanDev(const TQorLWordVector& freq,
                                                       Extended lower_bound, Extended width,
                                                       Extended mean);

/// @{
/// The figures D / (T std_dev^3), called the sample skewness here, and T D / ((T - 1)(T - 2)
/// std_dev^3), called the population skewness, for the total T. D is the sum of the cubed
/// differences of the midpoints from the mean: every class counts once, whatever its frequency, so
/// these are skewnesses of the values only where all frequencies are 1. (T - 1)(T - 2) wraps around
/// in int64. EMathError: rsVectorIsEmpty; rsVectorG2 for T < 3; rsStdDev when the standard
/// deviation is zero within QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedSampleSkew(const TQorLWordVector& freq,
                                                          Extended lower_bound, Extended width,
                                                          Extended mean, Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedPopulationSkew(const TQorLWordVector& freq,
                                                              Extended lower_bound, Extended width,
                                                              Extended mean, Extended std_dev);
/// @}

/// @{
/// The figures T (T + 1) D / (std_dev^4 (T - 1)(T - 2)(T - 3)) - 3 (T - 1)^2 / ((T - 2)(T - 3)),
/// called the sample excess kurtosis, and D / (std_dev^4 T) - 3, the population's, for the sum D of
/// the fourth powers of the differences: here too every class counts once. The products of the
/// total alone wrap around, 3 (T - 1)^2 in int32 and the others in int64, so the sample figure
/// means nothing from T = 26756 on. EMathError: rsVectorIsEmpty; rsVectorG3 for T < 4; rsStdDev
/// when the standard deviation is zero within QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedSampleKurtosis(const TQorLWordVector& freq,
                                                              Extended lower_bound, Extended width,
                                                              Extended mean, Extended std_dev);
[[nodiscard]] QORVEX_EXPORT Extended GetGroupedPopulationKurtosis(const TQorLWordVector& freq,
                                                                  Extended lower_bound,
                                                                  Extended width, Extended mean,
                                                                  Extended std_dev);
/// @}

}  // namespace qorvex::inline QorvexStatistics
