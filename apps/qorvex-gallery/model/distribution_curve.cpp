#include "apps/qorvex-gallery/model/distribution_curve.h"

#include <algorithm>
#include <cmath>

namespace qorvex::gallery {

Extended FigureAt(apps::DistributionRoutine routine, std::span<const Extended> parameters,
                  Extended point) {
  std::vector<Extended> arguments(parameters.begin(), parameters.end());
  arguments.push_back(point);
  return routine(arguments);
}

Range MiddleOf(const apps::Distribution& distribution, std::span<const Extended> parameters) {
  constexpr Extended tail = 1e-3L;
  return {FigureAt(distribution.full_precision.quantile, parameters, tail),
          FigureAt(distribution.full_precision.upper_quantile, parameters, tail)};
}

std::vector<Extended> PlottedPoints(const Range& range, bool counts) {
  constexpr Extended most_steps = 400;
  const Extended width = range.to - range.from;
  Extended step = width / most_steps;
  if (counts) step = std::max<Extended>(1, std::ceil(step));
  std::vector<Extended> points;
  if (!(step > 0) || !std::isfinite(step)) return {range.from};
  const auto steps = static_cast<int>(width / step);
  for (int i = 0; i < steps; ++i) points.push_back(range.from + step * i);
  points.push_back(range.to);
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
