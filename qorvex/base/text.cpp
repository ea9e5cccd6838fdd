#include "qorvex/base/text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>
#include <locale.h>

#include "qorvex/base/detail/decimal_text.h"
#include "qorvex/base/detail/decimal_value.h"
#include "qorvex/base/detail/fixed_text.h"
#include "qorvex/base/errors.h"

namespace qorvex::inline QorvexGlobals {

namespace {

bool EqualsIgnoringCase(std::string_view text, std::string_view lower_case) {
  if (text.size() != lower_case.size()) return false;
  for (std::size_t i = 0; i < text.size(); ++i) {
    const char c =
        text[i] >= 'A' && text[i] <= 'Z' ? static_cast<char>(text[i] - 'A' + 'a') : text[i];
    if (c != lower_case[i]) return false;
  }
  return true;
}

// Correctly rounded for any length and exponent. Uses the C locale explicitly because an
// application may have changed the global locale. std::from_chars would be simpler, but in GCC 12
// it rejects subnormal values.
Extended ConvertLongNumber(std::string_view digits) {
  static const locale_t c_locale = newlocale(LC_ALL_MASK, "C", nullptr);
  const std::string terminated(digits);
  return strtold_l(terminated.c_str(), nullptr, c_locale);
}

// The value of an unsigned text that takes more than one operation; whole is the text for error
// messages.
[[gnu::noinline]] Extended RareMagnitude(const detail::DecimalText& number, std::string_view text,
                                         std::string_view whole) {
  if (!number.valid) {
    if (EqualsIgnoringCase(text, "inf") || EqualsIgnoringCase(text, "infinity")) {
      return std::numeric_limits<Extended>::infinity();
    }
    if (EqualsIgnoringCase(text, "nan")) return std::numeric_limits<Extended>::quiet_NaN();
    throw EConvertError(rsNotANumber, whole);
  }
  if (const auto value = detail::ValueOfLongNumber(number)) return *value;
  const Extended value = ConvertLongNumber(text);
  if (std::isinf(value)) throw EConvertError(rsNumberTooLarge, whole);
  return value;
}

// The text that format(first, last) writes, which is at most longest characters.
template <class Format>
std::string Formatted(std::size_t longest, Format format) {
  char small[128];
  if (const std::to_chars_result done = format(small, small + sizeof small);
      done.ec == std::errc()) {
    return {small, done.ptr};
  }
  std::string text(longest, '\0');
  const std::to_chars_result done = format(text.data(), text.data() + text.size());
  text.resize(static_cast<std::size_t>(done.ptr - text.data()));
  return text;
}

}  // namespace

Extended Str2Float(std::string_view text) {
  std::string_view unsigned_text = detail::WithoutBlanks(text);
  const bool negative = detail::TakeSign(unsigned_text);
  const detail::DecimalText number = detail::ScanDecimal(unsigned_text);
  const auto value = number.valid ? detail::ValueInOneOperation(number) : std::nullopt;
  const Extended magnitude = value ? *value : RareMagnitude(number, unsigned_text, text);
  return negative ? -magnitude : magnitude;
}

std::string Float2EStr(Extended value, int decimals) {
  if (std::isnan(value)) return "nan";
  decimals = std::max(decimals, 0);
  char buffer[detail::kLongestFixedText];
  if (char* const end = detail::WriteFixed(value, decimals, buffer)) return {buffer, end};
  const std::size_t longest =
      std::numeric_limits<Extended>::max_exponent10 + 8 + static_cast<std::size_t>(decimals);
  std::string text = Formatted(longest, [=](char* first, char* last) {
    return std::to_chars(first, last, value, std::chars_format::fixed, decimals);
  });
  if (text.starts_with('-') && text.find_first_not_of("-0.") == std::string::npos) text.erase(0, 1);
  return text;
}

std::string Float2Str(Extended value) {
  if (std::isnan(value)) return "nan";
  constexpr std::size_t longest = 64;
  return Formatted(longest,
                   [=](char* first, char* last) { return std::to_chars(first, last, value); });
}

std::string StripTChStr(std::string_view text, char trailing) {
  const auto without_point = [](std::string_view number) {
    return std::string(number.ends_with('.') ? number.substr(0, number.size() - 1) : number);
  };
  if (detail::IsDigit(trailing)) {
    const std::size_t point = text.find('.');
    const bool in_decimals =
        point != std::string_view::npos &&
        text.find_first_not_of("0123456789", point + 1) == std::string_view::npos;
    if (!in_decimals) return std::string(text);
  }
  const std::size_t last = text.find_last_not_of(trailing);
  return without_point(last == std::string_view::npos ? std::string_view()
                                                      : text.substr(0, last + 1));
}

}  // namespace qorvex::inline QorvexGlobals
