// The pointer, the wheel and the keys in a diagram.

#include <QContextMenuEvent>
#include <QKeyEvent>
#include <QMouseEvent>
#include <QWheelEvent>
#include <algorithm>
#include <cmath>
#include <utility>

#include "apps/qorvex-gallery/plot/plot_menu.h"
#include "apps/qorvex-gallery/plot/plot_view.h"

namespace qorvex::gallery {

namespace {

constexpr double kZoomStep = 1.25;
constexpr double kMoveStep = 0.1;

}  // namespace

bool PlotView::event(QEvent* event) {
  // Before an action of the window takes the key.
  if (event->type() == QEvent::ShortcutOverride) {
    const auto& key = *static_cast<QKeyEvent*>(event);
    if (!IsEmpty() && IsPlotMenuKey(key)) {
      event->accept();
      return true;
    }
  }
  return QWidget::event(event);
}

void PlotView::resizeEvent(QResizeEvent*) {
  Redraw();
}

void PlotView::changeEvent(QEvent* event) {
  QWidget::changeEvent(event);
  if (event->type() == QEvent::LocaleChange) Describe();
  Redraw();
}

void PlotView::focusInEvent(QFocusEvent*) {
  update();
}

void PlotView::focusOutEvent(QFocusEvent*) {
  SetReadout(std::nullopt);
  update();
}

void PlotView::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton || IsEmpty()) return;
  drag_ = event->position();
  SetReadout(std::nullopt);
  setCursor(Qt::ClosedHandCursor);
}

void PlotView::mouseMoveEvent(QMouseEvent* event) {
  if (!drag_) {
    SetReadout(PlotReader(content_, shown_, locale()).Near(event->position(), area_));
    return;
  }
  const QPointF by = event->position() - *std::exchange(drag_, event->position());
  if (area_.isEmpty()) return;
  Move(-by.x() / area_.width(), by.y() / area_.height());
}

void PlotView::mouseReleaseEvent(QMouseEvent*) {
  drag_.reset();
  unsetCursor();
}

void PlotView::mouseDoubleClickEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) ShowAll();
}

void PlotView::leaveEvent(QEvent*) {
  SetReadout(std::nullopt);
}

void PlotView::wheelEvent(QWheelEvent* event) {
  const double notches = event->angleDelta().y() / 120.0;
  if (IsEmpty() || area_.isEmpty() || notches == 0) return event->ignore();
  const double factor = std::pow(kZoomStep, notches);
  const bool only_x = event->modifiers() & Qt::ShiftModifier;
  const bool only_y = event->modifiers() & Qt::ControlModifier;
  Zoom(only_y ? 1 : factor, only_x ? 1 : factor, shown_.PointAt(event->position(), area_));
  SetReadout(std::nullopt);
}

void PlotView::keyPressEvent(QKeyEvent* event) {
  if (IsEmpty() || !(HandlePlotMenuKey(*this, *event) || HandleKey(*event)))
    QWidget::keyPressEvent(event);
}

bool PlotView::HandleKey(const QKeyEvent& event) {
  const bool moves = event.modifiers() & Qt::ShiftModifier;
  const QPointF middle = readout_ ? readout_->at : QPointF(shown_.x.At(0.5), shown_.y.At(0.5));
  switch (event.key()) {
    case Qt::Key_Left:
      moves ? Move(-kMoveStep, 0) : StepPoint(-1);
      return true;
    case Qt::Key_Right:
      moves ? Move(kMoveStep, 0) : StepPoint(1);
      return true;
    case Qt::Key_Up:
      moves ? Move(0, kMoveStep) : StepLayer(1);
      return true;
    case Qt::Key_Down:
      moves ? Move(0, -kMoveStep) : StepLayer(-1);
      return true;
    case Qt::Key_Home:
    case Qt::Key_End:
      StepToEnd(event.key() == Qt::Key_End);
      return true;
    case Qt::Key_Plus:
    case Qt::Key_Equal:
      Zoom(kZoomStep, kZoomStep, middle);
      return true;
    case Qt::Key_Minus:
      Zoom(1 / kZoomStep, 1 / kZoomStep, middle);
      return true;
    case Qt::Key_0:
      ShowAll();
      return true;
    case Qt::Key_Escape:
      if (!readout_) return false;
      SetReadout(std::nullopt);
      return true;
    default:
      return false;
  }
}

void PlotView::StepPoint(int step) {
  if (!readout_) return StepLayer(1);
  ReadOutFrom(readout_->layer, static_cast<std::ptrdiff_t>(readout_->point) + step, step);
}

void PlotView::StepToEnd(bool last) {
  if (!readout_) StepLayer(1);
  if (!readout_) return;
  const auto count = static_cast<std::ptrdiff_t>(content_.layers[readout_->layer].points.size());
  ReadOutFrom(readout_->layer, last ? count - 1 : 0, last ? -1 : 1);
}

// Shows the values of the first point that is in the diagram, from one on in the given direction.
// If no such point is in sight, the values stay as they are.
void PlotView::ReadOutFrom(std::size_t layer, std::ptrdiff_t point, int step) {
  const std::vector<QPointF>& points = content_.layers[layer].points;
  const PlotReader reader(content_, shown_, locale());
  for (; point >= 0 && std::cmp_less(point, points.size()); point += step) {
    auto readout = reader.At(layer, static_cast<std::size_t>(point));
    if (!readout || !shown_.x.Contains(readout->at.x()) || !shown_.y.Contains(readout->at.y()))
      continue;
    return SetReadout(std::move(readout));
  }
}

// The next layer of which a point is in the diagram. The first one is that of the data.
void PlotView::StepLayer(int step) {
  const auto count = static_cast<std::ptrdiff_t>(content_.layers.size());
  const std::optional<PlotReadout> before = std::exchange(readout_, std::nullopt);
  const auto of_data = std::ranges::find(content_.layers, PlotRole::kData, &PlotLayer::role);
  std::ptrdiff_t layer = before ? static_cast<std::ptrdiff_t>(before->layer)
                                : of_data - content_.layers.begin() - step;
  for (std::ptrdiff_t i = 0; i < count && !readout_; ++i) {
    layer = (layer + step + count) % count;
    ReadOutFrom(static_cast<std::size_t>(layer), 0, 1);
  }
  if (!readout_) readout_ = before;
  Describe();
  update();
}

void PlotView::contextMenuEvent(QContextMenuEvent* event) {
  if (IsEmpty()) return;
  const bool by_key = event->reason() == QContextMenuEvent::Keyboard;
  ShowPlotMenu(*this, by_key ? mapToGlobal(rect().center()) : event->globalPos());
}

}  // namespace qorvex::gallery
