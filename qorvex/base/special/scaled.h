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
  /// What the power is multiplied by.
  Extended factor = 1;
  /// The exponent of e.
  ExtendedPair exponent;

  /// The number itself; 0 or infinity beyond the range.
  [[nodiscard]] QORVEX_EXPORT Extended Value() const;
  /// Its natural logarithm.
  [[nodiscard]] QORVEX_EXPORT Extended Log() const;

  /// The product.
  friend Scaled operator*(const Scaled& a, const Scaled& b) {
    return {a.factor * b.factor, a.exponent + b.exponent};
  }
  /// The quotient.
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

}  // namespace qorvex::special
