// The first two bytes select the options, the rest is the text. For any text: only InputError is
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
std::string Account(std::string_view text, const TableFormat& format, std::size_t block_size) {
  std::string account;
  try {
    RowReader reader(SourceOf(text), format, block_size);
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
      result += column.Title() + std::to_string(column.missing) + ':';
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
    Require(column.missing == 0 || selection.format.missing.AreAllowed(),
            "a value is missing that must not be");
    Require(!selection.whole_rows || column.numbers.size() == table->front().numbers.size(),
            "values of different rows have the same index");
    Require(column.Title().find('\n') == std::string::npos, "a title with two lines");
  }
}

// A matrix is a table without missing values and without columns of text.
void CheckMatrix(std::string_view text, TableFormat format, bool has_header) {
  format.header = has_header;
  format.missing = MissingWords::None();
  const auto matrix = Try([&] { return ReadMatrix(SourceOf(text), format); });
  const auto table = Try([&] { return ReadTable(SourceOf(text), {.format = format}); });
  Require(matrix.has_value() == (table && table->left_out.empty()),
          "only ReadTable or only ReadMatrix accepts the text");
  if (!matrix) return;
  for (std::size_t i = 0; i < table->columns.size(); ++i) {
    const auto values = table->columns[i].numbers.Values();
    Require(values.size() == matrix->size(), "a different number of rows");
    for (std::size_t row = 0; row < matrix->size(); ++row) {
      Require((*matrix)[row].size() == table->columns.size(), "a different number of columns");
      Require((*matrix)[row][i] == values[row], "a different number");
    }
  }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
  if (size < 2) return 0;
  const std::uint8_t options = data[0];
  const std::uint8_t more_options = data[1];
  const std::string_view text(reinterpret_cast<const char*>(data) + 2, size - 2);
  constexpr std::optional<char> delimiters[] = {std::nullopt, ',', '\t', ' '};
  constexpr std::optional<char> signs[] = {std::nullopt, std::nullopt, '.', ','};
  constexpr std::optional<Encoding> encodings[] = {std::nullopt, Encoding::kUtf8,
                                                   Encoding::kUtf16Le, Encoding::kLatin1};
  TableFormat format;
  format.delimiter = delimiters[options & 3];
  format.decimal_sign = signs[more_options & 3];
  format.encoding = encodings[more_options >> 2 & 3];
  if ((more_options & 16) != 0) format.missing = MissingWords({"-", "-99"});
  if ((options & 4) != 0) format.missing = MissingWords::None();

  const std::string account = Account(text, format, 3 * text.size() + 64);
  const std::size_t small_block = 4 + (options >> 3);
  Require(Account(text, format, small_block) == account, "the block size makes a difference");

  TableSelection selection;
  selection.format = format;
  if ((options & 64) != 0) selection.format.header = (options & 128) != 0;
  selection.whole_rows = (options & 32) != 0;
  if ((options & 8) != 0) selection.columns = {"a", "1"};
  CheckTable(text, selection, small_block);
  CheckMatrix(text, format, (options & 16) != 0);
  return 0;
}
