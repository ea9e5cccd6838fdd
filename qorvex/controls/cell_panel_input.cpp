// What the user does with a panel of cells: focus, keys, wheel, mouse.

#include <QApplication>
#include <QContextMenuEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QScrollBar>
#include <QWheelEvent>
#include <algorithm>
#include <memory>
#include <new>
#include <utility>

#include "qorvex/controls/cell_panel.h"
#include "qorvex/controls/detail/edit_window.h"
#include "qorvex/controls/detail/grid_navigation.h"

namespace qorvex::inline QorvexControls {

namespace {

// The modifiers that the user holds; keys of the keypad count like the others.
Qt::KeyboardModifiers Held(const QKeyEvent& event) {
  return event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

}  // namespace

void CellPanel::Watch(QWidget* widget) {
  widget->installEventFilter(this);
}

void CellPanel::CommitPending() {
  if (entered_ != nullptr) entered_->CommitOrRestore();
}

void CellPanel::EnterText(TextCell* text, quint32 row_edit, quint32 col_edit) {
  // A cell that lost the focus while the window was inactive has not noticed.
  if (entered_ != nullptr && entered_ != text) entered_->Leave();
  entered_ = text;
  rows_.window->Enter(row_edit);
  cols_.window->Enter(col_edit);
}

void CellPanel::LeaveText(const TextCell* text) {
  if (entered_ == text) entered_ = nullptr;
}

void CellPanel::EditEnter(TQorCustomEdit* cell) {
  EnterText(cell, RowOf(cell) - Rows().Top(), ColOf(cell) - Cols().Top());
  Notify(CellEvent::kEnter, RowOf(cell), ColOf(cell));
}

void CellPanel::EditExit(TQorCustomEdit* cell) {
  LeaveText(cell);
  Notify(CellEvent::kExit, RowOf(cell), ColOf(cell));
}

void CellPanel::DoChange(TQorCustomEdit* cell) {
  const quint32 row = RowOf(cell);
  const quint32 col = ColOf(cell);
  // The cell may have shown null in place of the element.
  const Extended before = Value(row, col);
  try {
    Store(row, col, cell->Value());
  } catch (const std::bad_alloc&) {
    // A table whose size was promised lightly takes its memory now.
    cell->Refresh(before);
    RefuseBlock(OutOfMemory());
    return;
  }
  // Whoever keeps the elements in virtual mode may have kept another value.
  cell->Refresh(Value(row, col));
  RememberElements(std::make_shared<ElementChanges>(ElementChanges{{row, col, before}}));
  NotifyChanges({{row, col, before}});
}

bool CellPanel::FocusInside() const {
  const QWidget* const focus = QApplication::focusWidget();
  return focus != nullptr && (focus == this || isAncestorOf(focus));
}

void CellPanel::FocusCell(std::size_t row_edit, std::size_t col_edit) {
  if (row_edit >= Rows().UsedEdits() || col_edit >= Cols().UsedEdits()) return;
  // An inactive window gets no focus events until it is active again.
  if (!isActiveWindow()) {
    rows_.window->Enter(static_cast<quint32>(row_edit));
    cols_.window->Enter(static_cast<quint32>(col_edit));
  }
  Cell(row_edit, col_edit)->setFocus(Qt::OtherFocusReason);
}

void CellPanel::Navigate(std::size_t row_edit, std::size_t col_edit) {
  if (row_edit >= Rows().UsedEdits() || col_edit >= Cols().UsedEdits()) return;
  NavigationTarget(row_edit, col_edit)->setFocus(Qt::OtherFocusReason);
}

void CellPanel::Park(const Axis& axis) {
  // In an inactive window the cell would not notice.
  if (entered_ != nullptr) entered_->Leave();
  axis.bar->setFocus(Qt::OtherFocusReason);
}

void CellPanel::Step(Axis& along, Axis& across, bool forward) {
  // A text that is no number keeps the focus.
  if (entered_ != nullptr && !entered_->Commit()) return;
  const auto state = [this](const Axis& axis) {
    const detail::EditWindow& window = *axis.window;
    const bool follows_top = rule_ == detail::CurrentRule::kFollowsTop;
    return detail::AxisState{window.Top(),
                             window.LargestTop(),
                             window.Focus(),
                             window.UsedEdits(),
                             follows_top ? window.Current() : window.Top() + window.Focus(),
                             window.Count()};
  };
  const auto step = detail::NextCell(state(along), state(across), forward);
  if (!step) return;
  if (step->scrolls) {
    // The cell is left under its old row and entered again under its new one.
    Park(step->across.top != across.window->Top() ? across : along);
    along.window->SetTop(step->along.top);
    across.window->SetTop(step->across.top);
  }
  const bool vertical = &along == &rows_;
  const detail::AxisStep& row = vertical ? step->along : step->across;
  const detail::AxisStep& col = vertical ? step->across : step->along;
  Navigate(row.edit, col.edit);
}

bool CellPanel::IsOwnKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = Held(event);
  switch (event.key()) {
    case Qt::Key_Return:
    case Qt::Key_Enter:
      return true;
    case Qt::Key_PageUp:
    case Qt::Key_PageDown:
      return held == Qt::NoModifier;
    case Qt::Key_Up:
    case Qt::Key_Down:
    case Qt::Key_Y:
      return held == Qt::ControlModifier;
    case Qt::Key_Left:
    case Qt::Key_Right:
      return cols_.bar != nullptr && held == Qt::ControlModifier;
    case Qt::Key_Z:
      return held == Qt::ControlModifier || held == (Qt::ControlModifier | Qt::ShiftModifier);
    case Qt::Key_C:
      return held == (Qt::ControlModifier | Qt::ShiftModifier);
    default:
      return false;
  }
}

bool CellPanel::UseKey(const QKeyEvent& event) {
  if (!IsOwnKey(event)) return false;
  switch (event.key()) {
    case Qt::Key_Up:
      Step(rows_, cols_, false);
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right: {
      // Left and right are where the eye sees them.
      const bool mirrored = layoutDirection() == Qt::RightToLeft;
      Step(cols_, rows_, (event.key() == Qt::Key_Right) != mirrored);
      return true;
    }
    case Qt::Key_PageUp:
      ScrollUp(std::min(Rows().Edits(), Rows().Top()));
      return true;
    case Qt::Key_PageDown:
      ScrollDown(Rows().Edits());
      return true;
    case Qt::Key_C:
      CopyAll();
      return true;
    case Qt::Key_Y:
    case Qt::Key_Z: {
      if (entered_ != nullptr && entered_->Pending()) return false;
      if (EffectiveSettings().read_only) return true;
      const bool redo = event.key() == Qt::Key_Y || Held(event).testFlag(Qt::ShiftModifier);
      redo ? Redo() : Undo();
      return true;
    }
    default:
      Step(rows_, cols_, true);
      return true;
  }
}

bool CellPanel::EditKeyDown(QKeyEvent* event) {
  event->setAccepted(false);
  Q_EMIT OnKeyDown(event);
  if (event->isAccepted()) return true;
  // Left unaccepted, a key would be handled again by every parent.
  event->accept();
  return UseKey(*event);
}

bool CellPanel::EditKeyPress(QKeyEvent* event) {
  if (event->text().isEmpty()) return false;
  event->setAccepted(false);
  Q_EMIT OnKeyPress(event);
  if (event->isAccepted()) return true;
  event->accept();
  return false;
}

void CellPanel::EditMouseWheel(QWheelEvent* event) {
  if (!FocusInside()) {
    wheel_rest_ = {};
    event->ignore();
    return;
  }
  event->accept();
  const bool fine = event->phase() != Qt::NoScrollPhase || !event->pixelDelta().isNull();
  const auto notches = [fine](int amount, int& rest) {
    if (!fine) return amount / 100;
    // Touch pads and free wheels send many small amounts, which make a notch together.
    constexpr int notch = 120;
    if (amount == 0) return 0;
    if ((amount < 0) != (rest < 0)) rest = 0;
    rest += amount;
    return std::exchange(rest, rest % notch) / notch;
  };
  const auto scroll = [](detail::EditWindow& window, int steps) {
    if (steps > 0) window.ScrollUp(static_cast<quint32>(steps));
    if (steps < 0) window.ScrollDown(static_cast<quint32>(-steps));
  };
  scroll(*rows_.window, notches(event->angleDelta().y(), wheel_rest_.ry()));
  if (cols_.bar) scroll(*cols_.window, notches(event->angleDelta().x(), wheel_rest_.rx()));
}

bool CellPanel::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    EditMouseWheel(static_cast<QWheelEvent*>(event));
    return true;
  }
  if (watched == rows_.bar || watched == cols_.bar)
    return TQorCustomPanel::eventFilter(watched, event);
  const auto* const widget = static_cast<const QWidget*>(watched);
  switch (event->type()) {
    case QEvent::ShortcutOverride:
      // An action of the application with the same keys would take them otherwise.
      if (IsOwnKey(static_cast<const QKeyEvent&>(*event))) event->accept();
      break;
    case QEvent::KeyPress: {
      auto* const key = static_cast<QKeyEvent*>(event);
      if (EditKeyDown(key) || EditKeyPress(key)) return true;
      break;
    }
    case QEvent::KeyRelease:
      Q_EMIT OnKeyUp(static_cast<QKeyEvent*>(event));
      break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease:
      if (widget->isEnabled()) ForwardMouse(*widget, static_cast<QMouseEvent*>(event));
      break;
    default:
      break;
  }
  return TQorCustomPanel::eventFilter(watched, event);
}

void CellPanel::ForwardMouse(const QWidget& widget, QMouseEvent* event) {
  switch (event->type()) {
    case QEvent::MouseButtonPress:
      Q_EMIT OnMouseDown(event);
      break;
    case QEvent::MouseButtonDblClick:
      Q_EMIT OnDblClick();
      break;
    case QEvent::MouseMove:
      Q_EMIT OnMouseMove(event);
      break;
    default:
      Q_EMIT OnMouseUp(event);
      if (event->button() == Qt::LeftButton &&
          widget.rect().contains(event->position().toPoint())) {
        Q_EMIT OnClick();
      }
  }
}

void CellPanel::wheelEvent(QWheelEvent* event) {
  // Cells without an element are disabled and pass it on.
  EditMouseWheel(event);
}

void CellPanel::focusInEvent(QFocusEvent* event) {
  TQorCustomPanel::focusInEvent(event);
  FocusCell(Rows().Focus(), Cols().Focus());
}

void CellPanel::hideEvent(QHideEvent* event) {
  // A page of tabs that is turned loses nothing. Nobody leaves the cell, though: the control may be
  // on its way out, and handlers with it.
  CommitPending();
  TQorCustomPanel::hideEvent(event);
}

}  // namespace qorvex::inline QorvexControls
