#pragma once

/// @file
/// Binomial coefficients and probabilities of few trials as products. What has 64 bits, such as
/// 3/8, is exact.

#include <cmath>
#include <cstdint>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::special {

using elementary::Wide;

/// The numbers of trials below this have exact coefficients.
inline constexpr int kExactTrials = 256;

/// Whether ExactCoefficient(n, k) exists.
[[nodiscard]] inline bool HasExactCoefficient(Extended n, Extended k) {
  return n < kExactTrials || k == 0 || k == n;
}

/// C(n, k), to some 117 bits.
[[nodiscard]] Wide ExactCoefficient(std::uint64_t n, std::uint64_t k);

/// C(n, k) p^k q^(n - k), to some 115 bits.
[[nodiscard]] Wide ExactProbability(std::uint64_t n, std::uint64_t k, const Wide& p, const Wide& q);

/// Whether x^n is within 2^+-2^23: always for n < 256, where an exact result is worth having. Far
/// beyond, squaring would leave the range of the exponents, and logarithms are as accurate.
[[nodiscard]] inline bool HasWholePower(const Wide& x, Extended n) {
  return n * std::fabs(static_cast<Extended>(x.exponent)) < 0x1p23L;
}

/// x^n by squaring, off by about n 2^-124 of itself.
[[nodiscard]] Wide WholePower(const Wide& x, std::uint64_t n);

}  // namespace qorvex::special
