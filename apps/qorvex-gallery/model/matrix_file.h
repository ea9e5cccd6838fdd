#pragma once

/// @file
/// Matrices in files and in the settings of the program.

#include <QString>

#include "apps/qorvex-gallery/model/background_work.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// Reads a matrix: one row for each line, no header. Throws apps::InputError, ReadingStopped if
/// it is told not to proceed, and std::bad_alloc.
[[nodiscard]] TQorFloatMatrix ReadMatrixFile(const QString& path, const Proceed& proceed);

/// Writes a matrix so that all bits can be read again: decimal points, and commas between the
/// elements. Nulls are NA. Returns why it could not; empty if it could.
[[nodiscard]] QString WriteMatrixFile(const QString& path, const TQorFloatMatrix& matrix);

/// @{
/// The same as a text, with nulls and infinities. Reading throws EConvertError; the rows have the
/// lengths that the text has.
[[nodiscard]] QString MatrixText(const TQorFloatMatrix& matrix);
[[nodiscard]] TQorFloatMatrix MatrixOf(const QString& text);
/// @}

}  // namespace qorvex::gallery
