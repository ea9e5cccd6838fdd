#include "qorvex/controls/panel/detail/panel_keys.h"

#include <QApplication>
#include <algorithm>
#include <utility>

#include "qorvex/controls/panel/detail/tab_order.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

// The modifiers that are held; keys of the keypad count like the others.
Qt::KeyboardModifiers Held(const QKeyEvent& event) {
  return event.modifiers() & ~Qt::KeyboardModifiers(Qt::KeypadModifier);
}

bool IsHistoryKey(const QKeyEvent& event) {
  const Qt::KeyboardModifiers held = Held(event);
  if (event.key() == Qt::Key_Y) return held == Qt::ControlModifier;
  return event.key() == Qt::Key_Z &&
         (held == Qt::ControlModifier || held == (Qt::ControlModifier | Qt::ShiftModifier));
}

bool IsRedo(const QKeyEvent& event) {
  return event.key() == Qt::Key_Y || Held(event).testFlag(Qt::ShiftModifier);
}

// The whole notches that a wheel has turned.
int Notches(int amount, bool fine, int& rest) {
  if (!fine) return amount / 100;
  // Touch pads and free wheels send many small amounts, which add up to a notch.
  constexpr int notch = 120;
  if (amount == 0) return 0;
  if ((amount < 0) != (rest < 0)) rest = 0;
  rest += amount;
  return std::exchange(rest, rest % notch) / notch;
}

void Scroll(EditWindow& window, int steps) {
  if (steps > 0) window.ScrollUp(static_cast<quint32>(steps));
  if (steps < 0) window.ScrollDown(static_cast<quint32>(-steps));
}

}  // namespace

PanelKeys::PanelKeys(CellPanel& panel, PanelAxis& rows, PanelAxis& cols, PanelFocus& focus)
    : panel_(panel), rows_(rows), cols_(cols), focus_(focus) {}

bool PanelKeys::IsTyping() const {
  return focus_.Entered() != nullptr && focus_.Entered()->Pending();
}

bool PanelKeys::IsForTheApplication(const QKeyEvent& event) const {
  if (!IsHistoryKey(event) || IsTyping()) return false;
  return panel_.EffectiveSettings().read_only ||
         !(IsRedo(event) ? panel_.CanRedo() : panel_.CanUndo());
}

bool PanelKeys::IsOwnKey(const QKeyEvent& event) const {
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
      return held == Qt::ControlModifier;
    case Qt::Key_Left:
    case Qt::Key_Right:
      return cols_.Bar() != nullptr && held == Qt::ControlModifier;
    case Qt::Key_Y:
    case Qt::Key_Z:
      return IsHistoryKey(event);
    case Qt::Key_C:
      return held == (Qt::ControlModifier | Qt::ShiftModifier);
    case Qt::Key_Tab:
    case Qt::Key_Backtab:
      return held.testFlag(Qt::ControlModifier) && !held.testFlag(Qt::AltModifier);
    default:
      return false;
  }
}

bool PanelKeys::UseKey(const QKeyEvent& event) {
  if (!IsOwnKey(event)) return false;
  switch (event.key()) {
    case Qt::Key_Up:
      focus_.Step(rows_, cols_, false);
      return true;
    case Qt::Key_Left:
    case Qt::Key_Right: {
      // Left and right are directions on the screen.
      const bool mirrored = panel_.layoutDirection() == Qt::RightToLeft;
      focus_.Step(cols_, rows_, (event.key() == Qt::Key_Right) != mirrored);
      return true;
    }
    case Qt::Key_PageUp:
      panel_.ScrollUp(std::min(rows_.Window().Edits(), rows_.Window().Top()));
      return true;
    case Qt::Key_PageDown:
      panel_.ScrollDown(rows_.Window().Edits());
      return true;
    case Qt::Key_C:
      panel_.CopyAll();
      return true;
    case Qt::Key_Tab:
    case Qt::Key_Backtab: {
      const bool forward = event.key() == Qt::Key_Tab && !Held(event).testFlag(Qt::ShiftModifier);
      if (QWidget* const stop = StopOutside(panel_, forward)) {
        stop->setFocus(forward ? Qt::TabFocusReason : Qt::BacktabFocusReason);
      }
      return true;
    }
    case Qt::Key_Y:
    case Qt::Key_Z: {
      if (IsTyping()) return false;
      IsRedo(event) ? panel_.Redo() : panel_.Undo();
      return true;
    }
    default:
      focus_.Step(rows_, cols_, true);
      return true;
  }
}

bool PanelKeys::EditKeyDown(QKeyEvent& event) {
  event.setAccepted(false);
  Q_EMIT panel_.OnKeyDown(&event);
  if (event.isAccepted()) return true;
  // Left unaccepted, a key would be handled again by every parent.
  event.setAccepted(!IsForTheApplication(event));
  return !event.isAccepted() || UseKey(event);
}

bool PanelKeys::EditKeyPress(QKeyEvent& event) {
  if (event.text().isEmpty()) return false;
  event.setAccepted(false);
  Q_EMIT panel_.OnKeyPress(&event);
  if (event.isAccepted()) return true;
  event.accept();
  return false;
}

bool PanelKeys::FocusInside() const {
  const QWidget* const focus = QApplication::focusWidget();
  return focus != nullptr && (focus == &panel_ || panel_.isAncestorOf(focus));
}

void PanelKeys::EditMouseWheel(QWheelEvent& event) {
  if (!FocusInside()) {
    wheel_rest_ = {};
    event.ignore();
    return;
  }
  event.accept();
  const bool fine = event.phase() != Qt::NoScrollPhase || !event.pixelDelta().isNull();
  Scroll(rows_.Window(), Notches(event.angleDelta().y(), fine, wheel_rest_.ry()));
  if (cols_.Bar() == nullptr) return;
  Scroll(cols_.Window(), Notches(event.angleDelta().x(), fine, wheel_rest_.rx()));
}

bool PanelKeys::eventFilter(QObject* watched, QEvent* event) {
  if (event->type() == QEvent::Wheel) {
    EditMouseWheel(static_cast<QWheelEvent&>(*event));
    return true;
  }
  if (watched == rows_.Bar() || watched == cols_.Bar()) return false;
  switch (event->type()) {
    case QEvent::ShortcutOverride: {
      // Otherwise an action of the application with the same keys would take them. The line edit
      // would always take Ctrl+Z.
      const auto& key = static_cast<const QKeyEvent&>(*event);
      const bool for_application = IsForTheApplication(key);
      if (IsOwnKey(key)) event->setAccepted(!for_application);
      return for_application;
    }
    case QEvent::KeyPress: {
      auto& key = static_cast<QKeyEvent&>(*event);
      return EditKeyDown(key) || EditKeyPress(key);
    }
    case QEvent::FocusIn:
      return focus_.Redirect(watched, static_cast<const QFocusEvent&>(*event).reason());
    case QEvent::ContextMenu:
      if (panel_.contextMenuPolicy() == Qt::DefaultContextMenu) break;
      // Ignored, it goes on to the panel, which follows its policy.
      event->ignore();
      return true;
    case QEvent::KeyRelease:
      Q_EMIT panel_.OnKeyUp(static_cast<QKeyEvent*>(event));
      break;
    case QEvent::MouseButtonPress:
    case QEvent::MouseButtonDblClick:
    case QEvent::MouseMove:
    case QEvent::MouseButtonRelease: {
      const auto& widget = static_cast<const QWidget&>(*watched);
      if (widget.isEnabled()) ForwardMouse(widget, static_cast<QMouseEvent&>(*event));
      break;
    }
    default:
      break;
  }
  return false;
}

void PanelKeys::ForwardMouse(const QWidget& widget, QMouseEvent& event) {
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      Q_EMIT panel_.OnMouseDown(&event);
      break;
    case QEvent::MouseButtonDblClick:
      Q_EMIT panel_.OnDblClick();
      break;
    case QEvent::MouseMove:
      Q_EMIT panel_.OnMouseMove(&event);
      break;
    default:
      Q_EMIT panel_.OnMouseUp(&event);
      if (event.button() == Qt::LeftButton && widget.rect().contains(event.position().toPoint())) {
        Q_EMIT panel_.OnClick();
      }
  }
}

}  // namespace qorvex::inline QorvexControls::detail
