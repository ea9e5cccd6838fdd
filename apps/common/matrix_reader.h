#pragma once

/// @file
/// Matrices of numbers from delimited text.

#include <optional>

#include "apps/common/text_input.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// The format of a matrix.
struct MatrixLayout {
  /// As for RowReader: detected if not set; a space stands for any run of spaces and tabs.
  std::optional<char> delimiter = {};
  /// Whether to skip the first row, which contains names.
  bool has_header = false;
};

/// Reads a matrix: one row for each row of the text, one element for each cell.
///
/// - Cells are converted to 80 bits by Str2Float; infinities and NaN are refused.
/// - A header is never guessed, because a row with a damaged number would be lost without notice.
/// - Blank lines before the first row and after the last are ignored.
/// - The result is rectangular and has at least one element.
/// - Throws InputError for the first faulty line: for what RowReader refuses; kNoValues for a text
///   without rows below the header; kMalformed for rows (or a header) of different lengths and for
///   a blank line between rows; kTextInFirstRow for text in the first row; kEmptyCell, kNotANumber
///   and kOutOfRange for other cells.
/// - Memory: 16 bytes per element and about 60 per row.
[[nodiscard]] TQorFloatMatrix ReadMatrix(TextInput input, const MatrixLayout& layout);

}  // namespace qorvex::apps
