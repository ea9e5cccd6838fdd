#include "qorvex/stats/inference/rank_tests.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

#include "qorvex/base/errors.h"
#include "qorvex/stats/inference/detail/exact_numbers.h"
#include "qorvex/stats/inference/detail/exact_tails.h"
#include "qorvex/stats/inference/detail/p_values.h"

namespace qorvex {

using namespace inference;

namespace {

// The largest sample whose ranks are counted out.
constexpr std::size_t kLargestExact = 50;

// A difference of values, and whether it counts towards the statistic.
struct Ranked {
  ExtendedPair key;
  bool counts;
};

bool IsLess(const Ranked& a, const Ranked& b) {
  return a.key.hi < b.key.hi || (a.key.hi == b.key.hi && a.key.lo < b.key.lo);
}

// Ranks from 1, the mean of its ranks for each of several equal keys.
struct RankSum {
  Dyadic doubled;  // twice the sum of the ranks that count
  Dyadic ties;     // the sum of t^3 - t over runs of t equal keys
};

RankSum SumRanks(std::vector<Ranked>& values) {
  std::ranges::sort(values, IsLess);
  RankSum sum;
  for (auto first = values.begin(); first != values.end();) {
    const auto last = std::find_if(first, values.end(),
                                   [&](const Ranked& other) { return IsLess(*first, other); });
    const auto before = first - values.begin();
    const auto length = last - first;
    const auto counting = std::count_if(first, last, [](const Ranked& x) { return x.counts; });
    sum.doubled += Dyadic(counting) * Dyadic(2 * before + length + 1);
    if (length > 1) sum.ties += Dyadic(length) * Dyadic(length - 1) * Dyadic(length + 1);
    first = last;
  }
  return sum;
}

__extension__ typedef unsigned __int128 Count;

Dyadic ToDyadic(Count count) {
  return Dyadic(static_cast<std::uint64_t>(count >> 64)).Shifted(64) +
         Dyadic(static_cast<std::uint64_t>(count));
}

// p from the number of equally likely arrangements for each value of the statistic.
TestResult CountedOut(const std::vector<Count>& counts, std::size_t statistic,
                      Alternative alternative) {
  Count at_most = 0;
  Count total = 0;
  for (std::size_t i = 0; i < counts.size(); ++i) {
    total += counts[i];
    if (i <= statistic) at_most += counts[i];
  }
  const Count at_least = total - at_most + counts[statistic];
  Count favourable = alternative == Alternative::kLess ? at_most : at_least;
  if (alternative == Alternative::kTwoSided)
    favourable = std::min(2 * std::min(at_most, at_least), total);
  const TestResult result{.statistic = static_cast<Extended>(statistic)};
  const bool is_likely = favourable > total / 2;
  const Rational known(ToDyadic(is_likely ? total - favourable : favourable), ToDyadic(total));
  return WithTail(result, {is_likely ? Tail::kLower : Tail::kUpper, {known.Round(), {}}},
                  Tail::kUpper);
}

// p from a normal distribution; distance and variance are those of the statistic from its mean.
TestResult Approximated(Rational statistic, Rational distance, const Rational& variance,
                        Alternative alternative) {
  int direction = distance.Sign();
  if (alternative != Alternative::kTwoSided)
    direction = alternative == Alternative::kGreater ? 1 : -1;
  const Rational corrected = distance - Rational(direction * 0.5L);
  const ExtendedPair z = RootToPair(corrected * corrected / variance, corrected.Sign());
  const TestResult result{.statistic = statistic.Round(), .form = TestForm::kNormalApproximation};
  return WithNormalTails(result, z, alternative);
}

// The number of ways to choose m of m + n values, for each U.
std::vector<Count> MannWhitneyCounts(std::size_t m, std::size_t n) {
  // The Gaussian binomial coefficient: (1 - q^(n + i)) / (1 - q^i) over i = 1 to m.
  std::vector<Count> counts(m * n + 1);
  counts[0] = 1;
  for (std::size_t i = 1; i <= m; ++i) {
    for (std::size_t u = counts.size(); u-- > n + i;) counts[u] -= counts[u - n - i];
    for (std::size_t u = i; u < counts.size(); ++u) counts[u] += counts[u - i];
  }
  return counts;
}

// The number of ways to give signs to the ranks 1 to n, for each V.
std::vector<Count> SignedRankCounts(std::size_t n) {
  std::vector<Count> counts(n * (n + 1) / 2 + 1);
  counts[0] = 1;
  for (std::size_t rank = 1; rank <= n; ++rank)
    for (std::size_t v = counts.size(); v-- > rank;) counts[v] += counts[v - rank];
  return counts;
}

// The test of differences; NaN where one is not finite.
TestResult SignedRankTest(const std::vector<ExtendedPair>& differences, Alternative alternative) {
  if (differences.empty()) RaiseMathError(rsVectorIsEmpty);
  std::vector<Ranked> values;
  for (const ExtendedPair d : differences) {
    if (!std::isfinite(d.hi)) return {};
    if (d.hi != 0) values.push_back({d.hi < 0 ? -d : d, d.hi > 0});
  }
  if (values.empty()) RaiseMathError(rsSameValue);
  const RankSum sum = SumRanks(values);
  const Dyadic statistic = sum.doubled.Shifted(-1);
  const std::size_t n = values.size();
  const bool has_zeros = n < differences.size();
  if (n <= kLargestExact && !has_zeros && sum.ties.Sign() == 0) {
    return CountedOut(SignedRankCounts(n), static_cast<std::size_t>(statistic.Round()),
                      alternative);
  }
  const Dyadic pairs = Dyadic(n) * Dyadic(n + 1);
  const Dyadic scaled_variance = pairs * Dyadic(2 * n + 1).Shifted(1) - sum.ties;
  return Approximated(statistic, statistic - pairs.Shifted(-2),
                      Rational(scaled_variance, Dyadic(48)), alternative);
}

}  // namespace

TestResult MannWhitneyTest(VectorView<Extended> first, VectorView<Extended> second, Extended shift,
                           Alternative alternative) {
  const std::size_t m = first.size();
  const std::size_t n = second.size();
  if (m == 0 || n == 0) RaiseMathError(rsVectorIsEmpty);
  std::vector<Ranked> values;
  values.reserve(m + n);
  for (const Extended x : first)
    values.push_back({shift == 0 ? ExtendedPair(x) : special::ExactSum(x, -shift), true});
  for (const Extended y : second) values.push_back({y, false});
  const bool may_be_infinite = shift == 0;
  for (const Ranked& value : values) {
    if (may_be_infinite ? std::isnan(value.key.hi) : !std::isfinite(value.key.hi)) return {};
  }
  const RankSum sum = SumRanks(values);
  const Dyadic pairs = Dyadic(m) * Dyadic(n);
  const Dyadic statistic = (sum.doubled - Dyadic(m) * Dyadic(m + 1)).Shifted(-1);
  if (m <= kLargestExact && n <= kLargestExact && sum.ties.Sign() == 0) {
    return CountedOut(MannWhitneyCounts(m, n), static_cast<std::size_t>(statistic.Round()),
                      alternative);
  }
  const Dyadic both = Dyadic(m + n);
  const Rational variance =
      Rational(pairs, Dyadic(12)) *
      (Rational(both + Dyadic(1)) - Rational(sum.ties, both * (both - Dyadic(1))));
  if (variance.Sign() == 0) RaiseMathError(rsSameValue);
  return Approximated(statistic, statistic - pairs.Shifted(-1), variance, alternative);
}

TestResult WilcoxonSignedRankTest(VectorView<Extended> values, Extended centre,
                                  Alternative alternative) {
  std::vector<ExtendedPair> differences;
  differences.reserve(values.size());
  for (const Extended x : values) differences.push_back(special::ExactSum(x, -centre));
  return SignedRankTest(differences, alternative);
}

TestResult WilcoxonSignedRankTest(VectorView<Extended> x, VectorView<Extended> y, Extended centre,
                                  Alternative alternative) {
  if (x.size() != y.size()) RaiseMathError(rsSameDimensions);
  std::vector<ExtendedPair> differences;
  differences.reserve(x.size());
  for (std::size_t i = 0; i < x.size(); ++i)
    differences.push_back(special::ExactSum(x[i], -y[i]) - ExtendedPair(centre));
  return SignedRankTest(differences, alternative);
}

}  // namespace qorvex
