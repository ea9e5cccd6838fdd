#pragma once

/// @file
/// Exact quotients, and the two ways to round them.
///
/// A figure such as a variance or a coefficient of regression is a rational number of its data, or
/// the square root of one. Computed as a Rational and rounded at the end, it is the extended number
/// nearest to its exact value.

#include <compare>
#include <utility>

#include "qorvex/base/exact/dyadic.h"

namespace qorvex::exact {

/// A numerator over a positive denominator, not reduced: operations on long fractions get longer,
/// so bring sums to their common denominator first where it is known.
class QORVEX_EXPORT Rational {
 public:
  /// 0.
  Rational() : denominator_(1) {}
  /// Everything that a Dyadic can be made of.
  template <class Value>
  requires std::convertible_to<Value, Dyadic> Rational(Value&& value)  // NOLINT: a wider number
      : numerator_(std::forward<Value>(value)), denominator_(1) {}
  /// numerator / denominator. EZeroDivide for a denominator of 0.
  Rational(Dyadic numerator, Dyadic denominator);
  /// 10^exponent.
  [[nodiscard]] static Rational PowerOfTen(int exponent);

  /// Has the sign of the value.
  [[nodiscard]] const Dyadic& Numerator() const { return numerator_; }
  /// Positive.
  [[nodiscard]] const Dyadic& Denominator() const { return denominator_; }
  /// -1, 0 or 1.
  [[nodiscard]] int Sign() const { return numerator_.Sign(); }

  /// The negative.
  [[nodiscard]] Rational operator-() const { return {-numerator_, denominator_}; }
  /// @{
  /// Exact. A quotient raises EZeroDivide for a divisor of 0.
  QORVEX_EXPORT friend Rational operator+(const Rational& a, const Rational& b);
  QORVEX_EXPORT friend Rational operator-(const Rational& a, const Rational& b);
  QORVEX_EXPORT friend Rational operator*(const Rational& a, const Rational& b);
  QORVEX_EXPORT friend Rational operator/(const Rational& a, const Rational& b);
  Rational& operator+=(const Rational& other) { return *this = *this + other; }
  Rational& operator-=(const Rational& other) { return *this = *this - other; }
  Rational& operator*=(const Rational& other) { return *this = *this * other; }
  Rational& operator/=(const Rational& other) { return *this = *this / other; }
  /// @}

  /// The nearest extended value, ties to even; infinite beyond the format.
  [[nodiscard]] Extended Round() const;
  /// The extended value nearest to the square root. EInvalidOp for a negative value.
  [[nodiscard]] Extended RoundRoot() const;

  /// Equal values, whatever their fractions.
  QORVEX_EXPORT friend bool operator==(const Rational& a, const Rational& b);
  /// The order of the values.
  QORVEX_EXPORT friend std::strong_ordering operator<=>(const Rational& a, const Rational& b);

 private:
  Dyadic numerator_;
  Dyadic denominator_;
};

}  // namespace qorvex::exact
