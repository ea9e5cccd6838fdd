#pragma once

/// @file
/// Whether a table may be written in another form than the one that was found.

#include <QByteArray>
#include <QString>
#include <optional>

#include "apps/qorvex-gallery/model/sheet_data.h"

namespace qorvex::gallery {

/// The first lines of a file, as many as are enough to see its form. Throws InputError if it cannot
/// be read.
[[nodiscard]] QByteArray FirstLines(const QString& file);

/// What speaks against the form in which a table was read; empty for nothing: names that are
/// numbers, numbers with the other decimal sign, or a single column with delimiters in its cells.
/// Looks at the first thousand rows.
[[nodiscard]] QString DoubtIn(const SheetData& sheet);

/// A format with another delimiter in which a table can be read that could not be read in the given
/// one; nothing if there is none.
[[nodiscard]] std::optional<apps::TableFormat> OtherFormat(const QByteArray& first_lines,
                                                           apps::TableFormat format);

}  // namespace qorvex::gallery
