#include "apps/common/matrix_reader.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <string_view>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/row_reader.h"

namespace qorvex::apps {

namespace {

using Cells = std::span<const std::string_view>;

// A separate fault, because the option for a header may have been forgotten.
void RefuseText(RowReader& rows) {
  const Cells cells = rows.Cells();
  const auto text = std::ranges::find_if(
      cells, [&](std::string_view cell) { return IsText(cell, *rows.Format().decimal_sign); });
  if (text == cells.end()) return;
  const auto column = static_cast<std::size_t>(text - cells.begin()) + 1;
  throw InputError(InputFault::kTextInFirstRow, rows.Name(), rows.Line(),
                   ColumnTitle(column) + ": " + Excerpt(*text) + " is not a number");
}

void RefuseBlankLines(const RowScanner& rows) {
  if (rows.BlankLines() == 0) return;
  throw InputError(InputFault::kMalformed, rows.Name(), rows.Line() - rows.BlankLines(),
                   "the line is blank");
}

// Those from the first column on.
TQorFloatVector NumbersIn(const RowScanner& rows, std::size_t first_column, char decimal_sign) {
  const Cells cells = rows.Cells();
  auto numbers = TQorFloatVector::WithLength(cells.size() - first_column);
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    const std::size_t column = first_column + i;
    numbers[i] = NumberIn(cells[column], {rows.Name(), rows.Line(), column + 1}, decimal_sign);
  }
  return numbers;
}

}  // namespace

TQorFloatMatrix ReadMatrix(TextInput input, const TableFormat& format) {
  TableFormat known = format;
  known.header = format.header.value_or(false);
  RowReader reader(std::move(input), known);
  RequireFirstRow(reader);
  const std::size_t first_line = reader.Line();
  const std::size_t width = reader.Cells().size();
  const std::size_t first_column = reader.HasRowNames() ? 1 : 0;
  const char decimal_sign = *reader.Format().decimal_sign;
  RowScanner& rows = reader.Scanner();

  TQorFloatMatrix matrix;
  if (!*known.header) {
    RefuseText(reader);
    matrix.Append(NumbersIn(rows, first_column, decimal_sign));
  }
  while (rows.Next()) {
    RefuseBlankLines(rows);
    RequireWidth(rows, width, first_line);
    matrix.Append(NumbersIn(rows, first_column, decimal_sign));
  }
  if (matrix.empty()) {
    throw InputError(InputFault::kNoValues, reader.Name(), "there is no row below the header");
  }
  return matrix;
}

}  // namespace qorvex::apps
