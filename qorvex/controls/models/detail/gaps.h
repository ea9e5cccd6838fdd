#pragma once

/// @file
/// Elements that are inserted into an array or removed from it.

#include <algorithm>
#include <cstddef>
#include <limits>

#include "qorvex/base/dyn_array.h"
#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexControls::detail {

inline constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();
/// The most rows or columns of a model.
inline constexpr std::size_t kMaxCount = std::numeric_limits<int>::max();

/// @{
/// Whether there is room and a place for so many new elements, and so many to remove.
inline bool CanInsert(int at, int count, int length) {
  return at >= 0 && at <= length && count > 0 && count <= std::numeric_limits<int>::max() - length;
}
inline bool CanRemove(int at, int count, int length) {
  return at >= 0 && count > 0 && at <= length && count <= length - at;
}
/// @}

/// Inserts equal elements. O(length).
template <class T>
void InsertGap(DynArray<T>& array, int at, int count, const T& value) {
  const std::size_t length = array.size();
  array.resize(length + static_cast<std::size_t>(count), value);
  std::rotate(array.begin() + at, array.begin() + static_cast<std::ptrdiff_t>(length), array.end());
}

/// Removes elements. O(length).
template <class T>
void CloseGap(DynArray<T>& array, int at, int count) {
  std::move(array.begin() + at + count, array.end(), array.begin() + at);
  for (int i = 0; i < count; ++i) array.pop_back();
}

}  // namespace qorvex::inline QorvexControls::detail
