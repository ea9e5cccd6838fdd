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
/// - Every multiple of the resolution in the range is represented exactly.
/// - Sums, differences and products with integers are computed on the stored integers: exact while
///   the result is in range, wrapping around in the stored width otherwise, so the largest amount
///   plus the resolution is the smallest amount.
/// - There is no arithmetic between types, nor with floating-point values: convert first, so that
///   the program shows where it rounds.
/// - Conversions round to the nearest amount, ties to even. Values that the target cannot hold
///   become its smallest amount. Converting an amount with Currency2Float and back is exact.
///
/// currency_literals.h has constants such as 12.50_currency, currency_arithmetic.h division,
/// products with a rounding mode and arithmetic that raises instead of wrapping around.
/// currency_text.h converts amounts to text and back; currency_format.h has the formatter for
/// libfmt.

#include <compare>
#include <concepts>
#include <cstdint>
#include <iosfwd>
#include <limits>
#include <string_view>  // std::hash
#include <type_traits>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex {

/// A fixed-point amount of money: an integer that counts parts of a currency unit. Each combination
/// of stored type and scale is a separate type, so an amount cannot be confused with an integer or
/// with an amount of another scale. std::numeric_limits has the range, and the resolution as
/// epsilon(); std::hash makes amounts keys of unordered containers.
template <class Stored, std::int64_t Scale>
class QORVEX_EXPORT BasicCurrency {
 public:
  /// The integer type that holds the amount.
  using StoredType = Stored;
  /// The stored value of one currency unit.
  static constexpr std::int64_t kScale = Scale;
  /// The number of decimals.
  static constexpr int kDecimals = [] {
    int decimals = 0;
    for (std::int64_t power = 1; power < Scale; power *= 10) ++decimals;
    return decimals;
  }();

  constexpr BasicCurrency() noexcept = default;
  /// The amount with this stored integer: Currency(15000) is 1.5000 units. Floating-point values,
  /// which might be meant in units, do not compile: convert them.
  explicit constexpr BasicCurrency(Stored stored) noexcept : stored_(stored) {}
  explicit BasicCurrency(std::floating_point auto) = delete;

  /// The amount of this many whole units: Currency::Units(12) is 12.0000. A value out of range does
  /// not compile in a constant expression; otherwise it gives the smallest amount.
  [[nodiscard]] static constexpr BasicCurrency Units(std::integral auto units) noexcept {
    Stored stored = 0;
    return __builtin_mul_overflow(units, Scale, &stored) ? OutOfRange() : BasicCurrency(stored);
  }

  /// The stored integer: the amount times the scale.
  [[nodiscard]] constexpr Stored stored() const noexcept { return stored_; }

  /// Compares the stored integers.
  friend constexpr auto operator<=>(BasicCurrency, BasicCurrency) noexcept = default;

  /// The sum; wraps around in the stored width.
  constexpr BasicCurrency& operator+=(BasicCurrency other) noexcept {
    return Store(Bits(stored_) + Bits(other.stored_));
  }
  /// The difference; wraps around in the stored width.
  constexpr BasicCurrency& operator-=(BasicCurrency other) noexcept {
    return Store(Bits(stored_) - Bits(other.stored_));
  }
  /// The product with an integer; wraps around in the stored width.
  constexpr BasicCurrency& operator*=(std::integral auto factor) noexcept {
    return Store(Bits(stored_) * Bits(factor));
  }

  /// The amount with the opposite sign. Negating the smallest amount gives the same amount.
  [[nodiscard]] friend constexpr BasicCurrency operator-(BasicCurrency amount) noexcept {
    return BasicCurrency() -= amount;
  }
  /// The amount without its sign. The smallest amount has no opposite and stays unchanged.
  [[nodiscard]] friend constexpr BasicCurrency abs(BasicCurrency amount) noexcept {
    return amount.stored_ < 0 ? -amount : amount;
  }
  /// @{
  /// The same as the compound assignments.
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
  // Unsigned arithmetic, because signed overflow is undefined.
  using Unsigned = std::make_unsigned_t<Stored>;
  static constexpr Unsigned Bits(std::integral auto value) noexcept {
    return static_cast<Unsigned>(value);
  }
  constexpr BasicCurrency& Store(Unsigned bits) noexcept {
    stored_ = static_cast<Stored>(bits);
    return *this;
  }

  // Not constexpr, so that a constant expression that is out of range does not compile.
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

/// Writes the text of Currency2EStr with the stream's width, fill and adjustment. Ignores its
/// locale, precision and number flags.
template <class Stored, std::int64_t Scale>
QORVEX_EXPORT std::ostream& operator<<(std::ostream& out, BasicCurrency<Stored, Scale> amount);

/// The three currencies.
template <class T>
concept CurrencyElement = OneOf<T, Currency, QorCurrency, QorLongCurrency>;

inline namespace QorvexGlobals {

/// @{
/// The amount in units: stored / scale, rounded to 64 bits of mantissa.
[[nodiscard]] QORVEX_EXPORT Extended Currency2Float(Currency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT Extended Currency2Float(QorCurrency amount) noexcept;
[[nodiscard]] QORVEX_EXPORT Extended Currency2Float(QorLongCurrency amount) noexcept;
/// @}

/// @{
/// Converts a value in units: value * scale, rounded to an integer, ties to even.
///
/// - The product is first rounded to extended precision, so that 0.015 units, which has no exact
///   binary representation, counts as a tie.
/// - From 2^62 on, where that rounding could change the integer, the exact product is rounded.
/// - NaN and values out of range give the smallest amount.
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

/// True if the amounts are equal. There is no tolerance.
[[nodiscard]] inline bool SameCurrency(Currency x, Currency y) noexcept {
  return x == y;
}

}  // namespace QorvexGlobals

}  // namespace qorvex

/// @cond internal
// is_modulo: amounts wrap around.
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

template <class Stored, std::int64_t Scale>
struct std::hash<qorvex::BasicCurrency<Stored, Scale>> {
  std::size_t operator()(qorvex::BasicCurrency<Stored, Scale> amount) const noexcept {
    return std::hash<Stored>()(amount.stored());
  }
};
/// @endcond
