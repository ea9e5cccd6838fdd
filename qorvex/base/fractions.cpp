#include "qorvex/base/fractions.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <numeric>
#include <utility>

#include "qorvex/base/checked_math.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::inline QorvexGlobals {

namespace {

struct Ratio {
  std::int64_t numerator;
  std::int64_t denominator;
};

// The first convergent p/q of f in [0, 1) with |f - p/q| <= tolerance. Euclid's remainders r_k on
// (1, f) satisfy r_k = |q_k f - p_k|, so the bound is tested without forming p/q.
Ratio FirstConvergentWithin(Extended f, Extended tolerance) noexcept {
  Ratio previous{1, 0};
  Ratio current{0, 1};
  Extended previous_remainder = 1;
  Extended remainder = f;
  while (remainder > tolerance * static_cast<Extended>(current.denominator)) {
    const Extended next_remainder = std::fmod(previous_remainder, remainder);
    const std::int64_t quotient = std::llround((previous_remainder - next_remainder) / remainder);
    const Ratio next{quotient * current.numerator + previous.numerator,
                     quotient * current.denominator + previous.denominator};
    previous = current;
    current = next;
    previous_remainder = remainder;
    remainder = next_remainder;
  }
  return current;
}

using Wide = unsigned __int128;

// n / d, rounded once, for n below 2^127.
Extended Quotient(Wide n, std::uint64_t d) noexcept {
  const auto low = [](Wide x) { return static_cast<Extended>(static_cast<std::uint64_t>(x)); };
  const Wide whole = n / d;
  const Wide rest = n % d;
  if (whole == 0) return low(rest) / low(d);
  // The quotient in binary, with at least two bits more than the result. The last bit is also set
  // if any bit after it would be, so that the sum of the two halves rounds as the exact quotient
  // would.
  const int places = whole < Wide{1} << 62 ? 65 : 3;
  Wide digits = (whole << places) + (rest << places) / d;
  if ((rest << places) % d != 0) digits |= 1;
  return std::ldexp(low(digits >> 64) * 0x1p64L + low(digits), -places);
}

std::string RatioText(Ratio ratio) {
  return Int2EStr(ratio.numerator) + '/' + Int2EStr(ratio.denominator);
}

// Parses the digits at the front of rest and removes them.
std::int64_t TakeDigits(std::string_view& rest, std::string_view text) {
  std::int64_t value = 0;
  const bool is_digit = !rest.empty() && rest.front() >= '0' && rest.front() <= '9';
  if (!is_digit) throw EConvertError(rsNotAFraction, text);
  const auto [end, error] = std::from_chars(rest.data(), rest.data() + rest.size(), value);
  if (error != std::errc()) throw EConvertError(rsNumberTooLarge, text);
  rest.remove_prefix(static_cast<std::size_t>(end - rest.data()));
  return value;
}

std::string_view WithoutLeadingBlanks(std::string_view text) {
  return text.substr(std::min(text.find_first_not_of(" \t"), text.size()));
}

}  // namespace

TQorMixedFraction Float2MixedFraction(Extended value, int decimals) noexcept {
  if (!std::isfinite(value)) return {.whole = value};
  const Extended tolerance = 0.5L * Pow(10.0L, -std::clamp(decimals, 0, kMostFractionDecimals));
  Extended whole = 0;
  const Extended fraction = std::modf(std::fabs(value), &whole);
  Ratio ratio = FirstConvergentWithin(fraction, tolerance);
  if (ratio.numerator == ratio.denominator) {
    whole += 1;
    ratio = {0, 1};
  }
  if (value < 0) {
    whole = whole == 0 ? 0 : -whole;
    ratio.numerator = -ratio.numerator;
  }
  return {whole, ratio.numerator, ratio.denominator};
}

Extended Fraction2Float(const TQorMixedFraction& fraction) {
  const auto [whole, numerator, denominator] = fraction;
  const Extended part =
      CheckedDivide(static_cast<Extended>(numerator), static_cast<Extended>(denominator));
  // With a larger whole, the rounding of the fraction part makes no difference.
  const bool is_integer = std::fabs(whole) < 0x1p63L && whole == std::trunc(whole);
  if (whole == 0 || !is_integer) return whole + part;
  auto improper = static_cast<__int128>(static_cast<std::int64_t>(whole)) * denominator + numerator;
  if (denominator < 0) improper = -improper;
  const auto divisor = static_cast<std::uint64_t>(denominator);
  const Extended magnitude = Quotient(static_cast<Wide>(improper < 0 ? -improper : improper),
                                      denominator < 0 ? 0 - divisor : divisor);
  return improper < 0 ? -magnitude : magnitude;
}

std::string Fraction2Str(const TQorMixedFraction& fraction, TQorFractionDisplay display) {
  if (fraction.numerator == 0) return Float2EStr(fraction.whole, 0);
  if (fraction.whole == 0) return RatioText({fraction.numerator, fraction.denominator});

  constexpr Extended int64_end = 0x1p63L;
  std::int64_t numerator = 0;
  if (display == fdImproper && std::fabs(fraction.whole) < int64_end &&
      !__builtin_mul_overflow(static_cast<std::int64_t>(fraction.whole), fraction.denominator,
                              &numerator) &&
      !__builtin_add_overflow(numerator, fraction.numerator, &numerator)) {
    return RatioText({numerator, fraction.denominator});
  }
  const std::int64_t magnitude = fraction.whole < 0 ? -fraction.numerator : fraction.numerator;
  return Float2EStr(fraction.whole, 0) + ' ' + RatioText({magnitude, fraction.denominator});
}

TQorMixedFraction Str2Fraction(std::string_view text) {
  std::string_view rest = WithoutLeadingBlanks(text);
  const bool negative = rest.starts_with('-');
  if (negative || rest.starts_with('+')) rest.remove_prefix(1);

  std::int64_t whole = TakeDigits(rest, text);
  std::int64_t numerator = 0;
  std::int64_t denominator = 1;
  const std::string_view after_whole = WithoutLeadingBlanks(rest);
  if (rest.starts_with('/')) {
    numerator = std::exchange(whole, 0);
  } else if (!after_whole.empty()) {
    if (after_whole.size() == rest.size()) throw EConvertError(rsNotAFraction, text);
    rest = after_whole;
    numerator = TakeDigits(rest, text);
    if (!rest.starts_with('/')) throw EConvertError(rsNotAFraction, text);
  }
  if (rest.starts_with('/')) {
    rest.remove_prefix(1);
    denominator = TakeDigits(rest, text);
    if (denominator == 0) throw EConvertError(rsNotAFraction, text);
  }
  if (!WithoutLeadingBlanks(rest).empty()) throw EConvertError(rsNotAFraction, text);

  if (__builtin_add_overflow(whole, numerator / denominator, &whole)) {
    throw EConvertError(rsNumberTooLarge, text);
  }
  numerator %= denominator;
  const std::int64_t divisor = std::gcd(numerator, denominator);
  const std::int64_t sign = negative ? -1 : 1;
  return {static_cast<Extended>(sign * whole), sign * (numerator / divisor), denominator / divisor};
}

}  // namespace qorvex::inline QorvexGlobals
