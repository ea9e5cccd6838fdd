#pragma once

/// @file
/// Densities and probabilities of counts as points of a diagram.

#include <QPointF>
#include <functional>
#include <span>
#include <vector>

#include "apps/common/distributions.h"

namespace qorvex::gallery {

/// A range of values, ends included.
struct Range {
  Extended from;
  Extended to;
};

/// A figure at a point; the parameters come first.
[[nodiscard]] Extended FigureAt(apps::DistributionRoutine routine,
                                std::span<const Extended> parameters, Extended point);

/// The middle part of a distribution, all but one in a thousand at each side. Raises EMathError as
/// the quantiles do.
[[nodiscard]] Range MiddleOf(const apps::Distribution& distribution,
                             std::span<const Extended> parameters);

/// The points at which a diagram of the range shows the distribution: some hundred in equal
/// distances, the ends among them, or the counts, of which at most some hundred.
[[nodiscard]] std::vector<Extended> PlottedPoints(const Range& range, bool counts);

/// The density or the probability of a count at each of the points.
[[nodiscard]] std::vector<QPointF> DensityAt(const std::function<Extended(Extended)>& density,
                                             std::span<const Extended> points);

}  // namespace qorvex::gallery
