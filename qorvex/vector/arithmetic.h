#pragma once

/// @file
/// Arithmetic with two vectors of equal length.
///
/// - Floating elements are computed in extended precision and rounded to their type when stored.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.
/// - Integers and the stored integers of amounts wrap around silently.
/// - Both arguments may be the same vector. They may be ranges of different kinds, and one of them
///   may be elements in braces.
/// - O(n).

#include <concepts>
#include <type_traits>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// @{
/// A new vector with the elements a[i] + b[i], or a[i] - b[i]; empty for n = 0. Different lengths
/// raise EMathError with rsSameDimensions. For floating elements, int64, int32 and the currencies.
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> AddVectors(VectorView<T> a, VectorView<T> b);
template <ContiguousRange Range>
requires AdditiveElement<ElementOf<Range>>
[[nodiscard]] TQorVector<ElementOf<Range>> AddVectors(const Range& a,
                                                      VectorView<ElementOf<Range>> b) {
  return AddVectors<ElementOf<Range>>(a, b);
}
// For elements in braces, from which T cannot be deduced. Other ranges do not match VectorView<T>,
// so that error messages say little about this form.
template <ContiguousRange Range, std::same_as<ElementOf<Range>> T = ElementOf<Range>>
requires AdditiveElement<T>
[[nodiscard]] TQorVector<T> AddVectors(VectorView<T> a, const Range& b) {
  return AddVectors<T>(a, b);
}
template <AdditiveElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> SubtractVectors(VectorView<T> a, VectorView<T> b);
template <ContiguousRange Range>
requires AdditiveElement<ElementOf<Range>>
[[nodiscard]] TQorVector<ElementOf<Range>> SubtractVectors(const Range& a,
                                                           VectorView<ElementOf<Range>> b) {
  return SubtractVectors<ElementOf<Range>>(a, b);
}
template <ContiguousRange Range, std::same_as<ElementOf<Range>> T = ElementOf<Range>>
requires AdditiveElement<T>
[[nodiscard]] TQorVector<T> SubtractVectors(VectorView<T> a, const Range& b) {
  return SubtractVectors<T>(a, b);
}
/// @}

/// @{
/// Replaces a[i] by a[i] + b[i], or a[i] - b[i]. The change is seen through every handle of a's
/// buffer. Different lengths raise EMathError with rsSameDimensions. For floating elements, int64,
/// int32 and the currencies.
template <AdditiveElement T>
QORVEX_EXPORT void AddToVector(TQorVector<T>& a, std::type_identity_t<VectorView<T>> b);
template <AdditiveElement T>
QORVEX_EXPORT void SubtractFromVector(TQorVector<T>& a, std::type_identity_t<VectorView<T>> b);
/// @}

/// @{
/// The sum of a[i] * b[i], added in ascending order.
///
/// - Extended for floating elements. int64, wrapping around, for integers: int64 elements are
///   multiplied in 64 bits; of a product of int32 or uint32 elements the low 32 bits are kept,
///   sign- or zero-extended, so that 65536 * 65536 is 0.
/// - EMathError, in this order: rsSameDimensions for different lengths, rsVectorIsEmpty for n = 0.
/// - For the six numeric element types of at least 32 bits.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT SumOf<T> DotProdVectors(VectorView<T> a, VectorView<T> b);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] SumOf<ElementOf<Range>> DotProdVectors(const Range& a,
                                                     VectorView<ElementOf<Range>> b) {
  return DotProdVectors<ElementOf<Range>>(a, b);
}
template <ContiguousRange Range, std::same_as<ElementOf<Range>> T = ElementOf<Range>>
requires WideNumericElement<T>
[[nodiscard]] SumOf<T> DotProdVectors(VectorView<T> a, const Range& b) {
  return DotProdVectors<T>(a, b);
}
/// @}

/// @{
/// The angle between two vectors in radians, from 0 to pi: QorArcCos(a . b / (|a| |b|)).
///
/// - Integer vectors use the integer result of DotProdVectors, with its narrow products.
/// - EMathError, in this order: rsMagZero if a magnitude is 0, as for n = 0; rsSameDimensions for
///   different lengths.
/// - For the six numeric element types of at least 32 bits.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended AngleBetweenVectors(VectorView<T> a, VectorView<T> b);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] Extended AngleBetweenVectors(const Range& a, VectorView<ElementOf<Range>> b) {
  return AngleBetweenVectors<ElementOf<Range>>(a, b);
}
template <ContiguousRange Range, std::same_as<ElementOf<Range>> T = ElementOf<Range>>
requires WideNumericElement<T>
[[nodiscard]] Extended AngleBetweenVectors(VectorView<T> a, const Range& b) {
  return AngleBetweenVectors<T>(a, b);
}
/// @}

}  // namespace qorvex::inline QorvexVector
