#include "qorvex/base/detail/fixed_text.h"

#include <algorithm>
#include <charconv>
#include <cstdint>
#include <cstring>

#include "qorvex/base/detail/decimal_text.h"

namespace qorvex::inline QorvexGlobals::detail {

namespace {

constexpr std::uint64_t kPowers[] = {1,       10,        100,        1000,       10'000,
                                     100'000, 1'000'000, 10'000'000, 100'000'000};

// The eight digits of a number below 10^8 as characters, the first in the lowest byte: the number
// is split into halves, the halves into pairs and the pairs into digits, all at once.
std::uint64_t EightDigitsOf(std::uint64_t number) {
  constexpr std::uint64_t halves = 0x0000007F0000007F;
  constexpr std::uint64_t pairs = 0x000F000F000F000F;
  const std::uint64_t fours = number / 10'000 + (number % 10'000 << 32);
  const std::uint64_t hundreds = (fours * 10'486 >> 20) & halves;
  const std::uint64_t twos = hundreds + ((fours - hundreds * 100) << 16);
  const std::uint64_t tens = (twos * 103 >> 10) & pairs;
  return (tens + ((twos - tens * 10) << 8)) + 0x3030303030303030;
}

// Adds 1 to the last digit of the number that the text contains. Returns the end of the text, which
// may become longer.
char* Increment(char* first, char* end) {
  for (char* at = end; at-- != first;) {
    if (*at == '.') continue;
    if (*at != '9') {
      ++*at;
      return end;
    }
    *at = '0';
  }
  std::memmove(first + 1, first, static_cast<std::size_t>(end - first));
  *first = '1';
  return end + 1;
}

}  // namespace

char* WriteFixed(Extended value, int decimals, char* text) {
  if (decimals < 0 || decimals > kMostFixedDecimals) return nullptr;
  // |value| is mantissa * 2^-scale.
  std::uint64_t mantissa = 0;
  std::uint16_t sign_and_exponent = 0;
  std::memcpy(&mantissa, &value, sizeof mantissa);
  std::memcpy(&sign_and_exponent, reinterpret_cast<const char*>(&value) + sizeof mantissa,
              sizeof sign_and_exponent);
  constexpr int bias = 16383 + 63;
  const int scale = mantissa == 0 ? 0 : bias - (sign_and_exponent & 0x7FFF);
  if (scale < 0 || scale > 127) return nullptr;

  std::uint64_t whole = 0;
  Unsigned128 fraction = 0;  // times 2^-128
  if (scale < 64) {
    whole = mantissa >> scale;
    if (scale > 0) fraction = Unsigned128{mantissa << (64 - scale)} << 64;
  } else {
    fraction = Unsigned128{mantissa} << (128 - scale);
  }

  const bool negative = (sign_and_exponent & 0x8000) != 0;
  char* const first = text + (negative ? 1 : 0);
  char* end = std::to_chars(first, first + 20, whole).ptr;
  bool is_zero = whole == 0;
  if (decimals > 0) *end++ = '.';
  // Multiplied by 10^n, the fraction yields n digits and leaves the rest, without rounding.
  for (int left = decimals; left > 0; left -= 8) {
    const int count = std::min(left, 8);
    const std::uint64_t power = kPowers[count];
    const Unsigned128 low = Unsigned128{static_cast<std::uint64_t>(fraction)} * power;
    const Unsigned128 high = (fraction >> 64) * power + (low >> 64);
    const auto digits = static_cast<std::uint64_t>(high >> 64);
    fraction = (high << 64) + static_cast<std::uint64_t>(low);
    is_zero &= digits == 0;
    const std::uint64_t characters = EightDigitsOf(digits * kPowers[8 - count]);
    std::memcpy(end, &characters, sizeof characters);
    end += count;
  }
  constexpr Unsigned128 half = Unsigned128{1} << 127;
  if (fraction > half || (fraction == half && (end[-1] - '0') % 2 != 0)) {
    end = Increment(first, end);
    is_zero = false;
  }
  if (negative && !is_zero) *text = '-';
  if (negative && is_zero) {
    std::memmove(text, first, static_cast<std::size_t>(end - first));
    --end;
  }
  return end;
}

}  // namespace qorvex::inline QorvexGlobals::detail
