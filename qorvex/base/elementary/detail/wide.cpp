#include "qorvex/base/elementary/detail/wide.h"

#include <cmath>

#include "qorvex/base/elementary/detail/quick_square_root.h"

namespace qorvex::elementary {

namespace {

// The next 64 bits of the quotient remainder / b < 1, where the top bit of b is set.
std::uint64_t QuotientWord(UInt128& remainder, UInt128 b) {
  // From the top word of b: at most two too large (Knuth 1997, "Seminumerical algorithms", 4.3.1).
  std::uint64_t quotient = High(remainder) >= High(b)
                               ? ~std::uint64_t{0}
                               : static_cast<std::uint64_t>(remainder / High(b));
  // remainder 2^64 - quotient b, in three words.
  const UInt128 low = Multiply(quotient, Low(b));
  const UInt128 high = Multiply(quotient, High(b)) + High(low);
  UInt128 rest = Join(Low(remainder), 0) - Join(Low(high), Low(low));
  auto top = static_cast<std::int64_t>(High(remainder) - High(high) -
                                       (Join(Low(high), Low(low)) > Join(Low(remainder), 0)));
  while (top < 0) {
    --quotient;
    rest += b;
    if (rest < b) ++top;
  }
  remainder = rest;
  return quotient;
}

}  // namespace

Wide operator/(const Wide& a, const Wide& b) {
  if (a.IsZero()) return {};
  if (b.mantissa == UInt128{1} << 127)
    return {a.mantissa, a.exponent - b.exponent, a.negative != b.negative};
  // Half of a, so that the quotient is below 1. The bit that is lost is half a unit.
  UInt128 remainder = a.mantissa >> 1;
  const std::uint64_t high = QuotientWord(remainder, b.mantissa);
  const std::uint64_t low = QuotientWord(remainder, b.mantissa);
  return NormalisedWide(Join(high, low), a.exponent - b.exponent, a.negative != b.negative);
}

Wide SquareRoot(const Wide& x) {
  if (x.IsZero()) return {};
  // x = m 2^-128 2^exponent, with m 2^-128 in [1/4, 1) and an even exponent.
  const bool is_odd = (x.exponent & 1) != 0;
  const UInt128 m = is_odd ? x.mantissa : x.mantissa >> 1;
  const std::int64_t exponent = x.exponent + (is_odd ? 1 : 2);
  // 64 bits of the root in [1/2, 1), cut off, from the top word of m.
  const std::uint64_t s = Low(ShiftedRight(QuickSquareRoot(High(m)), 63));
  // A step of Newton's method, s + (m - s^2) / (2 s), where |m - s^2| < 2^65.6. What it neglects is
  // below 2^-125 of the root.
  const UInt128 square = Multiply(s, s);
  const UInt128 difference = m >= square ? m - square : square - m;
  const UInt128 correction = (difference << 62) / s << 1;
  UInt128 result = m >= square ? Join(s, 0) + correction : Join(s, 0) - correction;
  // Just below 1 the step may end at 1.
  if (result >> 127 == 0) result = ~UInt128{0};
  return {result, exponent / 2 - 1};
}

Binary80 NearestBitsAnywhere(Wide x) noexcept {
  if (x.IsZero()) return SignedZero(false);
  constexpr std::int64_t least = 1 - kExponentBias;
  if (x.exponent > kExponentBias) return SignedInfinity(x.negative);
  const std::int64_t shift = x.exponent < least ? least - x.exponent : 0;
  UInt128 mantissa = 0;
  if (shift < 127) {
    const UInt128 lost = x.mantissa & ((UInt128{1} << shift) - 1);
    mantissa = x.mantissa >> shift | (lost != 0 ? 1 : 0);
  } else {
    mantissa = 1;
  }
  const UInt128 rounded = mantissa + (kTopBit - 1 + (High(mantissa) & 1));
  const bool carry = rounded < mantissa;
  const std::uint64_t significand = carry ? kTopBit : High(rounded);
  std::int64_t biased = shift > 0 ? (High(rounded) >> 63 != 0 ? 1 : 0) : x.exponent + kExponentBias;
  if (carry) ++biased;
  if (biased >= kExponentOfInfinity) return SignedInfinity(x.negative);
  return {significand, static_cast<std::uint16_t>(static_cast<std::uint64_t>(biased) |
                                                  (x.negative ? 0x8000u : 0u))};
}

special::ExtendedPair PairOf(const Wide& x) noexcept {
  const Extended high = Nearest(x);
  if (std::isinf(high) || x.IsZero()) return high;
  return {high, Nearest(x - Wide(high))};
}

}  // namespace qorvex::elementary
