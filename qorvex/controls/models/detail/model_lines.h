#pragma once

/// @file
/// What the models of vectors and matrices check before they insert or remove rows or columns.

#include <cstddef>
#include <limits>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexControls::detail {

/// The value of new elements.
inline constexpr Extended kNull = std::numeric_limits<Extended>::quiet_NaN();
/// The most rows or columns of a model.
inline constexpr std::size_t kMaxCount = std::numeric_limits<int>::max();

/// @{
/// Whether there is a place and room for so many new lines, and whether there are so many to
/// remove.
inline bool CanInsert(int at, int count, int length) {
  return at >= 0 && at <= length && count > 0 && count <= std::numeric_limits<int>::max() - length;
}
inline bool CanRemove(int at, int count, int length) {
  return at >= 0 && count > 0 && at <= length && count <= length - at;
}
/// @}

}  // namespace qorvex::inline QorvexControls::detail
