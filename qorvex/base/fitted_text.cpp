#include "qorvex/base/fitted_text.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <optional>

#include "qorvex/base/text.h"

namespace qorvex::inline QorvexGlobals {

namespace {

constexpr std::string_view kNonZero = "123456789";

std::string Trimmed(std::string text, bool trim) {
  return trim ? StripTChStr(text, '0') : text;
}

std::string FixedText(Extended value, int decimals, bool trim) {
  return Trimmed(Float2EStr(value, decimals), trim);
}

// Removes the plus sign and the leading zeros of the exponent.
std::string WithShortExponent(const std::string& text, bool trim) {
  const std::size_t e = text.find('e');
  if (e == std::string::npos) return Trimmed(text, trim);
  const bool negative = text[e + 1] == '-';
  const std::size_t digits = std::min(text.find_first_of(kNonZero, e), text.size() - 1);
  return Trimmed(text.substr(0, e), trim) + (negative ? "e-" : "e") + text.substr(digits);
}

std::string ExponentText(Extended value, int decimals, bool trim) {
  constexpr std::size_t around_decimals = 16;
  std::string text(static_cast<std::size_t>(decimals) + around_decimals, '\0');
  const auto [end, error] = std::to_chars(text.data(), text.data() + text.size(), value,
                                          std::chars_format::scientific, decimals);
  text.resize(static_cast<std::size_t>(end - text.data()));
  return WithShortExponent(text, trim);
}

// The shortest exponent form that is read back as the same value.
std::string ShortestExponentText(Extended value) {
  char text[64];
  const auto [end, error] =
      std::to_chars(text, text + sizeof text, value, std::chars_format::scientific);
  return WithShortExponent({text, end}, false);
}

std::string SignificantText(Extended value, int significant, bool trim) {
  constexpr int least_exponent = -4;
  const std::string text = ExponentText(value, significant - 1, false);
  // Of the rounded number: 9.9996 has the exponent 1 with four digits.
  const int exponent = std::stoi(text.substr(text.find('e') + 1));
  if (exponent < least_exponent || exponent >= significant) {
    return trim ? ExponentText(value, significant - 1, true) : text;
  }
  return FixedText(value, significant - 1 - exponent, trim);
}

// A format without trailing zeros removes them from shorter texts too.
bool Trims(const FloatDigits& digits) {
  return digits.trim || digits.format == nfGeneral;
}

// The longest text that fits among those with least to most digits, found by bisection.
template <class MakeText>
std::optional<std::string> LongestThatFits(int least, int most, MakeText make_text,
                                           const TextFits& fits) {
  std::optional<std::string> longest;
  while (least <= most) {
    const int digits = least + (most - least) / 2;
    std::string text = make_text(digits);
    if (fits(text)) {
      longest = std::move(text);
      least = digits + 1;
    } else {
      most = digits - 1;
    }
  }
  return longest;
}

// The digits of a finite number's text.
struct Digits {
  bool fixed;
  int decimals = 0;
  // The number of decimals up to the first non-zero digit.
  int leading_decimals = 0;
  // The number of digits from the first non-zero one on. A zero in fixed notation, which fits as
  // "0", has none.
  int significant = 0;

  explicit Digits(std::string_view text) {
    const std::size_t e = text.find('e');
    fixed = e == std::string_view::npos;
    text = text.substr(0, e);
    const std::size_t point = std::min(text.find('.'), text.size());
    const auto decimals_to = [point](std::size_t end) {
      return end > point ? static_cast<int>(end - point) - 1 : 0;
    };
    decimals = decimals_to(text.size());
    const std::size_t first = text.find_first_of(kNonZero);
    if (first == std::string_view::npos) {
      significant = fixed ? 0 : decimals + 1;
      return;
    }
    leading_decimals = decimals_to(first + 1);
    significant = static_cast<int>(text.size() - first) - (first < point && point < text.size());
  }
};

}  // namespace

std::string FloatText(Extended value, const FloatDigits& digits) {
  constexpr Extended no_decimals = 0x1p63L;
  if (value == 0) value = 0;  // Without its sign.
  const bool all = digits.all || !std::isfinite(value) ||
                   (digits.format == nfFixed && std::fabs(value) >= no_decimals);
  if (all) {
    return digits.format == nfScientific && std::isfinite(value)
               ? ShortestExponentText(value)
               : WithShortExponent(Float2Str(value), digits.trim);
  }
  const int significant = std::max(digits.significant, 1);
  switch (digits.format) {
    case nfSignificant:
    case nfGeneral:
      return SignificantText(value, significant, Trims(digits));
    case nfScientific:
      return ExponentText(value, significant - 1, digits.trim);
    case nfFixed:
      break;
  }
  return FixedText(value, digits.decimals, digits.trim);
}

std::string FittedFloatText(Extended value, const FloatDigits& digits, const TextFits& fits) {
  std::string text = FloatText(value, digits);
  if (fits(text)) return text;
  std::optional<std::string> fitted;
  if (std::isfinite(value)) {
    if (value == 0) value = 0;  // Without its sign.
    const Digits whole(text);
    if (whole.fixed) {
      const auto fixed = [&](int decimals) { return FixedText(value, decimals, Trims(digits)); };
      fitted = LongestThatFits(whole.leading_decimals, whole.decimals - 1, fixed, fits);
    }
    if (!fitted) {
      const auto exponent = [&](int decimals) {
        return ExponentText(value, decimals, Trims(digits));
      };
      fitted = LongestThatFits(0, whole.significant - 1, exponent, fits);
    }
  }
  if (!fitted) {
    const auto mark = [](int length) {
      return std::string(kNoRoom.substr(0, static_cast<std::size_t>(length)));
    };
    fitted = LongestThatFits(1, static_cast<int>(kNoRoom.size()), mark, fits);
  }
  return fitted.value_or(std::string());
}

std::string FittedFloatText(Extended value, const FloatDigits& digits, std::size_t length) {
  return FittedFloatText(value, digits,
                         [length](std::string_view text) { return text.size() <= length; });
}

}  // namespace qorvex::inline QorvexGlobals
