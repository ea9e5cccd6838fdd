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
  [[nodiscard]] bool Contains(double value) const { return low <= value && value <= high; }
  /// The position of a value, 0 at the low end and 1 at the high end.
  [[nodiscard]] double Share(double value) const;
  /// The value at a position.
  [[nodiscard]] double At(double share) const;
  /// Adds a margin at both ends, but none beyond a zero that the points stand on.
  void Pad(double share, bool stands_on_zero);
  /// The range between two positions; this one if doubles cannot tell enough values in it apart or
  /// do not reach as far.
  [[nodiscard]] AxisRange Part(double from, double to) const;

  friend bool operator==(const AxisRange&, const AxisRange&) = default;
};

/// The ranges of both axes.
struct PlotExtent {
  AxisRange x, y;

  /// Covers nothing.
  PlotExtent() = default;
  /// Covers all finite points except those of bands and the heights of marks, and zero where areas,
  /// bars or stems stand on it.
  explicit PlotExtent(const PlotContent& content);

  [[nodiscard]] bool IsEmpty() const { return x.IsEmpty() || y.IsEmpty(); }
  /// The place of a point in a picture in which the axes enclose the area.
  [[nodiscard]] QPointF Place(const QPointF& point, const QRectF& area) const;
  /// The point at a place in a picture.
  [[nodiscard]] QPointF PointAt(const QPointF& place, const QRectF& area) const;

  friend bool operator==(const PlotExtent&, const PlotExtent&) = default;
};

/// Whether both coordinates are finite.
[[nodiscard]] bool IsFinite(const QPointF& point);

}  // namespace qorvex::gallery
