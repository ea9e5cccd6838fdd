#pragma once

// Sums of products in extended precision.
//
// Loading an 80-bit value takes several times as long as loading a double, and each addition has to
// wait for the one before it. So values that are used in many products are stored as the sum of two
// doubles, which is exact, and two sums are computed for each of two rows at a time: four sums, two
// factors, a value and a product are the eight registers of the unit. Each sum still adds its
// products one by one, in ascending order, and rounds each product and each sum to 64 bits.

#include <cstddef>
#include <cstdint>
#include <cstring>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexMatrix::detail {

inline constexpr std::size_t kPair = 2;

// Two adjacent elements of a row, each stored as high[i] + low[i].
struct SplitPair {
  double high[kPair];
  double low[kPair];

  [[nodiscard]] Extended operator[](std::size_t i) const noexcept {
    return static_cast<Extended>(high[i]) + static_cast<Extended>(low[i]);
  }

  // Returns false if a value is not exactly the sum of two doubles: if it is infinite, NaN, or too
  // large or too small.
  [[nodiscard]] bool Store(const Extended* values) noexcept {
    bool exact = true;
    for (std::size_t i = 0; i < kPair; ++i) {
      const Extended x = values[i];
      exact &= IsSplittable(values[i]);
      high[i] = static_cast<double>(x);
      // -(high - x) instead of x - high: a remainder of zero is then -0, so that adding it keeps
      // the sign of a zero.
      low[i] = static_cast<double>(-(static_cast<Extended>(high[i]) - x));
    }
    return exact;
  }

 private:
  // True for zero and for magnitudes from 2^-900 to below 2^1000. Reads the bits of the exponent,
  // because comparisons take longer than the splitting.
  static bool IsSplittable(const Extended& x) noexcept {
    constexpr unsigned bias = 16383;
    std::uint16_t bits = 0;
    std::memcpy(&bits, reinterpret_cast<const char*>(&x) + sizeof(std::uint64_t), sizeof bits);
    const unsigned exponent = bits & 0x7FFFU;
    return exponent - (bias - 900) < 1900 || x == 0;
  }
};

// Two adjacent elements of a row, stored in extended precision.
struct PlainPair {
  Extended values[kPair];

  [[nodiscard]] Extended operator[](std::size_t i) const noexcept { return values[i]; }

  bool Store(const Extended* from) noexcept {
    std::memcpy(values, from, sizeof values);
    return true;
  }
};

// sums0[j] += factors0[k] * pairs[k][j] for k ascending and both j, and the same for sums1.
template <class Pair>
inline void AddProducts(Extended* sums0, Extended* sums1, const Extended* factors0,
                        const Extended* factors1, const Pair* pairs, std::size_t count) noexcept {
  Extended sum00 = sums0[0];
  Extended sum01 = sums0[1];
  Extended sum10 = sums1[0];
  Extended sum11 = sums1[1];
  for (std::size_t k = 0; k < count; ++k) {
    const Extended factor0 = factors0[k];
    const Extended factor1 = factors1[k];
    const Extended left = pairs[k][0];
    sum00 += left * factor0;
    sum10 += left * factor1;
    const Extended right = pairs[k][1];
    sum01 += right * factor0;
    sum11 += right * factor1;
  }
  sums0[0] = sum00;
  sums0[1] = sum01;
  sums1[0] = sum10;
  sums1[1] = sum11;
}

}  // namespace qorvex::inline QorvexMatrix::detail
