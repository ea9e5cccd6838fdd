// Powers.
//
// When is x^y a midpoint? Let x = 2^E o with an odd integer o, and y = n / 2^s in lowest terms.
//
// - o = 1: never. The power is irrational or a power of 2.
// - o > 1, y < 0: never. The reciprocal of an odd integer has no finite binary expansion.
// - o > 1, y > 0: only if o = p^(2^s) and y E is an integer, as other roots are irrational; and if
//   p^n has 65 bits, so that n <= 41. With s = 0 these are short powers (see below). With s > 0
//   they are rounded in the second stage, where all bits after the 65th are 0.
//
// Subnormal results have fewer bits, and 2^-16446 is halfway to 0: such powers are exact in the
// same two places.
//
// The second stage takes a power within 2^-200 of a midpoint for the midpoint. Some 2^149 pairs
// (x, y) have a power that is neither 1 nor out of range when rounded, and one in 2^135 of them
// comes that close by chance. So some 2^14 pairs may be rounded to the wrong one of two numbers
// that are equally near in 200 bits; none is known.

#include <algorithm>
#include <bit>
#include <optional>

#include "qorvex/base/elementary/detail/exp_core.h"
#include "qorvex/base/elementary/detail/functions_of_bits.h"
#include "qorvex/base/elementary/detail/log256.h"
#include "qorvex/base/elementary/detail/log_kernel.h"
#include "qorvex/base/elementary/detail/over_spans.h"
#include "qorvex/base/elementary/detail/ziv.h"
#include "qorvex/base/elementary/functions.h"

namespace qorvex::inline QorvexGlobals {

namespace {

using namespace elementary;

bool IsInteger(Normalised y) {
  return y.exponent >= 63 || (y.exponent >= 0 && y.significand << (y.exponent + 1) == 0);
}

bool IsOddInteger(Normalised y) {
  return y.exponent >= 0 && y.exponent <= 63 && y.significand << y.exponent == kTopBit;
}

// The value where one argument is 0, infinite or NaN, or x < 0 and y is not an integer.
std::optional<Binary80> SpecialPower(Binary80 x, Binary80 y) {
  const Binary80 magnitude{x.significand, static_cast<std::uint16_t>(x.Exponent())};
  const bool is_unit = magnitude.significand == kTopBit && x.Exponent() == kExponentBias;
  if (IsZero(y) || (is_unit && !x.IsNegative())) return SignedOne(false);
  if (IsNaN(x) || IsNaN(y)) return QuietNaN();
  if (IsInfinity(y)) {
    if (is_unit) return SignedOne(false);
    const bool is_large = x.Exponent() >= kExponentBias;
    return is_large != y.IsNegative() ? SignedInfinity(false) : SignedZero(false);
  }
  const Normalised power = Normalise(y);
  if (IsZero(x) || IsInfinity(x)) {
    const bool negative = x.IsNegative() && IsOddInteger(power);
    return IsInfinity(x) != y.IsNegative() ? SignedInfinity(negative) : SignedZero(negative);
  }
  if (x.IsNegative() && !IsInteger(power)) return QuietNaN();
  return std::nullopt;
}

// The number of bits of x without the zeros at its end.
int LengthOf(Normalised x) {
  return 64 - std::countr_zero(x.significand);
}

// Whether y is a positive integer with at most 7 leading bits, and below 256, and x^y has at most
// 128 bits: all squares, and powers of short numbers.
[[gnu::always_inline]] inline bool IsShortPower(Normalised x, Normalised y, bool y_is_negative) {
  // One jump for all, which the processor guesses right: nearly every y has more bits.
  const std::uint64_t longer = y.significand << 7;
  const auto beyond = static_cast<std::uint64_t>(y.exponent) & ~std::uint64_t{7};
  if ((longer | beyond | (y_is_negative ? 1 : 0)) != 0 || !IsInteger(y)) return false;
  return static_cast<int>(y.significand >> (63 - y.exponent)) * LengthOf(x) <= 128;
}

// A short power, rounded once.
[[gnu::noinline]] Binary80 ShortPower(Normalised x, Normalised y, bool negative) {
  auto n = static_cast<unsigned>(y.significand >> (63 - y.exponent));
  const int length = LengthOf(x);
  const std::int64_t exponent = std::int64_t{x.exponent + 1 - length} * n;
  UInt128 square = x.significand >> (64 - length);
  UInt128 power = 1;
  for (; n > 1; n >>= 1) {
    if ((n & 1) != 0) power *= square;
    square *= square;
  }
  return NearestBits(NormalisedWide(power * square, exponent + 127, negative));
}

// The second stage. The relative error of the logarithm, 2^-220, is one of 2^-206 in the power,
// since the product is below 2^14; the exponential adds 2^-230.
[[gnu::noinline]] Wide256 PowerInDoubt(Normalised x, const Wide& y, bool negative) {
  Wide256 power = Exp(Log(Wide256(WideOf(x))) * Wide256(y));
  power.negative = negative;
  return power;
}

[[gnu::always_inline]] inline Binary80 PowKernel(Binary80 x, Binary80 y) {
  Normalised base{x.significand, x.sign_exponent - kExponentBias};
  Normalised exponent{y.significand, y.Exponent() - kExponentBias};
  bool negative = false;
  if (!IsNormal(x) || x.IsNegative() || !IsNormal(y)) [[unlikely]] {
    if (const std::optional<Binary80> special = SpecialPower(x, y)) return *special;
    base = Normalise(x);
    exponent = Normalise(y);
    negative = x.IsNegative() && IsOddInteger(exponent);
  }
  if (IsShortPower(base, exponent, y.IsNegative())) return ShortPower(base, exponent, negative);
  const Wide factor = WideOf(exponent, y.IsNegative());
  return FinishLog(base, [=](const Wide& log) {
    const Wide t = log * factor;
    // 1 + t + ...: the distance from 1 to both its midpoints is larger.
    if (t.IsZero() || t.exponent < -66) return SignedOne(negative);
    if (t.exponent >= 14) return t.negative ? SignedZero(negative) : SignedInfinity(negative);
    Wide power = ExpOf(t);
    power.negative = negative;
    // The error of the logarithm, 2^-97 t, and that of the exponential, 2^-111.
    const int shift = 33 + std::max(static_cast<int>(t.exponent), -14);
    return CorrectlyRounded(power, std::uint64_t{1} << shift,
                            [=] { return PowerInDoubt(base, factor, negative); });
  });
}

}  // namespace

Extended Pow(Extended x, Extended y) noexcept {
  return FromBits(PowKernel(BitsOf(x), BitsOf(y)));
}
void Pow(VectorView<Extended> x, Extended y, std::span<Extended> results) {
  const Binary80 exponent = BitsOf(y);
  OverSpans(x, results, [exponent](Binary80 t) { return PowKernel(t, exponent); });
}

}  // namespace qorvex::inline QorvexGlobals

namespace qorvex::elementary {

Binary80 PowOfBits(Binary80 x, Binary80 y) noexcept {
  return PowKernel(x, y);
}

}  // namespace qorvex::elementary
