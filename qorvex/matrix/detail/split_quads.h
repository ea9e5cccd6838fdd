#pragma once

// Sums of products in extended precision at the speed of the floating-point unit.
//
// Loading an 80-bit value costs a processor several times as much as loading a double, and an
// addition waits some cycles for the one before. So values that serve many products are stored as
// the sum of two doubles, which is exact, and four sums run side by side. Each sum still adds its
// products one by one, in ascending order, and rounds each product and each sum to 64 bits.

#include <cmath>
#include <cstddef>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexMatrix::detail {

inline constexpr std::size_t kQuad = 4;

// Four values side by side in a row, each high[i] + low[i].
struct SplitQuad {
  double high[kQuad];
  double low[kQuad];

  [[nodiscard]] Extended operator[](std::size_t i) const noexcept {
    return static_cast<Extended>(high[i]) + static_cast<Extended>(low[i]);
  }

  // Stores count values and zeros behind them. False when one is not the sum of two doubles: it is
  // infinite, NaN or far from one.
  [[nodiscard]] bool Store(const Extended* values, std::size_t count) noexcept {
    constexpr Extended largest = 0x1p+1000L;
    constexpr Extended smallest = 0x1p-900L;
    bool exact = true;
    for (std::size_t i = 0; i < kQuad; ++i) {
      const Extended x = i < count ? values[i] : 0;
      const Extended magnitude = std::fabs(x);
      exact &= x == 0 || (magnitude >= smallest && magnitude <= largest);
      high[i] = static_cast<double>(x);
      // -(high - x), not x - high: a remainder of nothing is then -0, which keeps the sign of
      // zeros.
      low[i] = static_cast<double>(-(static_cast<Extended>(high[i]) - x));
    }
    return exact;
  }
};

// Four values as they are.
struct PlainQuad {
  Extended values[kQuad];

  [[nodiscard]] Extended operator[](std::size_t i) const noexcept { return values[i]; }

  void Store(const Extended* from, std::size_t count) noexcept {
    for (std::size_t i = 0; i < kQuad; ++i) values[i] = i < count ? from[i] : 0;
  }
};

// sums[j] += factors[k] * quads[k][j] for k ascending and each of the four j.
template <class Quad>
inline void AddProducts(Extended* sums, const Extended* factors, const Quad* quads,
                        std::size_t count) noexcept {
  Extended sum0 = sums[0];
  Extended sum1 = sums[1];
  Extended sum2 = sums[2];
  Extended sum3 = sums[3];
  for (std::size_t k = 0; k < count; ++k) {
    const Extended factor = factors[k];
    sum0 += quads[k][0] * factor;
    sum1 += quads[k][1] * factor;
    sum2 += quads[k][2] * factor;
    sum3 += quads[k][3] * factor;
  }
  sums[0] = sum0;
  sums[1] = sum1;
  sums[2] = sum2;
  sums[3] = sum3;
}

// The same for the first few sums of a row's last, incomplete four.
template <class Quad>
inline void AddProducts(Extended* sums, const Extended* factors, const Quad* quads,
                        std::size_t count, std::size_t width) noexcept {
  if (width >= kQuad) return AddProducts(sums, factors, quads, count);
  Extended padded[kQuad] = {};
  for (std::size_t i = 0; i < width; ++i) padded[i] = sums[i];
  AddProducts(padded, factors, quads, count);
  for (std::size_t i = 0; i < width; ++i) sums[i] = padded[i];
}

}  // namespace qorvex::inline QorvexMatrix::detail
