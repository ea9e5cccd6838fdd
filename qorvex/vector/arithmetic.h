#pragma once

/// @file
/// Arithmetic between two vectors of equal length.
///
/// Floating elements are computed in extended precision and rounded to their type when stored; NaN
/// and infinities are what the processor makes of them. Integers and the stored integers of amounts
/// wrap around silently. A vector may be both arguments. O(n).

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// A new vector with a[i] + b[i]; empty for two empty vectors. Different lengths raise EMathError
/// with rsSameDimensions.
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> AddVectors(const TQorVector<T>& a,
                                                     const TQorVector<T>& b);

/// A new vector with a[i] - b[i]; empty for two empty vectors. Different lengths raise EMathError
/// with rsSameDimensions.
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> SubtractVectors(const TQorVector<T>& a,
                                                          const TQorVector<T>& b);

/// Adds b[i] to a[i], seen through every handle of a's buffer. Different lengths raise EMathError
/// with rsSameDimensions.
template <AdditiveElement T>
QORVEX_EXPORT void AddToVector(TQorVector<T>& a, const TQorVector<T>& b);

/// Subtracts b[i] from a[i], seen through every handle of a's buffer. Different lengths raise
/// EMathError with rsSameDimensions.
template <AdditiveElement T>
QORVEX_EXPORT void SubtractFromVector(TQorVector<T>& a, const TQorVector<T>& b);

/// The sum of a[i] b[i] in ascending order: extended for floating elements; int64, wrapping, for
/// integers. Int64 multiplies 64 by 64 bits; LInt and LWord keep the low 32 bits of each product,
/// sign- or zero-extended, so (65536) times (65536) is 0. EMathError: rsSameDimensions for
/// different lengths, then rsVectorIsEmpty. For the six elements of at least 32 bits.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT SumOf<T> DotProdVectors(const TQorVector<T>& a, const TQorVector<T>& b);

/// The angle between two vectors in radians, from 0 to pi: QorArcCos of the dot product over the
/// product of the magnitudes. Integer vectors take the integer dot product of DotProdVectors, with
/// its narrow products. EMathError: rsMagZero when either magnitude is 0 (an empty vector's is),
/// then rsSameDimensions for different lengths. For the six elements of at least 32 bits.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended AngleBetweenVectors(const TQorVector<T>& a,
                                                         const TQorVector<T>& b);

}  // namespace qorvex::inline QorvexVector
