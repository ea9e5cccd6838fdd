#include <algorithm>
#include <cmath>
#include <cstdint>
#include <limits>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"
#include "qorvex/stats/full_precision/detail/smallest_count.h"
#include "qorvex/stats/full_precision/detail/whole_shapes.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

// A population from which a sample is drawn.
struct Draw {
  Draw(std::uint32_t pop_size, std::uint32_t sample_size, std::uint32_t of_kind)
      : population(pop_size), sample(sample_size), successes(of_kind) {
    if (sample_size > pop_size || of_kind > pop_size) RaiseMathError(rsHyperGeometricInvalid);
  }
  // The fewest and the most successes that a sample can hold.
  [[nodiscard]] std::int64_t Least() const {
    return std::max<std::int64_t>(0, sample + successes - population);
  }
  [[nodiscard]] std::int64_t Most() const { return std::min(sample, successes); }
  [[nodiscard]] Extended Mean() const {
    return static_cast<Extended>(sample) * static_cast<Extended>(successes) /
           static_cast<Extended>(std::max<std::int64_t>(population, 1));
  }
  // P(X = k + 1) / P(X = k)
  [[nodiscard]] Extended Ratio(std::int64_t k) const {
    return static_cast<Extended>(successes - k) * static_cast<Extended>(sample - k) /
           (static_cast<Extended>(k + 1) *
            static_cast<Extended>(population - successes - sample + k + 1));
  }

  std::int64_t population;
  std::int64_t sample;
  std::int64_t successes;
};

Scaled Probability(const Draw& draw, std::int64_t k) {
  if (k < draw.Least() || k > draw.Most()) return Scaled{0, ExtendedPair()};
  return Coefficient(draw.successes, k) *
         Coefficient(draw.population - draw.successes, draw.sample - k) /
         Coefficient(draw.population, draw.sample);
}

constexpr Extended kRounding = std::numeric_limits<Extended>::epsilon() / 8;

// P(X <= k) for a k below the mean: the probabilities downwards, each from the one before.
Scaled SumDownwards(const Draw& draw, std::int64_t k) {
  Extended sum = 1;
  Extended term = 1;
  for (std::int64_t i = k; i > draw.Least() && term > sum * kRounding; --i) {
    term /= draw.Ratio(i - 1);
    sum += term;
  }
  return Scaled{sum, ExtendedPair()} * Probability(draw, k);
}

// P(X >= k) for a k above the mean.
Scaled SumUpwards(const Draw& draw, std::int64_t k) {
  Extended sum = 1;
  Extended term = 1;
  for (std::int64_t i = k; i < draw.Most() && term > sum * kRounding; ++i) {
    term *= draw.Ratio(i);
    sum += term;
  }
  return Scaled{sum, ExtendedPair()} * Probability(draw, k);
}

Tails TailsAt(const Draw& draw, std::uint32_t k) {
  if (k < draw.Least()) return BelowAll();
  if (k >= draw.Most()) return AboveAll();
  if (static_cast<Extended>(k) < draw.Mean()) return {Tail::kLower, SumDownwards(draw, k)};
  return {Tail::kUpper, SumUpwards(draw, std::int64_t{k} + 1)};
}

std::uint32_t Quantile(std::uint32_t pop_size, std::uint32_t sample_size, std::uint32_t successes,
                       Tail tail, Extended p) {
  RequireCountable(p);
  const Draw draw(pop_size, sample_size, successes);
  const Extended mean = draw.Mean();
  return SmallestCount(tail, p, static_cast<std::uint32_t>(draw.Least()),
                       static_cast<std::uint32_t>(draw.Most()), {mean, std::sqrt(mean)},
                       [&](std::uint32_t k) { return TailsAt(draw, k); });
}

}  // namespace

Extended HyperGeometricPmf(std::uint32_t pop_size, std::uint32_t sample_size,
                           std::uint32_t successes, std::uint32_t x) {
  return Probability(Draw(pop_size, sample_size, successes), x).Value();
}

Extended HyperGeometricLower(std::uint32_t pop_size, std::uint32_t sample_size,
                             std::uint32_t successes, std::uint32_t x) {
  return TailsAt(Draw(pop_size, sample_size, successes), x).Probability(Tail::kLower);
}

Extended HyperGeometricUpper(std::uint32_t pop_size, std::uint32_t sample_size,
                             std::uint32_t successes, std::uint32_t x) {
  return TailsAt(Draw(pop_size, sample_size, successes), x).Probability(Tail::kUpper);
}

Extended HyperGeometricLogLower(std::uint32_t pop_size, std::uint32_t sample_size,
                                std::uint32_t successes, std::uint32_t x) {
  return TailsAt(Draw(pop_size, sample_size, successes), x).LogProbability(Tail::kLower);
}

Extended HyperGeometricLogUpper(std::uint32_t pop_size, std::uint32_t sample_size,
                                std::uint32_t successes, std::uint32_t x) {
  return TailsAt(Draw(pop_size, sample_size, successes), x).LogProbability(Tail::kUpper);
}

std::uint32_t HyperGeometricQuantile(std::uint32_t pop_size, std::uint32_t sample_size,
                                     std::uint32_t successes, Extended p) {
  return Quantile(pop_size, sample_size, successes, Tail::kLower, p);
}

std::uint32_t HyperGeometricUpperQuantile(std::uint32_t pop_size, std::uint32_t sample_size,
                                          std::uint32_t successes, Extended q) {
  return Quantile(pop_size, sample_size, successes, Tail::kUpper, q);
}

}  // namespace qorvex::full_precision
