#pragma once

#include <algorithm>
#include <bit>
#include <boost/multiprecision/cpp_int.hpp>
#include <cmath>
#include <cstdint>

#include "qorvex/base/element_types.h"

namespace qorvex::testing {

using Integer = boost::multiprecision::cpp_int;

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

/// The extended number nearest to top / bottom or to its root, ties to even.
inline Extended Nearest(const Integer& top, const Integer& bottom, bool root = false) {
  if (top == 0) return 0;
  if (top.sign() != bottom.sign()) return -Nearest(abs(top), abs(bottom), root);
  const auto bits = [](const Integer& i) { return static_cast<int>(msb(i)); };
  const int guess = (bits(top) - bits(bottom)) / (root ? 2 : 1) - 65;
  for (int exponent = std::max(guess, -16'445);; ++exponent) {
    const int scale = root ? 2 * exponent : exponent;
    const Integer n = scale < 0 ? Integer(top << -scale) : top;
    const Integer d = scale < 0 ? bottom : Integer(bottom << scale);
    const Integer floor = root ? Integer(sqrt(Integer(n / d))) : Integer(n / d);
    if (floor != 0 && bits(floor) > 63) continue;
    const Integer twice = 2 * floor + 1;
    const Integer rest = root ? Integer(4 * n - twice * twice * d) : Integer(2 * n - twice * d);
    const auto mantissa = static_cast<std::uint64_t>(floor);
    const bool up = rest > 0 || (rest == 0 && mantissa % 2 != 0);
    return std::ldexp(static_cast<Extended>(mantissa) + (up ? 1 : 0), exponent);
  }
}

/// Equal bits, or both NaN.
inline bool Same(Extended a, Extended b) {
  return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

}  // namespace qorvex::testing
