#include "qorvex/stats/inference/shapiro_wilk.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <initializer_list>
#include <iterator>
#include <numbers>
#include <vector>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/distributions/detail/standard_normal.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/inference/detail/exact_numbers.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex {

using namespace inference;

namespace {

// c0 + c1 x + c2 x^2 + ...
Extended Polynomial(Extended x, std::initializer_list<Extended> coefficients) {
  Extended sum = 0;
  for (auto c = std::rbegin(coefficients); c != std::rend(coefficients); ++c) sum = sum * x + *c;
  return sum;
}

// The weights of the upper half of n > 3 ordered values, the greatest first. Those of the lower
// half are their negatives.
std::vector<Extended> Weights(std::size_t n) {
  const auto size = static_cast<Extended>(n);
  // Blom's scores, and the sum of the squares of all n.
  std::vector<Extended> weights(n / 2);
  Extended sum_of_squares = 0;
  for (std::size_t i = 0; i < weights.size(); ++i) {
    const Extended p = (static_cast<Extended>(i) + 0.625L) / (size + 0.25L);
    weights[i] = distributions::StandardNormalQuantile(Tail::kUpper, p);
    sum_of_squares += 2 * weights[i] * weights[i];
  }
  const Extended norm = std::sqrt(sum_of_squares);
  const Extended x = 1 / std::sqrt(size);
  // The extreme weights come from polynomials, which are corrections of the scores.
  const std::size_t extremes = n > 5 ? 2 : 1;
  Extended left = 1;
  const auto set_extreme = [&](std::size_t i, std::initializer_list<Extended> correction) {
    const Extended score = weights[i];
    weights[i] = score / norm + Polynomial(x, correction);
    sum_of_squares -= 2 * score * score;
    left -= 2 * weights[i] * weights[i];
  };
  set_extreme(0, {0, 0.221157L, -0.147981L, -2.07119L, 4.434685L, -2.706056L});
  if (extremes == 2) set_extreme(1, {0, 0.042981L, -0.293762L, -1.752461L, 5.682633L, -3.582633L});
  const Extended scale = std::sqrt(left / sum_of_squares);
  for (std::size_t i = extremes; i < weights.size(); ++i) weights[i] *= scale;
  return weights;
}

// Three values with W = 3/4 + excess have the distribution function 6/pi (arcsin(sqrt(W)) - pi/3).
TestResult OfThree(const Rational& w) {
  const TestResult result{.statistic = w.Round()};
  const Extended excess = (w - Rational(0.75L)).Round();
  const Extended other = (Rational(1) - w).Round();
  const Extended sine =
      2 * excess / (std::sqrt(result.statistic) + std::sqrt(3.0L) * std::sqrt(other));
  constexpr Extended scale = 6 / std::numbers::pi_v<Extended>;
  if (sine < 0.25L) return WithP(result, {scale * ArcSin(sine), {}});
  return WithTail(result, {Tail::kLower, {scale * ArcSin(std::sqrt(other)), {}}}, Tail::kUpper);
}

// Royston's normal approximation of a function of ln(1 - W).
Extended NormalScore(Extended log_rest, std::size_t n) {
  const auto size = static_cast<Extended>(n);
  if (n <= 11) {
    const Extended y = -Log(Polynomial(size, {-2.273L, 0.459L}) - log_rest);
    const Extended mean = Polynomial(size, {0.544L, -0.39978L, 0.025054L, -6.714e-4L});
    const Extended log_sd = Polynomial(size, {1.3822L, -0.77857L, 0.062767L, -0.0020322L});
    return (y - mean) / Exp(log_sd);
  }
  const Extended x = Log(size);
  const Extended mean = Polynomial(x, {-1.5861L, -0.31082L, -0.083751L, 0.0038915L});
  const Extended log_sd = Polynomial(x, {-0.4803L, -0.082676L, 0.0030302L});
  return (log_rest - mean) / Exp(log_sd);
}

}  // namespace

TestResult ShapiroWilkTest(VectorView<Extended> values) {
  const std::size_t n = values.size();
  if (n < 3) RaiseMathError(rsVectorG2);
  if (n > 5000) RaiseMathError(rsInvalidValue);
  const auto is_infinite = [](Extended x) { return !std::isfinite(x); };
  TestResult result{.form = n == 3 ? TestForm::kExact : TestForm::kNormalApproximation};
  if (std::ranges::any_of(values, is_infinite)) return result;
  std::vector<Extended> x(values.begin(), values.end());
  std::ranges::sort(x);
  if (x.front() == x.back()) RaiseMathError(rsSameValue);
  // Of magnitude 1, so that nothing overflows.
  const int exponent = -std::ilogb(std::max(std::fabs(x.front()), std::fabs(x.back())));
  for (Extended& value : x) value = std::scalbn(value, exponent);
  ExactSample<2> sample;
  sample.Add(x);
  const Rational sum_of_squares = sample.ExactSumOfSquaredDeviations();
  if (n == 3) {
    const Dyadic range = Dyadic(x.back()) - Dyadic(x.front());
    return OfThree(Rational(range * range) / (Rational(2) * sum_of_squares));
  }
  const std::vector<Extended> weights = Weights(n);
  ExtendedPair weighted;
  ExtendedPair norm;
  for (std::size_t i = 0; i < weights.size(); ++i) {
    weighted = weighted + special::ExactSum(x[n - 1 - i], -x[i]) * weights[i];
    norm = norm + special::ExactProduct(weights[i], 2 * weights[i]);
  }
  const ExtendedPair w = weighted * weighted / (norm * ToPair(sum_of_squares));
  result.statistic = w.hi;
  const Extended score = NormalScore(Log((ExtendedPair(1) - w).hi), n);
  return WithTails(result, distributions::StandardNormalTails(score), Alternative::kGreater);
}

}  // namespace qorvex
