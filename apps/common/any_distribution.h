#pragma once

/// @file
/// A distribution of any family behind one interface.

#include <cmath>
#include <cstdint>
#include <limits>
#include <memory>

#include "qorvex/stats/distributions/figures.h"

namespace qorvex::apps {

/// A distribution whose points are real numbers, counts included: a ContinuousDistribution, so that
/// Lower, Upper and the others take it too.
class AnyDistribution {
 public:
  using Point = Extended;

  virtual ~AnyDistribution() = default;

  /// The density, or the probability of a count; 0 at points between counts.
  [[nodiscard]] virtual Extended Pdf(Extended x) const = 0;
  [[nodiscard]] virtual Tails At(Extended x) const = 0;
  /// The probability between two points in either order, both excluded.
  [[nodiscard]] virtual Extended ProbabilityBetween(Extended a, Extended b) const = 0;
  [[nodiscard]] virtual Extended Quantile(Tail tail, Extended p) const = 0;
  [[nodiscard]] virtual Extended Mean() const = 0;
  [[nodiscard]] virtual Extended Variance() const = 0;
  [[nodiscard]] virtual Extended Skewness() const = 0;
  [[nodiscard]] virtual Extended Mode() const = 0;
  [[nodiscard]] virtual Interval<Extended> Support() const = 0;
};

/// The one implementation of AnyDistribution.
template <Distribution D>
class ErasedDistribution final : public AnyDistribution {
 public:
  explicit ErasedDistribution(const D& distribution) : d_(distribution) {}

  [[nodiscard]] Extended Pdf(Extended x) const override {
    if constexpr (kIsDiscrete) {
      return x >= 0 && x <= kLargestCount && x == std::trunc(x) ? d_.Pmf(ToPoint(x)) : 0;
    } else {
      return d_.Pdf(x);
    }
  }
  [[nodiscard]] Tails At(Extended x) const override {
    if constexpr (kIsDiscrete) {
      if (!(x >= 0)) return {Tail::kLower, {std::isnan(x) ? x : 0, special::ExtendedPair()}};
    }
    return d_.At(ToPoint(x));
  }
  [[nodiscard]] Extended ProbabilityBetween(Extended a, Extended b) const override {
    return Between(d_, ToPoint(a), ToPoint(b));
  }
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const override {
    return d_.Quantile(tail, p);
  }
  [[nodiscard]] Extended Mean() const override { return d_.Mean(); }
  [[nodiscard]] Extended Variance() const override { return d_.Variance(); }
  [[nodiscard]] Extended Skewness() const override { return d_.Skewness(); }
  [[nodiscard]] Extended Mode() const override { return d_.Mode(); }
  [[nodiscard]] Interval<Extended> Support() const override {
    const auto [least, greatest] = d_.Support();
    return {static_cast<Extended>(least), static_cast<Extended>(greatest)};
  }

 private:
  static constexpr bool kIsDiscrete = DiscreteDistribution<D>;
  static constexpr Extended kLargestCount = std::numeric_limits<std::uint32_t>::max();

  static typename D::Point ToPoint(Extended x) {
    if constexpr (kIsDiscrete) {
      return static_cast<std::uint32_t>(std::fmin(std::fmax(x, 0), kLargestCount));
    } else {
      return x;
    }
  }

  D d_;
};

/// The distribution behind the interface.
template <Distribution D>
[[nodiscard]] std::unique_ptr<const AnyDistribution> Erase(const D& distribution) {
  return std::make_unique<ErasedDistribution<D>>(distribution);
}

/// The distribution of lower + (upper - lower) X for X from 0 to 1.
template <ContinuousDistribution D>
class BetweenEnds {
 public:
  using Point = Extended;

  BetweenEnds(const D& distribution, Extended lower, Extended upper)
      : d_(distribution), lower_(lower), upper_(upper), width_(upper - lower) {}

  [[nodiscard]] Extended Pdf(Extended x) const { return d_.Pdf(ToUnit(x)) / width_; }
  [[nodiscard]] Tails At(Extended x) const { return d_.At(ToUnit(x)); }
  [[nodiscard]] Extended Quantile(Tail tail, Extended p) const {
    return FromUnit(d_.Quantile(tail, p));
  }
  [[nodiscard]] Extended Mean() const { return FromUnit(d_.Mean()); }
  [[nodiscard]] Extended Variance() const { return width_ * width_ * d_.Variance(); }
  [[nodiscard]] Extended Skewness() const { return d_.Skewness(); }
  [[nodiscard]] Extended Mode() const { return FromUnit(d_.Mode()); }
  [[nodiscard]] Interval<Extended> Support() const { return {lower_, upper_}; }

 private:
  [[nodiscard]] Extended ToUnit(Extended x) const { return (x - lower_) / width_; }
  [[nodiscard]] Extended FromUnit(Extended x) const { return lower_ + width_ * x; }

  D d_;
  Extended lower_;
  Extended upper_;
  Extended width_;
};

}  // namespace qorvex::apps
