#pragma once

/// @file
/// Matrices of numbers from delimited text.

#include <optional>

#include "apps/common/text_input.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// How a matrix is written.
struct MatrixLayout {
  /// As for RowReader: nothing detects it, a blank is any run of spaces and tabs.
  std::optional<char> delimiter = {};
  /// Whether the first row holds names, to be skipped.
  bool has_header = false;
};

/// Reads a matrix: one row for each row of the text, one element for each cell.
///
/// Cells are converted by Str2Float, so to 80 bits; infinities and NaN are no data. Nothing guesses
/// a header, since a damaged number would silently cost a row. Blank lines before the first row and
/// after the last count for nothing.
///
/// Raises InputError for what RowReader refuses; kNoValues for a text without rows, or with nothing
/// but a header; kMalformed for a row, or a header, that is not as long as the others and for a
/// blank line between rows; kTextInFirstRow for a first row with a cell that is neither empty nor a
/// number; kEmptyCell, kNotANumber and kOutOfRange for another cell. Otherwise the matrix is
/// rectangular, with at least one element. The first line at fault is the one that is reported.
///
/// Memory: 16 bytes an element, and some 60 a row.
[[nodiscard]] TQorFloatMatrix ReadMatrix(TextInput input, const MatrixLayout& layout);

}  // namespace qorvex::apps
