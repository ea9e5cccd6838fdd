#pragma once

/// @file
/// Converts amounts to text and back, exactly and independently of the locale.

#include <string>
#include <string_view>

#include "qorvex/base/currency.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The amount with all decimals of its type: "-0.0100" for Currency(-100). Zero has no sign.
template <CurrencyElement C>
[[nodiscard]] QORVEX_EXPORT std::string Currency2EStr(C amount);

/// @{
/// The amount that the text represents in units, rounded from the decimal text itself, ties to
/// even.
///
/// - Accepts what Str2Float accepts except infinities and NaN: surrounding blanks (spaces and
///   tabs), one leading sign, digits with an optional decimal point, an optional exponent.
/// - EConvertError, which quotes the text: rsNotANumber for any other text, rsNumberTooLarge if the
///   rounded amount is out of range.
/// - O(length of the text).
[[nodiscard]] QORVEX_EXPORT Currency Str2Currency(std::string_view text);
[[nodiscard]] QORVEX_EXPORT QorCurrency Str2QorCurrency(std::string_view text);
[[nodiscard]] QORVEX_EXPORT QorLongCurrency Str2QorLongCurrency(std::string_view text);
/// @}

}  // namespace qorvex::inline QorvexGlobals
