#pragma once

/// @file
/// Means of a vector, and the root of its sum of squares.
///
/// For all routines:
///
/// - n = 0: EMathError rsVectorIsEmpty.
/// - Results are extended values.
/// - NaN elements give NaN, except where a check for positive elements rejects them. Infinities
///   propagate as in IEEE 754 arithmetic.
/// - Cost: O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// @{
/// The arithmetic mean, SumVector(vector) / n. For the six element types of at least 32 bits.
/// Integers are summed in int64, which wraps around silently.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended QorMean(VectorView<T> vector);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended QorMean(const Range& vector) {
  return QorMean<ElementOf<Range>>(vector);
}
/// @}

/// The geometric mean, exp(sum of ln x / n). EMathError: rsVectorIsEmpty; then rsVectorNotPos
/// unless every element exceeds QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GeometricMean(VectorView<Extended> vector);

/// The harmonic mean, n / sum of 1/x. EMathError: rsVectorIsEmpty; then rsVectorNotPos unless every
/// element exceeds QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended HarmonicMean(VectorView<Extended> vector);

/// The square root of the sum of squares. In spite of its name, no mean is taken: (3, 4) gives 5.
[[nodiscard]] QORVEX_EXPORT Extended RootMeanSquare(VectorView<Extended> vector);

}  // namespace qorvex::inline QorvexStatistics
