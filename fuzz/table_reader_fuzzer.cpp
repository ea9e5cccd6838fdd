// The first byte selects the options, the rest is the text. For any text: only InputError is
// thrown, the block size and the number of threads make no difference, the result satisfies the
// contract of ReadTable, and ReadMatrix reads the same texts as ReadTable, to the same numbers.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/input_error.h"
#include "apps/common/matrix_reader.h"
#include "apps/common/row_reader.h"
#include "apps/common/table_reader.h"
#include "fuzz/require.h"
#include "qorvex/base/text.h"

namespace {

using namespace qorvex::apps;
using qorvex::Require;

TextInput SourceOf(std::string_view text) {
  return {"text", [text](char* buffer, std::size_t size) mutable {
            const std::size_t count = std::min(size, text.size());
            std::memcpy(buffer, text.data(), count);
            text.remove_prefix(count);
            return count;
          }};
}

// All results of the reader as one text.
std::string Account(std::string_view text, std::optional<char> delimiter, std::size_t block_size) {
  std::string account;
  try {
    RowReader reader(SourceOf(text), {.delimiter = delimiter}, block_size);
    while (reader.Next()) {
      account += std::to_string(reader.Line()) + '/' + std::to_string(reader.BlankLines());
      for (const std::string_view cell : reader.Cells()) {
        account += '[';
        account += cell;
        account += ']';
      }
      account += '\n';
    }
  } catch (const InputError& error) {
    account += error.what();
  }
  return account;
}

// The result of read(), or nothing if it throws InputError.
auto Try(auto read) -> std::optional<decltype(read())> {
  try {
    return read();
  } catch (const InputError& error) {
    Require(std::string_view(error.what()).find('\n') == std::string_view::npos,
            "a message with two lines");
    return std::nullopt;
  }
}

// All columns, or the error, as one text.
std::string TableText(std::string_view text, const TableSelection& selection, unsigned threads,
                      std::size_t block_size) {
  std::string result;
  try {
    for (const TableColumn& column :
         ReadTable(SourceOf(text), selection, threads, block_size).columns) {
      result += column.Title() + std::to_string(column.skipped) + ':';
      for (const long double x : column.numbers.Values()) result += qorvex::Float2Str(x) + ' ';
    }
  } catch (const InputError& error) {
    result = error.what();
  }
  return result;
}

void CheckTable(std::string_view text, const TableSelection& selection, std::size_t block_size) {
  const std::string whole = TableText(text, selection, 1, RowReader::kBlockSize);
  for (const unsigned threads : {1U, 2U})
    Require(TableText(text, selection, threads, block_size) == whole,
            "the size of blocks or the number of threads makes a difference");
  const auto table = Try([&] { return ReadTable(SourceOf(text), selection).columns; });
  if (!table) return;
  for (const TableColumn& column : *table) {
    Require(!column.numbers.empty(), "a column without values");
    Require(std::ranges::all_of(column.numbers.Values(),
                                [](long double x) { return std::isfinite(x); }),
            "a value is not finite");
    Require(column.skipped == 0 || selection.skip_empty, "a cell was skipped without the option");
    Require(!selection.whole_rows || column.numbers.size() == table->front().numbers.size(),
            "values of different rows have the same index");
    Require(column.Title().find('\n') == std::string::npos, "a title with two lines");
  }
}

void CheckMatrix(std::string_view text, std::optional<char> delimiter, bool has_header) {
  const auto matrix = Try([&] { return ReadMatrix(SourceOf(text), {delimiter, has_header}); });
  const TableSelection selection{.delimiter = delimiter, .header = has_header};
  const auto table = Try([&] { return ReadTable(SourceOf(text), selection).columns; });
  Require(matrix.has_value() == table.has_value(),
          "only ReadTable or only ReadMatrix accepts the text");
  if (!matrix) return;
  for (const TableColumn& column : *table) {
    const auto values = column.numbers.Values();
    Require(values.size() == matrix->size(), "a different number of rows");
    for (std::size_t row = 0; row < matrix->size(); ++row) {
      Require((*matrix)[row].size() == table->size(), "a different number of columns");
      Require((*matrix)[row][column.number - 1] == values[row], "a different number");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size == 0) return 0;
  const std::uint8_t options = data[0];
  const std::string_view text(reinterpret_cast<const char*>(data) + 1, size - 1);
  constexpr std::optional<char> delimiters[] = {std::nullopt, ',', '\t', ' '};
  const std::optional<char> delimiter = delimiters[options & 3];

  const std::string account = Account(text, delimiter, std::max<std::size_t>(text.size() + 2, 64));
  const std::size_t small_block = 4 + (options >> 3);
  Require(Account(text, delimiter, small_block) == account, "the block size makes a difference");

  TableSelection selection;
  selection.delimiter = delimiter;
  selection.skip_empty = (options & 4) != 0;
  selection.whole_rows = (options & 32) != 0;
  if ((options & 64) != 0) selection.header = (options & 128) != 0;
  if ((options & 8) != 0) selection.columns = {"a", "1"};
  CheckTable(text, selection, small_block);
  CheckMatrix(text, delimiter, (options & 16) != 0);
  return 0;
}
