#include "qorvex/base/special/scaled.h"

#include <cmath>

#include "qorvex/base/elementary/functions.h"

namespace qorvex::special {

Extended Scaled::Value() const {
  // Beyond, the low part of the exponent means nothing.
  constexpr Extended beyond = 30000;
  if (std::fabs(exponent.hi) > beyond) return factor * Exp(exponent.hi);
  // Where the exponential alone is beyond the format, or loses digits, the factor may be what
  // brings the number back.
  constexpr Extended far = 11000;
  if (std::fabs(exponent.hi) > far) {
    const Extended half = Exp(exponent.hi / 2);
    return half * (1 + exponent.lo) * factor * half;
  }
  return factor * Exp(exponent.hi) * (1 + exponent.lo);
}

Extended Scaled::Log() const {
  const bool has_pair = std::isnormal(factor) && factor > 0 && std::isfinite(exponent.hi);
  return has_pair ? (Ln(ExtendedPair(factor)) + exponent).hi : qorvex::Log(factor) + exponent.hi;
}

Scaled Power(ExtendedPair x, ExtendedPair y) {
  if (y.hi == 0) return {};
  return {1, y * Ln(x)};
}

}  // namespace qorvex::special
