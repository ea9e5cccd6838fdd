#include "qorvex/controls/detail/grid_keys.h"

#include <QKeySequence>

#include "support/test.h"

namespace qorvex {

using QorvexControls::detail::GridAction;
using QorvexControls::detail::GridKey;
using QorvexControls::detail::GridKeyOf;

TEST(GridKeys, BelongToTheTextOrTheGridByOneRule) {
  constexpr GridKey none;
  const auto extend = [](GridAction action) { return GridKey{action, true}; };
  const struct {
    const char* keys;
    GridKey in_matrix, while_editing, in_vector, mirrored;
  } cases[] = {
      {"Down",
       {GridAction::kRowForward},
       {GridAction::kRowForward},
       {GridAction::kRowForward},
       {GridAction::kRowForward}},
      {"Shift+Up", extend(GridAction::kRowBack), none, extend(GridAction::kRowBack),
       extend(GridAction::kRowBack)},
      {"Left", {GridAction::kColBack}, none, {GridAction::kNothing}, {GridAction::kColForward}},
      {"Ctrl+Right",
       {GridAction::kColForward},
       {GridAction::kColForward},
       none,
       {GridAction::kColBack}},
      {"Shift+Right", extend(GridAction::kColForward), none, extend(GridAction::kNothing),
       extend(GridAction::kColBack)},
      {"Home", {GridAction::kRowStart}, none, {GridAction::kTableStart}, {GridAction::kRowStart}},
      {"Ctrl+End",
       {GridAction::kTableEnd},
       {GridAction::kTableEnd},
       {GridAction::kTableEnd},
       {GridAction::kTableEnd}},
      {"Ctrl+Shift+Home", extend(GridAction::kTableStart), none, extend(GridAction::kTableStart),
       extend(GridAction::kTableStart)},
      {"Ctrl+C", {GridAction::kCopy}, none, {GridAction::kCopy}, {GridAction::kCopy}},
      {"Del", {GridAction::kDelete}, none, {GridAction::kDelete}, {GridAction::kDelete}},
      {"Ctrl+R", {GridAction::kFillRight}, none, none, {GridAction::kFillRight}},
      {"Ctrl+Z", {GridAction::kUndo}, none, {GridAction::kUndo}, {GridAction::kUndo}},
      {"Ctrl++",
       {GridAction::kInsertLines},
       none,
       {GridAction::kInsertLines},
       {GridAction::kInsertLines}},
      {"Alt+Down", none, none, none, none},
      {"5", none, none, none, none},
  };
  for (const auto& row : cases) {
    const QKeyCombination keys = QKeySequence::fromString(row.keys)[0];
    const auto modifiers = keys.keyboardModifiers();
    EXPECT_EQ(GridKeyOf(keys.key(), modifiers, {.has_cols = true}), row.in_matrix) << row.keys;
    EXPECT_EQ(GridKeyOf(keys.key(), modifiers | Qt::KeypadModifier, {true, true, false}),
              row.while_editing)
        << row.keys;
    EXPECT_EQ(GridKeyOf(keys.key(), modifiers, {}), row.in_vector) << row.keys;
    EXPECT_EQ(GridKeyOf(keys.key(), modifiers, {false, true, true}), row.mirrored) << row.keys;
  }
  for (const Qt::KeyboardModifier held : {Qt::NoModifier, Qt::ShiftModifier, Qt::AltModifier}) {
    EXPECT_EQ(GridKeyOf(Qt::Key_Enter, held, {.editing = true}), GridKey{GridAction::kEnter});
  }
}

}  // namespace qorvex
