#pragma once

/// @file
/// The range of values that a diagram covers.

#include <QPointF>
#include <QRectF>
#include <limits>
#include <vector>

#include "apps/qorvex-gallery/plot/plot_layer.h"

namespace qorvex::gallery {

/// The values that an axis covers.
struct AxisRange {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void Include(double value);
  [[nodiscard]] bool IsEmpty() const { return low > high; }
  /// The position of a value, 0 at the low end and 1 at the high end.
  [[nodiscard]] double Share(double value) const;
  /// Adds a margin at both ends, but none beyond a zero that the points stand on.
  void Pad(double share, bool stands_on_zero);
};

/// The ranges of both axes.
struct PlotExtent {
  AxisRange x, y;

  /// Covers all finite points except those of bands, and zero where areas, bars or stems stand on
  /// it.
  explicit PlotExtent(const std::vector<PlotLayer>& layers);

  [[nodiscard]] bool IsEmpty() const { return x.IsEmpty() || y.IsEmpty(); }
  /// The place of a point in a picture in which the axes enclose the area.
  [[nodiscard]] QPointF Place(const QPointF& point, const QRectF& area) const;
};

/// Whether both coordinates are finite.
[[nodiscard]] bool IsFinite(const QPointF& point);

}  // namespace qorvex::gallery
