#include "qorvex/base/special/extended_pair.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace qorvex::special {

namespace {

constexpr ExtendedPair kLn2{0xb17217f7d1cf79acp-64L, -0xd871319ff0342543p-130L};

// 2 artanh(s), which is ln((1 + s) / (1 - s)), for |s| < 0.006: 2 s + 2/3 s^3 + ..., where from s^5
// on 64 bits will do.
constexpr ExtendedPair TwiceArtanh(ExtendedPair s) {
  const ExtendedPair square = ExactProduct(s.hi, s.hi);
  const ExtendedPair cube = ExactProduct(s.hi, square.hi);
  const Extended cube_low = cube.lo + s.hi * square.lo + 3 * square.hi * s.lo;
  const Extended third = cube.hi / 3;
  const Extended third_low = (((cube.hi - 2 * third) - third) + cube_low) / 3;
  const Extended z = square.hi;
  const Extended tail =
      cube.hi * z * (1.0L / 5 + z * (1.0L / 7 + z * (1.0L / 9 + z * (1.0L / 11 + z / 13))));
  const ExtendedPair half = OrderedSum(s.hi, third);
  const ExtendedPair whole = OrderedSum(half.hi, half.lo + (s.lo + (third_low + tail)));
  return {2 * whole.hi, 2 * whole.lo};
}

// The logarithms of i / 128 for i from 90 to 182, each from its neighbour:
// ln((i + 1) / i) = 2 artanh(1 / (2 i + 1)).
constexpr int kOne = 128;
constexpr int kLeast = 90;
constexpr int kMost = 182;
constexpr auto kLnOfGrid = [] {
  std::array<ExtendedPair, kMost - kLeast + 1> logarithms{};
  const auto at = [&](int i) -> ExtendedPair& {
    return logarithms[static_cast<std::size_t>(i - kLeast)];
  };
  const auto step = [](int i) { return TwiceArtanh(ExtendedPair(1) / ExtendedPair(2 * i + 1)); };
  for (int i = kOne; i < kMost; ++i) at(i + 1) = at(i) + step(i);
  for (int i = kOne; i > kLeast; --i) at(i - 1) = at(i) - step(i - 1);
  return logarithms;
}();

}  // namespace

ExtendedPair Ln(ExtendedPair x) {
  int exponent = 0;
  Extended mantissa = std::frexp(x.hi, &exponent);
  constexpr Extended root_of_half = 0.70710678118654752440L;
  if (mantissa < root_of_half) {
    mantissa *= 2;
    --exponent;
  }
  // x = 2^exponent * grid * (1 + s) / (1 - s)
  const Extended rounded = std::rint(mantissa * kOne);
  const Extended grid = rounded / kOne;
  const Extended low = std::ldexp(x.lo, -exponent);
  const ExtendedPair s =
      (ExactSum(mantissa - grid, low)) / (ExactSum(mantissa, grid) + ExtendedPair(low));
  const ExtendedPair& ln_of_grid = kLnOfGrid[static_cast<std::size_t>(rounded) - kLeast];
  return kLn2 * ExtendedPair(exponent) + ln_of_grid + TwiceArtanh(s);
}

ExtendedPair Exp(ExtendedPair x) {
  const Extended rough = Exp(x.hi);
  if (!(rough > 0 && std::isfinite(rough))) return rough;
  // A step of Newton's iteration for Ln y = x.
  return OrderedSum(rough, rough * (x - Ln(rough)).hi);
}

}  // namespace qorvex::special
