#pragma once

// e^x in 128 bits, for the exponential functions, powers and densities.

#include <algorithm>
#include <cstdint>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

// Reduction: x = (k + f) ln 2 / 2^16 with an integer k and 0 <= f < 1.05, so that
// e^x = 2^(k / 2^16) e^r with r = f ln 2 / 2^16 < 2^-16.4.

/// k, and r in units of 2^-127.
struct ReducedExponent {
  std::int64_t k;
  UInt128 r;
};

/// 2^63 / ln 2, cut off.
inline constexpr std::uint64_t kInverseLn2 = 0xb8aa3b295c17f0bb;

/// The reduction of x < 2^40 in absolute value, from |x| 2^127 modulo 2^128, cut off, from the 64
/// leading bits of x, and from its exponent. r is wrong by less than 3 units.
[[gnu::always_inline]] inline ReducedExponent ReduceByLn2(UInt128 fixed, std::uint64_t leading,
                                                          int exponent, bool negative) {
  // ln 2 / 2^16 in units of 2^-191.
  constexpr std::uint64_t kLn2Step[3] = {0x000058b90bfbe8e7, 0xbcd5e4f1d9cc01f9,
                                         0x7b57a079a193394c};
  const std::uint64_t sign = negative ? ~std::uint64_t{0} : 0;
  // |x| 2^22 / ln 2, too small by less than 3. The number of steps is rounded down or, for negative
  // x, up, so that r >= 0.
  const std::uint64_t estimate = MultiplyHigh(leading, kInverseLn2) >> std::min(40 - exponent, 63);
  const std::uint64_t steps = (estimate + (sign & 66)) >> 6;
  const UInt128 multiple = Multiply(steps, kLn2Step[1]) + Join(steps * kLn2Step[0], 0) +
                           MultiplyHigh(steps, kLn2Step[2]);
  const UInt128 rest = fixed - multiple;
  return {static_cast<std::int64_t>((steps ^ sign) - sign), (rest ^ Join(sign, sign)) + (sign & 1)};
}

/// 2^(i / 256) in units of 2^-127.
inline constexpr std::uint64_t kExpHigh[256][2] = {
#include "qorvex/base/elementary/detail/tables/exp_high.inc"
};
/// 2^(j / 65536) - 1 in units of 2^-128.
inline constexpr std::uint64_t kExpLow[256][2] = {
#include "qorvex/base/elementary/detail/tables/exp_low.inc"
};

/// e^r - 1 in units of 2^-127 = r + r^2 / 2 + r^3 (c3 + c4 r + c5 r^2). Error: 2^-113.3 by the
/// polynomial, 2^-111.9 by cutting off its last part, and 2 units.
[[gnu::always_inline]] inline UInt128 Expm1OfStep(UInt128 r) {
  // In units of 2^-66, 2^-50, 2^-34.
  constexpr std::uint64_t kCoefficients[3] = {0xaaaaaaaaaaaaaaaf, 0x00002aaaaaaaaa3f,
                                              0x0000000008888a15};
  const std::uint64_t leading = Low(r >> 47);                                        // of 2^-80
  const std::uint64_t cube = MultiplyHigh(MultiplyHigh(leading, leading), leading);  // of 2^-112
  const std::uint64_t polynomial =
      kCoefficients[0] +
      MultiplyHigh(leading, kCoefficients[1] + MultiplyHigh(leading, kCoefficients[2]));
  return r + MultiplyHigh(r, r) + (UInt128{MultiplyHigh(cube, polynomial)} << 13);
}

/// 2^(k / 2^16) e^r; relative error below 2^-111: that of e^r - 1, 3 units of 2^-127 in r, 4 for
/// the tables and their product, and 4 for the last product.
[[gnu::always_inline]] inline Wide ExpOfReduced(ReducedExponent x) {
  const std::uint64_t* high = kExpHigh[x.k >> 8 & 255];
  const std::uint64_t* low = kExpLow[x.k & 255];
  const UInt128 one = Join(high[0], high[1]);
  const UInt128 power = one + MultiplyHigh(one, Join(low[0], low[1]));
  const UInt128 product = MultiplyHigh(power, Expm1OfStep(x.r));
  const UInt128 mantissa = power + product + product;
  const std::int64_t exponent = x.k >> 16;
  // f > 1 may lead to 2 and beyond.
  if (mantissa >> 127 == 0) [[unlikely]]
    return {mantissa >> 1 | UInt128{1} << 127, exponent + 1};
  return {mantissa, exponent};
}

/// e^x for x = (-1)^negative significand 2^(exponent - 63), with the top bit of the significand set
/// and -64 <= exponent < 40; relative error below 2^-111.
[[gnu::always_inline]] inline Wide ExpOf(std::uint64_t significand, int exponent, bool negative) {
  return ExpOfReduced(
      ReduceByLn2(UInt128{significand} << (exponent + 64), significand, exponent, negative));
}

/// e^x for |x| < 2^40; relative error below 2^-111.
[[gnu::always_inline]] inline Wide ExpOf(const Wide& x) {
  const int exponent = static_cast<int>(std::max<std::int64_t>(x.exponent, -127));
  const int left = std::max(exponent, 0);
  const int right = left - exponent;
  return ExpOfReduced(
      ReduceByLn2(x.mantissa >> right << left, High(x.mantissa), exponent, x.negative));
}

}  // namespace qorvex::elementary
