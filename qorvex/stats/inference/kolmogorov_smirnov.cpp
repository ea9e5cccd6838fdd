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
  Extended above = 0;  // n times the greatest distance of the empirical function above the other
  Extended below = 0;
  for (std::size_t i = 0; i < n; ++i) {
    const Extended lower = tails[i].Probability(Tail::kLower);
    const Extended upper = tails[i].Probability(Tail::kUpper);
    if (std::isnan(lower)) return result;
    const auto before = static_cast<Extended>(i);
    const auto after = static_cast<Extended>(n - i);
    if (lower < upper) {
      above = std::max(above, before + 1 - size * lower);
      below = std::max(below, size * lower - before);
    } else {
      above = std::max(above, size * upper - (after - 1));
      below = std::max(below, after - size * upper);
    }
  }
  if (alternative == Alternative::kGreater) below = 0;
  if (alternative == Alternative::kLess) above = 0;
  result.statistic = std::max(above, below) / size;
  if (result.statistic == 0) return WithP(result, {});
  return WithP(result, n <= kLargestExact ? KolmogorovTail(n, result.statistic, alternative)
                                          : KolmogorovLimit(size, result.statistic, alternative));
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
  if (is_exact)
    return WithP(result, {SmirnovTail(n1, n2, bound, run_ends, alternative), ExtendedPair()});
  return WithP(result, KolmogorovLimit(pairs / static_cast<Extended>(n1 + n2), result.statistic,
                                       alternative));
}

}  // namespace qorvex
