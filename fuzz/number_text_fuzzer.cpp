// For any text: only EConvertError is thrown, a number has the value that the C library reads, an
// amount is the rounded number, and the texts of values are read back as the same values.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <limits>
#include <string>
#include <string_view>

#include "fuzz/require.h"
#include "qorvex/base/currency_text.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/fractions.h"
#include "qorvex/base/text.h"

namespace {

using namespace qorvex;

bool Identical(Extended a, Extended b) {
  return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

void CheckNumber(const std::string& text) {
  Extended value = 0;
  try {
    value = Str2Float(text);
  } catch (const EConvertError& error) {
    Require(error.message_id() == rsNotANumber || error.message_id() == rsNumberTooLarge,
            "an unexpected message");
    return;
  }
  // The fuzzer runs in the C locale, so the C library reads the same grammar and more.
  char* end = nullptr;
  const Extended expected = std::strtold(text.c_str(), &end);
  Require(Identical(value, expected) || std::isnan(value), "Str2Float and strtold differ");
  Require(Identical(Str2Float(Float2Str(value)), value),
          "the text of Float2Str is read as another value");
  const int decimals = std::abs(text[0] % 40);
  char fixed[5000];
  std::snprintf(fixed, sizeof fixed, "%.*Lf", decimals, std::fabs(value));
  if (!std::isnan(value))
    Require(Float2EStr(std::fabs(value), decimals) == fixed, "Float2EStr and printf differ");
}

void CheckFraction(const std::string& text) {
  TQorMixedFraction fraction;
  try {
    fraction = Str2Fraction(text);
  } catch (const EConvertError& error) {
    Require(error.message_id() == rsNotAFraction || error.message_id() == rsNumberTooLarge,
            "an unexpected message");
    return;
  }
  Require(fraction.denominator > 0, "the denominator is not positive");
  Require(std::abs(fraction.numerator) < fraction.denominator, "the fraction is not proper");
  const Extended value = Fraction2Float(fraction);
  Require(std::isfinite(value), "the value is not finite");
  for (const TQorFractionDisplay display : {fdMixed, fdImproper}) {
    Require(Str2Fraction(Fraction2Str(fraction, display)) == fraction,
            "the text of Fraction2Str is read as another fraction");
  }
}

template <CurrencyElement C>
void CheckAmount(const std::string& text, C (&read)(std::string_view)) {
  const auto comes_back = [&](C amount) { return read(Currency2EStr(amount)) == amount; };
  typename C::StoredType stored = 0;
  std::memcpy(&stored, text.data(), std::min(sizeof stored, text.size()));
  Require(comes_back(C(stored)), "the text of Currency2EStr is read as another amount");

  Extended number = 0;
  bool is_number = true;
  try {
    number = Str2Float(text) * static_cast<Extended>(C::kScale);
  } catch (const EConvertError& error) {
    // A number beyond the extended range is beyond every amount.
    number = std::numeric_limits<Extended>::infinity();
    is_number = error.message_id() == rsNumberTooLarge;
  }
  constexpr auto limit = static_cast<Extended>(std::numeric_limits<typename C::StoredType>::max());
  try {
    const C amount = read(text);
    Require(comes_back(amount), "the text of an amount that was read is read as another amount");
    // The number was rounded, for the largest amounts to no more than half a part, and then scaled.
    Require(std::fabs(static_cast<Extended>(amount.stored()) - number) <= 1.5L,
            "the amount is not the number");
    Require(std::fabs(number) >= 1e9L ||
                std::fabs(static_cast<Extended>(amount.stored()) - number) <= 0.50001L,
            "the amount is not the nearest one");
  } catch (const EConvertError& error) {
    if (error.message_id() == rsNumberTooLarge) {
      Require(is_number && std::fabs(number) > limit - 1, "the amount is not too large");
    } else {
      Require(error.message_id() == rsNotANumber, "an unexpected message");
      Require(!is_number || !std::isfinite(number), "a finite number is refused");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckNumber(text);
  CheckFraction(text);
  CheckAmount(text, Str2Currency);
  CheckAmount(text, Str2QorCurrency);
  CheckAmount(text, Str2QorLongCurrency);
  return 0;
}
