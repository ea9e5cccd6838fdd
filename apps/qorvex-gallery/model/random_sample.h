#pragma once

/// @file
/// Samples of variates, with what a page shows of them.

#include <QPointF>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "apps/common/variates.h"
#include "apps/qorvex-gallery/model/background_work.h"

namespace qorvex::gallery {

struct SampleOrder {
  const apps::Variate* variate = nullptr;
  std::vector<Extended> parameters;
  std::size_t size = 0;
  std::uint64_t seed = 0;
};

struct RandomSample {
  SampleOrder order;
  TQorFloatVector values;
  Extended mean = 0;
  Extended variance = 0;
  /// Shares by width, comparable with a density: the right upper corners, the first a left edge.
  std::vector<QPointF> bars;
  /// Whether the bars leave out the outermost hundredth, beside which they would be one line.
  bool is_cropped = false;
};

/// Draws a sample of at least two values, of a variate that gives one at a time. Asks now and then
/// with how much is done whether to go on; an order without values comes back if not. Draws from
/// the one generator of the program, so only one thread may at a time. Raises std::runtime_error
/// with what the variate refuses.
[[nodiscard]] RandomSample DrawSample(const SampleOrder& order, const Proceed& proceed);

}  // namespace qorvex::gallery
