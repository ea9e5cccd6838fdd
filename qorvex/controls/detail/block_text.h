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

/// The cells of a text: tabs separate the cells of a row; LF, CR or CR LF ends a row, and the last
/// row may do without. Every row has at least one cell, which may be empty; an empty text has no
/// rows. A cell that begins with a double quote goes to its closing quote and may hold tabs, line
/// ends and doubled quotes. Without a closing quote that ends the cell, the quotes are characters
/// like any other. UTF-8 throughout. O(length).
[[nodiscard]] QORVEX_EXPORT TextBlock ParseBlock(std::string_view text);

/// The text of cells, from which ParseBlock gives back the same ones: LF after each row, quotes
/// where a cell needs them. A row without cells comes back with one empty cell. O(length).
[[nodiscard]] QORVEX_EXPORT std::string FormatBlock(const TextBlock& cells);

}  // namespace qorvex::inline QorvexControls::detail
