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

struct Size {
  std::uint32_t edits, count;
  AxisState At(AxisStep step) const { return Axis(edits, count, step.top, step.edit); }
  AxisState Begin() const { return At({0, 0}); }
  AxisState End() const { return At({Begin().largest_top, std::max(Begin().used_edits, 1U) - 1}); }
};

using Cell = std::pair<std::uint32_t, std::uint32_t>;  // along, across

/// The cells on the way from one corner of the table to the other.
std::vector<Cell> Walk(Size rows, Size cols, bool forward) {
  AxisState along = forward ? rows.Begin() : rows.End();
  AxisState across = forward ? cols.Begin() : cols.End();
  std::vector<Cell> cells;
  if (rows.count > 0 && cols.count > 0) cells.emplace_back(along.current, across.current);
  while (const auto step = NextCell(along, across, forward)) {
    EXPECT_EQ(step->scrolls, step->along.top != along.top || step->across.top != across.top);
    along = rows.At(step->along);
    across = cols.At(step->across);
    EXPECT_LE(along.top, along.largest_top);
    EXPECT_LE(across.top, across.largest_top);
    EXPECT_LT(along.edit, along.used_edits);
    EXPECT_LT(across.edit, across.used_edits);
    cells.emplace_back(along.current, across.current);
    if (cells.size() > rows.count * cols.count) break;
  }
  return cells;
}

TEST(GridNavigation, AWalkVisitsEveryCellInEachDirection) {
  for (const std::uint32_t rows : {0U, 1U, 2U, 4U, 7U}) {
    for (const std::uint32_t cols : {0U, 1U, 2U, 3U, 6U}) {
      std::vector<Cell> expected;
      for (std::uint32_t col = 0; col < cols; ++col) {
        for (std::uint32_t row = 0; row < rows; ++row) expected.emplace_back(row, col);
      }
      EXPECT_EQ(Walk({4, rows}, {3, cols}, true), expected) << rows << " x " << cols;
      std::ranges::reverse(expected);
      EXPECT_EQ(Walk({4, rows}, {3, cols}, false), expected) << rows << " x " << cols;
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
