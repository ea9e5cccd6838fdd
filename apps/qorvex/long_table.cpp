#include "apps/qorvex/long_table.h"

#include <cstddef>
#include <utility>

namespace qorvex::apps {

LongTable::LongTable(std::vector<ResultTable::Column> columns, const OutputFormat& output)
    : rows_{.columns = std::move(columns)}, output_(output) {}

void LongTable::Add(std::vector<Cell> row) {
  constexpr std::size_t block = 1000;
  rows_.rows.push_back(std::move(row));
  const bool has_rows_by_themselves =
      output_.form == OutputForm::kText || output_.form == OutputForm::kCsv;
  if (has_rows_by_themselves && rows_.rows.size() == block) Print();
}

std::string LongTable::TakeText() {
  if (text_.empty() || !rows_.rows.empty()) Print();
  return std::exchange(text_, "");
}

// Only the first rows are printed with the heading, which is one line.
void LongTable::Print() {
  const std::string text = Printed(rows_, output_);
  text_.append(text, text_.empty() ? 0 : text.find('\n') + 1);
  rows_.rows.clear();
}

}  // namespace qorvex::apps
