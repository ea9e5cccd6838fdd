#pragma once

// What the logarithms to all bases have in common outside the positive numbers.

#include "qorvex/base/elementary/detail/binary80.h"

namespace qorvex::elementary {

/// The bits of of_positive(x) for a finite x > 0; -infinity for zeros, infinity for infinity, and
/// NaN for negative x and NaN.
template <class OfPositive>
[[gnu::always_inline]] inline Binary80 LogOverAll(Binary80 x, OfPositive of_positive) {
  Normalised number{x.significand, x.sign_exponent - kExponentBias};
  if (!IsNormal(x) || x.IsNegative()) [[unlikely]] {
    if (IsZero(x)) return SignedInfinity(true);
    if (IsNaN(x) || x.IsNegative()) return QuietNaN();
    if (IsInfinity(x)) return x;
    number = Normalise(x);
  }
  return of_positive(number);
}

}  // namespace qorvex::elementary
