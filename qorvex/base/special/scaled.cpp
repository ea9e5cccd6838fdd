#include "qorvex/base/special/scaled.h"

#include <cmath>
#include <limits>

#include "qorvex/base/elementary/detail/first_stage.h"
#include "qorvex/base/special/detail/wide_constants.h"
#include "qorvex/base/special/detail/wide_scaled.h"

namespace qorvex::special {

using elementary::ExpWide;
using elementary::LogWide;
using elementary::Nearest;

namespace {

constexpr Extended kInfinite = std::numeric_limits<Extended>::infinity();
constexpr Extended kNotANumber = std::numeric_limits<Extended>::quiet_NaN();

// e^x is 0 or infinite in every format: |x| >= 2^40.
bool IsFar(const Wide& x) {
  return !x.IsZero() && x.exponent >= 40;
}

// ln |x|, where no part is zero or unbounded.
Wide LogOf(const ScaledParts& x) {
  return LogWide(x.factor) + x.exponent;
}

// The number in 128 bits; nothing where its exponent is too far from 0.
Wide WideValue(const ScaledParts& x) {
  if (x.exponent.IsZero()) return x.factor;
  return IsFar(x.exponent) ? Wide() : x.factor * ExpWide(x.exponent);
}

}  // namespace

Scaled::Scaled(Extended value)
    : factor_(Store(Wide(std::isfinite(value) ? value : std::copysign(1.0L, value)))),
      unbounded_(std::isfinite(value) ? 0 : std::fabs(value)) {}

Scaled::Scaled(Extended factor, ExtendedPair exponent) : Scaled(factor) {
  // The low part of a pair near the end of the format may be NaN.
  if (!std::isfinite(exponent.hi)) {
    unbounded_ += exponent.hi;
  } else {
    exponent_ = Store(std::isfinite(exponent.lo) ? Wide(exponent) : Wide(exponent.hi));
  }
}

bool Scaled::IsZero() const {
  return factor_.high == 0 && unbounded_ == 0;
}

Extended Scaled::Value() const {
  if (IsPlain()) return Nearest(Load(factor_));
  const ScaledParts parts(*this);
  if (parts.unbounded == 0 && !IsFar(parts.exponent)) return Nearest(WideValue(parts));
  if (parts.unbounded == 0 && parts.factor.IsZero()) return 0;
  const bool is_large = parts.unbounded == 0 ? !parts.exponent.negative : parts.unbounded > 0;
  if (std::isnan(parts.unbounded)) return kNotANumber;
  const Extended size = is_large ? kInfinite : 0;
  return parts.factor.negative ? -size : size;
}

Extended Scaled::Log() const {
  const ScaledParts parts(*this);
  if (parts.unbounded != 0) return parts.unbounded;
  if (parts.factor.IsZero()) return -kInfinite;
  return parts.factor.negative ? kNotANumber : Nearest(LogOf(parts));
}

Extended Scaled::Rest() const {
  if (IsPlain()) return Nearest(kOne - Load(factor_));
  const ScaledParts parts(*this);
  return parts.unbounded == 0 ? Nearest(kOne - WideValue(parts)) : 1 - Value();
}

Extended Scaled::LogOfRest() const {
  const ScaledParts parts(*this);
  if (std::isnan(parts.unbounded)) return kNotANumber;
  const Extended value = Value();
  if (value >= 1) return -kInfinite;
  if (value == 0) return 0;
  return Nearest(elementary::Log1pWide(-WideValue(parts)));
}

Scaled operator*(const Scaled& a, const Scaled& b) {
  const ScaledParts x(a);
  const ScaledParts y(b);
  return ScaledParts(x.factor * y.factor, x.exponent + y.exponent, x.unbounded + y.unbounded)
      .Joined();
}

Scaled operator*(const Scaled& a, Extended b) {
  if (!std::isfinite(b)) return a * Scaled(b);
  const ScaledParts x(a);
  return ScaledParts(x.factor * Wide(b), x.exponent, x.unbounded).Joined();
}

Scaled operator/(const Scaled& a, const Scaled& b) {
  const ScaledParts x(a);
  const ScaledParts y(b);
  if (y.factor.IsZero()) return {1, x.factor.IsZero() ? kNotANumber : kInfinite};
  return ScaledParts(x.factor / y.factor, x.exponent - y.exponent, x.unbounded - y.unbounded)
      .Joined();
}

Scaled operator+(const Scaled& a, const Scaled& b) {
  const ScaledParts x(a);
  const ScaledParts y(b);
  if (x.unbounded != 0 || y.unbounded != 0) return a.Value() + b.Value();
  if (x.factor.IsZero()) return b;
  if (y.factor.IsZero()) return a;
  const Wide distance = y.exponent - x.exponent;
  if (!distance.IsZero() && !distance.negative) return b + a;
  const Wide taken = WideValue(ScaledParts(y.factor, distance));
  return MakeScaled(x.factor + taken, x.exponent);
}

Scaled operator-(const Scaled& a, const Scaled& b) {
  return a + b * Scaled(-1);
}

ExtendedPair Ln(const Scaled& number) {
  const ScaledParts parts(number);
  if (parts.unbounded != 0 || parts.factor.IsZero()) return number.Log();
  return PairOf(LogOf(parts));
}

Scaled SquareRoot(const Scaled& number) {
  const ScaledParts parts(number);
  return ScaledParts(SquareRoot(parts.factor), ScaledBy(parts.exponent, -1), parts.unbounded)
      .Joined();
}

Scaled Power(ExtendedPair x, ExtendedPair y) {
  if (y.hi == 0) return {};
  return MakeScaled(kOne, Wide(y) * LogWide(Wide(x)));
}

}  // namespace qorvex::special
