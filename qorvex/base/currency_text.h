#pragma once

/// @file
/// Amounts to text and back: exact in integer arithmetic, and the same under every locale.

#include <string>
#include <string_view>

#include "qorvex/base/currency.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexGlobals {

/// The amount with all fixed decimals of its type: "-0.0100" for Currency(-100). Zero has no sign.
template <CurrencyElement C>
[[nodiscard]] QORVEX_EXPORT std::string Currency2EStr(C amount);

/// @{
/// The text's amount. Decimals beyond those of the type round to the nearest amount, ties of the
/// decimal text to even.
///
/// Accepts what Str2Float accepts, but for infinities and NaN: surrounding blanks (spaces and
/// tabs), one leading sign, digits with an optional decimal point, an optional exponent. Raises
/// EConvertError, naming the text: rsNotANumber for anything else, rsNumberTooLarge for what rounds
/// to an amount beyond the range of the type. Takes time in proportion to the length of the text.
[[nodiscard]] QORVEX_EXPORT Currency Str2Currency(std::string_view text);
[[nodiscard]] QORVEX_EXPORT QorCurrency Str2QorCurrency(std::string_view text);
[[nodiscard]] QORVEX_EXPORT QorLongCurrency Str2QorLongCurrency(std::string_view text);
/// @}

}  // namespace qorvex::inline QorvexGlobals
