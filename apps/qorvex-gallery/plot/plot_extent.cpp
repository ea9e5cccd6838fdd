#include "apps/qorvex-gallery/plot/plot_extent.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qorvex::gallery {

namespace {

bool StandsOnZero(PlotShape shape) {
  return shape == PlotShape::kArea || shape == PlotShape::kBars || shape == PlotShape::kStems;
}

// Whether the drawing of a point extends to both sides of it.
bool HasWidth(PlotShape shape) {
  return shape == PlotShape::kPoints || shape == PlotShape::kStems || shape == PlotShape::kBox;
}

void Crop(AxisRange& range, const PlotAxis& axis) {
  if (axis.least && *axis.least < range.high) range.low = std::max(range.low, *axis.least);
  if (axis.greatest && *axis.greatest > range.low)
    range.high = std::min(range.high, *axis.greatest);
}

}  // namespace

void AxisRange::Include(double value) {
  low = std::min(low, value);
  high = std::max(high, value);
}

// Halves, because the whole difference may be beyond the range of a double.
double AxisRange::Share(double value) const {
  return (value / 2 - low / 2) / (high / 2 - low / 2);
}

double AxisRange::At(double share) const {
  return low * (1 - share) + high * share;
}

AxisRange AxisRange::Part(double from, double to) const {
  const AxisRange part = {At(from), At(to)};
  const double width = part.high / 2 - part.low / 2;
  const double largest = std::max(std::fabs(part.low), std::fabs(part.high));
  constexpr double distinct = 1e-12;
  return std::isfinite(largest) && width > distinct * largest ? part : *this;
}

void AxisRange::Pad(double share, bool stands_on_zero) {
  constexpr double largest = std::numeric_limits<double>::max();
  if (low == high) {
    const double half = low == 0 ? 0.5 : std::fabs(low) * 0.05;
    low -= half;
    high += half;
    return;
  }
  const double margin = 2 * share * (high / 2 - low / 2);
  if (!(stands_on_zero && low == 0)) low = std::max(low - margin, -largest);
  if (!(stands_on_zero && high == 0)) high = std::min(high + margin, largest);
}

PlotExtent::PlotExtent(const PlotContent& content) {
  bool on_zero = false;
  bool to_the_edge = true;
  for (const PlotLayer& layer : content.layers) {
    // A wide band would leave little room for what it belongs to.
    if (layer.shape == PlotShape::kBand) continue;
    bool first = true;
    for (const QPointF& point : layer.points) {
      const bool only_x = (std::exchange(first, false) && layer.shape == PlotShape::kBars) ||
                          layer.shape == PlotShape::kMarks;
      if (!IsFinite(point)) continue;
      x.Include(point.x());
      if (!only_x) y.Include(point.y());
    }
    if (StandsOnZero(layer.shape) && !layer.points.empty()) on_zero = true;
    if (HasWidth(layer.shape)) to_the_edge = false;
  }
  if (IsEmpty()) return;
  if (on_zero) y.Include(0);
  x.Pad(to_the_edge ? 0 : 0.03, false);
  if (content.y.categories.empty()) {
    y.Pad(0.06, on_zero);
  } else {
    y = {-0.5, static_cast<double>(content.y.categories.size()) - 0.5};
  }
  Crop(x, content.x);
  Crop(y, content.y);
}

QPointF PlotExtent::Place(const QPointF& point, const QRectF& area) const {
  return {area.left() + x.Share(point.x()) * area.width(),
          area.bottom() - y.Share(point.y()) * area.height()};
}

QPointF PlotExtent::PointAt(const QPointF& place, const QRectF& area) const {
  return {x.At((place.x() - area.left()) / area.width()),
          y.At((area.bottom() - place.y()) / area.height())};
}

bool IsFinite(const QPointF& point) {
  return std::isfinite(point.x()) && std::isfinite(point.y());
}

}  // namespace qorvex::gallery
