#include "qorvex/base/currency_text.h"

#include <limits>
#include <ostream>

#include "qorvex/base/detail/decimal_text.h"
#include "qorvex/base/errors.h"

namespace qorvex {

namespace {

// The longest text is that of the smallest 64-bit amount: 19 digits, point and sign.
using Buffer = char[21];

template <CurrencyElement C>
std::string_view Write(C amount, Buffer& buffer) {
  const bool negative = amount.stored() < 0;
  const auto bits = static_cast<std::uint64_t>(amount.stored());
  std::uint64_t magnitude = negative ? 0 - bits : bits;
  char* const end = buffer + sizeof buffer;
  char* first = end;
  const auto prepend_digit = [&] {
    *--first = static_cast<char>('0' + magnitude % 10);
    magnitude /= 10;
  };
  for (int i = 0; i < C::kDecimals; ++i) prepend_digit();
  *--first = '.';
  do prepend_digit();
  while (magnitude != 0);
  if (negative) *--first = '-';
  return {first, end};
}

// number * 10^decimals, rounded to an integer, ties to even; some value above the limit if the
// result is above it. The limit is at most 2^63.
std::uint64_t CountParts(const detail::DecimalText& number, int decimals, std::uint64_t limit) {
  const std::uint64_t above_limit = limit + 1;
  std::uint64_t parts = 0;
  unsigned tenths = 0;
  bool below_tenths = false;

  const bool has_point = number.mantissa.find('.') != std::string_view::npos;
  const auto digits = static_cast<std::int64_t>(number.mantissa.size() - (has_point ? 1 : 0));
  // The next digit stands for digit * 10^power.
  std::int64_t power = number.exponent + decimals + digits - 1;
  for (const char c : number.mantissa) {
    if (c == '.') continue;
    const auto digit = static_cast<unsigned>(c - '0');
    if (power >= 0) {
      if (parts > limit / 10) return above_limit;
      parts = parts * 10 + digit;
    } else if (power == -1) {
      tenths = digit;
    } else {
      below_tenths |= digit != 0;
    }
    --power;
  }
  for (; power >= 0 && parts != 0; --power) {
    if (parts > limit / 10) return above_limit;
    parts *= 10;
  }
  const bool tie = tenths == 5 && !below_tenths;
  const bool up = tie ? parts % 2 != 0 : tenths >= 5;
  return up ? parts + 1 : parts;
}

template <CurrencyElement C>
C Read(std::string_view text) {
  using Stored = typename C::StoredType;
  std::string_view unsigned_text = detail::WithoutBlanks(text);
  const bool negative = detail::TakeSign(unsigned_text);
  const detail::DecimalText number = detail::ScanDecimal(unsigned_text);
  if (!number.valid) throw EConvertError(rsNotANumber, text);
  const auto largest = static_cast<std::uint64_t>(std::numeric_limits<Stored>::max());
  const std::uint64_t limit = negative ? largest + 1 : largest;
  const std::uint64_t parts = CountParts(number, C::kDecimals, limit);
  if (parts > limit) throw EConvertError(rsNumberTooLarge, text);
  return C(static_cast<Stored>(negative ? 0 - parts : parts));
}

}  // namespace

template <class Stored, std::int64_t Scale>
std::ostream& operator<<(std::ostream& out, BasicCurrency<Stored, Scale> amount) {
  Buffer buffer;
  return out << Write(amount, buffer);
}

template std::ostream& operator<<(std::ostream&, Currency);
template std::ostream& operator<<(std::ostream&, QorCurrency);
template std::ostream& operator<<(std::ostream&, QorLongCurrency);

inline namespace QorvexGlobals {

template <CurrencyElement C>
std::string Currency2EStr(C amount) {
  Buffer buffer;
  return std::string(Write(amount, buffer));
}

template std::string Currency2EStr(Currency);
template std::string Currency2EStr(QorCurrency);
template std::string Currency2EStr(QorLongCurrency);

Currency Str2Currency(std::string_view text) {
  return Read<Currency>(text);
}
QorCurrency Str2QorCurrency(std::string_view text) {
  return Read<QorCurrency>(text);
}
QorLongCurrency Str2QorLongCurrency(std::string_view text) {
  return Read<QorLongCurrency>(text);
}

}  // namespace QorvexGlobals

}  // namespace qorvex
