#pragma once

/// @file
/// The three currency types: their arithmetic, and the conversions between them.
///
/// | type              | stored in | one unit  | resolution |
/// |-------------------|-----------|-----------|------------|
/// | `QorCurrency`     | int32     | 100       | 0.01       |
/// | `Currency`        | int64     | 10,000    | 0.0001     |
/// | `QorLongCurrency` | int64     | 1,000,000 | 0.000001   |
///
/// | type              | smallest amount           | largest amount           |
/// |-------------------|---------------------------|--------------------------|
/// | `QorCurrency`     | -21,474,836.48            | 21,474,836.47            |
/// | `Currency`        | -922,337,203,685,477.5808 | 922,337,203,685,477.5807 |
/// | `QorLongCurrency` | -9,223,372,036,854.775808 | 9,223,372,036,854.775807 |
///
/// Every amount in a range is held exactly. Sums, differences and products are those of the stored
/// integers: exact while the result is in range, and wrapping around in the stored width beyond it,
/// so the largest amount plus its resolution is the smallest amount. There is no arithmetic
/// between scales or with floating-point values: convert first, which shows where rounding happens.
///
/// All conversions round to the nearest value, ties to even. What the target cannot hold becomes
/// the target's smallest value. Every amount survives the way through Currency2Float and back.
///
/// Text is in currency_text.h, the formatter for libfmt in currency_format.h.

#include <compare>
#include <concepts>
#include <cstdint>
#include <iosfwd>
#include <limits>
#include <type_traits>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex {

/// A fixed-point amount of money: an integer that counts parts of a currency unit. Each stored
/// width and scale is a type of its own, so an amount is never taken for an integer or for an
/// amount of another scale. std::numeric_limits has the range, and the resolution as epsilon().
template <class Stored, std::int64_t Scale>
class QORVEX_EXPORT BasicCurrency {
 public:
  /// The integer type that holds the amount.
  using StoredType = Stored;
  /// The stored value of one currency unit.
  static constexpr std::int64_t kScale = Scale;
  /// The fixed decimals that the scale stands for.
  static constexpr int kDecimals = [] {
    int decimals = 0;
    for (std::int64_t power = 1; power < Scale; power *= 10) ++decimals;
    return decimals;
  }();

  constexpr BasicCurrency() noexcept = default;
  /// The amount whose stored integer is given: Currency(15000) is 1.5000 units. No floating value
  /// is taken, which could be meant in units: convert it.
  explicit constexpr BasicCurrency(Stored stored) noexcept : stored_(stored) {}
  explicit BasicCurrency(std::floating_point auto) = delete;

  /// The amount of whole units: Currency::Units(12) is 12.0000. What does not fit does not compile
  /// as a constant; otherwise it becomes the smallest amount.
  [[nodiscard]] static constexpr BasicCurrency Units(std::integral auto units) noexcept {
    Stored stored = 0;
    return __builtin_mul_overflow(units, Scale, &stored) ? OutOfRange() : BasicCurrency(stored);
  }

  /// The stored integer: the amount times the scale.
  [[nodiscard]] constexpr Stored stored() const noexcept { return stored_; }

  /// Amounts compare as their stored integers do.
  friend constexpr auto operator<=>(BasicCurrency, BasicCurrency) noexcept = default;

  /// The sum; wraps around in the stored width.
  constexpr BasicCurrency& operator+=(BasicCurrency other) noexcept {
    return Store(Bits(stored_) + Bits(other.stored_));
  }
  /// The difference; wraps around in the stored width.
  constexpr BasicCurrency& operator-=(BasicCurrency other) noexcept {
    return Store(Bits(stored_) - Bits(other.stored_));
  }
  /// So many times the amount; wraps around in the stored width.
  constexpr BasicCurrency& operator*=(std::integral auto factor) noexcept {
    return Store(Bits(stored_) * Bits(factor));
  }

  /// The amount with the other sign; the smallest amount stays as it is.
  [[nodiscard]] friend constexpr BasicCurrency operator-(BasicCurrency amount) noexcept {
    return BasicCurrency() -= amount;
  }
  /// @{
  /// As the assignments do.
  [[nodiscard]] friend constexpr BasicCurrency operator+(BasicCurrency x,
                                                         BasicCurrency y) noexcept {
    return x += y;
  }
  [[nodiscard]] friend constexpr BasicCurrency operator-(BasicCurrency x,
                                                         BasicCurrency y) noexcept {
    return x -= y;
  }
  [[nodiscard]] friend constexpr BasicCurrency operator*(BasicCurrency amount,
                                                         std::integral auto factor) noexcept {
    return amount *= factor;
  }
  [[nodiscard]] friend constexpr BasicCurrency operator*(std::integral auto factor,
                                                         BasicCurrency amount) noexcept {
    return amount *= factor;
  }
  /// @}

