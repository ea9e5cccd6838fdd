#pragma once

/// @file
/// Variances, standard deviations and other measures of spread, and standardisation.
///
/// For all routines:
///
/// - Results are extended values. Sample figures divide by n - 1, population figures by n.
/// - NaN elements give NaN, except where a check for positive elements rejects them.
/// - The variance of infinite elements is NaN (infinity minus infinity).
/// - Cost: O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The variance in two passes: the mean, then the sum of (x - mean)^2 over n - 1 or n. It stays
/// accurate if the spread is small compared with the mean.
///
/// - n = 0: EMathError rsVectorIsEmpty. n = 1: the sample form raises rsVectorG1, the population
///   form returns 0.
/// - Elements: the six types of at least 32 bits. Integers are summed in int64 for the mean.
/// - The mean is extended for every element type. Rounded to a single, it would add its own
///   rounding error to the variance of singles.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended SampleVariance(VectorView<T> vector);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended SampleVariance(const Range& vector) {
  return SampleVariance<ElementOf<Range>>(vector);
}
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended PopulationVariance(VectorView<T> vector);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended PopulationVariance(const Range& vector) {
  return PopulationVariance<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// The square root of the two-pass variance, with the same errors.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended SampleStdDev(VectorView<T> vector);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended SampleStdDev(const Range& vector) {
  return SampleStdDev<ElementOf<Range>>(vector);
}
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended PopulationStdDev(VectorView<T> vector);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended PopulationStdDev(const Range& vector) {
  return PopulationStdDev<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// Variance and mean in a single pass: (SS - S*S/n) over n - 1 or n, for the sum S and the sum of
/// squares SS. Reads the elements once, but digits cancel if the spread is small compared with the
/// mean, and rounding can even make the variance slightly negative.
///
/// - n = 0: EMathError rsVectorIsEmpty. n = 1: the sample form raises rsVectorG1. The outputs keep
///   their values.
/// - Elements: the six types of at least 32 bits. For integers both sums are int64 and wrap around.
template <WideNumericElement T>
QORVEX_EXPORT void SampleVarianceAndMean(VectorView<T> vector, Extended& variance, Extended& mean);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
void SampleVarianceAndMean(const Range& vector, Extended& variance, Extended& mean) {
  SampleVarianceAndMean<ElementOf<Range>>(vector, variance, mean);
}
template <WideNumericElement T>
QORVEX_EXPORT void PopulationVarianceAndMean(VectorView<T> vector, Extended& variance,
                                             Extended& mean);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
void PopulationVarianceAndMean(const Range& vector, Extended& variance, Extended& mean) {
  PopulationVarianceAndMean<ElementOf<Range>>(vector, variance, mean);
}
/// @}

/// @{
/// The square root of the single-pass variance, and the mean, with the same errors. Then EInvalidOp
/// if rounding or wrapping has made the variance negative.
template <WideNumericElement T>
QORVEX_EXPORT void SampleStdDevAndMean(VectorView<T> vector, Extended& std_dev, Extended& mean);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
void SampleStdDevAndMean(const Range& vector, Extended& std_dev, Extended& mean) {
  SampleStdDevAndMean<ElementOf<Range>>(vector, std_dev, mean);
}
template <WideNumericElement T>
QORVEX_EXPORT void PopulationStdDevAndMean(VectorView<T> vector, Extended& std_dev, Extended& mean);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
void PopulationStdDevAndMean(const Range& vector, Extended& std_dev, Extended& mean) {
  PopulationStdDevAndMean<ElementOf<Range>>(vector, std_dev, mean);
}
/// @}

/// The mean of |x - mean| for the given mean; 0 for an empty vector, without an error.
[[nodiscard]] QORVEX_EXPORT Extended MeanDeviation(VectorView<Extended> vector,
                                                   Extended mean) noexcept;

/// @{
/// The geometric standard deviation: exp(sqrt(sum of (ln x - ln mean)^2 / d)), where d is n - 1 if
/// `sample` is true and n otherwise. Note that the flag of Standardise has the opposite meaning.
///
/// - With a mean: EMathError rsVectorIsEmpty; for the sample form rsVectorG1 if n = 1;
///   rsVectorNotPos unless every element exceeds QorTolerance; then EInvalidOp for a negative mean
///   and EZeroDivide for a mean of 0.
/// - Without a mean: GeometricMean is computed first, so rsVectorNotPos comes before rsVectorG1.
/// - A mean without the flag does not compile, because it would be taken for the flag.
[[nodiscard]] QORVEX_EXPORT Extended GeometricStdDev(VectorView<Extended> vector, Extended mean,
                                                     bool sample);
[[nodiscard]] QORVEX_EXPORT Extended GeometricStdDev(VectorView<Extended> vector, bool sample);
Extended GeometricStdDev(VectorView<Extended> vector, Extended mean) = delete;
/// @}

/// Replaces each element x by ((x - mean) / std_dev) * new_std_dev + new_mean. EMathError, before
/// anything is written: rsVectorIsEmpty; then rsStdDev if std_dev is exactly 0, without a
/// tolerance.
QORVEX_EXPORT void Standardise(TQorFloatVector& vector, Extended mean, Extended std_dev,
                               Extended new_mean, Extended new_std_dev);

/// @{
/// Standardises with the single-pass mean and standard deviation of the vector:
/// PopulationStdDevAndMean if `population` is true, otherwise SampleStdDevAndMean, with their
/// errors. Three figures alone do not compile, because the last would be taken for the flag.
QORVEX_EXPORT void Standardise(TQorFloatVector& vector, Extended new_mean, Extended new_std_dev,
                               bool population);
void Standardise(TQorFloatVector& vector, Extended, Extended, Extended) = delete;
/// @}

}  // namespace qorvex::inline QorvexStatistics
