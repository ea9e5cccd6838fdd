#pragma once

/// @file
/// Integers times powers of two: every finite floating-point number, and every sum and product of
/// such numbers.

#include <compare>
#include <concepts>
#include <cstdint>
#include <utility>

#include "qorvex/base/element_types.h"
#include "qorvex/base/exact/big_integer.h"
#include "qorvex/base/export.h"

namespace qorvex::exact {

/// mantissa * 2^exponent, exactly. The mantissa is odd, or 0 with the exponent 0, so equal values
/// have equal parts.
class QORVEX_EXPORT Dyadic {
 public:
  /// 0.
  Dyadic() = default;
  /// An integer of up to 64 bits.
  template <std::integral Integer>
  requires(sizeof(Integer) <= sizeof(std::uint64_t)) Dyadic(Integer value)
      : Dyadic(BigInteger(value)) {}  // NOLINT: a wider number
  /// A finite floating-point number. EInvalidOp for an infinity and for NaN.
  Dyadic(Extended value);  // NOLINT: a wider number
  /// mantissa * 2^exponent.
  explicit Dyadic(BigInteger mantissa, std::int64_t exponent = 0)
      : mantissa_(std::move(mantissa)), exponent_(exponent) {
    Normalise();
  }

  /// Odd, or 0.
  [[nodiscard]] const BigInteger& Mantissa() const { return mantissa_; }
  /// The exponent of the mantissa; 0 for 0.
  [[nodiscard]] std::int64_t Exponent() const { return exponent_; }
  /// -1, 0 or 1.
  [[nodiscard]] int Sign() const { return mantissa_.Sign(); }
  /// The number e with 2^(e-1) <= |x| < 2^e. Meaningless for 0.
  [[nodiscard]] std::int64_t MagnitudeExponent() const {
    return exponent_ + static_cast<std::int64_t>(mantissa_.BitLength());
  }

  /// The negative.
  [[nodiscard]] Dyadic operator-() const;
  /// @{
  /// Exact. A sum takes as many bits as lie between its highest and its lowest.
  QORVEX_EXPORT friend Dyadic operator+(const Dyadic& a, const Dyadic& b);
  QORVEX_EXPORT friend Dyadic operator-(const Dyadic& a, const Dyadic& b);
  QORVEX_EXPORT friend Dyadic operator*(const Dyadic& a, const Dyadic& b);
  Dyadic& operator+=(const Dyadic& other) { return *this = *this + other; }
  Dyadic& operator-=(const Dyadic& other) { return *this = *this - other; }
  Dyadic& operator*=(const Dyadic& other) { return *this = *this * other; }
  /// @}
  /// The value times 2^count.
  [[nodiscard]] Dyadic Shifted(std::int64_t count) const;
  /// The value with no more than the given number of bits, rounded towards 0.
  [[nodiscard]] Dyadic Truncated(std::size_t bits) const;
  /// The nearest extended value, ties to even; infinite beyond the format. A negative value that
  /// rounds to 0 gives -0.
  [[nodiscard]] Extended Round() const;

  /// Equal values.
  [[nodiscard]] friend bool operator==(const Dyadic& a, const Dyadic& b) {
    return a.exponent_ == b.exponent_ && a.mantissa_ == b.mantissa_;
  }
  /// The order of the values.
  QORVEX_EXPORT friend std::strong_ordering operator<=>(const Dyadic& a, const Dyadic& b);

 private:
  void Normalise();

  BigInteger mantissa_;
  std::int64_t exponent_ = 0;
};

}  // namespace qorvex::exact
