#pragma once

// Sums of products in extended precision.
//
// Loading an 80-bit value takes several times as long as loading a double, and each addition has to
// wait for the one before it. So values that are used in many products are stored as the sum of two
// doubles, which is exact, and four sums are computed at a time. Each sum still adds its products
// one by one, in ascending order, and rounds each product and each sum to 64 bits.

#include <cmath>
#include <cstddef>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexMatrix::detail {

inline constexpr std::size_t kQuad = 4;

// Four adjacent elements of a row, each stored as high[i] + low[i].
struct SplitQuad {
  double high[kQuad];
  double low[kQuad];

  [[nodiscard]] Extended operator[](std::size_t i) const noexcept {
    return static_cast<Extended>(high[i]) + static_cast<Extended>(low[i]);
  }

  // Stores count values, followed by zeros. Returns false if a value is not exactly the sum of two
  // doubles: if it is infinite, NaN, or too large or too small.
  [[nodiscard]] bool Store(const Extended* values, std::size_t count) noexcept {
    constexpr Extended largest = 0x1p+1000L;
    constexpr Extended smallest = 0x1p-900L;
    bool exact = true;
    for (std::size_t i = 0; i < kQuad; ++i) {
      const Extended x = i < count ? values[i] : 0;
      const Extended magnitude = std::fabs(x);
      exact &= x == 0 || (magnitude >= smallest && magnitude <= largest);
      high[i] = static_cast<double>(x);
      // -(high - x) instead of x - high: a remainder of zero is then -0, so that adding it keeps
      // the sign of a zero.
      low[i] = static_cast<double>(-(static_cast<Extended>(high[i]) - x));
    }
    return exact;
  }
};

// Four adjacent elements of a row, stored in extended precision.
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

// The same for the last quad of a row, which may have fewer than four elements.
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
