#pragma once

/// @file
/// Matrices of numbers from delimited text.

#include "apps/common/table_format.h"
#include "apps/common/text_input.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// Reads a matrix: one row for each row of the text, one element for each cell.
///
/// - Cells are converted to 80 bits by Str2Float; infinities and NaN are refused.
/// - A header is never guessed, because a row with a damaged number would be lost without notice.
/// If
///   the format says that there is one, it is skipped, and so is the column of the names of rows.
/// - No value may be missing.
/// - Blank lines before the first row and after the last are ignored.
/// - The result is rectangular and has at least one element.
/// - Throws InputError for the first faulty line: for what RowReader refuses; kNoValues for a text
///   without rows below the header; kMalformed for rows (or a header) of different lengths and for
///   a blank line between rows; kTextInFirstRow for text in the first row; kEmptyCell, kNotANumber
///   and kOutOfRange for other cells.
/// - Memory: 16 bytes per element and about 60 per row.
[[nodiscard]] TQorFloatMatrix ReadMatrix(TextInput input, const TableFormat& format);

}  // namespace qorvex::apps
