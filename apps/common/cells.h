#pragma once

/// @file
/// Numbers in the cells of rows, and what is said of rows and cells that are not as they should be.

#include <cstddef>
#include <string>
#include <string_view>

#include "apps/common/input_error.h"
#include "apps/common/row_reader.h"
#include "qorvex/base/currency.h"
#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// Whether the text is a number, even one beyond the range of extended precision, or "nan" or
/// "inf".
[[nodiscard]] bool IsNumber(std::string_view text);

/// Whether the cell is neither empty nor a number, as the names in a header are.
[[nodiscard]] bool IsText(std::string_view cell);

/// "column 2 (speed)", or "column 2" without a name; control characters are written as escapes.
[[nodiscard]] std::string ColumnTitle(std::size_t number, std::string_view name = {});

/// "1 cell", "2 cells".
[[nodiscard]] std::string Cardinal(std::size_t count, const char* noun);

/// Where a cell stands.
struct CellPlace {
  const std::string& input;
  std::size_t line;
  /// Its column, from 1, and that column's name, if it has one.
  std::size_t column;
  std::string_view column_name = {};
};

/// The number in a cell, converted by Str2Float, so to 80 bits. Raises InputError, which tells the
/// place: kEmptyCell; kNotANumber, also for infinities and NaN, which are no data; kOutOfRange.
[[nodiscard]] Extended NumberIn(std::string_view cell, const CellPlace& place);

/// The amount of money in a cell, exactly: a sign, digits and at most four decimals. More decimals
/// would have to be rounded, and whoever wrote an exponent most likely rounded already. Raises
/// InputError, which tells the place: kEmptyCell, kNotANumber, kOutOfRange.
[[nodiscard]] Currency AmountIn(std::string_view cell, const CellPlace& place);

/// Raises InputError (kEmptyCell), as NumberIn does.
[[noreturn]] void RefuseEmptyCell(const CellPlace& place);

/// Raises InputError (kMalformed) unless the row has as many cells as the first one, which started
/// on the line given.
void RequireWidth(const RowReader& rows, std::size_t width, std::size_t first_line);

/// Reads the first row; raises InputError (kNoValues) when there is none.
void RequireFirstRow(RowReader& rows);

}  // namespace qorvex::apps
