#pragma once

/// @file
/// Where a navigation key leads in a grid of edits that is a window on a longer and wider table.

#include <cstdint>
#include <optional>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls::detail {

/// One axis of a grid, as far as a step along it is concerned.
struct AxisState {
  std::uint32_t top = 0;          ///< The first element that shows.
  std::uint32_t largest_top = 0;  ///< The top of the last page.
  std::uint32_t edit = 0;         ///< The edit that has the focus.
  std::uint32_t used_edits = 0;   ///< How many edits show an element.
  std::uint32_t current = 0;  ///< The current element, which decides whether there is another one.
  std::uint32_t count = 0;    ///< The number of elements.
};

/// The state of one axis after a step.
struct AxisStep {
  std::uint32_t top = 0;   ///< The new top.
  std::uint32_t edit = 0;  ///< The edit that gets the focus.
  friend bool operator==(const AxisStep&, const AxisStep&) = default;
};

/// A step of the focus.
struct GridStep {
  AxisStep along;   ///< The axis in whose direction the key points.
  AxisStep across;  ///< The other one.
  /// The focus leaves the cells before the tops change and enters the new cell afterwards, so that
  /// the exit and the entry name the right elements.
  bool scrolls = false;
  friend bool operator==(const GridStep&, const GridStep&) = default;
};

/// The step to the next cell along an axis, forward or back, or nothing at the end of the table.
///
/// Inside the window the focus moves by one edit. At its edge the axis scrolls by one element
/// under the focus while there is a further one. At the end of the axis the focus wraps: to
/// its other end, one edit further across, or at the edge of the window across with that axis
/// scrolled by one. A column is a table whose other axis has one element and one edit, and never
/// wraps. A table without cells on show has no next one.
///
/// The current element may differ from top + edit after a scroll bar was used. It alone decides
/// whether there is a further element: at the first edit of the first page with another current
/// element, the step back leads to the same cell with `scrolls` set, and entering the cell again
/// brings the current element under the focus.
[[nodiscard]] QORVEX_EXPORT std::optional<GridStep> NextCell(const AxisState& along,
                                                             const AxisState& across, bool forward);

}  // namespace qorvex::inline QorvexControls::detail
