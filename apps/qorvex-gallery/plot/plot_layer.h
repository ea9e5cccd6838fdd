#pragma once

/// @file
/// PlotLayer, one set of points in a diagram, and its colours.

#include <QColor>
#include <QPalette>
#include <QPen>
#include <QPointF>
#include <QString>
#include <vector>

namespace qorvex::gallery {

/// What a layer shows. Its colour depends on this and on whether the palette is dark.
enum class PlotRole { kData, kModel, kSecondModel, kTail, kGuide };

/// How the points of a layer are drawn.
enum class PlotShape {
  kPoints,  ///< A dot at each point.
  kLine,    ///< A line through the points; a NaN interrupts it.
  kArea,    ///< The area between this line and zero.
  kBars,    ///< Bars from zero. Each point is the upper right corner of a bar, except the first,
            ///< which gives the left edge of the first bar.
  kStems,   ///< A vertical line from zero to each point, with a dot.
  kBand     ///< The area that the points enclose, faint, as far as the diagram shows it.
};

/// One set of points.
struct PlotLayer {
  PlotShape shape = PlotShape::kLine;
  PlotRole role = PlotRole::kData;
  QString name;  ///< In the legend; layers without a name are not listed there.
  std::vector<QPointF> points;
};

/// A colour between two others.
[[nodiscard]] QColor Mixed(const QColor& a, const QColor& b, double share_of_b);

/// The colour of a layer.
[[nodiscard]] QColor RoleColor(PlotRole role, const QPalette& palette);

/// The pen for the lines of a layer.
[[nodiscard]] QPen LinePen(PlotRole role, const QPalette& palette);

/// The colour of the areas of a layer.
[[nodiscard]] QColor FillColor(PlotRole role, const QPalette& palette);

}  // namespace qorvex::gallery
