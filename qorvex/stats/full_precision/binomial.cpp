#include <cmath>
#include <cstdint>

#include "qorvex/stats/full_precision.h"
#include "qorvex/stats/full_precision/detail/shared.h"
#include "qorvex/stats/full_precision/detail/smallest_count.h"
#include "qorvex/stats/full_precision/detail/whole_shapes.h"

namespace qorvex::full_precision {

using namespace detail;

namespace {

void Check(Extended p) {
  if (p < 0 || p > 1) RaiseMathError(rsBinomDistInvalid);
}

ExtendedPair Complement(Extended p) {
  return special::ExactSum(1, -p);
}

Tails TailsAt(Extended p, std::uint32_t n, std::uint32_t k) {
  Check(p);
  if (std::isnan(p)) return Unknown();
  if (k >= n || p == 0) return AboveAll();
  if (p == 1) return BelowAll();
  return BetaTails(static_cast<Extended>(n - k), static_cast<Extended>(k) + 1, {Complement(p), p});
}

std::uint32_t Quantile(Extended p, std::uint32_t n, Tail tail, Extended probability) {
  RequireCountable(probability);
  if (std::isnan(p)) RaiseMathError(rsBinomDistInvalid);
  Check(p);
  const Extended mean = n * p;
  return SmallestCount(tail, probability, 0, n, {mean, std::sqrt(mean * (1 - p))},
                       [=](std::uint32_t k) { return TailsAt(p, n, k); });
}

}  // namespace

Extended BinomialPmf(Extended p, std::uint32_t n, std::uint32_t k) {
  Check(p);
  if (std::isnan(p)) return p;
  if (k > n) return 0;
  if (p == 0 || p == 1) return k == (p == 0 ? 0 : n) ? 1 : 0;
  // Symmetric for one half.
  const bool mirrored = p == 0.5L && k > n / 2;
  return BinomialProbability(n, mirrored ? n - k : k, p, Complement(p)).Value();
}

Extended BinomialLower(Extended p, std::uint32_t n, std::uint32_t k) {
  return TailsAt(p, n, k).Probability(Tail::kLower);
}

Extended BinomialUpper(Extended p, std::uint32_t n, std::uint32_t k) {
  return TailsAt(p, n, k).Probability(Tail::kUpper);
}

Extended BinomialLogLower(Extended p, std::uint32_t n, std::uint32_t k) {
  return TailsAt(p, n, k).LogProbability(Tail::kLower);
}

Extended BinomialLogUpper(Extended p, std::uint32_t n, std::uint32_t k) {
  return TailsAt(p, n, k).LogProbability(Tail::kUpper);
}

std::uint32_t BinomialQuantile(Extended p, std::uint32_t n, Extended lower) {
  return Quantile(p, n, Tail::kLower, lower);
}

std::uint32_t BinomialUpperQuantile(Extended p, std::uint32_t n, Extended upper) {
  return Quantile(p, n, Tail::kUpper, upper);
}

}  // namespace qorvex::full_precision
