#include "qorvex/base/special/regularised_beta.h"

#include <cmath>
#include <limits>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/continued_fraction.h"
#include "qorvex/base/special/detail/factorial_wide.h"
#include "qorvex/base/special/detail/gamma_wide.h"
#include "qorvex/base/special/detail/small_shape.h"
#include "qorvex/base/special/detail/tail_solver.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::special {

using elementary::LogWide;
using elementary::Nearest;

namespace {

// The partial numerators and denominators of the continued fraction by which x^a (1 - x)^b / B(a,
// b) is divided to give the lower tail, where lambda = a (1 - x) - b x >= 0.
class LowerFractionTerms {
 public:
  LowerFractionTerms(Extended a, Extended b, Extended x, Extended lambda)
      : a_(a), b_(b), sum_(a + b), x_(x), lambda_(lambda), reciprocal_(1 / (a + 1)) {}

  [[nodiscard]] Extended First() const { return a_ * (lambda_ + 1) * reciprocal_; }

  void Next() {
    const Extended share = x_ * reciprocal_;
    const Extended product = (a_ + n_) * (sum_ + n_) * share;
    n_ += 1;
    const Extended step = n_ * (b_ - n_) * share;
    numerator = product * step;
    reciprocal_ = 1 / (a_ + 1 + 2 * n_);
    denominator = n_ + step + (a_ + n_) * reciprocal_ * (lambda_ + 1 + n_ * (2 - x_));
  }

  Extended numerator = 0;
  Extended denominator = 0;

 private:
  Extended a_;
  Extended b_;
  Extended sum_;
  Extended x_;
  Extended lambda_;
  Extended reciprocal_;  // 1 / (a + 2 n + 1)
  Extended n_ = 0;
};

// -ln(a B(a, b)) for a <= 1, with all its digits for small a.
Wide LnLeadingFactor(const Wide& a, const Wide& b) {
  return LnGammaRatio(b, a) - elementary::Log1pWide(GammaMinusOne(a));
}

// The tails for a shape a below 1 where b x is at most about 1 and x at most 1/2: the power series
// of the incomplete beta function.
Tails SmallTails(Extended shape_a, Extended shape_b, const Wide& x) {
  const Wide a(shape_a);
  const Wide b(shape_b);
  return SmallShapeTails(a, a * LogWide(x) + LnLeadingFactor(a, b),
                         [&](const Wide& n) { return (n - b) * x; });
}

// With shapes that add up to less, the density is x^a y^b / B(a, b); from here on it is taken
// relative to its maximum, since the two would cancel.
constexpr Extended kLargeShapes = 250;

bool IsLarge(Extended a, Extended b) {
  return a + b >= kLargeShapes;
}

// a / (a + b).
StoredWide Share(Extended a, Extended b) {
  return IsLarge(a, b) ? Store(Wide(a) / (Wide(a) + Wide(b))) : StoredWide();
}

Scaled AtReference(Extended shape_a, Extended shape_b) {
  if (std::isnan(shape_a + shape_b)) return shape_a + shape_b;
  const Wide a(shape_a);
  const Wide b(shape_b);
  const Wide sum = a + b;
  if (!IsLarge(shape_a, shape_b))
    return MakeScaled(a * b * FactorialWide(sum) / (sum * FactorialWide(a) * FactorialWide(b)));
  const Wide square = a * b / (sum * ScaledBy(kWidePi, 1));
  return MakeScaled(SquareRoot(square)) * TemperedGamma(sum) /
         (TemperedGamma(a) * TemperedGamma(b));
}

}  // namespace

RegularisedBeta::RegularisedBeta(Extended a, Extended b)
    : a_(a),
      b_(b),
      reference_x_(Share(a, b)),
      reference_y_(Share(b, a)),
      at_reference_(AtReference(a, b)) {}

struct RegularisedBeta::Point {
  explicit Point(const Odds& odds) {
    const Wide in_favour(odds.in_favour);
    const Wide against(odds.against);
    const Wide both = in_favour + against;
    x = in_favour / both;
    y = against / both;
  }
  Wide x;
  Wide y;
};

