#pragma once

/// @file
/// Tests of the signs of all elements.
///
/// - Floating elements and amounts of type Currency are compared with zero within QorTolerance;
///   int64 elements and the other currencies exactly.
/// - n = 0: EMathError with rsVectorIsEmpty.
/// - NaN is not zero, not positive and not negative.
/// - O(n); elements after the one that decides the result are not read.

#include <concepts>
#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// The element types that have sign tests.
template <class T>
concept SignTestElement = FloatElement<T> || std::same_as<T, std::int64_t> || CurrencyElement<T>;

/// Every element is zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorZero(const TQorVector<T>& vector);

/// No element is zero. Elements of a Single vector are compared with zero exactly, so that tiny
/// values count as non-zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorNonZero(const TQorVector<T>& vector);

/// Every element is greater than zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorPositive(const TQorVector<T>& vector);

/// No element is less than zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorNonNegative(const TQorVector<T>& vector);

}  // namespace qorvex::inline QorvexVector
