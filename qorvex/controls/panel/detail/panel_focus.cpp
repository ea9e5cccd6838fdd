#include "qorvex/controls/panel/detail/panel_focus.h"

#include <algorithm>

namespace qorvex::inline QorvexControls::detail {

namespace {

AxisState StateOf(const EditWindow& window, quint32 current) {
  return {window.Top(), window.LargestTop(), window.Focus(), window.UsedEdits(),
          current,      window.Count()};
}

bool StopsAt(const TextCell& text) {
  return (text.focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

PanelFocus::PanelFocus(QWidget& panel, PanelAxis& rows, PanelAxis& cols, const CellGrid& grid,
                       CurrentRule rule)
    : panel_(panel), rows_(rows), cols_(cols), grid_(grid), rule_(rule) {}

void PanelFocus::Enter(TextCell& text, CellPlace place, bool in_header) {
  in_header_ = in_header;
  // A cell that lost the focus while the window was inactive has not noticed.
  if (entered_ != nullptr && entered_ != &text) entered_->Leave();
  entered_ = &text;
  SetEditing(false);
  rows_.Window().Enter(place.row);
  cols_.Window().Enter(place.col);
  Lead();
}

void PanelFocus::Leave(const TextCell& text) {
  if (entered_ == &text) entered_ = nullptr;
}

void PanelFocus::SetEditing(bool editing) {
  editing_ = editing;
  if (entered_ != nullptr && !in_header_) entered_->SetEditing(editing);
}

void PanelFocus::CommitPending() {
  if (entered_ != nullptr) entered_->CommitOrRestore();
  SetEditing(false);
}

bool PanelFocus::KeysBelongToText() const {
  return Editing() || (in_header_ && entered_ != nullptr && !entered_->isReadOnly());
}

bool PanelFocus::CommitToLeave() {
  if (entered_ != nullptr && !entered_->CommitOrRefuse()) return false;
  SetEditing(false);
  return true;
}

void PanelFocus::CommitUnless(const std::function<bool(quint32 row, quint32 col)>& stays) {
  if (entered_ == nullptr || !entered_->Pending()) return;
  const auto element = [](const EditWindow& window) { return window.Top() + window.Focus(); };
  if (in_header_ || !stays(element(rows_.Window()), element(cols_.Window()))) CommitPending();
}

void PanelFocus::CommitLines(const PanelAxis& axis, quint32 first, quint32 end) {
  const quint32 line = axis.Window().Top() + axis.Window().Focus();
  if (line >= first && line < end) CommitPending();
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

TextCell* PanelFocus::TextAt(std::size_t row, std::size_t col) const {
  return in_header_ ? grid_.HeaderText(row) : grid_.Cell(row, col);
}

void PanelFocus::Navigate(std::size_t row, std::size_t col) {
  if (!grid_.IsUsed(row, col)) return;
  TextAt(row, col)->setFocus(Qt::OtherFocusReason);
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
  const quint32 row_edit = Reveal(rows_.Window(), row);
  Navigate(row_edit, Reveal(cols_.Window(), col));
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
    return StateOf(window, follows_top ? window.Current() : window.Top() + window.Focus());
  };
  if (const auto step = NextCell(state(along), state(across), forward)) Go(along, across, *step);
}

void PanelFocus::Go(PanelAxis& along, PanelAxis& across, const GridStep& step) {
  if (step.scrolls) {
    // The cell is left under its old row and entered again under its new one.
    Park(step.across.top != across.Window().Top() ? across : along);
    along.Window().SetTop(step.along.top);
    across.Window().SetTop(step.across.top);
  }
  const quint32 edit_along = Reveal(along.Window(), step.along.top + step.along.edit);
  const quint32 edit_across = Reveal(across.Window(), step.across.top + step.across.edit);
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

bool PanelFocus::StopsAtHeader(std::size_t row) const {
  return grid_.HasHeader() && StopsAt(*grid_.HeaderText(row));
}

bool PanelFocus::TabOn(bool forward) {
  const quint32 row = rows_.Window().Focus();
  const quint32 col = cols_.Window().Focus();
  // Qt also moves the focus on from a widget that is being hidden or disabled.
  if (entered_ == nullptr || !entered_->isEnabled() || !entered_->isVisible()) return false;
  if (!grid_.IsUsed(row, col) || !StopsAt(*grid_.Cell(row, col))) return false;
  // A text of the header comes before the cells of its row, with which it is in sight.
  if (forward ? in_header_ : !in_header_ && col == 0 && StopsAtHeader(row)) return false;
  // A value that has been typed into the spare row makes another row.
  CommitPending();
  if (entered_ == nullptr) return true;
  const auto state = [](const EditWindow& window) {
    return StateOf(window, window.Top() + window.Focus());
  };
  const auto step = NextCell(state(cols_.Window()), state(rows_.Window()), forward);
  if (!step || !step->scrolls) return false;
  in_header_ = forward && step->along.edit == 0 && StopsAtHeader(step->across.edit);
  Go(cols_, rows_, *step);
  return true;
}

void PanelFocus::Lead() {
  const quint32 row = rows_.Window().Focus();
  const quint32 col = cols_.Window().Focus();
  QWidget* const bar = rows_.Bar();
  QWidget* taker = bar;
  if (grid_.IsUsed(row, col)) taker = TextAt(row, col);
  const QWidget* const before = panel_.focusProxy();
  if (taker == before) return;
  panel_.setFocusProxy(taker);
  const QWidget* const focus = panel_.window()->focusWidget();
  const bool waits = focus != nullptr && (focus == bar || focus == cols_.Bar());
  if (before == bar && waits) taker->setFocus(Qt::OtherFocusReason);
}

bool PanelFocus::Redirect(const QObject* text, Qt::FocusReason reason) {
  if (reason != Qt::TabFocusReason && reason != Qt::ShortcutFocusReason) return false;
  if (entered_ != nullptr || text != panel_.focusProxy()) return false;
  QWidget* const first =
      StopsAtHeader(0) ? grid_.HeaderText(0) : static_cast<QWidget*>(grid_.Cell(0, 0));
  if (text == first) return false;
  first->setFocus(reason);
  return true;
}

}  // namespace qorvex::inline QorvexControls::detail
