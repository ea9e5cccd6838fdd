#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <optional>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexVector::detail {

/// A running sum, counted in units of its last bit.
///
/// - While the sum stays between two neighbouring powers of two, its unit u does not change, and
///   adding x rounds x / u to an integer. Each term of a block can therefore be rounded on its
///   own, and the integers added in any order.
/// - Only if x / u is a tie, exactly between two integers, does the rounding depend on the sum: the
///   new sum is even.
/// - A block that might leave the range between the powers of two is refused.
class LatticeSum {
 public:
  /// The least mantissa, and the number of mantissas.
  static constexpr std::uint64_t kLeast = std::uint64_t{1} << 63;
  /// The terms of a block.
  static constexpr std::size_t kBlock = 64;

  explicit LatticeSum(const Extended& sum) noexcept {
    std::memcpy(&mantissa_, &sum, sizeof mantissa_);
    std::memcpy(&sign_and_exponent_, reinterpret_cast<const char*>(&sum) + sizeof mantissa_,
                sizeof sign_and_exponent_);
  }

  void Store(Extended& sum) const noexcept { std::memcpy(&sum, &mantissa_, sizeof mantissa_); }

  /// Finite, and neither zero nor subnormal.
  [[nodiscard]] bool IsNormal() const noexcept {
    return mantissa_ >= kLeast && Exponent() != 0 && Exponent() != kExponentBits;
  }
  [[nodiscard]] bool IsOdd() const noexcept { return mantissa_ % 2 != 0; }
  [[nodiscard]] bool IsNegative() const noexcept { return sign_and_exponent_ > kExponentBits; }
  /// With the bias of the format.
  [[nodiscard]] int Exponent() const noexcept { return sign_and_exponent_ & kExponentBits; }

  /// 1 / u with the sign of the sum, so that the sum counts as positive, if doubles can be
  /// multiplied by it without trouble.
  [[nodiscard]] std::optional<double> Scale() const noexcept {
    constexpr int kMost = 900;
    const int exponent = kBias + 63 - Exponent();
    if (!IsNormal() || exponent < -kMost || exponent > kMost) return std::nullopt;
    const double scale = std::bit_cast<double>(static_cast<std::uint64_t>(exponent + 1023) << 52);
    return IsNegative() ? -scale : scale;
  }

  /// Adds a block whose rounded terms have the sum `units`. False, and nothing is added, unless all
  /// partial sums certainly stay in range, for any order of the terms. `magnitude` is at least the
  /// sum of all |x / u|, plus 2 * kBlock for rounding.
  [[nodiscard]] bool Add(std::int64_t units, std::uint64_t magnitude) noexcept {
    if (magnitude >= kLeast) return false;
    // Of the positive and of the negative terms.
    const std::uint64_t up = (magnitude + static_cast<std::uint64_t>(units)) / 2;
    const std::uint64_t down = (magnitude - static_cast<std::uint64_t>(units)) / 2;
    const std::uint64_t above_least = mantissa_ - kLeast;
    if (down > above_least || above_least + up >= kLeast) return false;
    mantissa_ += static_cast<std::uint64_t>(units);
    return true;
  }

  /// Magnitudes of terms of extended precision can have 64 bits. Kernels shift them right by this
  /// much before they add them, and the sum left again.
  static constexpr int kMagnitudeShift = 8;
  /// The greatest such sum that Add accepts.
  static constexpr std::uint64_t kMostShifted = (kLeast >> kMagnitudeShift) - kBlock - 2;

  /// Subnormal terms do not change sums with at least this exponent.
  static constexpr int kLeastExponent = 128;

 private:
  static constexpr int kExponentBits = 0x7FFF;
  static constexpr int kBias = 0x3FFF;

  std::uint64_t mantissa_ = 0;
  std::uint16_t sign_and_exponent_ = 0;
};

}  // namespace qorvex::inline QorvexVector::detail
