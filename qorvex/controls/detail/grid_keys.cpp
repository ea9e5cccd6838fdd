#include "qorvex/controls/detail/grid_keys.h"

#include <algorithm>
#include <iterator>

namespace qorvex::inline QorvexControls::detail {

namespace {

enum class Owner {
  kGrid,             // The grid, at any time.
  kTextWhileEdited,  // The text while it is being edited, otherwise the grid.
};

struct Rule {
  Qt::Key key;
  int held;
  GridAction action;
  Owner owner = Owner::kTextWhileEdited;
  bool extends = false;
};

constexpr int kPlain = Qt::NoModifier;
constexpr int kShift = Qt::ShiftModifier;
constexpr int kCtrl = Qt::ControlModifier;
constexpr int kCtrlShift = kCtrl | kShift;
constexpr auto kText = Owner::kTextWhileEdited;

// Left and right are directions on the screen; here they stand for a layout from left to right.
constexpr Rule kRules[] = {
    {Qt::Key_Up, kPlain, GridAction::kRowBack, Owner::kGrid},
    {Qt::Key_Up, kCtrl, GridAction::kRowBack, Owner::kGrid},
    {Qt::Key_Up, kShift, GridAction::kRowBack, kText, true},
    {Qt::Key_Down, kPlain, GridAction::kRowForward, Owner::kGrid},
    {Qt::Key_Down, kCtrl, GridAction::kRowForward, Owner::kGrid},
    {Qt::Key_Down, kShift, GridAction::kRowForward, kText, true},
    {Qt::Key_Left, kPlain, GridAction::kColBack},
    {Qt::Key_Left, kCtrl, GridAction::kColBack, Owner::kGrid},
    {Qt::Key_Left, kShift, GridAction::kColBack, kText, true},
    {Qt::Key_Right, kPlain, GridAction::kColForward},
    {Qt::Key_Right, kCtrl, GridAction::kColForward, Owner::kGrid},
    {Qt::Key_Right, kShift, GridAction::kColForward, kText, true},
    {Qt::Key_PageUp, kPlain, GridAction::kPageBack, Owner::kGrid},
    {Qt::Key_PageUp, kShift, GridAction::kPageBack, kText, true},
    {Qt::Key_PageDown, kPlain, GridAction::kPageForward, Owner::kGrid},
    {Qt::Key_PageDown, kShift, GridAction::kPageForward, kText, true},
    {Qt::Key_Home, kPlain, GridAction::kRowStart},
    {Qt::Key_Home, kShift, GridAction::kRowStart, kText, true},
    {Qt::Key_Home, kCtrl, GridAction::kTableStart, Owner::kGrid},
    {Qt::Key_Home, kCtrlShift, GridAction::kTableStart, kText, true},
    {Qt::Key_End, kPlain, GridAction::kRowEnd},
    {Qt::Key_End, kShift, GridAction::kRowEnd, kText, true},
    {Qt::Key_End, kCtrl, GridAction::kTableEnd, Owner::kGrid},
    {Qt::Key_End, kCtrlShift, GridAction::kTableEnd, kText, true},
    {Qt::Key_Tab, kCtrl, GridAction::kLeaveForward, Owner::kGrid},
    {Qt::Key_Tab, kCtrlShift, GridAction::kLeaveBack, Owner::kGrid},
    {Qt::Key_Backtab, kCtrlShift, GridAction::kLeaveBack, Owner::kGrid},
    {Qt::Key_Backtab, kCtrl, GridAction::kLeaveBack, Owner::kGrid},
    {Qt::Key_F2, kPlain, GridAction::kEdit, Owner::kGrid},
    {Qt::Key_Escape, kPlain, GridAction::kEscape, Owner::kGrid},
    {Qt::Key_A, kCtrl, GridAction::kSelectAll},
    {Qt::Key_Space, kShift, GridAction::kSelectRows},
    {Qt::Key_Space, kCtrl, GridAction::kSelectCols},
    {Qt::Key_C, kCtrl, GridAction::kCopy},
    {Qt::Key_Insert, kCtrl, GridAction::kCopy},
    {Qt::Key_C, kCtrlShift, GridAction::kCopyAll, Owner::kGrid},
    {Qt::Key_X, kCtrl, GridAction::kCut},
    {Qt::Key_Delete, kShift, GridAction::kCut},
    {Qt::Key_V, kCtrl, GridAction::kPaste},
    {Qt::Key_Insert, kShift, GridAction::kPaste},
    {Qt::Key_Delete, kPlain, GridAction::kDelete},
    {Qt::Key_D, kCtrl, GridAction::kFillDown},
    {Qt::Key_R, kCtrl, GridAction::kFillRight},
    {Qt::Key_Plus, kCtrl, GridAction::kInsertLines},
    {Qt::Key_Plus, kCtrlShift, GridAction::kInsertLines},
    {Qt::Key_Minus, kCtrl, GridAction::kDeleteLines},
    {Qt::Key_Z, kCtrl, GridAction::kUndo},
    {Qt::Key_Z, kCtrlShift, GridAction::kRedo},
    {Qt::Key_Y, kCtrl, GridAction::kRedo},
};

// The meaning of an action in a table of one column.
GridAction InOneColumn(const Rule& rule) {
  switch (rule.action) {
    case GridAction::kColBack:
    case GridAction::kColForward:
      return rule.owner == Owner::kGrid ? GridAction::kNone : GridAction::kNothing;
    case GridAction::kRowStart:
      return GridAction::kTableStart;
    case GridAction::kRowEnd:
      return GridAction::kTableEnd;
    case GridAction::kFillRight:
      return GridAction::kNone;
    default:
      return rule.action;
  }
}

GridAction Mirrored(GridAction action) {
  if (action == GridAction::kColBack) return GridAction::kColForward;
  if (action == GridAction::kColForward) return GridAction::kColBack;
  return action;
}

}  // namespace

GridKey GridKeyOf(int key, Qt::KeyboardModifiers modifiers, const KeyPlace& place) {
  if (key == Qt::Key_Return || key == Qt::Key_Enter) return {GridAction::kEnter};
  const auto held =
      static_cast<int>((modifiers & ~Qt::KeyboardModifiers(Qt::KeypadModifier)).toInt());
  const auto* const rule = std::ranges::find_if(
      kRules, [=](const Rule& other) { return other.key == key && other.held == held; });
  if (rule == std::end(kRules)) return {};
  if (place.editing && rule->owner == Owner::kTextWhileEdited) return {};
  const GridAction action = place.has_cols ? rule->action : InOneColumn(*rule);
  return {place.mirrored ? Mirrored(action) : action, rule->extends};
}

}  // namespace qorvex::inline QorvexControls::detail
