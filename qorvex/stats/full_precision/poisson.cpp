#include <cmath>
#include <cstdint>
#include <limits>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"
#include "qorvex/stats/full_precision/detail/smallest_count.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

void Check(Extended lambda) {
  RequirePositive(lambda, rsPoissonInvalid);
}

Tails TailsAt(Extended lambda, std::uint32_t k) {
  Check(lambda);
  if (std::isnan(lambda)) return Unknown();
  return RegularisedGamma(static_cast<Extended>(k) + 1)
      .At(RegularisedGamma::Point(lambda))
      .Mirrored();
}

std::uint32_t Quantile(Extended lambda, Tail tail, Extended probability) {
  RequireCountable(probability);
  if (std::isnan(lambda)) RaiseMathError(rsPoissonInvalid);
  Check(lambda);
  return SmallestCount(tail, probability, 0, std::numeric_limits<std::uint32_t>::max(),
                       {lambda, std::sqrt(lambda)},
                       [=](std::uint32_t k) { return TailsAt(lambda, k); });
}

}  // namespace

Extended PoissonPmf(Extended lambda, std::uint32_t k) {
  Check(lambda);
  if (std::isnan(lambda)) return lambda;
  return (Scaled{1, -ExtendedPair(lambda)} * Power(lambda, k) / FactorialOf(k)).Value();
}

Extended PoissonLower(Extended lambda, std::uint32_t k) {
  return TailsAt(lambda, k).Probability(Tail::kLower);
}

Extended PoissonUpper(Extended lambda, std::uint32_t k) {
  return TailsAt(lambda, k).Probability(Tail::kUpper);
}

Extended PoissonLogLower(Extended lambda, std::uint32_t k) {
  return TailsAt(lambda, k).LogProbability(Tail::kLower);
}

Extended PoissonLogUpper(Extended lambda, std::uint32_t k) {
  return TailsAt(lambda, k).LogProbability(Tail::kUpper);
}

std::uint32_t PoissonQuantile(Extended lambda, Extended p) {
  return Quantile(lambda, Tail::kLower, p);
}

std::uint32_t PoissonUpperQuantile(Extended lambda, Extended q) {
  return Quantile(lambda, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
