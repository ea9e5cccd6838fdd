#pragma once

/// @file
/// Parses decimal numbers in text.

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace qorvex::inline QorvexGlobals::detail {

__extension__ typedef unsigned __int128 Unsigned128;

/// The text without leading and trailing spaces and tabs.
inline std::string_view WithoutBlanks(std::string_view text) {
  const auto is_blank = [](char c) { return c == ' ' || c == '\t'; };
  while (!text.empty() && is_blank(text.front())) text.remove_prefix(1);
  while (!text.empty() && is_blank(text.back())) text.remove_suffix(1);
  return text;
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
  /// The number is significand * 10^exponent if it has at most kMostDigits digits.
  std::uint64_t significand = 0;
  /// The power of ten of the last digit.
  std::int64_t exponent = 0;
  /// The text before the exponent: digits, with leading zeros and an optional point.
  std::string_view mantissa;
  /// The number of characters that were read.
  std::size_t length = 0;
  /// The number of digits; if there are more than kMostDigits, without leading zeros.
  std::ptrdiff_t digits = 0;
  bool valid = false;

  static constexpr std::ptrdiff_t kMostDigits = 19;
  [[nodiscard]] bool HasSignificand() const { return digits <= kMostDigits; }
};

/// Far above the exponent of any number that is in range, far below the limit of int64.
inline constexpr std::int64_t kExponentLimit = 1'000'000'000;

template <class Word>
inline Word LoadWord(const char* at) {
  Word word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

// The classes *Characters give eight characters from any position of a text before its end, the
// first in the lowest byte. What follows the end is unspecified.

// A text of fewer than eight characters.
class ShortCharacters {
 public:
  explicit ShortCharacters(std::string_view text) : first_(text.data()) {
    const std::size_t n = text.size();
    if (n >= 4) {
      characters_ = LoadWord<std::uint32_t>(first_) |
                    std::uint64_t{LoadWord<std::uint32_t>(first_ + (n - 4))} << 8 * (n - 4);
    } else if (n > 0) {
      for (const std::size_t i : {std::size_t{0}, n / 2, n - 1})
        characters_ |= std::uint64_t{static_cast<unsigned char>(first_[i])} << 8 * i;
    }
  }
  [[nodiscard]] std::uint64_t From(const char* at) const {
    return characters_ >> 8 * (at - first_);
  }

 private:
  const char* first_;
  std::uint64_t characters_ = 0;
};

// A text of at least eight characters.
class LongCharacters {
 public:
  explicit LongCharacters(std::string_view text) : last_eight_(text.data() + (text.size() - 8)) {}
  [[nodiscard]] std::uint64_t From(const char* at) const {
    const char* const start = std::min(at, last_eight_);
    return LoadWord<std::uint64_t>(start) >> 8 * (at - start);
  }

 private:
  const char* last_eight_;
};

// A text behind which eight bytes can be read.
struct ExtendedCharacters {
  [[nodiscard]] std::uint64_t From(const char* at) const { return LoadWord<std::uint64_t>(at); }
};

// The number of eight digits, each a byte from 0 to 9, the first in the lowest. Neighbours are
// joined to pairs, then to groups of four, then of eight.
inline std::uint64_t JoinEightDigits(std::uint64_t digits) {
  constexpr std::uint64_t pairs = 0x000000FF000000FF;
  digits = digits * 10 + (digits >> 8);
  return ((digits & pairs) * (100 + (std::uint64_t{1'000'000} << 32)) +
          (digits >> 16 & pairs) * (1 + (std::uint64_t{10'000} << 32))) >>
         32;
}

inline constexpr std::array<std::uint64_t, 9> kSmallPowersOfTen{
    1, 10, 100, 1000, 10'000, 100'000, 1'000'000, 10'000'000, 100'000'000};

// Appends the digits from a position on to the number, and returns the position after them.
template <class Characters, class Number>
[[gnu::always_inline]] inline const char* TakeDigits(const Characters& characters, const char* at,
                                                     const char* last, Number& number) {
  constexpr std::uint64_t each = 0x0101010101010101;
  while (at != last) {
    const std::uint64_t digits = characters.From(at) ^ '0' * each;
    // The top bit of each byte that is no digit: adding carries into it from 10 on.
    const std::uint64_t others = (((digits & 0x7F * each) + 0x76 * each) | digits) & 0x80 * each;
    const std::ptrdiff_t count = std::min<std::ptrdiff_t>(std::countr_zero(others) / 8, last - at);
    if (count == 0) break;
    number = number * kSmallPowersOfTen[static_cast<std::size_t>(count)] +
             JoinEightDigits(digits << (64 - 8 * count));
    at += count;
    if (count < 8) break;
  }
  return at;
}

// The number of zeros in front of the first other digit.
inline std::ptrdiff_t LeadingZeros(std::string_view mantissa) {
  std::ptrdiff_t zeros = 0;
  for (const char c : mantissa) {
    if (c != '0' && c != '.') break;
    zeros += c == '0';
  }
  return zeros;
}

// Reads the exponent after the letter e and adds it. Returns the end of the number, or nullptr if
// there is no digit.
inline const char* TakeExponent(const char* at, const char* last, std::int64_t& sum) {
  const bool negative = at != last && *at == '-';
  if (at != last && (*at == '-' || *at == '+')) ++at;
  if (at == last || !IsDigit(*at)) return nullptr;
  std::int64_t exponent = 0;
  for (; at != last && IsDigit(*at); ++at)
    if (exponent < kExponentLimit) exponent = exponent * 10 + (*at - '0');
  sum += negative ? -exponent : exponent;
  return at;
}

template <class Characters>
[[gnu::always_inline]] inline DecimalText ReadDecimal(Characters characters,
                                                      std::string_view text) {
  const char* const first = text.data();
  const char* const last = first + text.size();
  std::uint64_t significand = 0;
  const char* at = TakeDigits(characters, first, last, significand);
  std::ptrdiff_t digits = at - first;
  std::int64_t exponent = 0;
  if (at != last && *at == '.') {
    const char* const decimals = ++at;
    at = TakeDigits(characters, at, last, significand);
    exponent = decimals - at;
    digits -= exponent;
  }
  if (digits == 0) return {};
  const std::string_view mantissa(first, at);
  if (digits > DecimalText::kMostDigits) digits -= LeadingZeros(mantissa);
  if (at != last && (*at == 'e' || *at == 'E')) {
    at = TakeExponent(at + 1, last, exponent);
    if (at == nullptr) return {};
  }
  return {.significand = significand,
          .exponent = exponent,
          .mantissa = mantissa,
          .length = static_cast<std::size_t>(at - first),
          .digits = digits,
          .valid = true};
}

/// Parses the unsigned number at the start of the text: digits with an optional decimal point and
/// an optional exponent.
[[gnu::always_inline]] inline DecimalText ScanLeadingDecimal(std::string_view text) {
  return text.size() >= 8 ? ReadDecimal(LongCharacters(text), text)
                          : ReadDecimal(ShortCharacters(text), text);
}

/// Parses a text that is such a number.
[[gnu::always_inline]] inline DecimalText ScanDecimal(std::string_view text) {
  DecimalText number = ScanLeadingDecimal(text);
  number.valid &= number.length == text.size();
  return number;
}

/// The same, faster, for a text behind which eight bytes can be read.
[[gnu::always_inline]] inline DecimalText ScanExtendedDecimal(std::string_view text) {
  DecimalText number = ReadDecimal(ExtendedCharacters(), text);
  number.valid &= number.length == text.size();
  return number;
}

}  // namespace qorvex::inline QorvexGlobals::detail
