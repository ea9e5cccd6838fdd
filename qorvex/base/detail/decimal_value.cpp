#include "qorvex/base/detail/decimal_value.h"

#include <cstring>

namespace qorvex::inline QorvexGlobals::detail {

namespace {

constexpr int kLargestExponent = 54;
constexpr std::ptrdiff_t kMostDigits = 38;  // 10^38 < 2^127

// A number in [2^127, 2^128) times 2^exponent.
struct Scaled128 {
  Unsigned128 number = 0;
  int exponent = 0;
};

constexpr int ZeroBits(Unsigned128 number) {
  const auto high = static_cast<std::uint64_t>(number >> 64);
  return high != 0 ? std::countl_zero(high)
                   : 64 + std::countl_zero(static_cast<std::uint64_t>(number));
}

// The powers of five from -54 to 54, which have at most 126 bits. Those with a negative exponent
// are truncated.
constexpr auto kPowersOfFive = [] {
  std::array<Scaled128, 2 * kLargestExponent + 1> powers{};
  Unsigned128 power = 1;
  for (std::size_t i = 0; i <= kLargestExponent; ++i, power *= 5) {
    const int zeros = ZeroBits(power);
    powers[kLargestExponent + i] = {power << zeros, -zeros};
    // 2^(255 - zeros) / power by long division.
    Unsigned128 quotient = 0;
    Unsigned128 remainder = 1;
    for (int bit = 0; bit < 255 - zeros; ++bit) {
      remainder <<= 1;
      quotient <<= 1;
      if (remainder < power) continue;
      remainder -= power;
      quotient |= 1;
    }
    powers[kLargestExponent - i] = {quotient, zeros - 255};
  }
  powers[kLargestExponent] = {Unsigned128{1} << 127, -127};
  return powers;
}();

// The high half of the product, at most 1 below its value.
Unsigned128 HighProduct(Unsigned128 a, Unsigned128 b) {
  const auto low = [](Unsigned128 x) { return Unsigned128{static_cast<std::uint64_t>(x)}; };
  const Unsigned128 cross = low(a) * (b >> 64) + (low(a) * low(b) >> 64);
  const Unsigned128 other = (a >> 64) * low(b) + low(cross);
  return (a >> 64) * (b >> 64) + (cross >> 64) + (other >> 64);
}

// For exponents of normal numbers; faster than std::scalbn.
Extended PowerOfTwo(int exponent) {
  Extended power = 1;
  const auto biased = static_cast<std::uint16_t>(16383 + exponent);
  std::memcpy(reinterpret_cast<char*>(&power) + 8, &biased, sizeof biased);
  return power;
}

Unsigned128 SignificandOf(std::string_view mantissa) {
  if (mantissa.size() < 8) return 0;
  const LongCharacters characters(mantissa);
  const char* const last = mantissa.data() + mantissa.size();
  Unsigned128 significand = 0;
  const char* const end = TakeDigits(characters, mantissa.data(), last, significand);
  if (end != last) TakeDigits(characters, end + 1, last, significand);
  return significand;
}

}  // namespace

std::optional<Extended> ValueOfLongNumber(const DecimalText& number) {
  const std::int64_t exponent = number.exponent;
  if (exponent < -kLargestExponent || exponent > kLargestExponent || number.digits > kMostDigits) {
    return std::nullopt;
  }
  const Unsigned128 significand = SignificandOf(number.mantissa);
  if (significand == 0) return std::nullopt;
  const Scaled128& power = kPowersOfFive[static_cast<std::size_t>(exponent + kLargestExponent)];
  const int zeros = ZeroBits(significand);
  Unsigned128 product = HighProduct(significand << zeros, power.number);
  const int shift = ZeroBits(product);
  product <<= shift;
  // The exact product is less than 4 larger.
  constexpr std::uint64_t half = std::uint64_t{1} << 63;
  const auto fraction = static_cast<std::uint64_t>(product);
  if (fraction <= half && fraction >= half - 4) return std::nullopt;
  const auto mantissa =
      static_cast<Extended>(static_cast<std::uint64_t>(product >> 64)) + (fraction > half ? 1 : 0);
  return mantissa * PowerOfTwo(192 - zeros - shift + power.exponent + static_cast<int>(exponent));
}

}  // namespace qorvex::inline QorvexGlobals::detail
