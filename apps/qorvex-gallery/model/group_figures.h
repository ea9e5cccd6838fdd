#pragma once

/// @file
/// Statistics of the groups of a column.

#include <QStringList>

#include "apps/qorvex-gallery/model/sheet.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// The headings of the figures of a group.
[[nodiscard]] QStringList GroupFigureTitles();

/// The figures of each group, a row for each, from exact sums: the number of values, mean, standard
/// deviation, minimum, quartiles and maximum. What does not exist is NaN.
[[nodiscard]] TQorFloatMatrix FiguresOfGroups(const TQorFloatVector& numbers,
                                              const SheetGroups& groups, bool population);

}  // namespace qorvex::gallery
