#include "qorvex/stats/rank_correlation.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>
#include <vector>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/rational.h"
#include "qorvex/vector/detail/sorted_indices.h"

namespace qorvex::inline QorvexPairStats {

using QorvexVector::detail::KeySorter;
using QorvexVector::detail::SortedIndices;
using QorvexVector::detail::UInt128;

namespace {

constexpr Extended kNaN = std::numeric_limits<Extended>::quiet_NaN();

exact::Dyadic Exactly(UInt128 value) {
  const std::uint64_t limbs[] = {static_cast<std::uint64_t>(value),
                                 static_cast<std::uint64_t>(value >> 64)};
  return exact::Dyadic(exact::BigInteger::FromLimbs(limbs));
}

// sign * magnitude / sqrt(a b), rounded once.
Extended Coefficient(bool negative, UInt128 magnitude, UInt128 a, UInt128 b) {
  if (a == 0 || b == 0) RaiseMathError(rsSameValue);
  const exact::Dyadic numerator = Exactly(magnitude);
  const Extended root = exact::Rational(numerator * numerator, Exactly(a) * Exactly(b)).RoundRoot();
  return negative ? -root : root;
}

// The number of pairs of equal elements in a sorted sequence.
template <class Iterator>
UInt128 TiedPairs(Iterator first, Iterator last) {
  UInt128 pairs = 0;
  UInt128 before = 0;  // in the current run
  for (; first != last; ++first) {
    pairs += before;
    const Iterator next = std::next(first);
    before = next != last && *next == *first ? before + 1 : 0;
  }
  return pairs;
}

// Sorts the values and counts the pairs that are in descending order: a merge sort (Knuth 1966).
UInt128 SortAndCountInversions(std::vector<std::uint64_t>& values) {
  const std::size_t n = values.size();
  std::vector<std::uint64_t> merged(n);
  UInt128 inversions = 0;
  for (std::size_t width = 1; width < n; width *= 2) {
    for (std::size_t start = 0; start < n; start += 2 * width) {
      const std::size_t middle = std::min(start + width, n);
      const std::size_t end = std::min(middle + width, n);
      std::size_t left = start;
      std::size_t right = middle;
      std::size_t out = start;
      std::uint64_t passed = 0;  // less than 2^64 for any sample that fits into memory
      while (left < middle && right < end) {
        // Computed, because a branch would be mispredicted half the time.
        const std::uint64_t from_left = values[left];
        const std::uint64_t from_right = values[right];
        const auto takes_right = static_cast<std::size_t>(from_right < from_left);
        merged[out++] = std::min(from_left, from_right);
        passed += (middle - left) & (0 - takes_right);
        right += takes_right;
        left += 1 - takes_right;
      }
      inversions += passed;
      std::copy(values.begin() + static_cast<std::ptrdiff_t>(left),
                values.begin() + static_cast<std::ptrdiff_t>(middle),
                merged.begin() + static_cast<std::ptrdiff_t>(out));
      out += middle - left;
      std::copy(values.begin() + static_cast<std::ptrdiff_t>(right),
                values.begin() + static_cast<std::ptrdiff_t>(end),
                merged.begin() + static_cast<std::ptrdiff_t>(out));
    }
    values.swap(merged);
  }
  return inversions;
}

}  // namespace

template <NumericElement T>
TQorInt64Vector DoubledMidranks(VectorView<T> values) {
  const std::size_t n = values.size();
  const SortedIndices<T> sorted(n, true, [&](std::size_t i) -> const T& { return values[i]; });
  auto ranks = TQorInt64Vector::ForOverwrite(n);
  for (std::size_t first = 0; first < n;) {
    const T value = values[sorted.Index(first)];
    std::size_t end = first + 1;
    while (end < n && values[sorted.Index(end)] == value) ++end;
    const auto doubled = static_cast<std::int64_t>(first + 1 + end);
    for (; first < end; ++first) ranks[sorted.Index(first)] = doubled;
  }
  return ranks;
}

namespace detail {

void RequirePairs(std::size_t count_x, std::size_t count_y) {
  if (count_x != count_y) RaiseMathError(rsSameDimensions);
  if (count_x == 0) RaiseMathError(rsVectorIsEmpty);
  if (count_x == 1) RaiseMathError(rsVectorG1);
}

template <NumericElement T>
RankedVariable Ranked(VectorView<T> values) {
  return {DoubledMidranks<T>(values), std::ranges::any_of(values, [](T x) { return x != x; })};
}

namespace {

// Each rank takes half of the bits of a point.
template <class Point>
Extended KendallTauOfPoints(const RankedVariable& x, const RankedVariable& y) {
  const std::size_t n = x.doubled_midranks.size();
  constexpr int half = 4 * sizeof(Point);
  // Points as numbers in the order of x and, where x is the same, of y.
  std::vector<Point> points(n);
  for (std::size_t i = 0; i < n; ++i) {
    points[i] = static_cast<Point>(x.doubled_midranks[i]) << half |
                static_cast<Point>(y.doubled_midranks[i]);
  }
  KeySorter<Point>(n).Sort(points.data(), n);

  std::vector<std::uint64_t> ranks(n);
  const UInt128 tied_in_both = TiedPairs(points.begin(), points.end());
  for (std::size_t i = 0; i < n; ++i) ranks[i] = static_cast<std::uint64_t>(points[i] >> half);
  const UInt128 tied_x = TiedPairs(ranks.begin(), ranks.end());
  for (std::size_t i = 0; i < n; ++i)
    ranks[i] = static_cast<std::uint64_t>(points[i] & ((Point{1} << half) - 1));
  const UInt128 discordant = SortAndCountInversions(ranks);
  const UInt128 tied_y = TiedPairs(ranks.begin(), ranks.end());
  const UInt128 pairs = static_cast<UInt128>(n) * (n - 1) / 2;
  const UInt128 concordant = pairs - tied_x - (tied_y - tied_in_both) - discordant;
  const bool negative = concordant < discordant;
  return Coefficient(negative, negative ? discordant - concordant : concordant - discordant,
                     pairs - tied_x, pairs - tied_y);
}

}  // namespace

Extended KendallTau(const RankedVariable& x, const RankedVariable& y) {
  if (x.has_nan || y.has_nan) return kNaN;
  // Doubled ranks of fewer elements take 31 bits, and points of 64 bits have a faster sort.
  constexpr std::size_t many = std::size_t{1} << 30;
  return x.doubled_midranks.size() < many ? KendallTauOfPoints<std::int64_t>(x, y)
                                          : KendallTauOfPoints<UInt128>(x, y);
}

Extended SpearmanRho(const RankedVariable& x, const RankedVariable& y) {
  if (x.has_nan || y.has_nan) return kNaN;
  const std::size_t n = x.doubled_midranks.size();
  const auto doubled_mean = static_cast<std::int64_t>(n + 1);
  // Deviations have less than 33 bits for any sample that fits into memory, their sums less than
  // 127.
  __extension__ __int128 xx = 0;
  __extension__ __int128 xy = 0;
  __extension__ __int128 yy = 0;
  for (std::size_t i = 0; i < n; ++i) {
    __extension__ const __int128 dx = x.doubled_midranks[i] - doubled_mean;
    __extension__ const __int128 dy = y.doubled_midranks[i] - doubled_mean;
    xx += dx * dx;
    xy += dx * dy;
    yy += dy * dy;
  }
  return Coefficient(xy < 0, static_cast<UInt128>(xy < 0 ? -xy : xy), static_cast<UInt128>(xx),
                     static_cast<UInt128>(yy));
}

}  // namespace detail

Extended KendallTau(VectorView<Extended> x, VectorView<Extended> y) {
  detail::RequirePairs(x.size(), y.size());
  return detail::KendallTau(detail::Ranked<Extended>(x), detail::Ranked<Extended>(y));
}

Extended SpearmanRho(VectorView<Extended> x, VectorView<Extended> y) {
  detail::RequirePairs(x.size(), y.size());
  return detail::SpearmanRho(detail::Ranked<Extended>(x), detail::Ranked<Extended>(y));
}

#define QORVEX_INSTANTIATE(T)                              \
  template TQorInt64Vector DoubledMidranks(VectorView<T>); \
  template detail::RankedVariable detail::Ranked(VectorView<T>);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexPairStats
