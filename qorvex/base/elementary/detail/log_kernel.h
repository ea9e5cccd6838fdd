#pragma once

// The logarithm of a positive number as a Wide: two table look-ups and a short series (Tang 1990,
// "Table-driven implementation of the logarithm function in IEEE floating-point arithmetic"), and
// beside 1 a series alone.

#include <cstdint>
#include <type_traits>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// Rows of a factor and the two words of minus its logarithm at scale 2^112. Factors of the first
/// table are at scale 2^29, those of the second at 2^20. Logarithms of the first table also contain
/// -1 - kLogBias ln 2, modulo 2^128.
inline constexpr std::uint64_t kLogFirst[256][3] = {
#include "qorvex/base/elementary/detail/tables/log_first.inc"
};
inline constexpr std::uint64_t kLogSecond[287][3] = {
#include "qorvex/base/elementary/detail/tables/log_second.inc"
};
inline constexpr std::int64_t kLogBias = 1 << 15;
/// ln 2 at scale 2^112.
inline constexpr std::uint64_t kLogOf2[2] = {0x0000b17217f7d1cf, 0x79abc9e3b39803f3};

/// z - ln(1 + z) at scale 2^112 for 0 <= z < 2^-15.9 at scale 2^143.
///
/// - It is z^2 / 2 - z^3 (1/3 - z/4 + z^2 / 5 - z^3 / 6), and breaks off 2^-114 early.
/// - z^2 is a product of 96 bits: 2^-112. The cube is one of 63 bits: 2^-110. The constants 3 in it
///   stand for the means of what is cut off before.
[[gnu::always_inline]] inline UInt128 LogRest(UInt128 z) {
  constexpr std::uint64_t third = ~std::uint64_t{0} / 3;
  constexpr std::uint64_t fifth = (std::uint64_t{1} << 34) / 5;
  constexpr std::uint64_t sixth = (std::uint64_t{1} << 19) / 6;
  const std::uint64_t top = High(z);              // scale 2^79
  const UInt128 square = Multiply(top, top);      // scale 2^158
  const std::uint64_t square_top = High(square);  // scale 2^94
  const std::uint64_t q =
      third - (top >> 17) + MultiplyHigh(square_top, fifth - MultiplyHigh(top, sixth));
  const std::uint64_t cube = MultiplyHigh(2 * square_top + 3, 4 * MultiplyHigh(top, q) + 3);
  // The rest of the square is smaller than the cube, or 0.
  return ShiftedRight(square, 47) - (cube - (MultiplyHigh(top, Low(z)) >> 46));
}

/// A logarithm of at least 2^-13 at scale 2^112.
struct FixedLog {
  UInt128 magnitude;
  bool negative;
};

/// The same, 2^exponent times as large, as a Wide.
[[gnu::always_inline]] inline Wide Floating(FixedLog log, std::int64_t exponent = 0) {
  return NormalisedTop(log.magnitude, exponent + 15, log.negative);
}

/// ln(m 2^exponent) for m in [1, 2), which `mantissa` is at scale 2^63 or 2^127, and an |exponent|
/// of at most 20000, where the result is not within 2^-13 of 0.
///
/// - m c r = 1 + z with table values c and r and 0 <= z < 2^-15.9. Exact for 64 bits; else too
///   small by 2^-112.
/// - The sum with the logarithms of the tables and exponent ln 2, at scale 2^112: 2^-111, and
///   2^-113 times the exponent.
/// - All errors: below 2^-109.3 + 2^-113 |exponent| (checked by the script of the tables), which is
///   2^-97.3 of a result of 2^-12.
template <class Mantissa>
[[gnu::always_inline]] inline FixedLog LogByTables(Mantissa mantissa, std::int64_t exponent) {
  constexpr bool is_wide = std::is_same_v<Mantissa, UInt128>;
  std::uint64_t top = 0;
  if constexpr (is_wide)
    top = High(mantissa);
  else
    top = mantissa;
  const std::uint64_t* first = kLogFirst[top >> 55 & 255];
  const std::uint64_t* second = kLogSecond[(MultiplyHigh(top, first[0]) >> 12) - (1 << 16)];
  const std::uint64_t factor = first[0] * second[0];  // c r at scale 2^49
  UInt128 product = Multiply(top, factor);            // 1 + z at scale 2^112
  if constexpr (is_wide) product += MultiplyHigh(Low(mantissa), factor);

  const auto steps = static_cast<std::uint64_t>(exponent + kLogBias);
  const UInt128 sum = Multiply(steps, kLogOf2[1]) + Join(steps * kLogOf2[0], 0) +
                      Join(first[1], first[2]) + Join(second[1], second[2]) + product -
                      LogRest(ShiftedLeft(product, 31));
  // Of negative sums the complement, which is too small by one unit.
  const std::uint64_t sign = High(sum) >> 63 != 0 ? ~std::uint64_t{0} : 0;
  return {Join(High(sum) ^ sign, Low(sum) ^ sign), sign != 0};
}

