#pragma once

/// @file
/// PlotDrawing, which draws a diagram: legend, grid, layers, axes and titles.

#include <QFont>
#include <QFontMetrics>
#include <QLocale>
#include <QPainter>
#include <QPalette>
#include <QRectF>
#include <QString>

#include "apps/qorvex-gallery/plot/axis_ticks.h"
#include "apps/qorvex-gallery/plot/layer_painter.h"
#include "apps/qorvex-gallery/plot/plot_extent.h"
#include "apps/qorvex-gallery/plot/plot_layer.h"

namespace qorvex::gallery {

/// How diagrams look.
struct PlotLook {
  QPalette palette;
  QFont font;
  QLocale locale;
};

/// One drawing of the part of a diagram that the extent covers.
class PlotDrawing {
 public:
  PlotDrawing(QPainter& painter, const PlotLook& look, const PlotContent& content,
              const PlotExtent& extent);

  /// Draws into the rectangle and returns the area that the axes enclose, which is empty if there
  /// is no room for it.
  QRectF Draw(const QRectF& rect);

 private:
  [[nodiscard]] QColor Faded(double share) const;
  [[nodiscard]] QPointF Place(const QPointF& point) const { return extent_.Place(point, area_); }
  [[nodiscard]] AxisTicks Ticks(const PlotAxis& axis, const AxisRange& range, int most) const;
  [[nodiscard]] AxisTicks YTicks() const;
  [[nodiscard]] AxisTicks XTicks() const;
  int DrawLegend();
  void DrawGrid(const AxisTicks& x_ticks, const AxisTicks& y_ticks);
  void DrawAxes(const AxisTicks& x_ticks, const AxisTicks& y_ticks);
  void DrawTitles(const QRectF& rect);

  QPainter& painter_;
  const PlotLook& look_;
  QFontMetrics metrics_;
  const PlotContent& content_;
  const PlotExtent& extent_;
  LayerPainter layer_painter_;
  // What the axes enclose.
  QRectF area_;
};

}  // namespace qorvex::gallery
