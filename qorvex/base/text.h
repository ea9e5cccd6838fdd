#pragma once

/// @file
/// Numbers to text and back: exact, and the same under every locale.

#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The text's value, correctly rounded to 64 bits of mantissa.
///
/// Accepts surrounding blanks (spaces and tabs), one leading sign, digits with an optional decimal
/// point, an optional exponent, and "inf", "infinity" and "nan" in any case. Values too small for
/// the format become 0 or subnormal. Raises EConvertError, naming the text: rsNotANumber for
/// anything else, rsNumberTooLarge for a number beyond the extended range. Quickest for up to 19
/// digits and powers of ten up to 27.
[[nodiscard]] QORVEX_EXPORT Extended Str2Float(std::string_view text);

/// Fixed notation with the given number of decimals (negative counts as 0), correctly rounded, ties
/// of the exact value to even. A value that rounds to zero has no sign. NaN is "nan", the
/// infinities are "inf" and "-inf".
[[nodiscard]] QORVEX_EXPORT std::string Float2EStr(Extended value, int decimals);

/// The shortest text from which Str2Float gives back the same value, in fixed or scientific
/// notation.
[[nodiscard]] QORVEX_EXPORT std::string Float2Str(Extended value);

/// The decimal text of an integer.
template <std::integral Int>
[[nodiscard]] inline std::string Int2EStr(Int value) {
  char buffer[24];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, end};
}

/// The text without the given character at its end, and without a decimal point that then ends it.
/// A digit is stripped from the decimals only, so "2.500" becomes "2.5" and "3.000" becomes "3",
/// while "100" and "1e10" stay.
[[nodiscard]] QORVEX_EXPORT std::string StripTChStr(std::string_view text, char trailing);

}  // namespace qorvex::inline QorvexGlobals
