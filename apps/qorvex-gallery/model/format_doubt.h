#pragma once

/// @file
/// Whether a table may be written in another form than the one that was found.

#include <QByteArray>
#include <QString>
#include <optional>

#include "apps/qorvex-gallery/model/sheet_data.h"

namespace qorvex::gallery {

/// The first lines of a file, as many as are enough to see its form; none if it cannot be read.
[[nodiscard]] QByteArray FirstLines(const QString& file);

/// What speaks against the form in which a table was read; empty for nothing: names that are
/// numbers, a first row of numbers that look like names, numbers with the other decimal sign, or a
/// single column with delimiters in its cells. Looks at the first thousand rows.
[[nodiscard]] QString DoubtIn(const SheetData& sheet);

/// A format in which the first lines of a file can be read as a table of several columns, for a
/// file that could not be read in the one that was found. Empty if no format fits.
[[nodiscard]] std::optional<apps::TableFormat> OtherFormat(const QString& file);

}  // namespace qorvex::gallery
