#pragma once

/// @file
/// Positive numbers far beyond the extended range, such as powers and gamma functions.

#include <cmath>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base/special/extended_pair.h"

namespace qorvex::special {

/// factor * e^exponent. The exponent keeps its precision when large ones cancel.
struct Scaled {
  Extended factor = 1;
  ExtendedPair exponent;

  /// The number itself; 0 or infinity beyond the range.
  [[nodiscard]] QORVEX_EXPORT Extended Value() const;
  /// Its natural logarithm.
  [[nodiscard]] QORVEX_EXPORT Extended Log() const;

  friend Scaled operator*(const Scaled& a, const Scaled& b) {
    return {a.factor * b.factor, a.exponent + b.exponent};
  }
  friend Scaled operator/(const Scaled& a, const Scaled& b) {
    return {a.factor / b.factor, a.exponent - b.exponent};
  }
};

/// The natural logarithm of a number.
[[nodiscard]] inline ExtendedPair Ln(const Scaled& number) {
  return Ln(ExtendedPair(number.factor)) + number.exponent;
}

/// The square root of a number.
[[nodiscard]] inline Scaled SquareRoot(const Scaled& number) {
  return {std::sqrt(number.factor), {number.exponent.hi / 2, number.exponent.lo / 2}};
}

/// x^y for x > 0; 1 for y = 0.
[[nodiscard]] QORVEX_EXPORT Scaled Power(ExtendedPair x, ExtendedPair y);

/// Gamma(a + 1), the factorial of a >= 0, by Stirling's series from 16 on.
[[nodiscard]] QORVEX_EXPORT Scaled FactorialOf(ExtendedPair a);

}  // namespace qorvex::special
