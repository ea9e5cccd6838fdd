#pragma once

// The values of the elements of vectors, from their text.

#include <charconv>
#include <cmath>
#include <concepts>
#include <cstdint>
#include <limits>
#include <optional>
#include <string_view>
#include <type_traits>

#include "qorvex/base/currency_text.h"
#include "qorvex/base/detail/decimal_value.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::inline QorvexGlobals::detail {

/// The value of a number, unless it takes the slowest way.
template <FloatElement T>
std::optional<T> FastValue(const DecimalText& number) {
  if constexpr (std::same_as<T, Extended>) {
    const std::optional<T> value = ValueInOneOperation(number);
    return value ? value : ValueOfLongNumber(number);
  } else {
    return ShortValueInOneOperation<T>(number);
  }
}

/// The value of a piece of text. Throws EConvertError unless the type can hold it.
inline Extended ReadElement(std::string_view piece, std::type_identity<Extended>) {
  return Str2Float(piece);
}

// Not by way of Extended, which would round twice.
template <std::floating_point T>
T ReadElement(std::string_view piece, std::type_identity<T>) {
  std::string_view number = piece;
  const bool negative = TakeSign(number);
  // std::from_chars would also take another sign, and "nan(1)".
  if (!number.empty() && (IsDigit(number.front()) || number.front() == '.')) {
    T value = 0;
    const char* const last = number.data() + number.size();
    const auto [end, error] = std::from_chars(number.data(), last, value);
    if (error == std::errc() && end == last) return negative ? -value : value;
  }
  // Not finite, out of range, or no number.
  const Extended value = Str2Float(piece);
  if (std::isfinite(value) && std::fabs(value) > 1) throw EConvertError(rsNumberTooLarge, piece);
  return static_cast<T>(std::isfinite(value) ? std::copysign(Extended(0), value) : value);
}

template <std::integral T>
T ReadElement(std::string_view piece, std::type_identity<T>) {
  std::string_view digits = piece;
  const bool negative = TakeSign(digits);
  std::uint64_t magnitude = 0;
  const char* const last = digits.data() + digits.size();
  const auto [end, error] = std::from_chars(digits.data(), last, magnitude);
  if (error == std::errc::invalid_argument || end != last)
    throw EConvertError(rsNotAnInteger, piece);
  const auto limit = negative ? 0 - static_cast<std::uint64_t>(std::numeric_limits<T>::min())
                              : static_cast<std::uint64_t>(std::numeric_limits<T>::max());
  if (error != std::errc() || magnitude > limit) throw EConvertError(rsNumberTooLarge, piece);
  return static_cast<T>(negative ? 0 - magnitude : magnitude);
}

inline Currency ReadElement(std::string_view piece, std::type_identity<Currency>) {
  return Str2Currency(piece);
}
inline QorCurrency ReadElement(std::string_view piece, std::type_identity<QorCurrency>) {
  return Str2QorCurrency(piece);
}
inline QorLongCurrency ReadElement(std::string_view piece, std::type_identity<QorLongCurrency>) {
  return Str2QorLongCurrency(piece);
}

}  // namespace qorvex::inline QorvexGlobals::detail
