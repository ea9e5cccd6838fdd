#pragma once

/// @file
/// LayerPainter, which draws the points, lines and areas of a diagram.

#include <QPainter>
#include <QPalette>
#include <QPolygonF>
#include <QRectF>
#include <vector>

#include "apps/qorvex-gallery/plot/plot_extent.h"
#include "apps/qorvex-gallery/plot/plot_layer.h"

namespace qorvex::gallery {

/// Draws layers with one painter and palette.
class LayerPainter {
 public:
  LayerPainter(QPainter& painter, const QPalette& palette, const PlotExtent& extent)
      : painter_(painter), palette_(palette), extent_(extent) {}

  /// Draws a layer where the axes enclose the area.
  void Draw(const PlotLayer& layer, const QRectF& area);
  /// Draws what stands for a layer in the legend.
  void DrawSample(const PlotLayer& layer, const QRectF& box);

 private:
  [[nodiscard]] QPointF Place(const QPointF& point) const { return extent_.Place(point, area_); }
  [[nodiscard]] std::vector<QPolygonF> Runs(const PlotLayer& layer) const;
  void DrawDot(const QPointF& at, PlotRole role, double radius);
  void DrawPoints(const PlotLayer& layer);
  [[nodiscard]] std::vector<QPointF> Places(const PlotLayer& layer) const;
  void DrawMarks(const PlotLayer& layer);
  void DrawBox(const PlotLayer& layer);
  void DrawStems(const PlotLayer& layer);
  void DrawArea(const PlotLayer& layer);
  void DrawBand(const PlotLayer& layer);
  void DrawBars(const PlotLayer& layer);
  [[nodiscard]] double LeastWidth(const PlotLayer& bars) const;
  [[nodiscard]] QPolygonF Steps(const PlotLayer& bars) const;

  QPainter& painter_;
  const QPalette& palette_;
  const PlotExtent& extent_;
  QRectF area_;
};

}  // namespace qorvex::gallery
