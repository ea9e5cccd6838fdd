#pragma once

/// @file
/// Diagrams of distributions.

#include <QPointF>
#include <functional>
#include <optional>
#include <span>
#include <vector>

#include "apps/common/any_distribution.h"
#include "apps/qorvex-gallery/plot/plot_layer.h"

namespace qorvex::gallery {

/// The points at which a diagram of the range shows the distribution: some hundred in equal
/// distances, the ends among them, or the counts, of which at most some hundred.
[[nodiscard]] std::vector<Extended> PlottedPoints(const Interval<Extended>& range, bool counts);

/// The density or the probability of a count at each of the points.
[[nodiscard]] std::vector<QPointF> DensityAt(const std::function<Extended(Extended)>& density,
                                             std::span<const Extended> points);

/// What a diagram shows of a distribution.
struct DistributionQuestion {
  bool is_discrete = false;
  /// The point, or both ends of an interval in ascending order.
  std::vector<Extended> points;
  std::optional<Extended> quantile = {};
};

/// The density or the probabilities of counts, with the probability on both sides of the point or
/// the interval as areas or stems of different colours, and marks at the points and the quantile.
///
/// - The range is the middle of the distribution, all but one in a thousand at each side, or one in
///   forty where that would be more than fifty times as wide as the middle half. It begins where
///   the support begins if that is near, and ends where the support ends; it extends to points just
///   outside.
/// - Raises EMathError as the quantiles do.
[[nodiscard]] PlotContent DistributionPlot(const apps::AnyDistribution& distribution,
                                           const DistributionQuestion& question);

}  // namespace qorvex::gallery
