#include "qorvex/controls/detail/grid_navigation.h"

#include <gtest/gtest.h>

namespace qorvex::inline QorvexControls::detail {
namespace {

// How a walk reaches every cell is tested with the keys of the matrix editor.
TEST(GridNavigation, InAColumnTheCurrentElementDecidesWhereItDiffersFromTheFocus) {
  const AxisState single = {.used_edits = 1, .count = 1};
  const auto rows = [](std::uint32_t top, std::uint32_t edit, std::uint32_t current) {
    return AxisState{top, 6, edit, 4, current, 10};
  };
  // Both entries that scroll nothing bring the current element back under the focus.
  EXPECT_EQ(NextCell(rows(0, 0, 5), single, false), (GridStep{{0, 0}, {0, 0}, true}));
  EXPECT_EQ(NextCell(rows(6, 3, 5), single, true), (GridStep{{6, 3}, {0, 0}, true}));
  EXPECT_EQ(NextCell(rows(5, 0, 2), single, false), (GridStep{{4, 0}, {0, 0}, true}));
  EXPECT_EQ(NextCell(rows(5, 0, 0), single, false), std::nullopt);
  EXPECT_EQ(NextCell(rows(2, 3, 9), single, true), std::nullopt);
  EXPECT_EQ(NextCell(rows(2, 2, 9), single, true), (GridStep{{2, 3}, {0, 0}, false}));
  EXPECT_EQ(NextCell({}, single, true), std::nullopt);
  EXPECT_EQ(NextCell(single, {}, true), std::nullopt);
}

}  // namespace
}  // namespace qorvex::inline QorvexControls::detail
