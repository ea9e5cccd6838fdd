#include "qorvex/stats/inference/intervals.h"

#include <cmath>
#include <utility>

#include "qorvex/stats/distributions/beta.h"
#include "qorvex/stats/distributions/chi_square.h"
#include "qorvex/stats/distributions/detail/checks.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"
#include "qorvex/stats/distributions/student_t.h"
#include "qorvex/stats/inference/detail/moments.h"

namespace qorvex {

using namespace inference;

namespace {

using distributions::kNotANumber;

constexpr Interval<Extended> kUnknown = {kNotANumber, kNotANumber};

// What a confidence leaves on each side.
Extended CheckedTail(Extended confidence) {
  distributions::RequireProbability(confidence);
  return (1 - confidence) / 2;
}

// estimate -+ t times the root of the squared error. Without an error the degrees of freedom do not
// matter.
Interval<Extended> StudentInterval(const Rational& estimate, const Rational& squared_error,
                                   Extended df, Extended tail) {
  if (std::isnan(tail)) return kUnknown;
  Rational half_width;
  if (squared_error.Sign() > 0) {
    const Extended t = StudentTDistribution(df).Quantile(Tail::kUpper, tail);
    // Half of the root is within the format.
    half_width =
        Rational(Dyadic(t).Shifted(1)) * Rational((squared_error / Rational(4)).RoundRoot());
  }
  return {(estimate - half_width).Round(), (estimate + half_width).Round()};
}

void RequireSuccesses(std::uint64_t successes, std::uint64_t trials) {
  if (successes > trials || trials == 0) RaiseMathError(rsBinomDistInvalid);
}

}  // namespace

Interval<Extended> MeanInterval(const ExactSample<2>& sample, Extended confidence) {
  RequireTwo(sample);
  const Extended tail = CheckedTail(confidence);
  if (!sample.IsFinite()) return kUnknown;
  return StudentInterval(sample.ExactMean(), SquaredErrorOfMean(sample), DegreesOfFreedom(sample),
                         tail);
}

Interval<Extended> PredictionInterval(const ExactSample<2>& sample, Extended confidence) {
  RequireTwo(sample);
  const Extended tail = CheckedTail(confidence);
  if (!sample.IsFinite()) return kUnknown;
  return StudentInterval(sample.ExactMean(),
                         SquaredErrorOfMean(sample) * Rational(sample.Count() + 1),
                         DegreesOfFreedom(sample), tail);
}

Interval<Extended> VarianceInterval(const ExactSample<2>& sample, Extended confidence) {
  RequireTwo(sample);
  const Extended tail = CheckedTail(confidence);
  if (!sample.IsFinite() || std::isnan(tail)) return kUnknown;
  const ChiSquareDistribution chi_square(DegreesOfFreedom(sample));
  const Rational sum = sample.ExactSumOfSquaredDeviations();
  const auto end = [&](Tail side) {
    const Extended quantile = chi_square.Quantile(side, tail);
    if (sum.Sign() == 0) return 0.0L;
    return quantile > 0 ? (sum / Rational(quantile)).Round() : distributions::kInfinite;
  };
  return {end(Tail::kUpper), end(Tail::kLower)};
}

Interval<Extended> PooledDifferenceInterval(const ExactSample<2>& first,
                                            const ExactSample<2>& second, Extended confidence) {
  RequireTwo(first);
  RequireTwo(second);
  const Extended tail = CheckedTail(confidence);
  if (!first.IsFinite() || !second.IsFinite()) return kUnknown;
  return StudentInterval(first.ExactMean() - second.ExactMean(), PooledSquaredError(first, second),
                         DegreesOfFreedom(first) + DegreesOfFreedom(second), tail);
}

Interval<Extended> WelchDifferenceInterval(const ExactSample<2>& first,
                                           const ExactSample<2>& second, Extended confidence) {
  RequireTwo(first);
  RequireTwo(second);
  const Extended tail = CheckedTail(confidence);
  if (!first.IsFinite() || !second.IsFinite()) return kUnknown;
  const Rational squared_error = WelchSquaredError(first, second);
  const Extended df = squared_error.Sign() > 0 ? WelchDegreesOfFreedom(first, second) : 1;
  return StudentInterval(first.ExactMean() - second.ExactMean(), squared_error, df, tail);
}

Interval<Extended> ClopperPearsonInterval(std::uint64_t successes, std::uint64_t trials,
                                          Extended confidence) {
  RequireSuccesses(successes, trials);
  if (!std::in_range<std::uint32_t>(trials)) RaiseMathError(rsBinomDistInvalid);
  const Extended tail = CheckedTail(confidence);
  if (std::isnan(tail)) return kUnknown;
  const auto x = static_cast<Extended>(successes);
  const auto failures = static_cast<Extended>(trials - successes);
  return {successes == 0 ? 0 : BetaDistribution(x, failures + 1).Quantile(Tail::kLower, tail),
          failures == 0 ? 1 : BetaDistribution(x + 1, failures).Quantile(Tail::kUpper, tail)};
}

Interval<Extended> WilsonInterval(std::uint64_t successes, std::uint64_t trials,
                                  Extended confidence) {
  RequireSuccesses(successes, trials);
  const Extended tail = CheckedTail(confidence);
  if (std::isnan(tail)) return kUnknown;
  const Extended z = distributions::StandardNormalQuantile(Tail::kUpper, tail);
  const auto n = static_cast<Extended>(trials);
  const auto x = static_cast<Extended>(successes);
  // The roots of (n + z^2) p^2 - (2 x + z^2) p + x^2 / n; the smaller one from their product.
  const Extended sum =
      2 * x + z * z + z * std::sqrt(z * z + 4 * x * static_cast<Extended>(trials - successes) / n);
  return {2 * x * x / (n * sum), successes == trials ? 1 : sum / (2 * (n + z * z))};
}

namespace {

// tanh x.
Extended Tanh(Extended x) {
  const Extended excess = Expm1(2 * std::fabs(x));
  const Extended magnitude = std::isinf(excess) ? 1 : excess / (excess + 2);
  return std::copysign(magnitude, x);
}

}  // namespace

Interval<Extended> CorrelationInterval(Extended r, std::uint64_t n, Extended confidence) {
  if (n < 4) RaiseMathError(rsVectorG3);
  if (r < -1 || r > 1) RaiseMathError(rsInvalidValue);
  const Extended tail = CheckedTail(confidence);
  if (std::isnan(tail) || std::isnan(r)) return kUnknown;
  const Extended half_width = distributions::StandardNormalQuantile(Tail::kUpper, tail) /
                              std::sqrt(static_cast<Extended>(n - 3));
  const Extended centre = (Log1p(r) - Log1p(-r)) / 2;
  return {Tanh(centre - half_width), Tanh(centre + half_width)};
}

}  // namespace qorvex
