#pragma once

/// @file
/// Numbers in cells, and the errors for cells and rows that cannot be used.

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

#include "apps/common/input_error.h"
#include "apps/common/row_reader.h"
#include "qorvex/base/currency.h"
#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// Whether the text is a number. Numbers beyond the range of extended precision, "nan" and "inf"
/// count.
[[nodiscard]] bool IsNumber(std::string_view text, char decimal_sign = '.');

/// The finite number that the text is; empty for any other text.
[[nodiscard]] std::optional<Extended> FindNumber(std::string_view cell, char decimal_sign = '.');

/// Whether the cell is neither empty nor a number, like a name in a header.
[[nodiscard]] bool IsText(std::string_view cell, char decimal_sign = '.');

/// The text of a number with a point in place of the decimal comma. A point becomes a comma, so
/// that 1.234,5 is not a number. The buffer holds the text, behind which kReadableBehind bytes can be
/// read.
[[nodiscard]] std::string_view WithDecimalPoint(std::string_view cell, std::string& buffer);

/// Whether the text may be a number with groups of three digits between those signs.
[[nodiscard]] bool MayHaveGroups(std::string_view text, char group_sign);

/// "column 2 (speed)", or "column 2" without a name, with the name on one line, cut after 40
/// characters.
[[nodiscard]] std::string ColumnTitle(std::size_t number, std::string_view name = {});

/// "1 cell", "2 cells".
[[nodiscard]] std::string Cardinal(std::size_t count, const char* noun);

/// The position of a cell.
struct CellPlace {
  const std::string& input;
  std::size_t line;
  /// The number of its column, from 1, and the name of that column, if any.
  std::size_t column;
  std::string_view column_name = {};
};

/// The number in a cell, converted to 80 bits by Str2Float. Throws InputError with the position of
/// the cell: kEmptyCell; kGroupedDigits; kOtherDecimalSign; kNotANumber, also for infinities and
/// NaN; kOutOfRange.
[[nodiscard]] Extended NumberIn(std::string_view cell, const CellPlace& place,
                                char decimal_sign = '.');

/// The amount of money in a cell, exactly: a sign, digits and at most four decimals. More decimals
/// would have to be rounded, and a program that writes an exponent has probably rounded already.
/// Throws InputError with the position of the cell: kEmptyCell, kNotANumber, kOutOfRange, also for
/// other numbers than amounts.
[[nodiscard]] Currency AmountIn(std::string_view cell, const CellPlace& place,
                                char decimal_sign = '.');

/// Throws the same InputError (kEmptyCell) as NumberIn.
[[noreturn]] void RefuseEmptyCell(const CellPlace& place);

/// Throws InputError (kMalformed) unless the row has as many cells as the first one, which started
/// on first_line.
void RequireWidth(const RowScanner& rows, std::size_t width, std::size_t first_line);

/// Reads the first row. Throws InputError (kNoValues) if the text has no rows.
void RequireFirstRow(RowReader& rows);

}  // namespace qorvex::apps
