#pragma once

#include <algorithm>
#include <bit>
#include <boost/multiprecision/cpp_int.hpp>
#include <cmath>
#include <cstdint>

#include "qorvex/base/element_types.h"

namespace qorvex::testing {

using Integer = boost::multiprecision::cpp_int;
using Fraction = boost::multiprecision::cpp_rational;

/// A finite number as mantissa * 2^exponent.
struct Binary {
  Integer mantissa;
  int exponent = 0;

  explicit Binary(Extended x) {
    const Extended fraction = std::frexp(std::fabs(x), &exponent);
    mantissa = static_cast<std::uint64_t>(std::ldexp(fraction, 64));
    if (x < 0) mantissa = -mantissa;
    exponent -= 64;
  }
  Binary& operator*=(const Binary& other) {
    mantissa *= other.mantissa;
    exponent += other.exponent;
    return *this;
  }
};

/// The exact value of a finite number.
inline Fraction Exactly(Extended x) {
  const Binary parts(x);
  return parts.exponent < 0 ? Fraction(parts.mantissa, Integer(1) << -parts.exponent)
                            : Fraction(parts.mantissa << parts.exponent);
}

/// The extended number nearest to the fraction or to its root, ties to even.
inline Extended Nearest(const Fraction& x, bool root = false) {
  if (x == 0) return 0;
  if (x < 0) return -Nearest(-x);
  const auto bits = [](const Integer& i) { return static_cast<int>(msb(i)); };
  const int guess = (bits(numerator(x)) - bits(denominator(x))) / (root ? 2 : 1) - 66;
  for (int exponent = std::max(guess, -16'445);; ++exponent) {
    // x = top / bottom * 2^scale
    const int scale = root ? 2 * exponent : exponent;
    const Integer top = scale < 0 ? Integer(numerator(x) << -scale) : numerator(x);
    const Integer bottom = scale < 0 ? denominator(x) : Integer(denominator(x) << scale);
    const Integer floor = root ? Integer(sqrt(Integer(top / bottom))) : Integer(top / bottom);
    if (floor != 0 && bits(floor) > 63) continue;
    const Integer twice = 2 * floor + 1;
    const Integer above =
        root ? Integer(4 * top - twice * twice * bottom) : Integer(2 * top - twice * bottom);
    const auto mantissa = static_cast<std::uint64_t>(floor);
    const bool up = above > 0 || (above == 0 && mantissa % 2 != 0);
    return std::ldexp(static_cast<Extended>(mantissa) + (up ? 1 : 0), exponent);
  }
}

/// Equal bits, or both NaN.
inline bool Same(Extended a, Extended b) {
  return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

}  // namespace qorvex::testing
