#pragma once

/// @file
/// Rows of cells from delimited text.

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/input_error.h"
#include "apps/common/text_input.h"

namespace qorvex::apps {

/// Reads delimited text (RFC 4180, or columns separated by blanks) row by row, in large blocks,
/// without copying cells.
///
/// - Lines end with LF or CR LF; the last may lack its end. Outside quotes, a CR with text right
///   behind it is taken for a line end of its own and refused. A UTF-8 byte order mark is skipped.
/// - A blank as the delimiter stands for any run of spaces and tabs, and none around a line counts.
/// - A cell that starts with a double quote ends at the next single one. Inside, two quotes mean
///   one, and delimiters and line breaks are text. A quote further inside a cell is text.
/// - Blanks around quotes and around unquoted cells are ignored.
/// - Blank lines are no rows, but are counted, so that a caller can tell a gap from the end.
///
/// Memory: one block, or twice the longest row when that is longer.
class RowReader {
 public:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 18;
  /// A longer row is refused: most likely a quote is missing, and reading on would only fill the
  /// memory.
  static constexpr std::size_t kLongestRow = std::size_t{1} << 26;

  /// Without a delimiter, the first line that is not blank decides: a comma, else a semicolon, else
  /// a tab that stands outside quotes in it, else blanks.
  explicit RowReader(TextInput input, std::optional<char> delimiter = std::nullopt,
                     std::size_t block_size = kBlockSize);

  /// Reads the next row; false at the end of the text. Raises InputError (kMalformed) for a quote
  /// that is not closed, for text after a closing quote, for lines that end with CR alone, for a
  /// row beyond kLongestRow and for UTF-16; and what the input raises.
  bool Next();

  /// The cells of the row, at least one. Valid until the next call of Next.
  [[nodiscard]] std::span<const std::string_view> Cells() const noexcept { return cells_; }
  /// The line on which the row starts, from 1.
  [[nodiscard]] std::size_t Line() const noexcept { return line_; }
  /// The number of blank lines directly before the row.
  [[nodiscard]] std::size_t BlankLines() const noexcept { return blank_lines_; }
  [[nodiscard]] const std::string& Name() const noexcept { return input_.name; }

 private:
  void Start();
  [[nodiscard]] char DetectDelimiter();
  bool Refill();
  bool ReadLine();
  bool ScanRow();
  const char* ScanQuotedCell(const char* at);
  const char* ScanPlainCell(const char* at);
  [[nodiscard]] const char* EndOfPlainCell(const char* at) const;
  [[nodiscard]] const char* SkipBlanks(const char* at) const;
  void JoinDoubledQuotes();
  [[nodiscard]] const char* End() const { return buffer_.data() + end_; }
  [[noreturn]] void FailAt(const char* position, const std::string& what) const;

  TextInput input_;
  std::optional<char> delimiter_;
  bool delimiter_is_blank_ = false;
  std::array<bool, 256> ends_plain_cell_{};

  // The bytes from begin_ to end_ are not read yet; a row that is being read starts at begin_.
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool started_ = false;
  bool input_ended_ = false;

  std::vector<std::string_view> cells_;
  std::vector<std::size_t> cells_with_doubled_quotes_;
  std::size_t line_ = 1;
  std::size_t next_line_ = 1;
  std::size_t blank_lines_ = 0;
};

}  // namespace qorvex::apps
