#include "apps/qorvex-gallery/plot/plot_extent.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace qorvex::gallery {

namespace {

bool StandsOnZero(PlotShape shape) {
  return shape == PlotShape::kArea || shape == PlotShape::kBars || shape == PlotShape::kStems;
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

PlotExtent::PlotExtent(const std::vector<PlotLayer>& layers) {
  bool on_zero = false;
  bool bars_only = true;
  for (const PlotLayer& layer : layers) {
    // A wide band would leave little room for what it belongs to.
    if (layer.shape == PlotShape::kBand) continue;
    bool first = true;
    for (const QPointF& point : layer.points) {
      const bool only_left_edge = std::exchange(first, false) && layer.shape == PlotShape::kBars;
      if (!IsFinite(point)) continue;
      x.Include(point.x());
      if (!only_left_edge) y.Include(point.y());
    }
    if (StandsOnZero(layer.shape) && !layer.points.empty()) on_zero = true;
    if (layer.shape == PlotShape::kPoints || layer.shape == PlotShape::kStems) bars_only = false;
  }
  if (IsEmpty()) return;
  if (on_zero) y.Include(0);
  x.Pad(bars_only ? 0 : 0.03, false);
  y.Pad(0.06, on_zero);
}

QPointF PlotExtent::Place(const QPointF& point, const QRectF& area) const {
  return {area.left() + x.Share(point.x()) * area.width(),
          area.bottom() - y.Share(point.y()) * area.height()};
}

bool IsFinite(const QPointF& point) {
  return std::isfinite(point.x()) && std::isfinite(point.y());
}

}  // namespace qorvex::gallery
