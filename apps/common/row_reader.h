#pragma once

/// @file
/// Rows of cells from delimited text whose format is found.

#include <cstddef>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "apps/common/row_scanner.h"
#include "apps/common/table_format.h"
#include "apps/common/text_decoder.h"
#include "apps/common/text_input.h"

namespace qorvex::apps {

/// Reads the rows of a text by the rules of RowScanner, and finds from the first rows what the
/// format leaves open:
///
/// - Encoding: as for TextDecoder. Cells are UTF-8.
/// - Delimiter: what a first line "sep=;" says, which is no row; otherwise comma, semicolon or tab
///   if the first line that is not blank contains one outside quotes, and blanks. Of several, the
///   one that divides the rows into equally many cells of which the fewest are text.
/// - Quotes within quotes: after backslashes if the first rows cannot be read with doubled quotes.
/// - Decimal sign: the comma if it is not the delimiter, no number has a point, and some have a
///   comma. Unless the semicolon delimits, the comma of 1,234 may also group digits; it counts if
///   another number has more or fewer than three digits behind it.
/// - Header: whether any cell of the first row is text.
/// - Names of rows: the first column, if the header is shorter by one cell than all rows below it,
///   or if only the first cell of the header is empty.
class RowReader {
 public:
  static constexpr std::size_t kBlockSize = RowScanner::kBlockSize;

  explicit RowReader(TextInput input, const TableFormat& format = {},
                     std::size_t block_size = kBlockSize);

  /// Reads the next row; returns false at the end of the text. Throws InputError for what
  /// TextDecoder and RowScanner refuse. Exceptions of the input pass through.
  bool Next();

  /// The format with all that was found. Complete after the first call of Next; only a text of
  /// ASCII may turn out to be Latin-1 later.
  [[nodiscard]] const TableFormat& Format();
  /// Whether the first column holds names of rows. If the first row was too short for them, it
  /// starts with an empty cell.
  [[nodiscard]] bool HasRowNames() const noexcept { return has_row_names_; }
  /// Whether the first row is too short for them, and they are not quoted.
  [[nodiscard]] bool HasDoubtfulRowNames() const noexcept { return has_doubtful_row_names_; }

  /// As for RowScanner.
  [[nodiscard]] std::span<const std::string_view> Cells() const noexcept {
    return first_row_.empty() ? rows_->Cells() : first_row_;
  }
  [[nodiscard]] std::size_t Line() const noexcept { return rows_->Line(); }
  [[nodiscard]] std::size_t BlankLines() const noexcept { return rows_->BlankLines(); }
  [[nodiscard]] const std::string& Name() const noexcept { return name_; }

  /// The scanner, to read all rows behind the first with it. Requires that Next has been called.
  [[nodiscard]] RowScanner& Scanner() noexcept { return *rows_; }

 private:
  void Start();
  void ReadHeader();

  std::string name_;
  std::shared_ptr<TextDecoder> decoder_;
  TableFormat format_;
  std::size_t block_size_;
  std::optional<RowScanner> rows_;
  bool first_row_is_short_ = false;
  bool has_row_names_ = false;
  bool has_doubtful_row_names_ = false;
  // The first row with its empty cell, while it is the current one.
  std::vector<std::string_view> first_row_;
};

}  // namespace qorvex::apps
