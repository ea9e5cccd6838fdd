#include "qorvex/base/special/regularised_gamma.h"

#include <cmath>
#include <limits>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/elementary/detail/quotient.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/continued_fraction.h"
#include "qorvex/base/special/detail/factorial_wide.h"
#include "qorvex/base/special/detail/gamma_wide.h"
#include "qorvex/base/special/detail/small_shape.h"
#include "qorvex/base/special/detail/tail_solver.h"
#include "qorvex/base/special/detail/uniform_gamma.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"
#include "qorvex/base/special/factorial.h"

namespace qorvex::special {

using elementary::LogWide;
using elementary::Nearest;
using elementary::QuickQuotient;

namespace {

constexpr Extended kRounding = std::numeric_limits<Extended>::epsilon() / 4;

// The lower tail is x^a e^-x / Gamma(a + 1) times this series: 1 + x / (a + 1) +
// x^2 / ((a + 1) (a + 2)) + ... One division serves two terms and needs neither, so that the
// processor can start it early. The terms that are left sum to less than term * x / (divisor - x),
// once that is positive.
Extended LowerSeries(Extended a, Extended x) {
  const Extended square = x * x;
  Extended rest = 0;  // the sum without its first term
  Extended term = 1;
  Extended divisor = a;
  do {
    const Extended next = divisor + 1;
    divisor += 2;
    const Extended quotient = term * (1 / (next * divisor));
    rest += quotient * (x * divisor + square);
    term = quotient * square;
  } while (term * x > kRounding * (divisor - x));
  return 1 + rest;
}

// The upper tail is x^a e^-x / Gamma(a) divided by this continued fraction, Legendre's:
// x + 1 - a + 1 (a - 1) / (x + 3 - a + 2 (a - 2) / (x + 5 - a + ...)).
class UpperFractionTerms {
 public:
  UpperFractionTerms(Extended a, Extended first) : denominator(first), a_(a) {}

  [[nodiscard]] Extended First() const { return denominator; }
  void Next() {
    n_ += 1;
    numerator = n_ * (a_ - n_);
    denominator += 2;
  }

  Extended numerator = 0;
  Extended denominator;

 private:
  Extended a_;
  Extended n_ = 0;
};

// ln Gamma(a + 1), with all its digits for small a.
Wide LnFactorial(Extended a) {
  const Wide wide_a(a);
  return a < 1 ? elementary::Log1pWide(GammaMinusOne(wide_a)) : LnGammaWide(wide_a + kOne);
}

// The tails for x <= 1 and small shapes: the power series of the incomplete gamma function.
Tails SmallTails(const Wide& a, const Wide& x) {
  const Wide leading = a * LogWide(x) - elementary::Log1pWide(GammaMinusOne(a));
  return SmallShapeTails(a, leading, [&](const Wide&) { return -x; });
}

// Below, the density is x^a e^-x / Gamma(a); from here on it is taken relative to its maximum,
// since the two would cancel.
constexpr Extended kLargeShape = kFactorialWideEnd;

Scaled AtReference(Extended shape) {
  if (std::isnan(shape)) return shape;
  const Wide a(shape);
  if (shape < kLargeShape) return MakeScaled(QuickQuotient(a, FactorialWide(a)));
  return MakeScaled(SquareRoot(a / ScaledBy(kWidePi, 1))) / TemperedGamma(a);
}

}  // namespace

RegularisedGamma::Point::Point(ExtendedPair value) : x_(Store(Wide(value))) {}

RegularisedGamma::Point::Point(ExtendedPair numerator, ExtendedPair denominator)
    : x_(Store(Wide(numerator) / Wide(denominator))) {}

RegularisedGamma::RegularisedGamma(Extended shape)
    : shape_(shape),
      reference_(shape < kLargeShape ? 0 : shape),
      at_reference_(AtReference(shape)) {}

Scaled RegularisedGamma::LogDensity(const Point& point) const {
  const Wide x = Load(point.x_);
  const Wide a(shape_);
  if (reference_ == 0) return Raised(at_reference_, a * LogWide(x) - x);
  return Raised(at_reference_, a * LogWide(x / a) - (x - a));
}

bool RegularisedGamma::IsUniform(const Point& point) const {
  return shape_ >= kUniformShape &&
         std::fabs(Nearest(Load(point.x_)) - shape_) < kUniformDistance * shape_;
}

Tails RegularisedGamma::At(const Point& point) const {
  return IsUniform(point) ? UniformGammaTails(shape_, PairOf(Load(point.x_)))
                          : TailsFrom(point, LogDensity(point));
}

Tails RegularisedGamma::TailsFrom(const Point& point, const Scaled& density) const {
  const Extended a = shape_;
  const Extended x = Nearest(Load(point.x_));
  if (x <= 1 || x < a) {
    const Extended share = LowerSeries(a, x) / a;
    constexpr Extended most = 0.5L;
    if (a < 1 && density.Value() * share > most) return SmallTails(Wide(a), Load(point.x_));
    return {Tail::kLower, density * share};
  }
  // Beyond the format nothing is left above.
  if (std::isinf(x)) return {Tail::kUpper, 0};
  // In 64 bits x + 1 - a would lose digits.
  const Extended first = Nearest(Load(point.x_) + kOne - Wide(a));
  return {Tail::kUpper, density * (1 / ContinuedFraction(UpperFractionTerms(a, first)))};
}

Scaled RegularisedGamma::Quantile(Tail tail, Extended p) const {
  if (p > 0.5L) return Quantile(Opposite(tail), 1 - p);
  // Far down the lower tail is x^a / Gamma(a + 1).
  const Wide lower = tail == Tail::kLower ? Wide(p) : kOne - Wide(p);
  const Wide ln_power = LogWide(lower) + LnFactorial(shape_);
  const Scaled asymptote = MakeScaled(kOne, ln_power / Wide(shape_));
  constexpr Extended exact_below = 1e-25L;
  const Extended far_down = asymptote.Value();
  if (far_down < exact_below) return asymptote;
  const Extended start = Start(tail, p, far_down);
  constexpr Extended unlimited = std::numeric_limits<Extended>::max();
  const auto at = [this](Extended x) {
    const Point point{ExtendedPair(x)};
    const Scaled density = LogDensity(point);
    return TailsAndDensity{
        IsUniform(point) ? UniformGammaTails(shape_, x) : TailsFrom(point, density), density,
        shape_ - x};
  };
  return SolveTail(tail, p, start, tail == Tail::kUpper ? 1 : unlimited, at);
}

Extended RegularisedGamma::Start(Tail tail, Extended p, Extended asymptote) const {
  const Extended a = shape_;
  if (a >= 1) {
    // Wilson and Hilferty (1931), "The distribution of chi-square": the cube root is nearly normal.
    const Extended z = RoughNormalQuantile(p);
    const Extended variance = 1 / (9 * a);
    const Extended root = 1 - variance + (tail == Tail::kLower ? z : -z) * std::sqrt(variance);
    constexpr Extended least = 0.1L;
    if (root > least) return a * root * root * root;
  } else if (tail == Tail::kUpper) {
    // Far up the tail is about x^(a - 1) e^-x / Gamma(a).
    const Extended far_up = -Log(p / a * FactorialOf(a).Value());
    if (far_up > 1) return far_up;
  }
  return asymptote;
}

}  // namespace qorvex::special