 private:
  // Only unsigned arithmetic wraps around.
  using Unsigned = std::make_unsigned_t<Stored>;
  static constexpr Unsigned Bits(std::integral auto value) noexcept {
    return static_cast<Unsigned>(value);
  }
  constexpr BasicCurrency& Store(Unsigned bits) noexcept {
    stored_ = static_cast<Stored>(bits);
    return *this;
  }

  // Not constexpr, so that no constant is out of range.
  static BasicCurrency OutOfRange() noexcept {
    return BasicCurrency(std::numeric_limits<Stored>::min());
  }

  Stored stored_ = 0;
};

/// The long-range currency: four fixed decimals in an int64.
using Currency = BasicCurrency<std::int64_t, 10'000>;
/// The short currency: two fixed decimals in an int32.
using QorCurrency = BasicCurrency<std::int32_t, 100>;
/// The long currency: six fixed decimals in an int64.
using QorLongCurrency = BasicCurrency<std::int64_t, 1'000'000>;

/// Writes all fixed decimals, as Currency2EStr gives them, with the stream's width and fill.
/// Locale, precision and number flags play no part.
template <class Stored, std::int64_t Scale>
QORVEX_EXPORT std::ostream& operator<<(std::ostream& out, BasicCurrency<Stored, Scale> amount);

/// The three currencies.
template <class T>
concept CurrencyElement = OneOf<T, Currency, QorCurrency, QorLongCurrency>;

inline namespace QorvexGlobals {

/// @{
/// The amount in units, exact to 64 bits of mantissa.
[[nodiscard]] QORVEX_EXPORT Extended Currency2Float(Currency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT Extended Currency2Float(QorCurrency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT Extended Currency2Float(QorLongCurrency amount) noexcept;
/// @}

/// @{
/// The value in units as an amount: value times the scale, rounded to an integer. The product is
/// rounded to extended first, so that 0.015 units, which are no binary number, are a tie; where
/// that would round the integer itself, from 2^62 on, the exact product decides. NaN and what does
/// not fit give the smallest amount.
[[nodiscard]] QORVEX_EXPORT Currency Float2Currency(Extended value) noexcept;
[[nodiscard]] QORVEX_EXPORT QorCurrency Float2QorCurrency(Extended value) noexcept;
[[nodiscard]] QORVEX_EXPORT QorLongCurrency Float2QorLongCurrency(Extended value) noexcept;
/// @}

/// @{
/// Conversions between the currencies, in exact integer arithmetic.
[[nodiscard]] QORVEX_EXPORT Currency QorCurrency2Currency(QorCurrency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT Currency QorLongCurrency2Currency(QorLongCurrency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT QorCurrency Currency2QorCurrency(Currency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT QorLongCurrency Currency2QorLongCurrency(Currency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT QorLongCurrency
QorCurrency2QorLongCurrency(QorCurrency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT QorCurrency
QorLongCurrency2QorCurrency(QorLongCurrency amount) noexcept;
/// @}

/// True when the stored integers are equal: money has no tolerance.
[[nodiscard]] inline bool SameCurrency(Currency x, Currency y) noexcept {
  return x == y;
}

}  // namespace QorvexGlobals

}  // namespace qorvex

/// @cond internal
// Amounts wrap around like unsigned integers.
template <class Stored, std::int64_t Scale>
struct std::numeric_limits<qorvex::BasicCurrency<Stored, Scale>> : std::numeric_limits<Stored> {
  using Amount = qorvex::BasicCurrency<Stored, Scale>;

  static constexpr bool is_integer = false;
  static constexpr bool is_modulo = true;
  static constexpr bool traps = false;

  static constexpr Amount min() noexcept { return Amount(std::numeric_limits<Stored>::min()); }
  static constexpr Amount lowest() noexcept { return min(); }
  static constexpr Amount max() noexcept { return Amount(std::numeric_limits<Stored>::max()); }
  static constexpr Amount epsilon() noexcept { return Amount(Stored(1)); }
  static constexpr Amount round_error() noexcept { return Amount(); }
  static constexpr Amount infinity() noexcept { return Amount(); }
  static constexpr Amount quiet_NaN() noexcept { return Amount(); }
  static constexpr Amount signaling_NaN() noexcept { return Amount(); }
  static constexpr Amount denorm_min() noexcept { return Amount(); }
};
/// @endcond
