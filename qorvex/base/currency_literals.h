#pragma once

/// @file
/// Amounts as constants: 12.50_currency.
///
/// - The amount is exactly what the digits say, and is known at compile time.
/// - Plain decimal digits without leading zeros, with an optional point and digit separators:
///   1'250.75_currency. Exponents and hexadecimal, octal or binary numbers do not compile, and
///   neither do more decimals than the type has or an amount out of range.
/// - A minus sign gives negative amounts: -0.01_currency. The smallest amount, whose opposite is
///   out of range, is std::numeric_limits<Currency>::min().
/// - `using namespace qorvex;` finds the suffixes, and so does `using namespace qorvex::literals;`
///   alone.

#include <string_view>

#include "qorvex/base/currency.h"

namespace qorvex::inline QorvexGlobals {

/// @cond internal
namespace detail {

enum class LiteralFault { kNone, kNotPlainDecimal, kTooManyDecimals, kOutOfRange };

template <CurrencyElement C>
struct AmountLiteral {
  C amount;
  LiteralFault fault = LiteralFault::kNone;
};

template <CurrencyElement C>
constexpr AmountLiteral<C> ReadAmountLiteral(std::string_view text) noexcept {
  // In C++ 012 is ten and 0x12 eighteen.
  if (text.size() > 1 && text[0] == '0' && text[1] != '.')
    return {.amount = C(), .fault = LiteralFault::kNotPlainDecimal};
  typename C::StoredType stored = 0;
  bool in_range = true;
  const auto append = [&](int digit) {
    in_range = in_range && !__builtin_mul_overflow(stored, 10, &stored) &&
               !__builtin_add_overflow(stored, digit, &stored);
  };
  bool after_point = false;
  int missing_decimals = C::kDecimals;
  for (const char c : text) {
    if (c == '\'') continue;
    if (c == '.') {
      after_point = true;
      continue;
    }
    if (c < '0' || c > '9') return {.amount = C(), .fault = LiteralFault::kNotPlainDecimal};
    if (after_point && --missing_decimals < 0)
      return {.amount = C(), .fault = LiteralFault::kTooManyDecimals};
    append(c - '0');
  }
  for (; missing_decimals > 0; --missing_decimals) append(0);
  if (!in_range) return {.amount = C(), .fault = LiteralFault::kOutOfRange};
  return {.amount = C(stored)};
}

template <CurrencyElement C, char... Text>
constexpr C AmountOfLiteral() noexcept {
  constexpr char text[] = {Text...};
  constexpr AmountLiteral<C> read = ReadAmountLiteral<C>(std::string_view(text, sizeof text));
  static_assert(read.fault != LiteralFault::kNotPlainDecimal,
                "write the amount in plain decimal digits without leading zeros, with an optional "
                "point");
  static_assert(read.fault != LiteralFault::kTooManyDecimals,
                "the amount has more decimals than the currency type");
  static_assert(read.fault != LiteralFault::kOutOfRange,
                "the amount is out of the range of the currency type");
  return read.amount;
}

}  // namespace detail
/// @endcond

inline namespace literals {

/// 12.5_currency is Currency(125'000).
template <char... Text>
[[nodiscard]] constexpr Currency operator""_currency() noexcept {
  return detail::AmountOfLiteral<Currency, Text...>();
}

/// 12.5_qor_currency is QorCurrency(1'250).
template <char... Text>
[[nodiscard]] constexpr QorCurrency operator""_qor_currency() noexcept {
  return detail::AmountOfLiteral<QorCurrency, Text...>();
}

/// 12.5_qor_long_currency is QorLongCurrency(12'500'000).
template <char... Text>
[[nodiscard]] constexpr QorLongCurrency operator""_qor_long_currency() noexcept {
  return detail::AmountOfLiteral<QorLongCurrency, Text...>();
}

}  // namespace literals

}  // namespace qorvex::inline QorvexGlobals
