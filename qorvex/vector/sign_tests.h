#pragma once

/// @file
/// Tests of the signs of all elements.
///
/// Each looks at elements from the front only until the answer is certain. Floating elements are
/// judged within QorTolerance, and so are the amounts of Currency vectors; int64 elements and the
/// other currencies exactly. An empty vector raises EMathError with rsVectorIsEmpty. A NaN element
/// counts as not zero, not positive and not negative. For Float, Double, Single and Int64 vectors
/// and those of the currencies. O(n).

#include <concepts>
#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// The elements that the sign tests know.
template <class T>
concept SignTestElement = FloatElement<T> || std::same_as<T, std::int64_t> || CurrencyElement<T>;

/// Every element is zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorZero(const TQorVector<T>& vector);

/// No element is zero. Elements of a Single vector are compared with zero exactly, so a tiny single
/// counts as non-zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorNonZero(const TQorVector<T>& vector);

/// Every element is greater than zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorPositive(const TQorVector<T>& vector);

/// No element is less than zero.
template <SignTestElement T>
[[nodiscard]] QORVEX_EXPORT bool VectorNonNegative(const TQorVector<T>& vector);

}  // namespace qorvex::inline QorvexVector
