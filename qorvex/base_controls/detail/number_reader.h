#pragma once

/// @file
/// Reads the numbers that people type and that other programs copy.

#include <QLocale>
#include <QString>

#include "qorvex/base/export.h"
#include "qorvex/base_controls/cell_reading.h"

namespace qorvex::inline QorvexBaseControls::detail {

/// The number that a text means.
///
/// - What ParseLocalNumber reads has that value.
/// - Otherwise a text with two different separators, or one that is repeated, is read whatever the
///   locale uses: "1,234.50", "1.234,50", "1,234,567", "12,34,567". No-break spaces and apostrophes
///   can only separate groups: "1'234" is 1234. Where a locale groups with a space, an ordinary one
///   is read in front of a decimal separator: "1 234,5" in French.
/// - A single point or comma that is not the locale's decimal separator is refused: "1,234" may be
///   meant as 1234 or 1.234. Where numbers are shown with groups, a text that has those of the
///   locale is read as it is shown.
[[nodiscard]] QORVEX_EXPORT CellReading ReadNumber(const QString& text, const QLocale& locale,
                                                   bool shows_groups = false);

/// The same, and beside numbers: "12%", which is exactly the decimal number 0.12, products and
/// quotients such as "2*3" and "1/3", and "(5)" for -5. Operations are done from left to right, in
/// extended precision; there is at most one division, since "1/2/24" may be a date. Refused are
/// also division by zero and results beyond the extended range.
[[nodiscard]] QORVEX_EXPORT CellReading ReadExpression(const QString& text, const QLocale& locale,
                                                       bool shows_groups = false);

/// Says that a text is not a number.
[[nodiscard]] CellReading NotANumber(const QString& text);

}  // namespace qorvex::inline QorvexBaseControls::detail
