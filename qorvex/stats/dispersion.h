#pragma once

/// @file
/// Variances, standard deviations and other measures of spread, and standardisation.
///
/// Results are extended; sample figures divide by n - 1 and population figures by n. NaN elements
/// give NaN, except where a check for positive elements rejects them; the variance of infinite
/// elements is NaN (infinity less infinity). O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The variance in two passes: the mean, then the mean squared difference from it, which keeps its
/// accuracy when the spread is small beside the mean. EMathError: rsVectorIsEmpty, then for the
/// sample form rsVectorG1 for one element. For the six elements of at least 32 bits; integer
/// elements are summed in int64 for the mean. The mean stays extended for every element type:
/// rounded to a single, it would add its own rounding error to the variance of singles.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended SampleVariance(const TQorVector<T>& vector);
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended PopulationVariance(const TQorVector<T>& vector);
/// @}

/// @{
/// The square root of the two-pass variance, with its errors.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended SampleStdDev(const TQorVector<T>& vector);
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended PopulationStdDev(const TQorVector<T>& vector);
/// @}

/// @{
/// Variance and mean in a single pass over the vector: (SS - S*S/n) divided by n - 1 or n, for the
/// sum S and the sum of squares SS. Quicker than the two-pass forms, but digits cancel when the
/// spread is small beside the mean, and rounding may even leave the variance slightly negative.
/// Integer elements accumulate both sums in int64, wrapping. EMathError, with the outputs
/// untouched: rsVectorIsEmpty, then for the sample form rsVectorG1 for one element. For the six
/// elements of at least 32 bits.
template <WideNumericElement T>
QORVEX_EXPORT void SampleVarianceAndMean(const TQorVector<T>& vector, Extended& variance,
                                         Extended& mean);
template <WideNumericElement T>
QORVEX_EXPORT void PopulationVarianceAndMean(const TQorVector<T>& vector, Extended& variance,
                                             Extended& mean);
/// @}

/// @{
/// The square root of the single-pass variance, and the mean, with the same errors; then EInvalidOp
/// when rounding or wrapping has left the variance negative.
template <WideNumericElement T>
QORVEX_EXPORT void SampleStdDevAndMean(const TQorVector<T>& vector, Extended& std_dev,
                                       Extended& mean);
template <WideNumericElement T>
QORVEX_EXPORT void PopulationStdDevAndMean(const TQorVector<T>& vector, Extended& std_dev,
                                           Extended& mean);
/// @}

/// The mean absolute difference from the given mean; 0 for an empty vector, without an error.
[[nodiscard]] QORVEX_EXPORT Extended MeanDeviation(const TQorFloatVector& vector,
                                                   Extended mean) noexcept;

/// @{
/// The geometric standard deviation about a geometric mean: exp of the root of the sum of (ln x -
/// ln mean) squared over n - 1 when `sample` is true, over n when it is false (Standardise's flag
/// has the opposite sense). EMathError: rsVectorIsEmpty; for the sample form rsVectorG1 for one
/// element; rsVectorNotPos unless every element is greater than QorTolerance; EInvalidOp for a
/// negative mean and EZeroDivide for a mean of 0. The form without a mean takes GeometricMean
/// first, so that rsVectorNotPos comes before rsVectorG1. A mean without the flag does not compile:
/// it would pass for the flag.
[[nodiscard]] QORVEX_EXPORT Extended GeometricStdDev(const TQorFloatVector& vector, Extended mean,
                                                     bool sample);
[[nodiscard]] QORVEX_EXPORT Extended GeometricStdDev(const TQorFloatVector& vector, bool sample);
Extended GeometricStdDev(const TQorFloatVector& vector, Extended mean) = delete;
/// @}

/// Replaces each element x by ((x - mean) / std_dev) * new_std_dev + new_mean. EMathError, before
/// anything is written: rsVectorIsEmpty, then rsStdDev when std_dev is exactly 0 (the tolerance is
/// not used here).
QORVEX_EXPORT void Standardise(TQorFloatVector& vector, Extended mean, Extended std_dev,
                               Extended new_mean, Extended new_std_dev);

/// @{
/// Standardises with the vector's own single-pass standard deviation and mean:
/// PopulationStdDevAndMean when `population` is true, else SampleStdDevAndMean, with their errors.
/// Three figures without the flag do not compile: the last would pass for it.
QORVEX_EXPORT void Standardise(TQorFloatVector& vector, Extended new_mean, Extended new_std_dev,
                               bool population);
void Standardise(TQorFloatVector& vector, Extended, Extended, Extended) = delete;
/// @}

}  // namespace qorvex::inline QorvexStatistics
