#pragma once

/// @file
/// Tests of the signs of all elements.
///
/// - Floating elements and amounts of type Currency are compared with zero within QorTolerance;
///   int64 elements and the other currencies exactly.
/// - n = 0: EMathError with rsVectorIsEmpty.
/// - NaN is not zero, not positive and not negative.
/// - O(n); elements after the one that decides the result are not read.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// The element types that have sign tests.
template <class T>
concept SignTestElement =
    OneOf<T, Extended, double, float, std::int64_t, Currency, QorCurrency, QorLongCurrency>;

/// @{
/// Every element is zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorZero(VectorView<T> vector);
template <ContiguousRange Range>
requires SignTestElement<ElementOf<Range>>
[[nodiscard]] bool VectorZero(const Range& vector) {
  return VectorZero<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// No element is zero. Elements of a Single vector are compared with zero exactly, so that tiny
/// values count as non-zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorNonZero(VectorView<T> vector);
template <ContiguousRange Range>
requires SignTestElement<ElementOf<Range>>
[[nodiscard]] bool VectorNonZero(const Range& vector) {
  return VectorNonZero<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// Every element is greater than zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorPositive(VectorView<T> vector);
template <ContiguousRange Range>
requires SignTestElement<ElementOf<Range>>
[[nodiscard]] bool VectorPositive(const Range& vector) {
  return VectorPositive<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// No element is less than zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorNonNegative(VectorView<T> vector);
template <ContiguousRange Range>
requires SignTestElement<ElementOf<Range>>
[[nodiscard]] bool VectorNonNegative(const Range& vector) {
  return VectorNonNegative<ElementOf<Range>>(vector);
}
/// @}

}  // namespace qorvex::inline QorvexVector
