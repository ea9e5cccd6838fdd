#include "apps/qorvex-gallery/plot/layer_painter.h"

#include <algorithm>
#include <cmath>
#include <cstddef>

namespace qorvex::gallery {

namespace {

constexpr double kDotRadius = 3;
constexpr double kLeastOutlinedWidth = 4;

}  // namespace

void LayerPainter::Draw(const PlotLayer& layer, const QRectF& area) {
  area_ = area;
  switch (layer.shape) {
    case PlotShape::kPoints:
      DrawPoints(layer);
      break;
    case PlotShape::kLine:
      painter_.setPen(LinePen(layer.role, palette_));
      for (const QPolygonF& run : Runs(layer)) painter_.drawPolyline(run);
      break;
    case PlotShape::kArea:
      DrawArea(layer);
      break;
    case PlotShape::kBars:
      DrawBars(layer);
      break;
    case PlotShape::kStems:
      DrawStems(layer);
      break;
    case PlotShape::kBand:
      DrawBand(layer);
      break;
    case PlotShape::kMarks:
      DrawMarks(layer);
      break;
    case PlotShape::kBox:
      DrawBox(layer);
      break;
  }
}

// Of the points that share a place, one is drawn: a million points have no more places than there
// are on the screen. Many are drawn as squares, which takes a fraction of the time.
void LayerPainter::DrawPoints(const PlotLayer& layer) {
  constexpr std::size_t kSmallDotsAbove = 1000;
  constexpr std::size_t kSquaresAbove = 20000;
  const double radius = layer.points.size() > kSmallDotsAbove ? kDotRadius / 2 : kDotRadius;
  const std::vector<QPointF> places = Places(layer);
  if (places.size() <= kSquaresAbove) {
    for (const QPointF& place : places) DrawDot(place, layer.role, radius);
    return;
  }
  QList<QRectF> squares;
  for (const QPointF& place : places)
    squares.append({place.x() - radius, place.y() - radius, 2 * radius, 2 * radius});
  painter_.save();
  painter_.setRenderHint(QPainter::Antialiasing, false);
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(RoleColor(layer.role, palette_));
  painter_.drawRects(squares);
  painter_.restore();
}

// Where points of the layer are drawn, half a pixel or more apart.
std::vector<QPointF> LayerPainter::Places(const PlotLayer& layer) const {
  constexpr double per_pixel = 2;
  const auto columns = static_cast<std::size_t>(per_pixel * area_.width()) + 1;
  const auto rows = static_cast<std::size_t>(per_pixel * area_.height()) + 1;
  std::vector<bool> taken(columns * rows);
  std::vector<QPointF> places;
  for (const QPointF& point : layer.points) {
    const bool is_shown = extent_.x.Contains(point.x()) && extent_.y.Contains(point.y());
    if (!IsFinite(point) || !is_shown) continue;
    const QPointF at = Place(point);
    const auto column = static_cast<std::size_t>(std::max(at.x() - area_.left(), 0.0) * per_pixel);
    const auto row = static_cast<std::size_t>(std::max(at.y() - area_.top(), 0.0) * per_pixel);
    if (taken[row * columns + column]) continue;
    taken[row * columns + column] = true;
    places.push_back(at);
  }
  return places;
}

void LayerPainter::DrawMarks(const PlotLayer& layer) {
  painter_.setPen(LinePen(layer.role, palette_));
  for (const QPointF& point : layer.points) {
    const double x = Place(point).x();
    painter_.drawLine(QPointF(x, area_.bottom()), QPointF(x, area_.top()));
  }
}

void LayerPainter::DrawBox(const PlotLayer& layer) {
  if (layer.points.size() != 5 || !std::ranges::all_of(layer.points, IsFinite)) return;
  const auto at = [&](std::size_t i) { return Place(layer.points[i]); };
  constexpr double most_half_height = 22;
  const double slot = area_.height() / (extent_.y.high - extent_.y.low);
  const QPointF half(0, std::min(most_half_height, 0.3 * slot));
  const QColor color = RoleColor(layer.role, palette_);
  painter_.setPen(QPen(color, 1.5));
  painter_.drawLine(at(0), at(1));
  painter_.drawLine(at(3), at(4));
  for (const std::size_t end : {0U, 4U}) painter_.drawLine(at(end) - half / 2, at(end) + half / 2);
  painter_.setBrush(FillColor(layer.role, palette_));
  painter_.drawRect(QRectF(at(1) - half, at(3) + half));
  painter_.setBrush(Qt::NoBrush);
  QPen middle(palette_.color(QPalette::Text), 2.5);
  middle.setCapStyle(Qt::FlatCap);
  painter_.setPen(middle);
  painter_.drawLine(at(2) - half, at(2) + half);
}

void LayerPainter::DrawStems(const PlotLayer& layer) {
  for (const QPointF& point : layer.points) {
    if (!IsFinite(point)) continue;
    painter_.setPen(QPen(RoleColor(layer.role, palette_), 1.5));
    painter_.drawLine(Place({point.x(), 0}), Place(point));
    DrawDot(Place(point), layer.role, kDotRadius);
  }
}

void LayerPainter::DrawArea(const PlotLayer& layer) {
  const double zero = Place({extent_.x.low, 0}).y();
  painter_.setPen(Qt::NoPen);
  painter_.setBrush(FillColor(layer.role, palette_));
  for (QPolygonF run : Runs(layer)) {
    if (run.empty()) continue;
    run.append(QPointF(run.back().x(), zero));
    run.append(QPointF(run.front().x(), zero));
    painter_.drawPolygon(run);
  }
  painter_.setBrush(Qt::NoBrush);
}

void LayerPainter::DrawBand(const PlotLayer& layer) {
  painter_.setPen(Qt::NoPen);
  QColor color = RoleColor(layer.role, palette_);
  color.setAlpha(50);
  painter_.setBrush(color);
  for (const QPolygonF& run : Runs(layer)) painter_.drawPolygon(run);
  painter_.setBrush(Qt::NoBrush);
}

// Narrow bars have no outlines, which would take up most of their width: they are one area.
void LayerPainter::DrawBars(const PlotLayer& layer) {
  painter_.setBrush(FillColor(layer.role, palette_));
  if (LeastWidth(layer) < kLeastOutlinedWidth) {
    painter_.setPen(Qt::NoPen);
    painter_.drawPolygon(Steps(layer));
    painter_.setBrush(Qt::NoBrush);
    return;
  }
  painter_.setPen(QPen(palette_.color(QPalette::Base), 1));
  for (std::size_t i = 1; i < layer.points.size(); ++i) {
    const double left = layer.points[i - 1].x();
    const QPointF& corner = layer.points[i];
    if (!std::isfinite(left) || !IsFinite(corner) || corner.y() == 0) continue;
    painter_.drawRect(QRectF(Place({left, 0}), Place(corner)).normalized());
  }
  painter_.setBrush(Qt::NoBrush);
}

double LayerPainter::LeastWidth(const PlotLayer& bars) const {
  double least = area_.width();
  for (std::size_t i = 1; i < bars.points.size(); ++i)
    least = std::min(least, Place(bars.points[i]).x() - Place(bars.points[i - 1]).x());
  return least;
}

// The outline of all bars.
QPolygonF LayerPainter::Steps(const PlotLayer& bars) const {
  QPolygonF outline;
  for (std::size_t i = 0; i < bars.points.size(); ++i) {
    const double x = bars.points[i].x();
    if (i == 0) outline.append(Place({x, 0}));
    if (i > 0) outline.append(Place(bars.points[i]));
    const double next = i + 1 < bars.points.size() ? bars.points[i + 1].y() : 0;
    outline.append(Place({x, next}));
  }
  return outline;
}

void LayerPainter::DrawDot(const QPointF& at, PlotRole role, double radius) {
  // An outline separates a dot from what is behind it. There are too many small dots for that.
  const bool outlined = radius >= kDotRadius;
  painter_.setPen(outlined ? QPen(palette_.color(QPalette::Base), 1) : QPen(Qt::NoPen));
  if (outlined) radius += 0.5;
  QColor color = RoleColor(role, palette_);
  color.setAlpha(225);
  painter_.setBrush(color);
  painter_.drawEllipse(at, radius, radius);
  painter_.setBrush(Qt::NoBrush);
}

// The polylines between points that are not finite.
std::vector<QPolygonF> LayerPainter::Runs(const PlotLayer& layer) const {
  std::vector<QPolygonF> runs(1);
  for (const QPointF& point : layer.points) {
    if (IsFinite(point)) {
      runs.back().append(Place(point));
    } else if (!runs.back().empty()) {
      runs.emplace_back();
    }
  }
  return runs;
}

void LayerPainter::DrawSample(const PlotLayer& layer, const QRectF& box) {
  const QColor color = RoleColor(layer.role, palette_);
  switch (layer.shape) {
    case PlotShape::kPoints:
    case PlotShape::kStems:
      DrawDot(box.center(), layer.role, kDotRadius + 0.5);
      break;
    case PlotShape::kLine:
      painter_.setPen(LinePen(layer.role, palette_));
      painter_.drawLine(QPointF(box.left(), box.center().y()),
                        QPointF(box.right(), box.center().y()));
      break;
    case PlotShape::kMarks: {
      painter_.setPen(LinePen(layer.role, palette_));
      const double x = box.right() - box.height() / 2;
      painter_.drawLine(QPointF(x, box.top()), QPointF(x, box.bottom()));
      break;
    }
    case PlotShape::kArea:
    case PlotShape::kBand:
    case PlotShape::kBox:
    case PlotShape::kBars: {
      const double side = 0.7 * box.height();
      painter_.setPen(QPen(color, 1));
      painter_.setBrush(FillColor(layer.role, palette_));
      painter_.drawRect(QRectF(box.right() - side - 2, box.center().y() - side / 2, side, side));
      painter_.setBrush(Qt::NoBrush);
      break;
    }
  }
}

}  // namespace qorvex::gallery
