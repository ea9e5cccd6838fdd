#include "qorvex/controls/panel/detail/panel_focus.h"

#include <algorithm>

#include "qorvex/controls/detail/grid_navigation.h"

namespace qorvex::inline QorvexControls::detail {

PanelFocus::PanelFocus(PanelAxis& rows, PanelAxis& cols, const CellGrid& grid, CurrentRule rule)
    : rows_(rows), cols_(cols), grid_(grid), rule_(rule) {}

void PanelFocus::Enter(TextCell& text, CellPlace place, bool in_header) {
  in_header_ = in_header;
  // A cell that lost the focus while the window was inactive has not noticed.
  if (entered_ != nullptr && entered_ != &text) entered_->Leave();
  entered_ = &text;
  rows_.Window().Enter(place.row);
  cols_.Window().Enter(place.col);
}

void PanelFocus::Leave(const TextCell& text) {
  if (entered_ == &text) entered_ = nullptr;
}

void PanelFocus::CommitPending() {
  if (entered_ != nullptr) entered_->CommitOrRestore();
}

void PanelFocus::FocusCell(std::size_t row, std::size_t col) {
  if (!grid_.IsUsed(row, col)) return;
  TQorCustomEdit* const cell = grid_.Cell(row, col);
  // An inactive window gets no focus events until it is active again.
  if (!cell->isActiveWindow()) {
    rows_.Window().Enter(static_cast<quint32>(row));
    cols_.Window().Enter(static_cast<quint32>(col));
  }
  cell->setFocus(Qt::OtherFocusReason);
}

void PanelFocus::Navigate(std::size_t row, std::size_t col) {
  if (!grid_.IsUsed(row, col)) return;
  TextCell* const target = in_header_ ? grid_.HeaderText(row) : grid_.Cell(row, col);
  target->setFocus(Qt::OtherFocusReason);
}

void PanelFocus::Park(const PanelAxis& axis) {
  // In an inactive window the cell gets no event.
  if (entered_ != nullptr) entered_->Leave();
  axis.Bar()->setFocus(Qt::OtherFocusReason);
}

void PanelFocus::Step(PanelAxis& along, PanelAxis& across, bool forward) {
  if (entered_ != nullptr && !entered_->Commit()) return;
  const auto state = [this](const PanelAxis& axis) {
    const EditWindow& window = axis.Window();
    const bool follows_top = rule_ == CurrentRule::kFollowsTop;
    return AxisState{window.Top(),
                     window.LargestTop(),
                     window.Focus(),
                     window.UsedEdits(),
                     follows_top ? window.Current() : window.Top() + window.Focus(),
                     window.Count()};
  };
  const auto step = NextCell(state(along), state(across), forward);
  if (!step) return;
  if (step->scrolls) {
    // The cell is left under its old row and entered again under its new one.
    Park(step->across.top != across.Window().Top() ? across : along);
    along.Window().SetTop(step->along.top);
    across.Window().SetTop(step->across.top);
  }
  const quint32 edit_along = Reveal(along.Window(), step->along.top + step->along.edit);
  const quint32 edit_across = Reveal(across.Window(), step->across.top + step->across.edit);
  const bool vertical = &along == &rows_;
  Navigate(vertical ? edit_along : edit_across, vertical ? edit_across : edit_along);
}

quint32 PanelFocus::Reveal(EditWindow& window, quint32 element) {
  while (element >= window.Top() + window.UsedEdits()) {
    const quint32 before = window.Top();
    window.SetTop(before + 1);
    if (window.Top() <= before) break;
  }
  return element - std::min(element, window.Top());
}

}  // namespace qorvex::inline QorvexControls::detail
