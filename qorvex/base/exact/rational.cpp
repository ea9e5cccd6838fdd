#include "qorvex/base/exact/rational.h"

#include <cstdlib>

#include "qorvex/base/errors.h"
#include "qorvex/base/exact/detail/round_bits.h"

namespace qorvex::exact {

namespace {

// The quotient of the mantissas of a fraction with at least the given number of bits.
struct Quotient {
  BigInteger mantissa;
  std::int64_t exponent;
  bool inexact;  // The magnitude of the fraction is greater, by less than the last bit.
};

Quotient QuotientOf(const Dyadic& numerator, const Dyadic& denominator, std::size_t bits,
                    bool even_exponent) {
  const BigInteger& n = numerator.Mantissa();
  const BigInteger& d = denominator.Mantissa();
  // Bits to append to the numerator; if negative, bits to cut off.
  auto shift =
      static_cast<std::int64_t>(bits + d.BitLength()) - static_cast<std::int64_t>(n.BitLength());
  const std::int64_t exponent = numerator.Exponent() - denominator.Exponent();
  if (even_exponent && (exponent - shift) % 2 != 0) ++shift;
  const auto cut = static_cast<std::size_t>(shift < 0 ? -shift : 0);
  const Division division = Divide(shift < 0 ? n >> cut : n << static_cast<std::size_t>(shift), d);
  return {.mantissa = division.quotient,
          .exponent = exponent - shift,
          .inexact = division.remainder.Sign() != 0 || n.TrailingZeros() < cut};
}

// Enough for the 64 bits of the result, the bit that decides, and one more.
constexpr std::size_t kEnoughBits = 66;

}  // namespace

Rational::Rational(Dyadic numerator, Dyadic denominator)
    : numerator_(std::move(numerator)), denominator_(std::move(denominator)) {
  if (denominator_.Sign() == 0) throw EZeroDivide();
  if (denominator_.Sign() > 0) return;
  numerator_ = -numerator_;
  denominator_ = -denominator_;
}

Rational Rational::PowerOfTen(int exponent) {
  const Dyadic power(BigInteger::PowerOfTen(static_cast<unsigned>(std::abs(exponent))));
  return exponent < 0 ? Rational(1, power) : Rational(power);
}

Rational operator+(const Rational& a, const Rational& b) {
  if (a.denominator_ == b.denominator_) return {a.numerator_ + b.numerator_, a.denominator_};
  return {a.numerator_ * b.denominator_ + b.numerator_ * a.denominator_,
          a.denominator_ * b.denominator_};
}

Rational operator-(const Rational& a, const Rational& b) {
  return a + -b;
}

Rational operator*(const Rational& a, const Rational& b) {
  return {a.numerator_ * b.numerator_, a.denominator_ * b.denominator_};
}

Rational operator/(const Rational& a, const Rational& b) {
  return {a.numerator_ * b.denominator_, a.denominator_ * b.numerator_};
}

Extended Rational::Round() const {
  if (Sign() == 0) return 0;
  const Quotient quotient = QuotientOf(numerator_, denominator_, kEnoughBits, false);
  return detail::RoundBits(quotient.mantissa, quotient.exponent, quotient.inexact);
}

Extended Rational::RoundRoot() const {
  if (Sign() < 0) throw EInvalidOp();
  if (Sign() == 0) return 0;
  const Quotient quotient = QuotientOf(numerator_, denominator_, 2 * kEnoughBits, true);
  const BigInteger root = SquareRoot(quotient.mantissa);
  const bool inexact = quotient.inexact || root * root != quotient.mantissa;
  return detail::RoundBits(root, quotient.exponent / 2, inexact);
}

bool operator==(const Rational& a, const Rational& b) {
  return (a <=> b) == 0;
}

std::strong_ordering operator<=>(const Rational& a, const Rational& b) {
  if (a.denominator_ == b.denominator_) return a.numerator_ <=> b.numerator_;
  return a.numerator_ * b.denominator_ <=> b.numerator_ * a.denominator_;
}

}  // namespace qorvex::exact
