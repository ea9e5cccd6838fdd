#include "qorvex/base/detail/extended_pair.h"

#include <array>
#include <cmath>
#include <cstddef>

namespace qorvex::inline QorvexGlobals::detail {

namespace {

constexpr ExtendedPair kLn2{0xb17217f7d1cf79acp-64L, -0xd871319ff0342543p-130L};
constexpr ExtendedPair kThird{0xaaaaaaaaaaaaaaabp-65L, -0xaaaaaaaaaaaaaaabp-130L};
constexpr ExtendedPair kFifth{0xcccccccccccccccdp-66L, -0xcccccccccccccccdp-132L};

// 2 artanh(s), which is ln((1 + s) / (1 - s)), for |s| < 0.006.
constexpr ExtendedPair TwiceArtanh(ExtendedPair s) {
  const ExtendedPair square = s * s;
  const Extended z = square.hi;
  const Extended tail = z * (1.0L / 7 + z * (1.0L / 9 + z * (1.0L / 11 + z * (1.0L / 13))));
  const ExtendedPair series = square * (kThird + square * (kFifth + tail));
  const ExtendedPair half = s + s * series;
  return {2 * half.hi, 2 * half.lo};
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
  const Extended rounded = std::nearbyint(mantissa * kOne);
  const Extended grid = rounded / kOne;
  const Extended low = std::ldexp(x.lo, -exponent);
  const ExtendedPair s =
      (ExactSum(mantissa - grid, low)) / (ExactSum(mantissa, grid) + ExtendedPair(low));
  const ExtendedPair& ln_of_grid = kLnOfGrid[static_cast<std::size_t>(rounded) - kLeast];
  return kLn2 * ExtendedPair(exponent) + ln_of_grid + TwiceArtanh(s);
}

}  // namespace qorvex::inline QorvexGlobals::detail
