#include "apps/common/table_reader.h"

#include <deque>
#include <exception>
#include <iterator>
#include <mutex>
#include <optional>
#include <utility>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/column_collector.h"
#include "apps/common/row_reader.h"
#include "apps/common/threads.h"

namespace qorvex::apps {

namespace {

// Every part has all columns, so in a wider table the parts would take more memory than the text.
constexpr std::size_t kMostColumnsInParts = 256;

// Reads the rows up to those that TakeLines leaves. Each thread takes the lines that follow those
// taken before, and collects their columns.
void AddRowsInParts(RowScanner& rows, ColumnCollector& collector, unsigned threads) {
  std::mutex mutex;
  bool ended = false;
  std::deque<ColumnCollector::Part> parts;
  const auto take = [&](RowScanner& lines) -> ColumnCollector::Part* {
    const std::lock_guard lock(mutex);
    if (ended) return nullptr;
    ended = true;  // unless lines are taken
    ColumnCollector::Part& part = parts.emplace_back(
        ColumnCollector::Part{.rows = collector.ForMoreRows(), .first_line = rows.NextLine()});
    try {
      ended = !rows.TakeLines(lines);
    } catch (...) {
      part.fault = std::current_exception();
    }
    return ended ? nullptr : &part;
  };
  RunOnThreads(threads, [&] {
    RowScanner lines(TextInput(), RowSyntax(), 0);
    while (ColumnCollector::Part* const part = take(lines)) {
      try {
        part->rows.AddAllRows(lines);
      } catch (...) {
        part->fault = std::current_exception();
        const std::lock_guard lock(mutex);
        ended = true;
      }
    }
  });
  std::vector<ColumnCollector::Part> in_order(std::move_iterator(parts.begin()),
                                              std::move_iterator(parts.end()));
  collector.AddParts(in_order, rows.Name(), threads);
}

}  // namespace

std::string TableColumn::Title() const {
  return ColumnTitle(number, name);
}

Table ReadTable(TextInput input, const TableSelection& selection, unsigned threads,
                std::size_t block_size) {
  RowReader reader(std::move(input), selection.format, block_size);
  RequireFirstRow(reader);
  ColumnCollector collector(reader, selection);
  RowScanner& rows = reader.Scanner();
  if (!collector.HasHeader()) collector.AddCells(rows);
  if (threads > 1 && collector.CountColumns() <= kMostColumnsInParts)
    AddRowsInParts(rows, collector, threads);
  collector.AddAllRows(rows);
  Table table = collector.Finish(rows.Name());
  table.format = reader.Format();
  table.has_doubtful_row_names = reader.HasDoubtfulRowNames();
  return table;
}

}  // namespace qorvex::apps
