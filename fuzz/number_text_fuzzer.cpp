// Whatever the text: only EConvertErrors are raised, a number has the value that the C library
// finds, and texts of values give the values back.

#include "qorvex/base/errors.h"
#include "qorvex/base/fractions.h"
#include "qorvex/base/text.h"

#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <string>
#include <string_view>

namespace {

using namespace qorvex;

void Require(bool condition, const char* what) {
  if (condition) return;
  std::fputs(what, stderr);
  std::abort();
}

bool Identical(Extended a, Extended b) {
  return std::isnan(a) ? std::isnan(b) : a == b && std::signbit(a) == std::signbit(b);
}

void CheckNumber(const std::string& text) {
  Extended value = 0;
  try {
    value = Str2Float(text);
  } catch (const EConvertError& error) {
    Require(error.message_id() == rsNotANumber || error.message_id() == rsNumberTooLarge,
            "another message");
    return;
  }
  // The fuzzer runs in the C locale, so the C library reads the same grammar and more.
  char* end = nullptr;
  const Extended expected = std::strtold(text.c_str(), &end);
  Require(Identical(value, expected) || std::isnan(value), "Str2Float and strtold differ");
  Require(Identical(Str2Float(Float2Str(value)), value), "Float2Str does not come back");
  Require(Float2EStr(value, text.empty() ? 0 : text[0] % 40) != "", "no text");
}

void CheckFraction(const std::string& text) {
  TQorMixedFraction fraction;
  try {
    fraction = Str2Fraction(text);
  } catch (const EConvertError& error) {
    Require(error.message_id() == rsNotAFraction || error.message_id() == rsNumberTooLarge,
            "another message");
    return;
  }
  Require(fraction.denominator > 0, "the denominator is not positive");
  Require(std::abs(fraction.numerator) < fraction.denominator, "the fraction is not proper");
  const Extended value = Fraction2Float(fraction);
  Require(std::isfinite(value), "the value is not finite");
  for (const TQorFractionDisplay display : {fdMixed, fdImproper}) {
    Require(Str2Fraction(Fraction2Str(fraction, display)) == fraction,
            "Fraction2Str does not come back");
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  const std::string text(reinterpret_cast<const char*>(data), size);
  CheckNumber(text);
  CheckFraction(text);
  return 0;
}
