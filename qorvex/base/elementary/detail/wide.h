#pragma once

// Numbers of 128 bits in integers, in which the functions compute. A product of two 64-bit words
// costs a cycle, so a step of Horner's scheme is four times as fast here as in pairs of doubles
// with fused multiply-adds, and twenty times as fast as in pairs of extended numbers.

#include <bit>
#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/elementary/detail/binary80.h"
#include "qorvex/base/export.h"
#include "qorvex/base/special/extended_pair.h"

namespace qorvex::elementary {

__extension__ typedef unsigned __int128 UInt128;

constexpr UInt128 Join(std::uint64_t high, std::uint64_t low) {
  return UInt128{high} << 64 | low;
}
constexpr std::uint64_t High(UInt128 x) {
  return static_cast<std::uint64_t>(x >> 64);
}
constexpr std::uint64_t Low(UInt128 x) {
  return static_cast<std::uint64_t>(x);
}
constexpr UInt128 Multiply(std::uint64_t a, std::uint64_t b) {
  return UInt128{a} * b;
}

/// The top word of a product.
constexpr std::uint64_t MultiplyHigh(std::uint64_t a, std::uint64_t b) {
  return High(Multiply(a, b));
}

/// a b / 2^64, rounded down, for a b < 2^192.
constexpr UInt128 MultiplyHigh(UInt128 a, std::uint64_t b) {
  return Multiply(High(a), b) + MultiplyHigh(Low(a), b);
}

/// a b / 2^128, too small by less than 3 units: the product of the low words is left out,
/// and two others are cut off.
constexpr UInt128 MultiplyHigh(UInt128 a, UInt128 b) {
  return Multiply(High(a), High(b)) + MultiplyHigh(High(a), Low(b)) + MultiplyHigh(Low(a), High(b));
}

/// The same for High(a) + High(b) < 2^64, where the two smaller products add up without a carry.
constexpr UInt128 MultiplyHighOfSmall(UInt128 a, UInt128 b) {
  return Multiply(High(a), High(b)) +
         (MultiplyHigh(High(a), Low(b)) + MultiplyHigh(Low(a), High(b)));
}

/// x / 2^count and x 2^count modulo 2^128 for 0 <= count < 64, word by word: for x << count
/// compilers use the processor's shift of two words, which is slow on some.
constexpr UInt128 ShiftedRight(UInt128 x, int count) {
  return Join(High(x) >> count, High(x) << 1 << (63 - count) | Low(x) >> count);
}
constexpr UInt128 ShiftedLeft(UInt128 x, int count) {
  return Join(High(x) << count | Low(x) >> 1 >> (63 - count), Low(x) << count);
}
/// x / 2^count for any count >= 0.
constexpr UInt128 ScaledDown(UInt128 x, std::int64_t count) {
  if (count < 64) return ShiftedRight(x, static_cast<int>(count));
  return count < 128 ? High(x) >> (count - 64) : 0;
}

constexpr int LeadingZeros(UInt128 x) {
  return High(x) != 0 ? std::countl_zero(High(x)) : 64 + std::countl_zero(Low(x));
}

/// (-1)^negative mantissa 2^(exponent - 127), with the top bit of the mantissa set; 0 has a
/// mantissa of 0. No infinities, no NaN. The range of the exponent is far beyond that of Extended,
/// so intermediate results neither overflow nor underflow.
struct Wide {
  UInt128 mantissa = 0;
  std::int64_t exponent = 0;
  bool negative = false;

  constexpr Wide() = default;
  constexpr Wide(UInt128 m, std::int64_t e, bool is_negative = false)
      : mantissa(m), exponent(e), negative(is_negative) {}
  /// A finite number, exactly.
  explicit Wide(Extended x);
  /// A finite pair, exactly unless its parts lie more than 64 bits apart.
  explicit Wide(const special::ExtendedPair& x);

