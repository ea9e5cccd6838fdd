#include "apps/qorvex/cells.h"

#include <cmath>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::cli {

namespace {

[[noreturn]] void FailAt(const CellPlace& place, InputFault fault, const std::string& what) {
  throw InputError(fault, place.input, place.line,
                   ColumnTitle(place.column, place.column_name) + ": " + what);
}

}  // namespace

bool IsNumber(std::string_view text) {
  try {
    static_cast<void>(Str2Float(text));
  } catch (const EConvertError& error) {
    return error.message_id() == rsNumberTooLarge;
  }
  return true;
}

bool IsText(std::string_view cell) {
  return !cell.empty() && !IsNumber(cell);
}

std::string ColumnTitle(std::size_t number, std::string_view name) {
  std::string title = "column " + Int2EStr(number);
  if (!name.empty()) title += " (" + OnOneLine(name) + ')';
  return title;
}

std::string Cardinal(std::size_t count, const char* noun) {
  return Int2EStr(count) + ' ' + noun + (count == 1 ? "" : "s");
}

Extended NumberIn(std::string_view cell, const CellPlace& place) {
  if (cell.empty()) RefuseEmptyCell(place);
  Extended value = 0;
  try {
    value = Str2Float(cell);
  } catch (const EConvertError& error) {
    if (error.message_id() == rsNumberTooLarge) {
      FailAt(place, InputFault::kOutOfRange,
             Excerpt(cell) + " is beyond the range of extended precision");
    }
    FailAt(place, InputFault::kNotANumber, Excerpt(cell) + " is not a number");
  }
  if (!std::isfinite(value)) {
    FailAt(place, InputFault::kNotANumber, Excerpt(cell) + " is not a finite number");
  }
  return value;
}

void RefuseEmptyCell(const CellPlace& place) {
  FailAt(place, InputFault::kEmptyCell, "the cell is empty");
}

void RequireFirstRow(RowReader& rows) {
  if (rows.Next()) return;
  throw InputError(InputFault::kNoValues, rows.Name(), "there is nothing to read");
}

void RequireWidth(const RowReader& rows, std::size_t width, std::size_t first_line) {
  const std::size_t cells = rows.Cells().size();
  if (cells == width) return;
  throw InputError(InputFault::kMalformed, rows.Name(), rows.Line(),
                   "the row has " + Cardinal(cells, "cell") + " where line " +
                       Int2EStr(first_line) + " has " + Int2EStr(width));
}

}  // namespace qorvex::cli
