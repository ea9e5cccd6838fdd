#pragma once

/// @file
/// Sums of elements, of squares and of squared differences, and magnitudes.
///
/// - Floating elements are summed in extended precision, in ascending order of their index. The
///   order is part of the result.
/// - NaN and infinities propagate as in IEEE 754 arithmetic.
/// - Integer elements are summed in int64, which wraps around silently. Their squares are computed
///   in the narrow widths that SumSqVector lists.
/// - O(n).

#include <concepts>
#include <cstdint>
#include <type_traits>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// @{
/// The sum of the elements: Extended for floating elements, int64 for integers, and an amount of
/// the same type, whose stored integer wraps around, for currencies.
///
/// - n = 0: EMathError with rsVectorIsEmpty. n = 1: the element.
/// - For all element types.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT SumOf<T> SumVector(VectorView<T> vector);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] SumOf<ElementOf<Range>> SumVector(const Range& vector) {
  return SumVector<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// The sum of the squares: Extended for floating elements, int64 for integers.
///
/// - n = 0: EMathError with rsVectorIsEmpty.
/// - For all numeric element types. For exact sums of large integers convert with
///   Vector2FloatVector first, because only the low bits of each square are added:
///
/// | element      | square                                                                     |
/// |--------------|----------------------------------------------------------------------------|
/// | int64        | of the low 32 bits; low 32 bits of the product, sign-extended               |
/// | int32        | low 32 bits, sign-extended                                                  |
/// | uint32       | low 32 bits, zero-extended                                                  |
/// | uint16       | low 16 bits, zero-extended                                                  |
/// | int16        | low 16 bits, sign-extended                                                  |
/// | uint8, int8  | low 16 bits, sign-extended (255 squared adds -511)                          |
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT SumOf<T> SumSqVector(VectorView<T> vector);
template <ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] SumOf<ElementOf<Range>> SumSqVector(const Range& vector) {
  return SumSqVector<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// The sum of (element - mean)^2 in extended precision, for a mean of the element type. n = 0
/// raises EMathError with rsVectorIsEmpty. For floating elements.
template <FloatElement T>
[[nodiscard]] QORVEX_EXPORT Extended SumSqDiffVector(VectorView<T> vector, ScalarOf<T> mean);
template <ContiguousRange Range>
requires FloatElement<ElementOf<Range>>
[[nodiscard]] Extended SumSqDiffVector(const Range& vector, ScalarOf<ElementOf<Range>> mean) {
  return SumSqDiffVector<ElementOf<Range>>(vector, mean);
}
/// @}

/// @cond internal
namespace detail {
template <WideIntegerElement T>
QORVEX_EXPORT std::int64_t SumSqDiffFromInteger(VectorView<T> vector, T mean);
template <WideNumericElement T>
QORVEX_EXPORT Extended SumSqDiffFromExtended(VectorView<T> vector, Extended mean);
}  // namespace detail
/// @endcond

/// @{
/// The sum of (element - mean)^2 over integers. n = 0 raises EMathError with rsVectorIsEmpty. For
/// int64, uint32 and int32.
///
/// - A floating mean gives the sum in extended precision.
/// - An integer mean is converted to the element type and gives an int64 sum: the difference wraps
///   around in the element's width and is squared as in SumSqVector.
template <WideIntegerElement T, class Mean>
requires std::is_arithmetic_v<Mean>
[[nodiscard]] auto SumSqDiffVector(VectorView<T> vector, Mean mean) {
  if constexpr (std::integral<Mean>) {
    return detail::SumSqDiffFromInteger(vector, static_cast<T>(mean));
  } else {
    return detail::SumSqDiffFromExtended(vector, static_cast<Extended>(mean));
  }
}
template <ContiguousRange Range, class Mean>
requires WideIntegerElement<ElementOf<Range>> && std::is_arithmetic_v<Mean>
[[nodiscard]] auto SumSqDiffVector(const Range& vector, Mean mean) {
  return SumSqDiffVector<ElementOf<Range>>(vector, mean);
}
/// @}

/// @{
/// The sum of (a[i] - b[i])^2.
///
/// - Extended for floating elements. int64 for integers: of the 64-bit difference the low 32 bits
///   are squared, as a signed product for uint32 too.
/// - EMathError, in this order: rsSameDimensions for different lengths, rsVectorIsEmpty for n = 0.
/// - For the six numeric element types of at least 32 bits.
template <WideNumericElement T>
[[nodiscard]] QORVEX_EXPORT SumOf<T> SumSqDiffVectors(VectorView<T> a, VectorView<T> b);
template <ContiguousRange Range>
requires WideNumericElement<ElementOf<Range>>
[[nodiscard]] SumOf<ElementOf<Range>> SumSqDiffVectors(const Range& a,
                                                       VectorView<ElementOf<Range>> b) {
  return SumSqDiffVectors<ElementOf<Range>>(a, b);
}
template <ContiguousRange Range, std::same_as<ElementOf<Range>> T = ElementOf<Range>>
requires WideNumericElement<T>
[[nodiscard]] SumOf<T> SumSqDiffVectors(VectorView<T> a, const Range& b) {
  return SumSqDiffVectors<T>(a, b);
}
/// @}

/// @{
/// The square root of the sum of the squares, in extended precision; 0 for n = 0. For all numeric
/// element types.
template <NumericElement T>
[[nodiscard]] QORVEX_EXPORT Extended VectorMagnitude(VectorView<T> vector);
template <ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] Extended VectorMagnitude(const Range& vector) {
  return VectorMagnitude<ElementOf<Range>>(vector);
}
/// @}

}  // namespace qorvex::inline QorvexVector
