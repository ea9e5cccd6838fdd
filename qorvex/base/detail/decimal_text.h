#pragma once

/// @file
/// Parses decimal numbers in text.

#include <cstdint>
#include <string_view>

namespace qorvex::inline QorvexGlobals::detail {

/// The text without leading and trailing spaces and tabs.
inline std::string_view WithoutBlanks(std::string_view text) {
  constexpr std::string_view kBlanks = " \t";
  const std::size_t first = text.find_first_not_of(kBlanks);
  if (first == std::string_view::npos) return {};
  return text.substr(first, text.find_last_not_of(kBlanks) - first + 1);
}

/// Removes a leading sign. Returns true if it is a minus sign.
inline bool TakeSign(std::string_view& number) {
  const bool negative = number.starts_with('-');
  if (negative || number.starts_with('+')) number.remove_prefix(1);
  return negative;
}

constexpr bool IsDigit(char c) {
  return c >= '0' && c <= '9';
}

/// An unsigned decimal number.
struct DecimalText {
  /// The number is significand * 10^exponent if it has at most 19 significant digits.
  std::uint64_t significand = 0;
  /// The number of significant digits.
  int digits = 0;
  /// The power of ten of the last digit.
  std::int64_t exponent = 0;
  /// The text before the exponent: digits, with leading zeros and an optional point.
  std::string_view mantissa;
  bool valid = false;
};

/// Far above the exponent of any number that is in range, far below the limit of int64.
inline constexpr std::int64_t kExponentLimit = 1'000'000'000;

/// Parses an unsigned number: digits with an optional decimal point and an optional exponent.
inline DecimalText ScanDecimal(std::string_view text) {
  DecimalText number;
  bool any_digit = false;
  bool after_point = false;
  std::size_t at = 0;
  for (; at < text.size(); ++at) {
    const char c = text[at];
    if (c == '.' && !after_point) {
      after_point = true;
    } else if (IsDigit(c)) {
      any_digit = true;
      if (number.digits > 0 || c != '0') ++number.digits;
      number.significand = number.significand * 10 + static_cast<std::uint64_t>(c - '0');
      if (after_point) --number.exponent;
    } else {
      break;
    }
  }
  if (!any_digit) return number;
  number.mantissa = text.substr(0, at);
  if (at < text.size()) {
    if (text[at] != 'e' && text[at] != 'E') return number;
    ++at;
    const bool negative = at < text.size() && text[at] == '-';
    if (at < text.size() && (text[at] == '-' || text[at] == '+')) ++at;
    if (at == text.size()) return number;
    std::int64_t exponent = 0;
    for (; at < text.size(); ++at) {
      if (!IsDigit(text[at])) return number;
      if (exponent < kExponentLimit) exponent = exponent * 10 + (text[at] - '0');
    }
    number.exponent += negative ? -exponent : exponent;
  }
  number.valid = true;
  return number;
}

}  // namespace qorvex::inline QorvexGlobals::detail
