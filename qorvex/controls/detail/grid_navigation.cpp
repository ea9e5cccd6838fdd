#include "qorvex/controls/detail/grid_navigation.h"

#include <algorithm>

namespace qorvex::inline QorvexControls::detail {

namespace {

/// A step along one axis alone: to the next edit, or to the next element under the same edit.
std::optional<AxisStep> Advance(const AxisState& axis, bool forward) {
  if (forward) {
    if (axis.edit + 1 < axis.used_edits) return AxisStep{axis.top, axis.edit + 1};
    if (axis.current + 1 >= axis.count) return std::nullopt;
    return AxisStep{axis.top < axis.largest_top ? axis.top + 1 : axis.largest_top, axis.edit};
  }
  if (axis.edit > 0) return AxisStep{axis.top, axis.edit - 1};
  if (axis.current == 0) return std::nullopt;
  return AxisStep{axis.top - std::min(axis.top, 1U), axis.edit};
}

}  // namespace

std::optional<GridStep> NextCell(const AxisState& along, const AxisState& across, bool forward) {
  if (along.used_edits == 0 || across.used_edits == 0) return std::nullopt;
  const AxisStep here_along = {along.top, along.edit};
  const AxisStep here_across = {across.top, across.edit};
  GridStep step = {here_along, here_across};
  if (const auto next = Advance(along, forward)) {
    step.along = *next;
  } else if (const auto wrapped = Advance(across, forward)) {
    step.along = forward ? AxisStep{0, 0} : AxisStep{along.largest_top, along.used_edits - 1};
    step.across = *wrapped;
  } else {
    return std::nullopt;
  }
  const bool same_cell = step.along == here_along && step.across == here_across;
  step.scrolls = same_cell || step.along.top != along.top || step.across.top != across.top;
  return step;
}

}  // namespace qorvex::inline QorvexControls::detail
