#pragma once

/// @file
/// Converts numbers to text and back, exactly and independently of the locale.

#include <charconv>
#include <concepts>
#include <string>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The value of the text, correctly rounded to 64 bits of mantissa.
///
/// - Accepts surrounding blanks (spaces and tabs), one leading sign, digits with an optional
///   decimal point, an optional exponent, and "inf", "infinity" and "nan" in any case.
/// - Values too small for the format become 0 or subnormal.
/// - EConvertError, which quotes the text: rsNotANumber for any other text, rsNumberTooLarge for a
///   number beyond the extended range.
/// - Fastest for up to 19 digits and powers of ten from -27 to 27; fast for up to 38 digits and
///   powers from -54 to 54.
[[nodiscard]] QORVEX_EXPORT Extended Str2Float(std::string_view text);

/// The value in fixed notation with the given number of decimals, correctly rounded, ties to even.
///
/// - Negative decimals count as 0.
/// - A value that rounds to zero has no sign.
/// - NaN is "nan", the infinities are "inf" and "-inf".
[[nodiscard]] QORVEX_EXPORT std::string Float2EStr(Extended value, int decimals);

/// The shortest text, in fixed or scientific notation, that Str2Float converts back to the same
/// value.
[[nodiscard]] QORVEX_EXPORT std::string Float2Str(Extended value);

/// The decimal text of an integer.
template <std::integral Int>
[[nodiscard]] inline std::string Int2EStr(Int value) {
  char buffer[24];
  const auto [end, error] = std::to_chars(buffer, buffer + sizeof buffer, value);
  return {buffer, end};
}

/// Removes the given character from the end of the text, and then a decimal point at its end.
/// Digits are only removed from decimals: "2.500" becomes "2.5" and "3.000" becomes "3", while
/// "100" and "1e10" stay unchanged.
[[nodiscard]] QORVEX_EXPORT std::string StripTChStr(std::string_view text, char trailing);

}  // namespace qorvex::inline QorvexGlobals
