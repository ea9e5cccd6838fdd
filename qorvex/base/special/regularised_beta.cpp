#include "qorvex/base/special/regularised_beta.h"

#include <boost/math/special_functions/beta.hpp>
#include <cmath>
#include <limits>
#include <utility>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/boost_math.h"
#include "qorvex/base/special/detail/tail_solver.h"
#include "qorvex/base/special/factorial.h"

namespace qorvex::special {

namespace {

// The partial numerators and denominators of the continued fraction by which x^a (1 - x)^b / B(a,
// b) is divided to give the lower tail, where lambda = a (1 - x) - b x >= 0.
class LowerFractionTerms {
 public:
  LowerFractionTerms(Extended a, Extended b, Extended x, Extended lambda)
      : a_(a), b_(b), x_(x), lambda_(lambda), reciprocal_(1 / (a + 1)) {}

  [[nodiscard]] Extended First() const { return a_ * (lambda_ + 1) * reciprocal_; }

  void Next() {
    n_ += 1;
    const Extended step = n_ * (b_ - n_) * x_ * reciprocal_;
    numerator = (a_ + n_ - 1) * (a_ + b_ + n_ - 1) * x_ * reciprocal_ * step;
    reciprocal_ = 1 / (a_ + 2 * n_ + 1);
    denominator = n_ + step + (a_ + n_) * reciprocal_ * (lambda_ + 1 + n_ * (2 - x_));
  }

  Extended numerator = 0;
  Extended denominator = 0;

