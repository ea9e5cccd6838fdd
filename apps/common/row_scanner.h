#pragma once

/// @file
/// Rows of cells from delimited text whose delimiter is known.

#include <array>
#include <cstddef>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/input_error.h"
#include "apps/common/text_input.h"

namespace qorvex::apps {

/// How the cells of a row are divided and quoted.
struct RowSyntax {
  char delimiter = ' ';
  /// Whether a quote within quotes is written after a backslash instead of doubled.
  bool has_backslashes = false;
};

/// Reads delimited text (RFC 4180, or columns separated by blanks) row by row, in large blocks,
/// without copying cells. Blanks are spaces and tabs.
///
/// - Lines end with LF or CR LF; the end of the last line may be missing. Outside quotes, a CR
///   without LF is refused.
/// - The delimiter ' ' stands for any run of blanks; blanks at both ends of a line are ignored.
/// - A cell that starts with a double quote ends at the next quote that is not doubled, or not
///   behind a backslash. Within it, such quotes stand for one quote, and delimiters and line breaks
///   are text. In other cells, a quote is text.
/// - Blanks around quotes and around unquoted cells are ignored.
/// - Blank lines are not rows. They are counted, so that the caller can detect gaps between rows.
///
/// Memory: one block, or twice the longest row if that is longer.
class RowScanner {
 public:
  static constexpr std::size_t kBlockSize = std::size_t{1} << 18;
  /// Longer rows are refused: most likely a closing quote is missing, and the rest of the file
  /// would be read into memory.
  static constexpr std::size_t kLongestRow = std::size_t{1} << 26;

  /// The first line of the text has that number.
  RowScanner(TextInput input, RowSyntax syntax, std::size_t block_size, std::size_t first_line = 1);

  /// Reads the next row; returns false at the end of the text. Throws InputError (kMalformed) for a
  /// quote that is not closed, for text after a closing quote, for lines that end with CR alone,
  /// and for rows longer than kLongestRow. Exceptions of the input pass through.
  bool Next();

  /// Moves the whole lines that have been read ahead to another reader, which reads only them, on
  /// any thread, and keeps their numbers. Returns false, without taking any, at the end of the
  /// text, if the next line is longer than the block, or if there is a quote, whose cell might end
  /// in a later line. Requires that Next has been called.
  bool TakeLines(RowScanner& lines);

  /// After each cell that many bytes can be read, so that it can be scanned in words.
  static constexpr std::size_t kReadableBehind = 16;
  /// The cells of the row, at least one. Valid until the next call of Next.
  [[nodiscard]] std::span<const std::string_view> Cells() const noexcept { return cells_; }
  /// Whether the first cell is quoted and has no quote within.
  [[nodiscard]] bool StartsWithQuotes() const noexcept {
    return cells_[0].data() != buffer_.data() && cells_[0].data()[-1] == '"';
  }
  /// The line on which the row starts, from 1.
  [[nodiscard]] std::size_t Line() const noexcept { return line_; }
  /// The line that is read next.
  [[nodiscard]] std::size_t NextLine() const noexcept { return next_line_; }
  /// The number of blank lines directly before the row.
  [[nodiscard]] std::size_t BlankLines() const noexcept { return blank_lines_; }
  [[nodiscard]] const std::string& Name() const noexcept { return input_.name; }

 private:
  bool Refill();
  bool ReadLine();
  bool ScanRow();
  const char* ScanQuotedCell(const char* at);
  const char* ScanPlainCell(const char* at);
  [[nodiscard]] const char* EndOfPlainCell(const char* at) const;
  [[nodiscard]] const char* SkipBlanks(const char* at) const;
  [[nodiscard]] const char* EndOfQuotes(const char* at) const;
  void JoinQuotes();
  [[nodiscard]] const char* End() const { return buffer_.data() + end_; }
  [[noreturn]] void FailAt(const char* position, const std::string& what) const;

  TextInput input_;
  char delimiter_;
  bool has_backslashes_;
  bool delimiter_is_blank_;
  // Each repeated, to be compared with sixteen characters at once. Both are the same unless blanks
  // delimit.
  std::array<char, 16> delimiters_{};
  std::array<char, 16> other_delimiters_{};

  // The bytes from begin_ to end_ have not been read; the row that is being read starts at begin_.
  std::vector<char> buffer_;
  std::size_t begin_ = 0;
  std::size_t end_ = 0;
  bool input_ended_ = false;

  std::vector<std::string_view> cells_;
  std::vector<std::size_t> cells_with_inner_quotes_;
  std::size_t line_;
  std::size_t next_line_;
  std::size_t blank_lines_ = 0;
};

}  // namespace qorvex::apps
