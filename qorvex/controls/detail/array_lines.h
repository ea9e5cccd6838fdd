#pragma once

/// @file
/// Elements and rows in the midst of arrays.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <utility>

#include "qorvex/base/dyn_array.h"

namespace qorvex::inline QorvexControls::detail {

/// Moves the last elements of an array in front of another one, which they then precede. O(length).
template <class T>
void MoveLastTo(DynArray<T>& array, std::size_t position, std::size_t count) {
  std::rotate(array.begin() + static_cast<std::ptrdiff_t>(position),
              array.end() - static_cast<std::ptrdiff_t>(count), array.end());
}

/// Removes elements, as far as the array has them. O(length).
template <class T>
void Remove(DynArray<T>& array, std::size_t first, std::size_t count) {
  if (first >= array.size()) return;
  const std::size_t end = first + std::min(count, array.size() - first);
  const T* const kept_end = std::move(array.begin() + static_cast<std::ptrdiff_t>(end), array.end(),
                                      array.begin() + static_cast<std::ptrdiff_t>(first));
  array.SetLength(static_cast<std::size_t>(kept_end - array.begin()));
}

}  // namespace qorvex::inline QorvexControls::detail
