#pragma once

// Numbers of 256 bits for the second stage of a function, which decides where the first stage
// comes too close to the middle between two results. One call in 10^8 needs it, so it is short
// rather than fast: a product takes some 20 ns, a function some microseconds.

#include <array>
#include <cstdint>

#include "qorvex/base/elementary/detail/wide.h"

namespace qorvex::elementary {

/// (-1)^negative mantissa 2^(exponent - 255), with the top bit of the mantissa set; 0 has a
/// mantissa of 0. The words run from the lowest to the highest. Sums and products are cut off:
/// relative error below 2^-252, for a difference below 2^-252 of the larger operand; that of
/// quotients is below 2^-246.
struct Wide256 {
  using Words = std::array<std::uint64_t, 4>;

  Words mantissa{};
  std::int64_t exponent = 0;
  bool negative = false;

  constexpr Wide256() = default;
  constexpr Wide256(const Words& m, std::int64_t e, bool is_negative = false)
      : mantissa(m), exponent(e), negative(is_negative) {}
  Wide256(const Wide& x);                       // NOLINT: a wider number
  Wide256(Extended x) : Wide256(Wide(x)) {}     // NOLINT
  Wide256(std::int64_t x);                      // NOLINT
  Wide256(int x) : Wide256(std::int64_t{x}) {}  // NOLINT

  [[nodiscard]] bool IsZero() const { return mantissa[3] == 0; }
  Wide256 operator-() const { return {mantissa, exponent, !negative}; }
  /// The 128 leading bits.
  [[nodiscard]] Wide Leading() const;
};

[[nodiscard]] Wide256 operator+(const Wide256& a, const Wide256& b);
[[nodiscard]] inline Wide256 operator-(const Wide256& a, const Wide256& b) {
  return a + -b;
}
[[nodiscard]] Wide256 operator*(const Wide256& a, const Wide256& b);
/// By a divisor other than 0.
[[nodiscard]] Wide256 operator/(const Wide256& a, const Wide256& b);
/// By a word other than 0, quicker. A divisor of more than 63 bits may cost some of
/// the precision.
[[nodiscard]] Wide256 DividedBy(const Wide256& x, std::uint64_t divisor);
/// 2^k x.
[[nodiscard]] Wide256 ScaledBy(const Wide256& x, std::int64_t k);
/// The integer nearest to x, |x| < 2^62.
[[nodiscard]] std::int64_t NearestInteger(const Wide256& x);

/// pi and ln 2, cut off.
extern const Wide256 kPi256;
extern const Wide256 kLn2Of256;

/// e^x and e^x - 1 for |x| < 2^16; relative error below 2^-230.
[[nodiscard]] Wide256 Exp(const Wide256& x);
[[nodiscard]] Wide256 Expm1(const Wide256& x);

/// The bits of the nearest extended number. The number is first rounded to 200 bits: an error of
/// less than 2^-201 of it does no harm unless it exceeds the distance to the nearest midpoint, and
/// a result that is a midpoint or an extended number exactly is recognised as one.
[[nodiscard]] Binary80 NearestBits(const Wide256& x) noexcept;

}  // namespace qorvex::elementary
