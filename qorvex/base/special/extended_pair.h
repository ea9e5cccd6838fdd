#pragma once

/// @file
/// The unevaluated sum of two extended values, about 125 bits of mantissa.
///
/// It carries the exponents of densities: where a tail is e^-5000, a relative error of 2^-64 in the
/// exponent would cost the tail twelve of its bits. Dekker (1971), "A floating-point technique for
/// extending the available precision".

#include "qorvex/base/element_types.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/export.h"

namespace qorvex::special {

/// hi + lo, where |lo| is at most half a unit in the last place of hi.
struct ExtendedPair {
  /// The sum, rounded.
  Extended hi = 0;
  /// What rounding took from it.
  Extended lo = 0;

  /// 0.
  constexpr ExtendedPair() = default;
  /// A single value, which converts implicitly: a pair is a wider number.
  constexpr ExtendedPair(Extended value) : hi(value) {}  // NOLINT
  /// The two parts as they are.
  constexpr ExtendedPair(Extended high, Extended low) : hi(high), lo(low) {}

  /// The negative.
  constexpr ExtendedPair operator-() const { return {-hi, -lo}; }
};

/// a + b for |a| >= |b|.
constexpr ExtendedPair OrderedSum(Extended a, Extended b) {
  const Extended sum = a + b;
  return {sum, b - (sum - a)};
}

/// a + b, exactly (Knuth).
constexpr ExtendedPair ExactSum(Extended a, Extended b) {
  const Extended sum = a + b;
  const Extended b_part = sum - a;
  return {sum, (a - (sum - b_part)) + (b - b_part)};
}

/// a * b, exactly unless a factor exceeds 2^16350 or the product is close to the smallest number;
/// the product is then rounded.
constexpr ExtendedPair ExactProduct(Extended a, Extended b) {
  constexpr Extended splitter = 0x1p32L + 1;
  const Extended product = a * b;
  const Extended a_scaled = splitter * a;
  const Extended b_scaled = splitter * b;
  const Extended a_high = a_scaled - (a_scaled - a);
  const Extended b_high = b_scaled - (b_scaled - b);
  const Extended a_low = a - a_high;
  const Extended b_low = b - b_high;
  const Extended error =
      a_low * b_low - (((product - a_high * b_high) - a_low * b_high) - a_high * b_low);
  return {product, error == error ? error : 0};
}

/// The sum, off by a few units of 2^-125.
constexpr ExtendedPair operator+(ExtendedPair a, ExtendedPair b) {
  const ExtendedPair sum = ExactSum(a.hi, b.hi);
  const ExtendedPair rest = ExactSum(a.lo, b.lo);
  const ExtendedPair partial = OrderedSum(sum.hi, sum.lo + rest.hi);
  return OrderedSum(partial.hi, partial.lo + rest.lo);
}

/// The difference, off by a few units of 2^-125.
constexpr ExtendedPair operator-(ExtendedPair a, ExtendedPair b) {
  return a + -b;
}

/// The product, off by a few units of 2^-125.
constexpr ExtendedPair operator*(ExtendedPair a, ExtendedPair b) {
  const ExtendedPair product = ExactProduct(a.hi, b.hi);
  return OrderedSum(product.hi, product.lo + (a.hi * b.lo + a.lo * b.hi));
}

/// The quotient, off by a few units of 2^-125, for divisors that are not subnormal.
constexpr ExtendedPair operator/(ExtendedPair a, ExtendedPair b) {
  const Extended reciprocal = 1 / b.hi;
  const Extended quotient = a.hi * reciprocal;
  const ExtendedPair product = ExactProduct(quotient, b.hi);
  const Extended rest = ((a.hi - product.hi) - product.lo) + (a.lo - quotient * b.lo);
  return OrderedSum(quotient, rest * reciprocal);
}

/// The natural logarithm of a positive finite value, off by 2^-96 of itself.
[[nodiscard]] QORVEX_EXPORT ExtendedPair Ln(ExtendedPair x);

using QorvexGlobals::Exp;
/// The exponential function, off by 2^-96 of itself; 0 and infinity beyond the format.
[[nodiscard]] QORVEX_EXPORT ExtendedPair Exp(ExtendedPair x);

/// The natural logarithm of a quotient that may be beyond the format.
[[nodiscard]] inline ExtendedPair LnOfRatio(ExtendedPair ratio, ExtendedPair numerator,
                                            ExtendedPair denominator) {
  constexpr Extended least = 1e-4900L;
  constexpr Extended most = 1e4900L;
  return ratio.hi > least && ratio.hi < most ? Ln(ratio) : Ln(numerator) - Ln(denominator);
}

}  // namespace qorvex::special
