#pragma once

/// @file
/// Integers without a limit, for results that have to be exact before they are rounded once.

#include <compare>
#include <concepts>
#include <cstddef>
#include <cstdint>
#include <span>

#include "qorvex/base/exact/limbs.h"
#include "qorvex/base/export.h"

namespace qorvex::exact {

/// A signed integer of any size: a sign, and a magnitude in base 2^64.
///
/// - Up to eight limbs (512 bits) need no allocation.
/// - n is the number of limbs in the costs below.
class QORVEX_EXPORT BigInteger {
 public:
  /// 0.
  BigInteger() = default;
  /// The value of any built-in integer of up to 64 bits.
  template <std::integral Integer>
  requires(sizeof(Integer) <= sizeof(std::uint64_t)) BigInteger(Integer value)
      : negative_(value < 0) {  // NOLINT: a wider integer
    const auto bits = static_cast<std::uint64_t>(value);
    SetMagnitude(negative_ ? 0 - bits : bits);
  }
  /// The integer with this magnitude, given from the least significant limb on.
  [[nodiscard]] static BigInteger FromLimbs(std::span<const std::uint64_t> magnitude,
                                            bool negative = false);
  /// 10^exponent.
  [[nodiscard]] static BigInteger PowerOfTen(unsigned exponent);

  /// -1, 0 or 1.
  [[nodiscard]] int Sign() const { return limbs_.Size() == 0 ? 0 : negative_ ? -1 : 1; }
  /// The magnitude, from the least significant limb on, without zeros at its end.
  [[nodiscard]] std::span<const std::uint64_t> Magnitude() const { return limbs_.View(); }
  /// The number of bits of the magnitude; 0 for 0.
  [[nodiscard]] std::size_t BitLength() const;
  /// The number of zeros below the lowest bit that is set; 0 for 0.
  [[nodiscard]] std::size_t TrailingZeros() const;

  /// The negative.
  [[nodiscard]] BigInteger operator-() const;
  /// @{
  /// Sums and differences: O(n).
  BigInteger& operator+=(const BigInteger& other);
  BigInteger& operator-=(const BigInteger& other);
  [[nodiscard]] friend BigInteger operator+(BigInteger a, const BigInteger& b) { return a += b; }
  [[nodiscard]] friend BigInteger operator-(BigInteger a, const BigInteger& b) { return a -= b; }
  /// @}
  /// @{
  /// The product: O(n m).
  BigInteger& operator*=(const BigInteger& other) { return *this = *this * other; }
  QORVEX_EXPORT friend BigInteger operator*(const BigInteger& a, const BigInteger& b);
  /// @}
  /// @{
  /// Times a power of two. A shift to the right drops bits of the magnitude, so it rounds towards
  /// 0.
  BigInteger& operator<<=(std::size_t count);
  BigInteger& operator>>=(std::size_t count);
  [[nodiscard]] friend BigInteger operator<<(BigInteger a, std::size_t count) {
    return a <<= count;
  }
  [[nodiscard]] friend BigInteger operator>>(BigInteger a, std::size_t count) {
    return a >>= count;
  }
  /// @}

  /// Equal values.
  QORVEX_EXPORT friend bool operator==(const BigInteger& a, const BigInteger& b);
  /// The order of the values.
  QORVEX_EXPORT friend std::strong_ordering operator<=>(const BigInteger& a, const BigInteger& b);

 private:
  void SetMagnitude(std::uint64_t magnitude) {
    limbs_.Resize(1);
    limbs_[0] = magnitude;
    limbs_.Trim();
  }
  // Adds b, or -b.
  void Add(const BigInteger& b, bool negate);

  Limbs limbs_;
  bool negative_ = false;
};

/// A quotient rounded towards 0, and what remains; the remainder has the sign of the dividend.
struct Division {
  /// dividend / divisor without its fraction.
  BigInteger quotient;
  /// dividend - quotient * divisor.
  BigInteger remainder;
};

/// Divides with remainder.
///
/// - EZeroDivide for a divisor of 0.
/// - O(n m). Knuth (1997), "The Art of Computer Programming", volume 2, section 4.3.1, algorithm D.
[[nodiscard]] QORVEX_EXPORT Division Divide(const BigInteger& dividend, const BigInteger& divisor);

/// The quotient rounded towards 0. EZeroDivide for a divisor of 0.
[[nodiscard]] inline BigInteger operator/(const BigInteger& a, const BigInteger& b) {
  return Divide(a, b).quotient;
}

/// The greatest integer whose square is at most `value`. EInvalidOp for a negative value. Newton's
/// iteration from above: the cost of a few divisions.
[[nodiscard]] QORVEX_EXPORT BigInteger SquareRoot(const BigInteger& value);

}  // namespace qorvex::exact
