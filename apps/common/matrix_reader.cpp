#include "apps/common/matrix_reader.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/common/row_reader.h"

namespace qorvex::apps {

namespace {

// A separate fault, because the option for a header may have been forgotten.
void RefuseText(const RowReader& rows) {
  const auto text =
      std::ranges::find_if(rows.Cells(), [](std::string_view cell) { return IsText(cell); });
  if (text == rows.Cells().end()) return;
  const auto column = static_cast<std::size_t>(text - rows.Cells().begin()) + 1;
  throw InputError(InputFault::kTextInFirstRow, rows.Name(), rows.Line(),
                   ColumnTitle(column) + ": " + Excerpt(*text) + " is not a number");
}

void RefuseBlankLines(const RowReader& rows) {
  if (rows.BlankLines() == 0) return;
  throw InputError(InputFault::kMalformed, rows.Name(), rows.Line() - rows.BlankLines(),
                   "the line is blank");
}

TQorFloatVector NumbersIn(const RowReader& rows) {
  auto numbers = TQorFloatVector::WithLength(rows.Cells().size());
  for (std::size_t i = 0; i < numbers.size(); ++i) {
    numbers[i] = NumberIn(rows.Cells()[i], {rows.Name(), rows.Line(), i + 1});
  }
  return numbers;
}

}  // namespace

TQorFloatMatrix ReadMatrix(TextInput input, const MatrixLayout& layout) {
  RowReader rows(std::move(input), {.delimiter = layout.delimiter});
  RequireFirstRow(rows);
  const std::size_t first_line = rows.Line();
  const std::size_t width = rows.Cells().size();

  TQorFloatMatrix matrix;
  if (!layout.has_header) {
    RefuseText(rows);
    matrix.Append(NumbersIn(rows));
  }
  while (rows.Next()) {
    RefuseBlankLines(rows);
    RequireWidth(rows, width, first_line);
    matrix.Append(NumbersIn(rows));
  }
  if (matrix.empty()) {
    throw InputError(InputFault::kNoValues, rows.Name(), "there is no row below the header");
  }
  return matrix;
}

}  // namespace qorvex::apps
