#pragma once

/// @file
/// PlotLayer, one set of points in a diagram, and its colours; PlotContent, a whole diagram.

#include <QColor>
#include <QPalette>
#include <QPen>
#include <QPointF>
#include <QString>
#include <QStringList>
#include <optional>
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
  kBand,    ///< The area that the points enclose, faint, as far as the diagram shows it.
  kMarks,   ///< A vertical line through the whole diagram at the x of each point.
  kBox      ///< A lying box from the second to the fourth of five points, with a line at the third
            ///< and whiskers to the first and the fifth.
};

/// One set of points.
struct PlotLayer {
  PlotShape shape = PlotShape::kLine;
  PlotRole role = PlotRole::kData;
  QString name;  ///< In the legend; layers without a name are not listed there.
  std::vector<QPointF> points;
  QStringList labels = {};  ///< What the points are, if that is not obvious.
};

/// An axis of a diagram.
struct PlotAxis {
  QString title = {};
  /// The names of the values 0, 1 and so on, written instead of numbers.
  QStringList categories = {};
  /// @{
  /// Values beyond which there is nothing: the axis has no margin there.
  std::optional<double> least = {};
  std::optional<double> greatest = {};
  /// @}
};

/// What a diagram shows.
struct PlotContent {
  std::vector<PlotLayer> layers;  ///< The first one is at the bottom.
  PlotAxis x = {};
  PlotAxis y = {};
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
