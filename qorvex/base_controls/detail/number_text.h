#pragma once

/// @file
/// Numbers in the notation of a locale, without loss of a bit.

#include <QLocale>
#include <QString>
#include <optional>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexBaseControls::detail {

/// The plain text of a number, as Float2EStr and Float2Str write it, with the digits, the decimal
/// point and the minus sign of a locale. There are no group separators, so that other programs can
/// read a copied number. For the same reason the exponent is marked with e, not with the locale's
/// own sign.
[[nodiscard]] QORVEX_EXPORT QString LocalNumber(std::string_view plain, const QLocale& locale);

/// The value of a text that was typed or pasted, correctly rounded to 64 bits, or nothing if it is
/// not a finite number.
///
/// Accepted are the digits and signs of the locale and the ASCII ones, U+2212 as minus, a leading
/// plus sign, exponents with e or E or the locale's own sign, surrounding blanks (no-break spaces
/// and line ends too), and as decimal separator the locale's own, or a point unless the locale uses
/// it to separate groups. Direction marks are ignored. Group separators are refused: "1,234" is not
/// a number in English, since the user may mean 1.234. "nan", "inf" and numbers beyond the extended
/// range are refused too.
///
/// The number is multiplied by a power of ten before it is rounded; a text with an exponent is then
/// refused.
[[nodiscard]] QORVEX_EXPORT std::optional<Extended> ParseLocalNumber(const QString& text,
                                                                     const QLocale& locale,
                                                                     int power = 0);

}  // namespace qorvex::inline QorvexBaseControls::detail
