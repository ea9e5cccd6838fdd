#pragma once

/// @file
/// Functions of any distribution: probabilities, quantiles, tables.

#include <cmath>
#include <cstddef>
#include <functional>
#include <span>
#include <utility>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/distributions/distribution.h"

namespace qorvex {

/// The density at x, or the probability of the count x.
template <Distribution D>
[[nodiscard]] Extended Density(const D& d, typename D::Point x) {
  if constexpr (DiscreteDistribution<D>) {
    return d.Pmf(x);
  } else {
    return d.Pdf(x);
  }
}

/// @{
/// The probability of at most x, and of more than x. Neither is computed as 1 minus the other where
/// that would lose digits.
template <Distribution D>
[[nodiscard]] Extended Lower(const D& d, typename D::Point x) {
  return d.At(x).Probability(Tail::kLower);
}
template <Distribution D>
[[nodiscard]] Extended Upper(const D& d, typename D::Point x) {
  return d.At(x).Probability(Tail::kUpper);
}
/// @}

/// @{
/// Their natural logarithms, also where the probabilities underflow to 0.
template <Distribution D>
[[nodiscard]] Extended LogLower(const D& d, typename D::Point x) {
  return d.At(x).LogProbability(Tail::kLower);
}
template <Distribution D>
[[nodiscard]] Extended LogUpper(const D& d, typename D::Point x) {
  return d.At(x).LogProbability(Tail::kUpper);
}
/// @}

/// @{
/// The point with the lower probability p, and the one with the upper probability q. EMathError
/// rsValue01 unless 0 < p < 1; EOverflow where the point is beyond the format.
template <Distribution D>
[[nodiscard]] typename D::Point Quantile(const D& d, Extended p) {
  return d.Quantile(Tail::kLower, p);
}
template <Distribution D>
[[nodiscard]] typename D::Point UpperQuantile(const D& d, Extended q) {
  return d.Quantile(Tail::kUpper, q);
}
/// @}

namespace distributions {

/// The tails at both ends of an interval.
struct Bounds {
  /// At the lower end.
  Tails first;
  /// At the upper end, or at the count before it, since the end itself is excluded.
  Tails second;
};

/// The bounds of the interval between two points in either order.
template <Distribution D>
[[nodiscard]] Bounds BoundsBetween(const D& d, typename D::Point a, typename D::Point b) {
  if (b < a) std::swap(a, b);
  // Fewer than b are at most b - 1.
  if constexpr (DiscreteDistribution<D>) b -= b > a ? 1 : 0;
  return {d.At(a), d.At(b)};
}

}  // namespace distributions

/// The probability between two points in either order, both excluded; 0 for equal points. The
/// difference of two tails of one side keeps the relative accuracy of the tails, as far as they
/// differ.
template <Distribution D>
[[nodiscard]] Extended Between(const D& d, typename D::Point a, typename D::Point b) {
  constexpr Extended half = 0.5L;
  const auto [first, second] = distributions::BoundsBetween(d, a, b);
  const Extended lower = second.Probability(Tail::kLower);
  if (lower <= half) return lower - first.Probability(Tail::kLower);
  const Extended upper = first.Probability(Tail::kUpper);
  if (upper <= half) return upper - second.Probability(Tail::kUpper);
  return 1 - first.Probability(Tail::kLower) - second.Probability(Tail::kUpper);
}

/// The natural logarithm of Between, also where the probability underflows; -infinity for equal
/// points, and where the logarithm exceeds the format.
template <Distribution D>
[[nodiscard]] Extended LogBetween(const D& d, typename D::Point a, typename D::Point b) {
  constexpr Extended half = 0.5L;
  const auto [first, second] = distributions::BoundsBetween(d, a, b);
  for (const Tail tail : {Tail::kLower, Tail::kUpper}) {
    const Tails& larger = tail == Tail::kLower ? second : first;
    const Tails& smaller = tail == Tail::kLower ? first : second;
    if (!(larger.Probability(tail) <= half)) continue;
    const special::Scaled minuend = larger.ScaledProbability(tail);
    const special::Scaled subtrahend = smaller.ScaledProbability(tail);
    return (minuend - subtrahend).Log();
  }
  return Log1p(-first.Probability(Tail::kLower) - second.Probability(Tail::kUpper));
}

/// figure(d, points[i]) for every point into out[i], without allocation: a figure is a member such
/// as &NormalDistribution::Pdf, or a function such as Upper<NormalDistribution>. `out` may be
/// `points`. EInvalidOp where out has fewer elements.
template <Distribution D, class Figure>
void Evaluate(const D& d, Figure figure, VectorView<typename D::Point> points,
              std::span<Extended> out) {
  if (out.size() < points.size()) throw EInvalidOp();
  for (std::size_t i = 0; i < points.size(); ++i) out[i] = std::invoke(figure, d, points[i]);
}

/// Points and the density, or the probability of the count, at each.
template <class Point>
struct DensityTable {
  /// The points in order.
  TQorVector<Point> points;
  /// As many densities.
  TQorFloatVector densities;
};

/// The densities at n + 1 points in equal steps from `first` to `last`; only at `first` for n = 0.
template <ContinuousDistribution D>
[[nodiscard]] DensityTable<Extended> Table(const D& d, Extended first, Extended last,
                                           std::uint32_t n) {
  const Extended step = n > 0 ? (last - first) / static_cast<Extended>(n) : 0;
  const std::size_t length = std::size_t{n} + 1;
  DensityTable<Extended> table{TQorFloatVector::ForOverwrite(length),
                               TQorFloatVector::ForOverwrite(length)};
  for (std::size_t i = 0; i < length; ++i)
    table.points[i] = static_cast<Extended>(i) * step + first;
  Evaluate(d, Density<D>, table.points, table.densities);
  return table;
}

/// The probabilities of the counts from `first` to `last`; an empty table where last < first.
template <DiscreteDistribution D>
[[nodiscard]] DensityTable<std::uint32_t> Table(const D& d, std::uint32_t first,
                                                std::uint32_t last) {
  const std::size_t length = last < first ? 0 : std::size_t{last} - first + 1;
  DensityTable<std::uint32_t> table{TQorVector<std::uint32_t>::ForOverwrite(length),
                                    TQorFloatVector::ForOverwrite(length)};
  for (std::size_t i = 0; i < length; ++i) table.points[i] = first + static_cast<std::uint32_t>(i);
  Evaluate(d, Density<D>, table.points, table.densities);
  return table;
}

}  // namespace qorvex
