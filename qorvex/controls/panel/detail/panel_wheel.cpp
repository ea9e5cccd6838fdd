#include "qorvex/controls/panel/detail/panel_wheel.h"

#include <QApplication>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

namespace {

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

PanelWheel::PanelWheel(QWidget& panel, PanelAxis& rows, PanelAxis& cols)
    : panel_(panel), rows_(rows), cols_(cols) {}

bool PanelWheel::FocusInside() const {
  const QWidget* const focus = QApplication::focusWidget();
  return focus != nullptr && (focus == &panel_ || panel_.isAncestorOf(focus));
}

void PanelWheel::EditMouseWheel(QWheelEvent& event) {
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

}  // namespace qorvex::inline QorvexControls::detail
