#include "qorvex/controls/detail/grid_navigation.h"

#include <algorithm>
#include <gtest/gtest.h>
#include <utility>
#include <vector>

namespace qorvex::inline QorvexControls::detail {
namespace {

AxisState Axis(std::uint32_t edits, std::uint32_t count, std::uint32_t top, std::uint32_t edit) {
  return {.top = top,
          .largest_top = edits < count ? count - edits : 0,
          .edit = edit,
          .used_edits = std::min(edits, count),
          .current = top + edit,
          .count = count};
}

using Cell = std::pair<std::uint32_t, std::uint32_t>;  // along, across

/// The cells on the way from a corner of the table, until there is no next one.
std::vector<Cell> Walk(AxisState along, AxisState across, bool forward) {
  const auto enter = [](AxisState& axis, const AxisStep& step) {
    EXPECT_LE(step.top, axis.largest_top);
    EXPECT_LT(step.edit, axis.used_edits);
    axis.top = step.top;
    axis.edit = step.edit;
    axis.current = step.top + step.edit;
  };
  std::vector<Cell> cells;
  if (along.count > 0 && across.count > 0) cells.emplace_back(along.current, across.current);
  while (const auto step = NextCell(along, across, forward)) {
    EXPECT_EQ(step->scrolls, step->along.top != along.top || step->across.top != across.top);
    enter(along, step->along);
    enter(across, step->across);
    cells.emplace_back(along.current, across.current);
    if (cells.size() > along.count * across.count) break;
  }
  return cells;
}

TEST(GridNavigation, AWalkVisitsEveryCellInEachDirection) {
  for (const std::uint32_t rows : {0U, 1U, 2U, 4U, 7U}) {
    for (const std::uint32_t cols : {0U, 1U, 2U, 3U, 6U}) {
      for (const bool down : {true, false}) {
        // The keys down and up go along the rows, right and left along the columns.
        const auto [along_count, across_count] = down ? Cell(rows, cols) : Cell(cols, rows);
        const auto [along_edits, across_edits] = down ? Cell(4, 3) : Cell(3, 4);
        std::vector<Cell> expected;
        for (std::uint32_t j = 0; j < across_count; ++j) {
          for (std::uint32_t i = 0; i < along_count; ++i) expected.emplace_back(i, j);
        }
        const AxisState along = Axis(along_edits, along_count, 0, 0);
        const AxisState across = Axis(across_edits, across_count, 0, 0);
        EXPECT_EQ(Walk(along, across, true), expected) << rows << " x " << cols << ' ' << down;

        const auto last = [](AxisState axis) {
          axis.top = axis.largest_top;
          axis.edit = std::max(axis.used_edits, 1U) - 1;
          axis.current = axis.top + axis.edit;
          return axis;
        };
        std::ranges::reverse(expected);
        EXPECT_EQ(Walk(last(along), last(across), false), expected)
            << rows << " x " << cols << ' ' << down;
      }
    }
  }
}

TEST(GridNavigation, InAColumnTheCurrentElementDecidesWhereItDiffersFromTheFocus) {
  const AxisState single = Axis(1, 1, 0, 0);
  const auto rows = [](std::uint32_t top, std::uint32_t edit, std::uint32_t current) {
    AxisState axis = Axis(4, 10, top, edit);
    axis.current = current;
    return axis;
  };
  // Both entries that scroll nothing bring the current element back under the focus.
  EXPECT_EQ(NextCell(rows(0, 0, 5), single, false), (GridStep{{0, 0}, {0, 0}, true}));
  EXPECT_EQ(NextCell(rows(6, 3, 5), single, true), (GridStep{{6, 3}, {0, 0}, true}));
  EXPECT_EQ(NextCell(rows(5, 0, 2), single, false), (GridStep{{4, 0}, {0, 0}, true}));
  EXPECT_EQ(NextCell(rows(5, 0, 0), single, false), std::nullopt);
  EXPECT_EQ(NextCell(rows(2, 3, 9), single, true), std::nullopt);
  EXPECT_EQ(NextCell(rows(2, 2, 9), single, true), (GridStep{{2, 3}, {0, 0}, false}));
}

}  // namespace
}  // namespace qorvex::inline QorvexControls::detail
