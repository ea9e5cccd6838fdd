#pragma once

/// @file
/// PlotDrawing, which draws a diagram: legend, grid, layers, axes and titles.

#include <QFontMetrics>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QString>
#include <vector>

#include "apps/qorvex-gallery/plot/axis_ticks.h"
#include "apps/qorvex-gallery/plot/layer_painter.h"
#include "apps/qorvex-gallery/plot/plot_extent.h"
#include "apps/qorvex-gallery/plot/plot_layer.h"

namespace qorvex::gallery {

/// One drawing of a diagram, as large as the widget and in its colours, font and locale.
class PlotDrawing {
 public:
  PlotDrawing(QPainter& painter, const QWidget& widget, const std::vector<PlotLayer>& layers);

  /// Whether there is no point to draw.
  [[nodiscard]] bool IsEmpty() const { return extent_.IsEmpty(); }
  void Draw(const QString& x_title, const QString& y_title);

 private:
  [[nodiscard]] QColor Faded(double share) const;
  [[nodiscard]] QPointF Place(const QPointF& point) const { return extent_.Place(point, area_); }
  [[nodiscard]] AxisTicks YTicks() const;
  [[nodiscard]] AxisTicks XTicks() const;
  int DrawLegend();
  void DrawGrid(const AxisTicks& x_ticks, const AxisTicks& y_ticks);
  void DrawAxes(const AxisTicks& x_ticks, const AxisTicks& y_ticks);
  void DrawTitles(const QString& whole_x_title, const QString& whole_y_title);

  QPainter& painter_;
  QPalette palette_;
  QFontMetrics metrics_;
  QLocale locale_;
  const std::vector<PlotLayer>& layers_;
  PlotExtent extent_;
  LayerPainter layer_painter_;
  // What the axes enclose.
  QRectF area_;
};

}  // namespace qorvex::gallery
