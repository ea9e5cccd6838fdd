#pragma once

/// @file
/// What every distribution is.
///
/// A distribution is a value: its constructor checks the parameters once and computes what does not
/// depend on the point. All classes share this contract:
///
/// - Points outside the support are valid: their density is 0 and their tails are 0 and 1. Infinite
///   points give the limits, and points whose distance from the location exceeds the format count
///   as infinite. At an end of the support the density is its limit, which may be infinite.
/// - NaN, as a point, a probability or a parameter, gives NaN. A count cannot be NaN: where one is
///   asked for, NaN raises as a value out of range does.
/// - Parameters that must be positive must also be finite and not subnormal, since they are divided
///   by. Shapes, and half of degrees of freedom, must be from 1e-18 to 1e15: EInvalidOp.
/// - Quantile raises rsValue01 unless 0 < p < 1, and EOverflow where the point is beyond the
///   format. A point too small for the format is 0.
/// - Mean, Variance and Skewness are NaN where they do not exist or depend on a parameter that is
///   NaN, and infinite where they are infinite or exceed the format. Mode is the point of the
///   greatest density or probability, the least of several.
/// - Probabilities and quantiles are off by at most five units of the 64-bit mantissa, in the
///   farthest tail too, unless the class says otherwise; most densities are the nearest numbers.
///   docs/accuracy.md has the measured figures.
/// - A probability costs some hundred to thousand arithmetic operations, a quantile three to six
///   times as much, whatever the parameters, unless the class says otherwise. The quantile of a
///   count takes about as many tails as the standard deviation has binary digits, and a few more in
///   a far tail.
/// - Objects are immutable but for assignment, and can be used by several threads at once.

#include <concepts>
#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/special/tails.h"

namespace qorvex {

using special::Tail;
using special::Tails;

/// The points from least to greatest, both included where they are finite.
template <class Point>
struct Interval {
  /// The lower end.
  Point least;
  /// The upper end.
  Point greatest;
};

/// A family of distributions with given parameters. D::Point is the type of its points.
///
/// - At(x): the probabilities of at most x and of more than x.
/// - Quantile(tail, p): the point with the lower or upper probability p; of counts the smallest
///   with P(X <= k) >= p, or with P(X > k) <= p.
/// - Support(): where the density is not 0, ends included.
/// - Mode(), Mean(), Variance(), Skewness(): see above.
template <class D>
concept Distribution = requires(const D& d, typename D::Point x, Tail tail, Extended p) {
  { d.At(x) } -> std::same_as<Tails>;
  { d.Quantile(tail, p) } -> std::same_as<typename D::Point>;
  { d.Support() } -> std::same_as<Interval<typename D::Point>>;
  { d.Mode() } -> std::same_as<typename D::Point>;
  { d.Mean() } -> std::same_as<Extended>;
  { d.Variance() } -> std::same_as<Extended>;
  { d.Skewness() } -> std::same_as<Extended>;
};

/// A distribution of real numbers. Pdf(x) is its density.
template <class D>
concept ContinuousDistribution = Distribution<D> && std::same_as<typename D::Point, Extended> &&
    requires(const D& d, Extended x) {
  { d.Pdf(x) } -> std::same_as<Extended>;
};

/// A distribution of counts. Pmf(k) is the probability of one. The support of an unbounded
/// distribution ends at 4294967295, the largest count; a quantile or mode beyond it raises
/// EOverflow.
template <class D>
concept DiscreteDistribution = Distribution<D> && std::same_as<typename D::Point, std::uint32_t> &&
    requires(const D& d, std::uint32_t k) {
  { d.Pmf(k) } -> std::same_as<Extended>;
};

}  // namespace qorvex
