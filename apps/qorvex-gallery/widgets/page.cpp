#include "apps/qorvex-gallery/widgets/page.h"

#include <QEvent>
#include <QLayout>
#include <QScrollArea>

#include "qorvex/controls/panel/cell_panel.h"

namespace qorvex::gallery {

namespace {

void CollectStops(QWidget& widget, QWidgetList& stops);

void CollectStops(QLayout& layout, QWidgetList& stops) {
  for (int i = 0; i < layout.count(); ++i) {
    if (QLayout* const part = layout.itemAt(i)->layout()) CollectStops(*part, stops);
    if (QWidget* const part = layout.itemAt(i)->widget()) CollectStops(*part, stops);
  }
}

// The cells of an editor have an order of their own.
void CollectStops(QWidget& widget, QWidgetList& stops) {
  const bool is_editor = qobject_cast<CellPanel*>(&widget) != nullptr;
  if (is_editor || (widget.focusPolicy() & Qt::TabFocus) != 0) stops += &widget;
  if (is_editor) return;
  if (const auto* const area = qobject_cast<QScrollArea*>(&widget)) {
    if (area->widget() != nullptr) CollectStops(*area->widget(), stops);
  } else if (widget.layout() != nullptr) {
    CollectStops(*widget.layout(), stops);
  }
}

}  // namespace

Page::~Page() = default;

bool Page::event(QEvent* event) {
  if (event->type() == QEvent::LayoutRequest) OrderStops();
  return QWidget::event(event);
}

// New widgets are at the end of the order that Qt keeps, wherever they are on the page.
void Page::OrderStops() {
  if (layout() == nullptr) return;
  QWidgetList stops;
  CollectStops(*layout(), stops);
  for (qsizetype i = 1; i < stops.size(); ++i) setTabOrder(stops[i - 1], stops[i]);
}

}  // namespace qorvex::gallery
