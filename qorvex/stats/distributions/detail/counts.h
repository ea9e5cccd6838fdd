#pragma once

/// @file
/// Quantiles and modes of counts.

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "qorvex/stats/distributions/detail/checks.h"

namespace qorvex::distributions {

/// Raises rsValue01 unless 0 < p < 1; a count cannot be NaN, so NaN raises too.
inline void RequireCountable(Extended p) {
  if (!(p > 0 && p < 1)) RaiseMathError(rsValue01);
}

/// The smallest count of the support with P(X <= k) >= p, or with P(X > k) <= p for the upper tail,
/// where 0 < p < 1. Steps away from the mean in doubling strides, then halves. EOverflow if
/// every count falls short.
template <DiscreteDistribution D>
std::uint32_t SmallestCount(const D& d, Tail tail, Extended p) {
  // The smaller tail has more digits.
  if (p > 0.5L) return SmallestCount(d, Opposite(tail), 1 - p);
  const auto reached = [&](std::int64_t k) {
    const Extended probability = d.At(static_cast<std::uint32_t>(k)).Probability(tail);
    return tail == Tail::kLower ? probability >= p : probability <= p;
  };
  const auto [least, greatest] = d.Support();
  // Counts up to `below` do not reach p, those from `above` on do.
  std::int64_t below = std::int64_t{least} - 1;
  std::int64_t above = std::int64_t{greatest} + 1;
  auto k = static_cast<std::int64_t>(std::clamp<Extended>(d.Mean(), least, greatest));
  const bool downwards = reached(k);
  (downwards ? above : below) = k;
  auto stride =
      static_cast<std::int64_t>(std::clamp<Extended>(std::sqrt(d.Variance()), 1, 0x1p31L));
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
  if (above > std::int64_t{greatest}) throw EOverflow();
  return static_cast<std::uint32_t>(above);
}

/// The largest count below a positive bound; 0 for a bound of 0. EOverflow where it exceeds
/// `greatest`.
[[nodiscard]] inline std::uint32_t CountBelow(special::ExtendedPair bound, std::uint32_t greatest) {
  const Extended ceiling = std::ceil(bound.hi);
  // Rounding the product may have lost what it exceeds a whole number by.
  const Extended count = ceiling == bound.hi && bound.lo > 0 ? ceiling : ceiling - 1;
  if (count > static_cast<Extended>(greatest)) throw EOverflow();
  return static_cast<std::uint32_t>(std::max<Extended>(count, 0));
}

}  // namespace qorvex::distributions