  [[nodiscard]] constexpr bool IsZero() const { return mantissa == 0; }
  constexpr Wide operator-() const { return {mantissa, exponent, !negative}; }
};

inline constexpr Wide kOne{UInt128{1} << 127, 0};
/// ln 2, cut off.
inline constexpr Wide kLn2{Join(0xb17217f7d1cf79ab, 0xc9e3b39803f2f6af), -1};

/// mantissa 2^(exponent - 127) for any mantissa.
constexpr Wide NormalisedWide(UInt128 mantissa, std::int64_t exponent, bool negative = false) {
  if (mantissa == 0) return {};
  const int zeros = LeadingZeros(mantissa);
  return {mantissa << zeros, exponent - zeros, negative};
}

/// The same, quicker, for a mantissa of 2^64 or more.
constexpr Wide NormalisedTop(UInt128 mantissa, std::int64_t exponent, bool negative = false) {
  const int zeros = std::countl_zero(High(mantissa));
  const std::uint64_t next = Low(mantissa) >> 1 >> (63 - zeros);
  return {Join(High(mantissa) << zeros | next, Low(mantissa) << zeros), exponent - zeros, negative};
}

/// A number that is not 0, exactly.
constexpr Wide WideOf(Normalised x, bool negative = false) {
  return {Join(x.significand, 0), x.exponent, negative};
}

inline Wide::Wide(Extended x) {
  const Binary80 bits = BitsOf(x);
  if (bits.significand == 0) return;
  *this = WideOf(Normalise(bits), bits.IsNegative());
}

/// The product; relative error below 2^-124.
constexpr Wide operator*(const Wide& a, const Wide& b) {
  const UInt128 product = MultiplyHigh(a.mantissa, b.mantissa);
  if (product == 0) return {};
  // Doubled, without a jump, if the top bit is 0.
  const std::uint64_t mask = (High(product) >> 63) - 1;
  return {product + Join(High(product) & mask, Low(product) & mask),
          a.exponent + b.exponent + 1 + static_cast<std::int64_t>(mask), a.negative != b.negative};
}

/// The sum. Error: below 2^-126 of the larger operand, and none if both are multiples of the last
/// bit of the larger one.
constexpr Wide operator+(const Wide& a, const Wide& b) {
  if (b.IsZero()) return a;
  if (a.IsZero()) return b;
  const bool a_first =
      a.exponent != b.exponent ? a.exponent > b.exponent : a.mantissa >= b.mantissa;
  const Wide& large = a_first ? a : b;
  const Wide& small = a_first ? b : a;
  const std::int64_t distance = large.exponent - small.exponent;
  if (distance > 127) return large;
  const UInt128 aligned = small.mantissa >> distance;
  if (large.negative != small.negative)
    return NormalisedWide(large.mantissa - aligned, large.exponent, large.negative);
  const UInt128 sum = large.mantissa + aligned;
  if (sum >= aligned) return {sum, large.exponent, large.negative};
  return {sum >> 1 | UInt128{1} << 127, large.exponent + 1, large.negative};
}
constexpr Wide operator-(const Wide& a, const Wide& b) {
  return a + -b;
}

inline Wide::Wide(const special::ExtendedPair& x) : Wide(Wide(x.hi) + Wide(x.lo)) {}

/// 2^k x.
constexpr Wide ScaledBy(const Wide& x, std::int64_t k) {
  return x.IsZero() ? x : Wide{x.mantissa, x.exponent + k, x.negative};
}

/// The quotient by a divisor other than 0; relative error below 2^-124.
[[nodiscard]] QORVEX_EXPORT Wide operator/(const Wide& a, const Wide& b);

/// The square root of x >= 0; relative error below 2^-124.
[[nodiscard]] QORVEX_EXPORT Wide SquareRoot(const Wide& x);

/// |a| < |b|.
constexpr bool IsSmaller(const Wide& a, const Wide& b) {
  if (a.IsZero() || b.IsZero()) return !b.IsZero();
  return a.exponent != b.exponent ? a.exponent < b.exponent : a.mantissa < b.mantissa;
}

/// The bits of the nearest extended number, ties to even; infinity, 0 and subnormal numbers where
/// they belong. By value, so that the callers' numbers may stay in registers.
[[nodiscard]] QORVEX_EXPORT Binary80 NearestBitsAnywhere(Wide x) noexcept;
/// x cut off to 64 bits plus `up` units, 0 or 1, for biased exponents from 1 to 0x7ffd.
[[nodiscard]] constexpr Binary80 LeadingBits(const Wide& x, std::uint64_t up) noexcept {
  auto biased = static_cast<std::uint16_t>(x.exponent + kExponentBias + (x.negative ? 0x8000 : 0));
  const std::uint64_t significand = High(x.mantissa) + up;
  if (significand == 0) [[unlikely]]
    return {kTopBit, ++biased};
  return {significand, biased};
}
/// The same as NearestBitsAnywhere, quickly for results that are neither subnormal nor near the end
/// of the format.
[[nodiscard]] inline Binary80 NearestBits(const Wide& x) noexcept {
  // Rounding up gives no infinity.
  const auto biased = static_cast<std::uint64_t>(x.exponent + kExponentBias);
  if (biased - 1 >= kExponentOfInfinity - 2u || x.IsZero()) return NearestBitsAnywhere(x);
  // Ties are rounded up if the last bit is odd.
  return LeadingBits(x, Low(x.mantissa) > kTopBit - (High(x.mantissa) & 1) ? 1 : 0);
}
[[nodiscard]] inline Extended Nearest(const Wide& x) noexcept {
  return FromBits(NearestBits(x));
}

/// The two parts of x as a pair; infinity and 0 beyond the format.
[[nodiscard]] QORVEX_EXPORT special::ExtendedPair PairOf(const Wide& x) noexcept;

}  // namespace qorvex::elementary
