#pragma once

/// @file
/// Growing, shrinking, filling, copying and reversing vectors.
///
/// - No routine raises an error: each states what it does for a position out of range, and an empty
///   vector is valid everywhere.
/// - Running out of memory leaves the vector unchanged, except that a deletion from a shared buffer
///   may already have moved its elements.
/// - Values are copied bit for bit, including NaN and infinities.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// Appends a value. The buffer becomes private. Amortised O(1). For numeric elements of at least 32
/// bits and the currencies.
template <WideElement T>
QORVEX_EXPORT void AppendValue2Vector(TQorVector<T>& vector, ScalarOf<T> value);

/// Inserts a value before the element at the position, or appends it if the position is out of
/// range. The buffer becomes private. O(n). For numeric elements of at least 32 bits and the
/// currencies.
template <WideElement T>
QORVEX_EXPORT void AddValue2Vector(TQorVector<T>& vector, ScalarOf<T> value, std::int32_t position);

/// Deletes the element at the position. Does nothing if the position is out of range. If the buffer
/// is shared, the other handles see the elements move, but keep their length. O(n). For numeric
/// elements of at least 32 bits and the currencies.
template <WideElement T>
QORVEX_EXPORT void DeleteValueFromVector(TQorVector<T>& vector, std::int32_t position);

/// Sets every element to the value. The change is seen through every handle of the buffer. O(n).
/// For all element types.
template <AnyElement T>
QORVEX_EXPORT void FillVector(TQorVector<T>& vector, ScalarOf<T> value);

/// Sets every element to zero and keeps the length. O(n). For all element types.
template <AnyElement T>
QORVEX_EXPORT void ClearVector(TQorVector<T>& vector);

/// @{
/// A new vector with the same elements that does not share the buffer. O(n). For all element types.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> CopyVector(VectorView<T> vector);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] TQorVector<ElementOf<Range>> CopyVector(const Range& vector) {
  return CopyVector<ElementOf<Range>>(vector);
}
/// @}

/// @{
/// A new vector with the elements in reverse order. O(n). For all element types.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> ReverseVector(VectorView<T> vector);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] TQorVector<ElementOf<Range>> ReverseVector(const Range& vector) {
  return ReverseVector<ElementOf<Range>>(vector);
}
/// @}

}  // namespace qorvex::inline QorvexVector
