#include "apps/common/whole_rows.h"

#include <algorithm>
#include <cstdint>
#include <utility>

#include "apps/common/groups.h"

namespace qorvex::apps {

namespace {

constexpr std::uint32_t kKept = 0;
constexpr std::uint32_t kSkipped = 1;

Labels KeptLabels(const Labels& labels, const Groups& groups) {
  Labels kept;
  for (std::size_t row = 0; row < labels.size(); ++row)
    if (groups.of_row[row] == kKept) kept.Append(labels.Texts()[labels.Codes()[row]]);
  return kept;
}

}  // namespace

void KeepWholeRows(std::vector<TableColumn>& columns, std::size_t rows) {
  if (std::ranges::all_of(columns, [](const TableColumn& column) { return column.gaps.empty(); }))
    return;
  Groups groups{.of_row = std::vector<std::uint32_t>(rows, kKept),
                .labels = std::vector<std::vector<std::string>>(2)};
  for (const TableColumn& column : columns)
    for (const std::size_t row : column.gaps) groups.of_row[row] = kSkipped;
  const auto skipped = static_cast<std::size_t>(std::ranges::count(groups.of_row, kSkipped));
  for (TableColumn& column : columns) {
    if (column.role == ColumnRole::kLabels) {
      column.labels = KeptLabels(column.labels, groups);
    } else {
      column.numbers = std::move(Split(column, groups)[kKept].numbers);
    }
    column.missing += skipped - column.gaps.size();
    column.gaps.clear();
  }
}

}  // namespace qorvex::apps
