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

/// Whether a file has a header.
enum class WriteNames { kIfThereAreAny, kAlways };

/// Writes a sheet piece by piece as text: rows end with LF, cells are separated by the delimiter
/// and quoted where necessary (RFC 4180).
void WriteSheet(const SheetData& sheet, char delimiter,
                const std::function<void(std::string_view text)>& write,
                WriteNames names = WriteNames::kIfThereAreAny);

}  // namespace qorvex::gallery
