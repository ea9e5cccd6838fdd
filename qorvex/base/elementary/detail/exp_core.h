#pragma once

// e^x in 128 bits, for the exponential functions, powers and densities.

#include <algorithm>
#include <cstdint>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// x = k ln 2 / 2^16 + r with an integer k and 0 <= r < 2^-16.5, so that e^x = 2^(k / 2^16) e^r.
struct ReducedExponent {
  std::int64_t k;
  UInt128 r;  // in units of 2^-144
};

/// 2^63 / ln 2 and ln 2 / 2^16 in units of 2^-144, cut off.
inline constexpr std::uint64_t kInverseLn2 = 0xb8aa3b295c17f0bb;
inline constexpr std::uint64_t kLn2Step[2] = {0xb17217f7d1cf79ab, 0xc9e3b39803f2f6af};

/// The reduction of x = (-1)^negative leading 2^(exponent - 63) with -49 <= exponent < 14, which is
/// `magnitude` in units of 2^-144, modulo 2^128. Error of r: below 2^-115.4, besides that of x.
[[gnu::always_inline]] inline ReducedExponent ReduceByLn2(UInt128 magnitude, std::uint64_t leading,
                                                          int exponent, bool negative) {
  const std::uint64_t sign = negative ? ~std::uint64_t{0} : 0;
  // |x| 2^48 / ln 2, too small by less than 3; for negative x, -3 minus that. Rounding it down
  // keeps r >= 0.
  const std::uint64_t estimate = MultiplyHigh(leading, kInverseLn2) >> (14 - exponent);
  const std::int64_t k = static_cast<std::int64_t>((estimate + (sign & 2)) ^ sign) >> 32;
  // x - k ln 2 / 2^16, modulo 2^128. A negative k as a word is larger by 2^64; a negative x without
  // its last unit is the complement.
  const auto word = static_cast<std::uint64_t>(k);
  const std::uint64_t high = (High(magnitude) ^ sign) + (sign & kLn2Step[1]) - word * kLn2Step[0];
  return {k, Join(high, Low(magnitude) ^ sign) - Multiply(word, kLn2Step[1])};
}

/// 2^(i / 256) in units of 2^-127.
inline constexpr std::uint64_t kExpHigh[256][2] = {
#include "qorvex/base/elementary/detail/tables/exp_high.inc"
};
/// 2^(j / 65536) - 1 in units of 2^-128.
inline constexpr std::uint64_t kExpLow[256][2] = {
#include "qorvex/base/elementary/detail/tables/exp_low.inc"
};
/// The polynomial c3 + c4 r + c5 r^2, in units of 2^-66, 2^-50 and 2^-34.
inline constexpr std::uint64_t kExpCoefficients[3] = {0xaaaaaaaaaaaaaaae, 0x00002aaaaaaaaa48,
                                                      0x0000000008888a03};

/// e^r - 1 = r + r (r / 2 + r^2 (c3 + c4 r + c5 r^2)) in units of 2^-144. Error: 2^-113.3 by the
/// polynomial, 2^-112.3 by cutting off its value, and 4 units of 2^-128 2^-16.
[[gnu::always_inline]] inline UInt128 Expm1OfStep(UInt128 r) {
  const std::uint64_t leading = High(r);                        // of 2^-80
  const std::uint64_t square = MultiplyHigh(leading, leading);  // of 2^-96
  const std::uint64_t polynomial =
      kExpCoefficients[0] +
      MultiplyHigh(leading, kExpCoefficients[1] + MultiplyHigh(leading, kExpCoefficients[2]));
  const std::uint64_t tail = MultiplyHigh(square, polynomial);  // of 2^-98
  return r + MultiplyHighOfSmall(r, ShiftedRight(r, 17) + ShiftedLeft(tail, 30));
}

/// 2^(k / 2^16) e^r; relative error below 2^-111: that of r and e^r - 1, and 8 units of 2^-127: 1
/// for the tables, 3 for each product and 1 for what is shifted out.
[[gnu::always_inline]] inline Wide ExpOfReduced(ReducedExponent x) {
  const std::uint64_t* high = kExpHigh[x.k >> 8 & 255];
  const std::uint64_t* low = kExpLow[x.k & 255];
  const UInt128 one = Join(high[0], high[1]);
  const UInt128 power = one + MultiplyHigh(one, Join(low[0], low[1]));
  const UInt128 mantissa = power + MultiplyHighOfSmall(ShiftedRight(power, 16), Expm1OfStep(x.r));
  const std::int64_t exponent = x.k >> 16;
  // r may be larger than one step by its error, and lead to 2.
  if (mantissa >> 127 == 0) [[unlikely]]
    return {mantissa >> 1 | UInt128{1} << 127, exponent + 1};
  return {mantissa, exponent};
}

/// e^x for x = (-1)^negative significand 2^(exponent - 63) with -49 <= exponent < 14; relative
/// error below 2^-111.
[[gnu::always_inline]] inline Wide ExpOf(std::uint64_t significand, int exponent, bool negative) {
  const UInt128 magnitude = exponent >= -17 ? Join(significand << (exponent + 17), 0)
                                            : UInt128{significand} << (exponent + 81);
  return ExpOfReduced(ReduceByLn2(magnitude, significand, exponent, negative));
}

/// e^x for |x| < 2^14; relative error below 2^-111.
[[gnu::always_inline]] inline Wide ExpOf(const Wide& x) {
  const UInt128 magnitude = x.exponent >= -17
                                ? ShiftedLeft(x.mantissa, static_cast<int>(x.exponent + 17))
                                : ScaledDown(x.mantissa, -17 - x.exponent);
  // Below 2^-49, the estimate of k is 0 anyway.
  const auto exponent = static_cast<int>(std::max<std::int64_t>(x.exponent, -49));
  return ExpOfReduced(ReduceByLn2(magnitude, High(x.mantissa), exponent, x.negative));
}

}  // namespace qorvex::elementary
