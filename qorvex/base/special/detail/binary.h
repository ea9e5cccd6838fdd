#pragma once

/// @file
/// Products and whole powers of pairs, far beyond the exponents of the format. What has 64 bits,
/// such as 3/8, is exact.

#include <cmath>
#include <cstdint>

#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// mantissa * 2^exponent with a mantissa in [1/2, 1) and a whole exponent.
struct Binary {
  ExtendedPair mantissa;
  Extended exponent;
};

/// x * 2^exponent.
[[nodiscard]] inline ExtendedPair TimesPowerOf2(ExtendedPair x, int exponent) {
  return {std::ldexp(x.hi, exponent), std::ldexp(x.lo, exponent)};
}

/// x * 2^exponent for x > 0.
[[nodiscard]] Binary MakeBinary(ExtendedPair x, Extended exponent = 0);

[[nodiscard]] inline Binary operator*(const Binary& a, const Binary& b) {
  return MakeBinary(a.mantissa * b.mantissa, a.exponent + b.exponent);
}

[[nodiscard]] Scaled ToScaled(const Binary& x);

/// x^n by squaring, off by about n 2^-122 of itself.
[[nodiscard]] Binary WholePower(ExtendedPair x, std::uint64_t n);

}  // namespace qorvex::special
