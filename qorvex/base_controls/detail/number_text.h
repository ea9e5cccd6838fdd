#pragma once

/// @file
/// Numbers as people of a country write them, with every bit kept.

#include <QLocale>
#include <QString>
#include <optional>
#include <string_view>

#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexBaseControls::detail {

/// The plain text of a number, as Float2EStr and Float2Str write it, with the digits, the decimal
/// point and the minus sign of a locale. Groups are not separated, since a copied number must stay
/// one. The exponent keeps its e, which other programs read, unlike the locale's own sign.
[[nodiscard]] QORVEX_EXPORT QString LocalNumber(std::string_view plain, const QLocale& locale);

/// The value of a text that was typed or pasted, correctly rounded to 64 bits, or nothing when it
/// is no finite number.
///
/// Understood are the digits and signs of the locale and the ASCII ones, U+2212 as minus, a leading
/// plus sign, exponents with e or E or the locale's own sign, surrounding blanks (no-break spaces
/// and line ends too), and as decimal separator the locale's own or a point where the locale does
/// not group with it. Marks of writing direction are passed over. Nothing that could be a group
/// separator is taken: "1,234" is no number in English, since one reader in two would mean 1.234.
/// Neither "nan" nor "inf" enters data by typing, nor does a number beyond the extended range.
[[nodiscard]] QORVEX_EXPORT std::optional<Extended> ParseLocalNumber(const QString& text,
                                                                     const QLocale& locale);

}  // namespace qorvex::inline QorvexBaseControls::detail
