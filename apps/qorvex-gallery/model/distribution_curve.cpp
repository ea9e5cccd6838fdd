#include "apps/qorvex-gallery/model/distribution_curve.h"

#include <algorithm>
#include <cmath>

namespace qorvex::gallery {

Interval<Extended> MiddleOf(const apps::AnyDistribution& distribution) {
  constexpr Extended tail = 1e-3L;
  return {distribution.Quantile(Tail::kLower, tail), distribution.Quantile(Tail::kUpper, tail)};
}

std::vector<Extended> PlottedPoints(const Interval<Extended>& range, bool counts) {
  constexpr Extended most_steps = 400;
  const Extended width = range.greatest - range.least;
  Extended step = width / most_steps;
  if (counts) step = std::max<Extended>(1, std::ceil(step));
  std::vector<Extended> points;
  if (!(step > 0) || !std::isfinite(step)) return {range.least};
  const auto steps = static_cast<int>(width / step);
  for (int i = 0; i < steps; ++i) points.push_back(range.least + step * i);
  points.push_back(range.greatest);
  return points;
}

std::vector<QPointF> DensityAt(const std::function<Extended(Extended)>& density,
                               std::span<const Extended> points) {
  std::vector<QPointF> curve;
  curve.reserve(points.size());
  for (const Extended point : points)
    curve.emplace_back(static_cast<double>(point), static_cast<double>(density(point)));
  return curve;
}

}  // namespace qorvex::gallery
