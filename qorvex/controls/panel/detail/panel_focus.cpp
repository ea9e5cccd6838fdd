#include "qorvex/controls/panel/detail/panel_focus.h"

#include "qorvex/controls/detail/grid_navigation.h"

namespace qorvex::inline QorvexControls::detail {

PanelFocus::PanelFocus(PanelAxis& rows, PanelAxis& cols, const CellGrid& grid, CurrentRule rule)
    : rows_(rows), cols_(cols), grid_(grid), rule_(rule) {}

void PanelFocus::Enter(TextCell& text, CellPlace place, bool in_header) {
  in_header_ = in_header;
  editing_ = false;
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
  editing_ = false;
}

bool PanelFocus::KeysBelongToText() const {
  return Editing() || (in_header_ && entered_ != nullptr && !entered_->isReadOnly());
}

bool PanelFocus::CommitToLeave() {
  if (entered_ != nullptr && !entered_->Commit()) return false;
  editing_ = false;
  return true;
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

void PanelFocus::FocusElement(quint32 row, quint32 col) {
  if (!CommitToLeave()) return;
  const quint32 top = rows_.Window().TopShowing(row);
  const quint32 left = cols_.Window().TopShowing(col);
  if (top != rows_.Window().Top() || left != cols_.Window().Top()) {
    // The cell is left under its old element and entered again under its new one.
    Park(left != cols_.Window().Top() ? cols_ : rows_);
    rows_.Window().SetTop(top);
    cols_.Window().SetTop(left);
  }
  Navigate(row - rows_.Window().Top(), col - cols_.Window().Top());
}

void PanelFocus::Park(const PanelAxis& axis) {
  // In an inactive window the cell gets no event.
  if (entered_ != nullptr) entered_->Leave();
  axis.Bar()->setFocus(Qt::OtherFocusReason);
}

void PanelFocus::Step(PanelAxis& along, PanelAxis& across, bool forward) {
  if (!CommitToLeave()) return;
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
  const bool vertical = &along == &rows_;
  const AxisStep& row = vertical ? step->along : step->across;
  const AxisStep& col = vertical ? step->across : step->along;
  Navigate(row.edit, col.edit);
}

}  // namespace qorvex::inline QorvexControls::detail
