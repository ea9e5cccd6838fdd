#pragma once

/// @file
/// Blocks of cells as the text that spreadsheets put on the clipboard.

#include <string>
#include <string_view>
#include <vector>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls::detail {

/// Rows of cell texts.
using TextBlock = std::vector<std::vector<std::string>>;

/// The cells of a text: tabs separate the cells of a row; LF, CR or CR LF ends a row, optional
/// after the last one. Every row has at least one cell, which may be empty; an empty text has no
/// rows. A cell that begins with a double quote ends at its closing quote and may contain tabs,
/// line ends and doubled quotes. If no closing quote ends the cell, quotes are ordinary characters.
/// UTF-8 throughout. O(length).
[[nodiscard]] QORVEX_EXPORT TextBlock ParseBlock(std::string_view text);

/// The text of cells, which ParseBlock reads back unchanged: LF after each row, quotes around cells
/// that need them. A row without cells is read back as one empty cell. O(length).
[[nodiscard]] QORVEX_EXPORT std::string FormatBlock(const TextBlock& cells);

}  // namespace qorvex::inline QorvexControls::detail