 private:
  Extended a_;
  Extended b_;
  Extended x_;
  Extended lambda_;
  Extended reciprocal_;  // 1 / (a + 2 n + 1)
  Extended n_ = 0;
};

// The fraction itself. For large shapes its convergents first swing far about the value: these go
// into a product of ratios (Lentz 1976, "Generating Bessel functions in Mie scattering
// calculations"), which does not cancel. The others are added up (Steed's method; Barnett et al.
// 1974, "Coulomb wave functions for all real eta and rho"), which rounds less often.
Extended LowerFraction(Extended a, Extended b, Extended x, Extended lambda) {
  constexpr Extended calm = 0.125L;
  constexpr Extended rounding = std::numeric_limits<Extended>::epsilon() / 4;
  LowerFractionTerms terms(a, b, x, lambda);
  Extended fraction = terms.First();
  Extended ratio = fraction;
  Extended inverse = 0;
  Extended difference = 0;
  do {
    terms.Next();
    inverse = 1 / (terms.denominator + terms.numerator * inverse);
    ratio = terms.denominator + terms.numerator / ratio;
    const Extended previous = fraction;
    fraction *= ratio * inverse;
    difference = fraction - previous;
  } while (std::fabs(difference) > std::fabs(fraction) * calm);
  while (std::fabs(difference) > std::fabs(fraction) * rounding) {
    terms.Next();
    const Extended next = 1 / (terms.denominator + terms.numerator * inverse);
    difference *= -terms.numerator * inverse * next;
    inverse = next;
    fraction += difference;
  }
  return fraction;
}

// The tails where the fraction is slow or gives the larger tail. x and y sum to one.
Tails BoostTails(Tail tail, Extended a, Extended b, Extended x, Extended y) {
  // The smaller of x and y is the one that is known well.
  const bool mirrored = x > y;
  const auto lower = [=] {
    return mirrored ? boost::math::ibetac(b, a, y, kBoostPolicy)
                    : boost::math::ibeta(a, b, x, kBoostPolicy);
  };
  const auto upper = [=] {
    return mirrored ? boost::math::ibeta(b, a, y, kBoostPolicy)
                    : boost::math::ibetac(a, b, x, kBoostPolicy);
  };
  const Extended probability = Evaluate(lower);
  if (probability < 0.5L) return {tail, Scaled{probability, ExtendedPair()}};
  return {Opposite(tail), Scaled{Evaluate(upper), ExtendedPair()}};
}

}  // namespace

RegularisedBeta::RegularisedBeta(Extended a, Extended b)
    : a_(a),
      b_(b),
      inverse_beta_(Scaled{a / (a + b) * b, ExtendedPair()} * FactorialOf(ExactSum(a, b)) /
                    (FactorialOf(a) * FactorialOf(b))) {}

RegularisedBeta::Point::Point(const Odds& odds) {
  const ExtendedPair both = odds.in_favour + odds.against;
  x = odds.in_favour / both;
  y = odds.against / both;
  ln_x = LnOfRatio(x, odds.in_favour, both);
  ln_y = LnOfRatio(y, odds.against, both);
}

Scaled RegularisedBeta::LogOddsDensity(const Point& point) const {
  return inverse_beta_ * Scaled{1, a_ * point.ln_x + b_ * point.ln_y};
}

Scaled RegularisedBeta::Density(const Odds& odds, Extended extra_x, Extended extra_y) const {
  const Point point(odds);
  return inverse_beta_ *
         Scaled{1, ExactSum(a_, extra_x) * point.ln_x + ExactSum(b_, extra_y) * point.ln_y};
}

Tails RegularisedBeta::At(const Odds& odds) const {
  const Point point(odds);
  return TailsAt(point, LogOddsDensity(point));
}

Tails RegularisedBeta::TailsAt(const Point& point, Scaled density) const {
  const Extended lambda = (a_ * point.y - b_ * point.x).hi;
  // The tail on this side of the mean; below, a and x are of its side.
  const bool lower = lambda >= 0;
  const Tail tail = lower ? Tail::kLower : Tail::kUpper;
  const Extended a = lower ? a_ : b_;
  const Extended b = lower ? b_ : a_;
  const Extended x = (lower ? point.x : point.y).hi;
  const Extended y = (lower ? point.y : point.x).hi;
  constexpr Extended slow = 1e-3L;
  if (b < 1 && y < slow && a * y < 1) return BoostTails(tail, a, b, x, y);
  density.factor /= LowerFraction(a, b, x, std::fabs(lambda));
  constexpr Extended most = 0.9L;
  if (a < 1 && density.Value() > most) return BoostTails(tail, a, b, x, y);
  return {tail, density};
}

Scaled RegularisedBeta::QuantileOdds(Tail tail, Extended p) const {
  if (p > 0.5L) return QuantileOdds(Opposite(tail), 1 - p);
  if (tail == Tail::kUpper) {
    RegularisedBeta mirrored = *this;
    std::swap(mirrored.a_, mirrored.b_);
    return Scaled() / mirrored.QuantileOdds(Tail::kLower, p);
  }
  // Far down the lower tail is x^a / (a B(a, b)).
  const ExtendedPair ln_power = Ln(ExtendedPair(p)) + Ln(ExtendedPair(a_)) - Ln(inverse_beta_);
  const Scaled asymptote{1, ln_power / a_};
  constexpr Extended exact_below = 1e-25L;
  if (asymptote.Value() * std::fmax(b_, 1) < exact_below) return asymptote;
  Extended start = std::fmin(asymptote.Value(), std::fmax(a_ / b_, 1));
  if (a_ >= 1 && b_ >= 1) {
    // The logarithm of the odds is about normal.
    const Extended deviation = std::sqrt(1 / a_ + 1 / b_);
    start = (a_ - 0.5L) / (b_ - 0.5L) * Exp(RoughNormalQuantile(p) * deviation);
  }
  constexpr Extended unlimited = std::numeric_limits<Extended>::max();
  const Extended odds = SolveTail(tail, p, start, unlimited, [this](Extended at) {
    const Point here({at, 1});
    const Scaled density = LogOddsDensity(here);
    return TailsAndDensity{TailsAt(here, density), density, (a_ * here.y - b_ * here.x).hi};
  });
  return {odds, ExtendedPair()};
}

}  // namespace qorvex::special
