#pragma once

/// @file
/// Numbers far beyond the extended range, such as powers and gamma functions.

#include <cstdint>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/base/special/extended_pair.h"

namespace qorvex::special {

/// A number of 128 bits as it is stored, (-1)^negative (high 2^64 + low) 2^(exponent - 127). Only
/// the library computes with it.
struct StoredWide {
  /// @{
  /// The words of the mantissa, whose top bit is set unless the number is 0.
  std::uint64_t high = 0;
  std::uint64_t low = 0;
  /// @}
  /// The power of two of the top bit.
  std::int64_t exponent = 0;
  /// The sign.
  bool negative = false;
};

/// factor * e^exponent, both of 128 bits: products of powers, exponentials and factorials keep some
/// 30 bits more than the format has, and the number is rounded once, by Value or Log.
class QORVEX_EXPORT Scaled {
 public:
  /// 1.
  Scaled() = default;
  /// factor * e^exponent. An infinite exponent makes it 0 or infinity; NaN makes it NaN.
  Scaled(Extended factor, ExtendedPair exponent);
  /// A single value.
  Scaled(Extended value);  // NOLINT: a wider number

  /// The number itself; 0 or infinity beyond the range.
  [[nodiscard]] Extended Value() const;
  /// Its natural logarithm, -infinity for 0.
  [[nodiscard]] Extended Log() const;
  /// 1 minus it, for numbers up to 1.
  [[nodiscard]] Extended Rest() const;
  /// The natural logarithm of 1 minus it; -infinity for 1 and more.
  [[nodiscard]] Extended LogOfRest() const;
  /// Whether it is 0.
  [[nodiscard]] bool IsZero() const;

  /// @{
  /// Product, quotient, sum and difference.
  friend QORVEX_EXPORT Scaled operator*(const Scaled& a, const Scaled& b);
  friend QORVEX_EXPORT Scaled operator*(const Scaled& a, Extended b);
  friend QORVEX_EXPORT Scaled operator/(const Scaled& a, const Scaled& b);
  friend QORVEX_EXPORT Scaled operator+(const Scaled& a, const Scaled& b);
  friend QORVEX_EXPORT Scaled operator-(const Scaled& a, const Scaled& b);
  /// @}

 private:
  friend struct ScaledParts;
  // Whether it is a bounded number without a power of e.
  [[nodiscard]] bool IsPlain() const { return exponent_.high == 0 && unbounded_ == 0; }
  Scaled(const StoredWide& factor, const StoredWide& exponent, Extended unbounded)
      : factor_(factor), exponent_(exponent), unbounded_(unbounded) {}

  StoredWide factor_{std::uint64_t{1} << 63};
  StoredWide exponent_;
  // 0, or what takes the number out of all bounds: an infinite exponent, or NaN.
  Extended unbounded_ = 0;
};

/// The natural logarithm of a positive number.
[[nodiscard]] QORVEX_EXPORT ExtendedPair Ln(const Scaled& number);

/// The square root of a number >= 0.
[[nodiscard]] QORVEX_EXPORT Scaled SquareRoot(const Scaled& number);

/// x^y for x > 0; 1 for y = 0.
[[nodiscard]] QORVEX_EXPORT Scaled Power(ExtendedPair x, ExtendedPair y);

}  // namespace qorvex::special
