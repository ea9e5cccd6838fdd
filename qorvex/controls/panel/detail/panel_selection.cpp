#include "qorvex/controls/panel/detail/panel_selection.h"

#include <algorithm>
#include <limits>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

namespace {

constexpr quint32 kLast = std::numeric_limits<quint32>::max();

quint32 Distance(quint32 a, quint32 b) {
  return std::max(a, b) - std::min(a, b);
}

}  // namespace

PanelSelection::PanelSelection(const CellTable& table, const EditWindow& rows,
                               const EditWindow& cols, CellGrid& grid,
                               std::function<void()> changed)
    : table_(table), rows_(rows), cols_(cols), grid_(grid), changed_(std::move(changed)) {}

CellPlace PanelSelection::Current() const {
  return {rows_.Top() + rows_.Focus(), cols_.Top() + cols_.Focus()};
}

bool PanelSelection::HasElements() const {
  return std::min(anchor_.row, end_.row) < table_.RowCount() &&
         std::min(anchor_.col, end_.col) < table_.ColCount();
}

CellPlace PanelSelection::Fitted(CellPlace place) const {
  return {std::min(place.row, std::max(table_.RowCount(), 1U) - 1),
          std::min(place.col, std::max(table_.ColCount(), 1U) - 1)};
}

TQorCellRange PanelSelection::Range() const {
  if (rows_.Count() == 0 || cols_.Count() == 0) return {};
  if (!chosen_ || !HasElements()) {
    const CellPlace place = Current();
    return {place.row, 1, place.col, 1};
  }
  const CellPlace anchor = Fitted(anchor_);
  const CellPlace end = Fitted(end_);
  return {std::min(anchor.row, end.row), Distance(anchor.row, end.row) + 1,
          std::min(anchor.col, end.col), Distance(anchor.col, end.col) + 1};
}

bool PanelSelection::IsMultiple() const {
  const TQorCellRange range = Range();
  return range.rows > 1 || range.cols > 1;
}

void PanelSelection::Select(CellPlace anchor, CellPlace end) {
  anchor_ = anchor;
  end_ = end;
  chosen_ = true;
  Update();
}

void PanelSelection::SelectRows(quint32 anchor, quint32 end) {
  Select({anchor, 0}, {end, kLast});
}

void PanelSelection::SelectCols(quint32 anchor, quint32 end) {
  Select({0, anchor}, {kLast, end});
}

CellPlace PanelSelection::Moved(CellPlace place, GridAction action) const {
  const auto back = [](quint32 from, quint32 steps) { return from - std::min(from, steps); };
  const auto forward = [](quint32 from, quint32 steps) {
    return from + std::min(kLast - from, steps);
  };
  auto& [row, col] = place;
  switch (action) {
    case GridAction::kRowBack:
      row = back(row, 1);
      break;
    case GridAction::kRowForward:
      row = forward(row, 1);
      break;
    case GridAction::kColBack:
      col = back(col, 1);
      break;
    case GridAction::kColForward:
      col = forward(col, 1);
      break;
    case GridAction::kPageBack:
      row = back(row, rows_.Edits());
      break;
    case GridAction::kPageForward:
      row = forward(row, rows_.Edits());
      break;
    case GridAction::kRowStart:
      col = 0;
      break;
    case GridAction::kRowEnd:
      col = kLast;
      break;
    case GridAction::kTableStart:
      place = {0, 0};
      break;
    case GridAction::kTableEnd:
      place = {kLast, kLast};
      break;
    default:
      break;
  }
  return Fitted(place);
}

void PanelSelection::Clear() {
  chosen_ = false;
  Update();
}

void PanelSelection::Entered(bool by_mouse) {
  if (held_ == Hold::Entry::kKeeps) return;
  if (!by_mouse) {
    chosen_ = chosen_ && Current() == left_;
    Update();
  } else if (!chosen_) {
    chosen_ = true;
    anchor_ = end_ = {announced_.row, announced_.col};
  }
}

void PanelSelection::Update() {
  if (held_) return;
  // A spare row can be current, but not a part of anything chosen.
  chosen_ = chosen_ && HasElements();
  if (chosen_) {
    anchor_ = Fitted(anchor_);
    end_ = Fitted(end_);
    chosen_ = anchor_ != end_ || anchor_ != Current();
  }
  const TQorCellRange range = Range();
  const bool marks = range.rows > 1 || range.cols > 1;
  if (marks || marked_) grid_.MarkSelected(marks ? range : TQorCellRange{});
  marked_ = marks;
  if (range == announced_) return;
  announced_ = range;
  changed_();
}

}  // namespace qorvex::inline QorvexControls::detail
