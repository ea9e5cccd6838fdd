#include "qorvex/stats/inference/kolmogorov_smirnov.h"

#include <algorithm>
#include <cmath>

#include "qorvex/base/errors.h"
#include "qorvex/stats/inference/detail/kolmogorov.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex {

using namespace inference;

namespace {

// The largest sample with an exact p.
constexpr std::size_t kLargestExact = 1000;

// P(D >= d) for n (1 - d) < 1. Then all values lie in one tail of probability 1 - d; for kTwoSided
// that counts on either side.
Scaled AllInOneTail(const std::vector<Tails>& tails, Alternative alternative) {
  const Scaled above = tails.back().ScaledProbability(Tail::kLower);
  const Scaled below = tails.front().ScaledProbability(Tail::kUpper);
  const bool is_above = alternative == Alternative::kGreater ||
                        (alternative == Alternative::kTwoSided && above.Value() < below.Value());
  const Scaled& tail = is_above ? above : below;
  if (tail.IsZero()) return tail;
  // tail^n as tail * tail^(n-1), which keeps the tail of a single value as it is.
  const Scaled p = alternative == Alternative::kTwoSided ? tail * 2 : tail;
  if (tails.size() == 1) return p;
  return p * Scaled(1, special::Ln(tail) * static_cast<Extended>(tails.size() - 1));
}

}  // namespace

namespace inference {

std::vector<Extended> Sorted(VectorView<Extended> values) {
  if (values.empty()) RaiseMathError(rsVectorIsEmpty);
  std::vector<Extended> sorted(values.begin(), values.end());
  std::ranges::sort(
      sorted, [](Extended a, Extended b) { return a < b || (std::isnan(b) && !std::isnan(a)); });
  return sorted;
}

TestResult KolmogorovSmirnovOfTails(const std::vector<Tails>& tails, Alternative alternative) {
  const std::size_t n = tails.size();
  const auto size = static_cast<Extended>(n);
  TestResult result{.form = n <= kLargestExact ? TestForm::kExact : TestForm::kLimit};
  // What the greatest distance leaves of 1, times n. Unlike the distance, it keeps its digits where
  // p is small.
  ExtendedPair rest = size;
  const auto reach = [&](ExtendedPair other) {
    if ((other - rest).hi < 0) rest = other;
  };
  for (std::size_t i = 0; i < n; ++i) {
    const Extended lower = tails[i].Probability(Tail::kLower);
    const Extended upper = tails[i].Probability(Tail::kUpper);
    if (std::isnan(lower)) return result;
    const ExtendedPair scaled_lower = lower < upper
                                          ? special::ExactProduct(size, lower)
                                          : ExtendedPair(size) - special::ExactProduct(size, upper);
    const auto before = static_cast<Extended>(i);
    if (alternative != Alternative::kLess) reach(scaled_lower + ExtendedPair(size - 1 - before));
    if (alternative != Alternative::kGreater) reach(ExtendedPair(size + before) - scaled_lower);
  }
  result.statistic = ((ExtendedPair(size) - rest) / ExtendedPair(size)).hi;
  if (result.statistic == 0) return WithP(result, {});
  if (n > kLargestExact)
    return WithTail(result, KolmogorovLimit(size, result.statistic, alternative), Tail::kUpper);
  if (rest.hi < 1) return WithP(result, AllInOneTail(tails, alternative));
  return WithTail(result, KolmogorovTails(n, rest, alternative), Tail::kUpper);
}

}  // namespace inference

TestResult KolmogorovSmirnovTest(VectorView<Extended> first, VectorView<Extended> second,
                                 Alternative alternative) {
  const std::vector<Extended> x = Sorted(first);
  const std::vector<Extended> y = Sorted(second);
  const std::size_t n1 = x.size();
  const std::size_t n2 = y.size();
  const bool is_exact = std::max(n1, n2) <= kLargestExact;
  TestResult result{.form = is_exact ? TestForm::kExact : TestForm::kLimit};
  if (std::isnan(x.back()) || std::isnan(y.back())) return result;
  // Differences of the distribution functions times n1 n2, where a run of equal values ends.
  std::int64_t greatest = 0;
  std::int64_t least = 0;
  std::vector<bool> run_ends(n1 + n2 + 1);
  for (std::size_t i = 0, j = 0; i < n1 || j < n2;) {
    const Extended next = j == n2 || (i < n1 && x[i] < y[j]) ? x[i] : y[j];
    while (i < n1 && x[i] == next) ++i;
    while (j < n2 && y[j] == next) ++j;
    run_ends[i + j] = true;
    const auto difference = static_cast<std::int64_t>(i * n2) - static_cast<std::int64_t>(j * n1);
    greatest = std::max(greatest, difference);
    least = std::min(least, difference);
  }
  std::int64_t bound = std::max(greatest, -least);
  if (alternative == Alternative::kGreater) bound = greatest;
  if (alternative == Alternative::kLess) bound = -least;
  const Extended pairs = static_cast<Extended>(n1) * static_cast<Extended>(n2);
  result.statistic = static_cast<Extended>(bound) / pairs;
  if (bound == 0) return WithP(result, {});
  if (is_exact) return WithP(result, SmirnovTail(n1, n2, bound, run_ends, alternative));
  return WithTail(
      result,
      KolmogorovLimit(pairs / static_cast<Extended>(n1 + n2), result.statistic, alternative),
      Tail::kUpper);
}

}  // namespace qorvex
