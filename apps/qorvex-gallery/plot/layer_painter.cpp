#include "apps/qorvex-gallery/plot/layer_painter.h"

#include <cmath>
#include <cstddef>

namespace qorvex::gallery {

namespace {

constexpr double kDotRadius = 3;

}  // namespace

void LayerPainter::Draw(const PlotLayer& layer, const QRectF& area) {
  area_ = area;
  switch (layer.shape) {
    case PlotShape::kPoints: {
      constexpr std::size_t kSmallDotsAbove = 1000;
      const double radius = layer.points.size() > kSmallDotsAbove ? kDotRadius / 2 : kDotRadius;
      for (const QPointF& point : layer.points)
        if (IsFinite(point)) DrawDot(Place(point), layer.role, radius);
      break;
    }
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
  }
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

void LayerPainter::DrawBars(const PlotLayer& layer) {
  painter_.setPen(QPen(palette_.color(QPalette::Base), 1));
  painter_.setBrush(FillColor(layer.role, palette_));
  for (std::size_t i = 1; i < layer.points.size(); ++i) {
    const double left = layer.points[i - 1].x();
    const QPointF& corner = layer.points[i];
    if (!std::isfinite(left) || !IsFinite(corner) || corner.y() == 0) continue;
    painter_.drawRect(QRectF(Place({left, 0}), Place(corner)).normalized());
  }
  painter_.setBrush(Qt::NoBrush);
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
    case PlotShape::kArea:
    case PlotShape::kBand:
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
