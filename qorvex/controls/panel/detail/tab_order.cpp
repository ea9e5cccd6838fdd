#include "qorvex/controls/panel/detail/tab_order.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

// Where the focus goes that a widget gets.
const QWidget& TakerOf(const QWidget& widget) {
  const QWidget* taker = &widget;
  while (taker->focusProxy() != nullptr) taker = taker->focusProxy();
  return *taker;
}

bool StopsAt(const QWidget& widget, bool forward) {
  if (!widget.isEnabled() || !widget.isVisibleTo(widget.window())) return false;
  const QWidget& taker = TakerOf(widget);
  // A panel comes before its children. Going back, the last of them is the stop.
  if (!forward && &taker != &widget && widget.isAncestorOf(&taker)) return false;
  return (taker.focusPolicy() & Qt::TabFocus) != 0;
}

}  // namespace

QWidget* StopOutside(const QWidget& panel, bool forward) {
  const auto next = [forward](const QWidget& widget) {
    return forward ? widget.nextInFocusChain() : widget.previousInFocusChain();
  };
  for (QWidget* widget = next(panel); widget != &panel; widget = next(*widget)) {
    if (!panel.isAncestorOf(widget) && StopsAt(*widget, forward)) return widget;
  }
  return nullptr;
}

}  // namespace qorvex::inline QorvexControls::detail
