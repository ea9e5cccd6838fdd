// The first byte chooses the options, the rest is the text. Whatever the text: only InputErrors are
// raised, the size of blocks changes nothing, and what is returned keeps the promises of ReadTable.

#include "apps/qorvex/input_error.h"
#include "apps/qorvex/row_reader.h"
#include "apps/qorvex/table_reader.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace {

using namespace qorvex::cli;

void Require(bool condition, const char* what) {
  if (condition) return;
  std::fputs(what, stderr);
  std::abort();
}

TextInput SourceOf(std::string_view text) {
  return {"text", [text](char* buffer, std::size_t size) mutable {
            const std::size_t count = std::min(size, text.size());
            std::memcpy(buffer, text.data(), count);
            text.remove_prefix(count);
            return count;
          }};
}

// Everything that the reader tells, as one text.
std::string Account(std::string_view text, std::optional<char> delimiter, std::size_t block_size) {
  std::string account;
  try {
    RowReader reader(SourceOf(text), delimiter, block_size);
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

void CheckTable(std::string_view text, const TableSelection& selection) {
  try {
    for (const TableColumn& column : ReadTable(SourceOf(text), selection)) {
      Require(!column.values.empty(), "a column without values");
      Require(std::ranges::all_of(column.values, [](long double x) { return std::isfinite(x); }),
              "a value is not finite");
      Require(column.skipped == 0 || selection.skip_empty, "a cell was skipped");
      Require(column.Title().find('\n') == std::string::npos, "a title of two lines");
    }
  } catch (const InputError& error) {
    Require(std::string_view(error.what()).find('\n') == std::string_view::npos,
            "a message of two lines");
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
  Require(Account(text, delimiter, small_block) == account, "the size of blocks matters");

  TableSelection selection;
  selection.delimiter = delimiter;
  selection.skip_empty = (options & 4) != 0;
  if ((options & 8) != 0) selection.columns = {"a", "1"};
  CheckTable(text, selection);
  return 0;
}