Scaled RegularisedBeta::InverseBeta() const {
  if (reference_x_.high == 0) return at_reference_;
  const Wide a(a_);
  const Wide b(b_);
  return Raised(at_reference_, a * elementary::Log1pWide(b / a) + b * elementary::Log1pWide(a / b));
}

Scaled RegularisedBeta::LogOddsDensity(const Point& point) const {
  const auto power = [](Extended shape, const Wide& x, const StoredWide& reference) {
    return Wide(shape) * LogWide(reference.high == 0 ? x : x / Load(reference));
  };
  return Raised(at_reference_, power(a_, point.x, reference_x_) + power(b_, point.y, reference_y_));
}

Scaled RegularisedBeta::LogOddsDensity(const Odds& odds) const {
  return LogOddsDensity(Point(odds));
}

Tails RegularisedBeta::At(const Odds& odds) const {
  const Point point(odds);
  return TailsAt(point, LogOddsDensity(point));
}

Tails RegularisedBeta::TailsAt(const Point& point, const Scaled& density) const {
  const Extended lambda = Nearest(Wide(a_) * point.y - Wide(b_) * point.x);
  // The tail on this side of the mean; below, a and x are of its side.
  const bool lower = lambda >= 0;
  const Tail tail = lower ? Tail::kLower : Tail::kUpper;
  const Extended a = lower ? a_ : b_;
  const Extended b = lower ? b_ : a_;
  const Wide& wide_x = lower ? point.x : point.y;
  const Wide& wide_y = lower ? point.y : point.x;
  const auto from_end = [tail](const Tails& tails) {
    return tail == Tail::kLower ? tails : tails.Mirrored();
  };
  const Extended x = Nearest(wide_x);
  const Extended y = Nearest(wide_y);
  constexpr Extended slow = 0.02L;
  if (b < 1 && y < slow && a * y < 1) return from_end(SmallTails(b, a, wide_y).Mirrored());
  const Extended share = 1 / ContinuedFraction(LowerFractionTerms(a, b, x, std::fabs(lambda)));
  constexpr Extended most = 0.5L;
  if (a < 1 && density.Value() * share > most)
    return from_end(x <= 0.5L ? SmallTails(a, b, wide_x) : SmallTails(b, a, wide_y).Mirrored());
  return {tail, density * share};
}

Scaled RegularisedBeta::QuantileOdds(Tail tail, Extended p) const {
  if (p > 0.5L) return QuantileOdds(Opposite(tail), 1 - p);
  if (tail == Tail::kUpper) return Scaled() / RegularisedBeta(b_, a_).QuantileOdds(Tail::kLower, p);
  // Far down the lower tail is x^a / (a B(a, b)).
  const Wide a(a_);
  const Wide leading =
      a_ <= 1 ? LnLeadingFactor(a, Wide(b_)) : Wide(Ln(InverseBeta() / Scaled(a_)));
  const Scaled asymptote = MakeScaled(kOne, (LogWide(p) - leading) / a);
  constexpr Extended exact_below = 1e-25L;
  const Extended far_down = asymptote.Value();
  if (far_down * std::fmax(b_, 1) < exact_below) return asymptote;
  Extended start = std::fmin(far_down, std::fmax(a_ / b_, 1));
  if (a_ >= 1 && b_ >= 1) {
    // The logarithm of the odds is about normal.
    const Extended deviation = std::sqrt(1 / a_ + 1 / b_);
    start = (a_ - 0.5L) / (b_ - 0.5L) * Exp(RoughNormalQuantile(p) * deviation);
  }
  constexpr Extended unlimited = std::numeric_limits<Extended>::max();
  return SolveTail(tail, p, start, unlimited, [this](Extended at) {
    const Point here({at, 1});
    const Scaled density = LogOddsDensity(here);
    const Wide slope = Wide(a_) * here.y - Wide(b_) * here.x;
    return TailsAndDensity{TailsAt(here, density), density, Nearest(slope)};
  });
}

}  // namespace qorvex::special
