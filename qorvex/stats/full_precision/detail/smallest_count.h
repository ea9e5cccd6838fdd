#pragma once

/// @file
/// Quantiles of counts.

#include <algorithm>
#include <cstdint>

#include "qorvex/stats/full_precision/detail/shared.h"

namespace qorvex::full_precision::detail {

/// Raises rsValue01 unless 0 < p < 1; a count cannot be NaN, so NaN raises too.
inline void RequireCountable(Extended p) {
  if (!(p > 0 && p < 1)) RaiseMathError(rsValue01);
}

/// Where a count is likely to be found.
struct Location {
  Extended mean;
  Extended std_dev;
};

/// The smallest count from least to most with P(X <= k) >= p, or with P(X > k) <= p for the upper
/// tail. Steps away from the middle in doubling strides, then halves. EOverflow when there is none.
template <class TailsAt>
std::uint32_t SmallestCount(Tail tail, Extended p, std::uint32_t least, std::uint32_t most,
                            const Location& location, TailsAt tails_at) {
  // The smaller tail decides, so that no digits are lost.
  if (p > 0.5L) return SmallestCount(Opposite(tail), 1 - p, least, most, location, tails_at);
  const auto reached = [&](std::int64_t k) {
    const Extended probability = tails_at(static_cast<std::uint32_t>(k)).Probability(tail);
    return tail == Tail::kLower ? probability >= p : probability <= p;
  };
  // All counts up to below fall short, all from above on reach p.
  std::int64_t below = std::int64_t{least} - 1;
  std::int64_t above = std::int64_t{most} + 1;
  auto k = static_cast<std::int64_t>(std::clamp<Extended>(location.mean, least, most));
  const bool downwards = reached(k);
  (downwards ? above : below) = k;
  auto stride = static_cast<std::int64_t>(std::clamp<Extended>(location.std_dev, 1, 0x1p31L));
  for (bool passed = false; !passed; stride *= 2) {
    k += downwards ? -stride : stride;
    if (k <= below || k >= above) break;
    const bool reaches = reached(k);
    (reaches ? above : below) = k;
    passed = reaches != downwards;
  }
  while (above - below > 1) {
    k = below + (above - below) / 2;
    (reached(k) ? above : below) = k;
  }
  if (above > std::int64_t{most}) throw EOverflow();
  return static_cast<std::uint32_t>(above);
}

}  // namespace qorvex::full_precision::detail
