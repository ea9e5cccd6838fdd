// Powers.
//
// x^y can only be a midpoint, or short of one by nothing, in these cases. Let x = 2^E o with an odd
// integer o, and y = n / 2^s in lowest terms.
//
// - o = 1: a power of 2 if it is rational, which is an extended number or underflows.
// - o > 1: y > 0, because o^-y has no finite binary expansion; o = p^(2^s) for an integer p,
// because
//   the 2^s-th root of an odd integer is one or is irrational (y E is an integer then); and p^n has
//   at most 65 bits, so n <= 41. All of these with s = 0 are among the short powers below. The
//   others have the second stage round 200 bits, of which the last ones are 0.
//
// Pairs (x, y) whose power is neither close to 1 nor out of range number 2^149, so one of them in
// 2^135 comes within 2^-200 of a midpoint without being one. Nobody knows a way to find it.

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

// Whether y is an integer from 1 to 127 and x^y has at most 128 bits: all squares, and powers of
// short numbers.
[[gnu::always_inline]] inline bool IsShortPower(Normalised x, Normalised y, bool y_is_negative) {
  // First what is rarely true, so that the processor guesses right.
  if (y.significand << 7 != 0 || y_is_negative || y.exponent >= 7 || !IsInteger(y)) return false;
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

// The second stage. The logarithm, relative error 2^-220, times y is below 2^14 or so; the
// exponential adds 2^-230.
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
