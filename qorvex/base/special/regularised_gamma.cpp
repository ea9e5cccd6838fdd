#include "qorvex/base/special/regularised_gamma.h"

#include <boost/math/special_functions/gamma.hpp>
#include <cmath>
#include <limits>

#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/special/detail/boost_math.h"
#include "qorvex/base/special/detail/tail_solver.h"
#include "qorvex/base/special/detail/uniform_gamma.h"
#include "qorvex/base/special/factorial.h"

namespace qorvex::special {

namespace {

constexpr Extended kRounding = std::numeric_limits<Extended>::epsilon() / 4;

// The lower tail is x^a e^-x / Gamma(a + 1) times this series: 1 + x / (a + 1) +
// x^2 / ((a + 1) (a + 2)) + ... One division serves two terms and needs neither, so that the
// processor can start it early. The terms that are left sum to less than term * x / (divisor - x),
// once that is positive.
Extended LowerSeries(Extended a, Extended x) {
  Extended sum = 1;
  Extended term = 1;
  Extended divisor = a;
  do {
    const Extended next = divisor + 1;
    divisor += 2;
    const Extended quotient = term * (x / (next * divisor));
    term = quotient * x;
    sum += quotient * divisor + term;
  } while (term * x > sum * kRounding * (divisor - x));
  return sum;
}

// The upper tail is x^a e^-x / Gamma(a) times this continued fraction, Legendre's, evaluated by
// Steed's method (Barnett et al. 1974, "Coulomb wave functions for all real eta and rho").
Extended UpperFraction(Extended a, Extended x) {
  Extended b = x + 1 - a;
  Extended inverse = 1 / b;
  Extended difference = inverse;
  Extended fraction = inverse;
  for (Extended n = 1; std::fabs(difference) > fraction * kRounding; ++n) {
    b += 2;
    const Extended numerator = n * (n - a);
    const Extended next = 1 / (b - numerator * inverse);
    difference *= numerator * inverse * next;
    inverse = next;
    fraction += difference;
  }
  return fraction;
}

Extended BoostUpper(Extended a, Extended x) {
  return Evaluate([=] { return boost::math::gamma_q(a, x, kBoostPolicy); });
}

}  // namespace

RegularisedGamma::RegularisedGamma(Extended shape)
    : shape_(shape), factorial_(FactorialOf(shape)) {}

Scaled RegularisedGamma::Density(const Point& point, Extended extra_power) const {
  return Scaled{shape_, ExactSum(shape_, extra_power) * point.ln_x - point.x} / factorial_;
}

bool RegularisedGamma::IsUniform(Extended x) const {
  return shape_ >= kUniformShape && std::fabs(x - shape_) < kUniformDistance * shape_;
}

Tails RegularisedGamma::At(const Point& point) const {
  return IsUniform(point.x.hi) ? UniformGammaTails(shape_, point.x)
                               : TailsFrom(point.x.hi, Density(point, 0));
}

Tails RegularisedGamma::TailsFrom(Extended x, Scaled density) const {
  const Extended a = shape_;
  if (x <= 1 || x < a) {
    density.factor *= LowerSeries(a, x) / a;
    constexpr Extended most = 0.9L;
    if (a < 1 && density.Value() > most) {
      // So far down the lower tail is its first term.
      constexpr Extended far_down = 1e-25L;
      const Extended upper = x < far_down ? -Expm1(density.Log()) : BoostUpper(a, x);
      return {Tail::kUpper, {upper, ExtendedPair()}};
    }
    return {Tail::kLower, density};
  }
  density.factor *= UpperFraction(a, x);
  return {Tail::kUpper, density};
}

Extended RegularisedGamma::Quantile(Tail tail, Extended p) const {
  if (p > 0.5L) return Quantile(Opposite(tail), 1 - p);
  // Far down the lower tail is x^a / Gamma(a + 1).
  const ExtendedPair lower = tail == Tail::kLower ? ExtendedPair(p) : ExactSum(1, -p);
  const Extended asymptote = Scaled{1, (Ln(lower) + Ln(factorial_)) / shape_}.Value();
  constexpr Extended exact_below = 1e-25L;
  if (asymptote < exact_below) return asymptote;
  const Extended start = Start(tail, p, asymptote);
  constexpr Extended unlimited = std::numeric_limits<Extended>::max();
  return SolveTail(tail, p, start, tail == Tail::kUpper ? 1 : unlimited, [this](Extended x) {
    const Scaled density = Density(Point(x), 0);
    return TailsAndDensity{IsUniform(x) ? UniformGammaTails(shape_, x) : TailsFrom(x, density),
                           density, shape_ - x};
  });
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
    const Extended far_up = -Log(p / a * factorial_.factor);
    if (far_up > 1) return far_up;
  }
  return asymptote;
}

}  // namespace qorvex::special
