#pragma once

/// @file
/// Densities and probabilities of counts as points of a diagram.

#include <QPointF>
#include <functional>
#include <span>
#include <vector>

#include "apps/common/any_distribution.h"

namespace qorvex::gallery {

/// The middle part of a distribution, all but one in a thousand at each side. Raises EMathError as
/// the quantiles do.
[[nodiscard]] Interval<Extended> MiddleOf(const apps::AnyDistribution& distribution);

/// The points at which a diagram of the range shows the distribution: some hundred in equal
/// distances, the ends among them, or the counts, of which at most some hundred.
[[nodiscard]] std::vector<Extended> PlottedPoints(const Interval<Extended>& range, bool counts);

/// The density or the probability of a count at each of the points.
[[nodiscard]] std::vector<QPointF> DensityAt(const std::function<Extended(Extended)>& density,
                                             std::span<const Extended> points);

}  // namespace qorvex::gallery
