#include "qorvex/base/detail/fixed_text.h"

#include <algorithm>
#include <bit>
#include <charconv>
#include <cstdint>
#include <cstring>

#include "qorvex/base/detail/decimal_text.h"

namespace qorvex::inline QorvexGlobals::detail {

namespace {

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

// Writes an integer; for the frequent short ones without a branch that depends on their length.
char* WriteInteger(std::uint64_t number, char* text) {
  if (number >= kSmallPowersOfTen[8]) return std::to_chars(text, text + 20, number).ptr;
  const std::uint64_t characters = EightDigitsOf(number);
  constexpr std::uint64_t last_digit = std::uint64_t{1} << 56;
  const int zeros = std::countr_zero((characters & 0x0F0F0F0F0F0F0F0F) | last_digit) / 8;
  const std::uint64_t without_zeros = characters >> 8 * zeros;
  std::memcpy(text, &without_zeros, sizeof without_zeros);
  return text + (8 - zeros);
}

// Multiplies a fraction, which is in units of 2^-128, by a power of ten. Returns the integer part,
// the next digits, and leaves the rest, without rounding.
std::uint64_t TakeDigits(Unsigned128& fraction, std::uint64_t power) {
  const Unsigned128 low = Unsigned128{static_cast<std::uint64_t>(fraction)} * power;
  const Unsigned128 high = (fraction >> 64) * power + (low >> 64);
  fraction = (high << 64) + static_cast<std::uint64_t>(low);
  return static_cast<std::uint64_t>(high >> 64);
}

// 1 if a number with a rest, in units of 2^-128, is rounded up, ties to even.
std::uint64_t RoundsUp(std::uint64_t number, Unsigned128 rest) {
  constexpr Unsigned128 half = Unsigned128{1} << 127;
  return static_cast<std::uint64_t>(rest > half - (number & 1));
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
  Unsigned128 fraction = 0;  // in units of 2^-128
  if (scale < 64) {
    whole = mantissa >> scale;
    if (scale > 0) fraction = Unsigned128{mantissa << (64 - scale)} << 64;
  } else {
    fraction = Unsigned128{mantissa} << (128 - scale);
  }

  // Branches that depend on the sign or on rounding would be mispredicted half the time.
  const bool negative = (sign_and_exponent & 0x8000) != 0;
  *text = '-';
  char* const first = text + (negative ? 1 : 0);
  if (decimals == 0) whole += RoundsUp(whole, fraction);
  char* end = WriteInteger(whole, first);
  bool is_zero = whole == 0;
  if (decimals > 0) *end++ = '.';
  bool carry = false;
  for (int left = decimals; left > 0; left -= 8) {
    const auto count = static_cast<std::size_t>(std::min(left, 8));
    const std::uint64_t power = kSmallPowersOfTen[count];
    std::uint64_t digits = TakeDigits(fraction, power);
    if (left <= 8) {
      digits += RoundsUp(digits, fraction);
      carry = digits == power;
      if (carry) --digits;
    }
    is_zero &= digits == 0;
    const std::uint64_t characters = EightDigitsOf(digits * kSmallPowersOfTen[8 - count]);
    std::memcpy(end, &characters, sizeof characters);
    end += count;
  }
  if (carry) end = Increment(first, end);
  if (negative && is_zero) {
    std::memmove(text, first, static_cast<std::size_t>(end - first));
    --end;
  }
  return end;
}

}  // namespace qorvex::inline QorvexGlobals::detail
