#pragma once

/// @file
/// Sheets in files of delimited text.

#include <functional>
#include <string_view>

#include "apps/common/text_input.h"
#include "apps/qorvex-gallery/model/sheet_data.h"

namespace qorvex::gallery {

/// Reads delimited text. What the format leaves open is found from the text, and is set in the
/// format of the result; the first row is a header if any of its cells is text. A blank line
/// between rows is a row of empty cells. Throws InputError for what RowReader refuses, for a text
/// without rows and for rows of different lengths.
[[nodiscard]] SheetData ReadSheet(apps::TextInput input, const apps::TableFormat& format,
                                  std::size_t bytes = 0);

/// @{
/// Whether a file of the sheet would be read with other names: with the first row as names, or with
/// the names, which are all numbers, as a row.
[[nodiscard]] bool HasRowLikeNames(const SheetData& sheet);
[[nodiscard]] bool HasNamesLikeARow(const SheetData& sheet);
/// @}

/// What a file of a sheet has besides the cells.
struct SheetFileForm {
  char delimiter = ',';
  /// The byte order mark of UTF-8.
  bool has_mark = false;
  /// A first line that tells the delimiter, such as "sep=;".
  bool has_delimiter_line = false;
  /// Lines that end with CR LF instead of LF.
  bool has_crlf = false;
  /// A header even if no column has a name.
  bool has_names = false;
};

/// The form of a file of UTF-8 that starts with this text; only the delimiter is not found.
[[nodiscard]] SheetFileForm FormOf(std::string_view start);

/// Writes a sheet piece by piece as text, with quotes where necessary (RFC 4180).
void WriteSheet(const SheetData& sheet, SheetFileForm form,
                const std::function<void(std::string_view text)>& write);

}  // namespace qorvex::gallery
