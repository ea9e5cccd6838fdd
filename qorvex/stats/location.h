#pragma once

/// @file
/// Means of a vector, and the root of its sum of squares.
///
/// Results are extended. NaN elements give NaN, except where a check for positive elements rejects
/// them; infinities give what the processor makes of them. O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexStatistics {

/// The arithmetic mean: SumVector over n. Integer elements are summed in int64, which wraps around
/// silently. An empty vector raises EMathError with rsVectorIsEmpty. For the six elements of at
/// least 32 bits.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended QorMean(const TQorVector<T>& vector);

/// The geometric mean, exp of the mean logarithm. EMathError: rsVectorIsEmpty, then rsVectorNotPos
/// unless every element is greater than QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended GeometricMean(const TQorFloatVector& vector);

/// The harmonic mean, n over the sum of the reciprocals. EMathError: rsVectorIsEmpty, then
/// rsVectorNotPos unless every element is greater than QorTolerance.
[[nodiscard]] QORVEX_EXPORT Extended HarmonicMean(const TQorFloatVector& vector);

/// The root of the sum of the squares; in spite of its name it takes no mean, so (3, 4) gives 5. An
/// empty vector raises EMathError with rsVectorIsEmpty.
[[nodiscard]] QORVEX_EXPORT Extended RootMeanSquare(const TQorFloatVector& vector);

}  // namespace qorvex::inline QorvexStatistics