/// ln(1 + t) for |t| < 2^-12.
///
/// - It is t w with w = 1 - t/2 + t^2 / 3 - t^3 (1/4 - t/5 + t^2 / 6 - t^3 / 7 + t^4 / 8 - t^5 / 9)
///   and breaks off 2^-111 early.
/// - t^3 and its factor have 62 bits, the rest 125. All errors: below 2^-98.6 of the result; the
///   script of the tables checks it.
[[gnu::always_inline]] inline Wide Log1pOfSmall(const Wide& t) {
  if (t.IsZero()) return t;
  const std::int64_t shift = -13 - t.exponent;
  const UInt128 z = shift < 128 ? t.mantissa >> shift : 0;  // |t| at scale 2^140
  const UInt128 square = MultiplyHigh(z, z);
  const std::uint64_t z_top = High(z);            // scale 2^76
  const std::uint64_t square_top = High(square);  // scale 2^88
  // Odd powers have the sign of t.
  const std::uint64_t mask = t.negative ? ~std::uint64_t{0} : 0;
  const auto odd = [mask, z_top](std::uint64_t factor) {
    return ((MultiplyHigh(z_top, factor) >> 12) ^ mask) - mask;
  };
  constexpr std::uint64_t one = ~std::uint64_t{0};
  // Twice the last factor of w.
  const std::uint64_t from_fourth = one / 4 - odd(one / 9 * 2);
  const std::uint64_t from_second =
      one / 3 - odd(one / 7 * 2) + (MultiplyHigh(square_top, from_fourth) >> 24);
  const std::uint64_t q =
      one / 2 - odd(one / 5 * 2) + (MultiplyHigh(square_top, from_second) >> 24);
  const UInt128 cube = Multiply(square_top, MultiplyHigh(z_top, q)) >> 38;
  const UInt128 odd_part = (z >> 14) + cube;
  constexpr UInt128 third = ~UInt128{0} / 3;
  const UInt128 even_part = (UInt128{1} << 127) + (MultiplyHigh(square, third) >> 25);
  const UInt128 w = t.negative ? even_part + odd_part : even_part - odd_part;
  return NormalisedWide(MultiplyHigh(t.mantissa, w), t.exponent + 1, t.negative);
}

/// Whether m 2^exponent, where `top` is m at scale 2^63, lies between 1 - 2^-12 and 1 + 2^-12, for
/// exponents of at most 16 bits.
inline bool IsBeside1(std::uint64_t top, std::int64_t exponent) {
  // In units of 2^-48 above 1, and of 2^-49 below.
  const std::uint64_t distance = (static_cast<std::uint64_t>(exponent) << 48) + (top << 1 >> 16);
  constexpr std::uint64_t below = (std::uint64_t{1} << 37) - 1;
  constexpr std::uint64_t above = std::uint64_t{1} << 36;
  return distance + below < below + above;
}

/// ln(m 2^exponent) for m in [1, 2), which `mantissa` is at scale 2^127, beside 1: of the
/// difference to 1, which is exact.
inline Wide LogBeside1(UInt128 mantissa, std::int64_t exponent) {
  return Log1pOfSmall(exponent == 0 ? NormalisedWide(mantissa - Join(kTopBit, 0), 0)
                                    : NormalisedWide(-mantissa, -1, true));
}

/// The half width for a relative error of 2^-96: LogBeside1 and LogByTables keep to 2^-97, and the
/// logarithms to the bases 2 and 10 to 2^-96.5.
inline constexpr std::uint64_t kLogHalfWidth = std::uint64_t{1} << 32;

/// finish(ln x) for x > 0, of a logarithm in registers where x is not beside 1.
template <class Finish>
[[gnu::noinline]] auto FinishLogBeside1(Normalised x, Finish finish) {
  return finish(LogBeside1(Join(x.significand, 0), x.exponent));
}
template <class Finish>
[[gnu::always_inline]] inline auto FinishLog(Normalised x, Finish finish) {
  if (IsBeside1(x.significand, x.exponent)) return FinishLogBeside1(x, finish);
  return finish(Floating(LogByTables(x.significand, x.exponent)));
}

}  // namespace qorvex::elementary
