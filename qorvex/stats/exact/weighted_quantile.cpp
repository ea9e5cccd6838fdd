#include "qorvex/stats/exact/weighted_quantile.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <numeric>
#include <optional>
#include <span>

#include "qorvex/stats/detail/quantile_rule.h"
#include "qorvex/stats/exact/detail/positive_weights.h"
#include "qorvex/stats/exact/exact_sum.h"

namespace qorvex {

using exact::Dyadic;

namespace {

Dyadic SumOf(std::span<const Extended> weights) {
  ExactSum sum;
  sum.Add(weights);
  return sum.Value();
}

// An index, and the sum of the weights up to and including it.
struct Cumulated {
  std::size_t index;
  Dyadic weight;
};

// The first index up to which the weights add up to the target or more. Halves the range, so that
// every sum runs over half as many weights as the one before.
Cumulated FirstToReach(std::span<const Extended> weights, const Dyadic& target) {
  std::size_t first = 0;
  std::size_t last = weights.size() - 1;
  Dyadic before;
  while (first < last) {
    const std::size_t middle = first + (last - first) / 2;
    const Dyadic sum = before + SumOf(weights.subspan(first, middle + 1 - first));
    if (sum >= target) {
      last = middle;
    } else {
      before = sum;
      first = middle + 1;
    }
  }
  return {first, before + Dyadic(weights[first])};
}

// Types 1 and 2 for weights that are not frequencies.
Extended OfAnyWeights(const exact::detail::PositiveWeights& pairs, Extended p, bool averaged) {
  const VectorView<Extended> sorted = pairs.Values();
  if (p == 1) return sorted[sorted.size() - 1];  // however small its weight is
  const Dyadic target = Dyadic(p) * SumOf(pairs.Weights());
  const Dyadic tolerance = target.Shifted(-61);  // 4 units in the last place
  const Cumulated reached = FirstToReach(pairs.Weights(), target - tolerance);
  const std::size_t next = std::min(reached.index + 1, sorted.size() - 1);
  const bool at_step = averaged && reached.weight <= target + tolerance;
  return at_step ? std::midpoint(sorted[reached.index], sorted[next]) : sorted[reached.index];
}

// The sum of frequencies; nothing for other weights.
std::optional<std::uint64_t> TotalFrequency(std::span<const Extended> weights) {
  constexpr Extended largest_total = 0x1p62L;
  Extended total = 0;
  for (const Extended weight : weights) {
    total += weight;
    if (weight != std::rint(weight) || total > largest_total) return std::nullopt;
  }
  return static_cast<std::uint64_t>(total);
}

}  // namespace

Extended WeightedQuantile(VectorView<Extended> sorted, VectorView<Extended> weights, Extended p,
                          QuantileType type) {
  const exact::detail::PositiveWeights pairs(sorted, weights);
  QorvexStatistics::detail::RequireQuantile(p, type);
  if (const auto total = TotalFrequency(pairs.Weights())) {
    return QorvexStatistics::detail::QuantileOf(*total, p, type, [&](std::uint64_t k) {
      return pairs.Values()[FirstToReach(pairs.Weights(), Dyadic(k)).index];
    });
  }
  if (type > QuantileType::k2) RaiseMathError(rsFrequencies);
  return OfAnyWeights(pairs, p, type == QuantileType::k2);
}

}  // namespace qorvex
