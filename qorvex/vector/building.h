#pragma once

/// @file
/// Growing, shrinking, filling, copying and reversing vectors.
///
/// None of these routines raises: positions out of range are absorbed, and an empty vector is valid
/// everywhere. Running out of memory leaves the vector unchanged; only a deletion from a shared
/// buffer has moved its elements by then. Values are copied bit for bit, NaN and infinities
/// included.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// Appends a value; the vector's buffer becomes private. For the elements of at least 32 bits and
/// the currencies. Amortised O(1).
template <WideElement T>
QORVEX_EXPORT void AppendValue2Vector(TQorVector<T>& vector, ScalarOf<T> value);

/// Inserts a value before the position; a position that no element has appends instead. The buffer
/// becomes private. For the elements of at least 32 bits and the currencies. O(n).
template <WideElement T>
QORVEX_EXPORT void AddValue2Vector(TQorVector<T>& vector, ScalarOf<T> value, std::int32_t position);

/// Deletes the element at the position; nothing happens when there is none. Deleting the only
/// element leaves the vector empty. While the elements move down, other handles of the same buffer
/// see the move. For the elements of at least 32 bits and the currencies. O(n).
template <WideElement T>
QORVEX_EXPORT void DeleteValueFromVector(TQorVector<T>& vector, std::int32_t position);

/// Gives every element the value, seen through every handle of the buffer. For all
/// elements. O(n).
template <AnyElement T>
QORVEX_EXPORT void FillVector(TQorVector<T>& vector, ScalarOf<T> value);

/// Gives every element zero and keeps the length. For all elements. O(n).
template <AnyElement T>
QORVEX_EXPORT void ClearVector(TQorVector<T>& vector);

/// A new vector with the same elements and a buffer of its own. For all elements. O(n).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> CopyVector(const TQorVector<T>& vector);

/// A new vector with the elements in opposite order. For all elements. O(n).
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> ReverseVector(const TQorVector<T>& vector);

}  // namespace qorvex::inline QorvexVector
