#pragma once

/// @file
/// What `grouped` reports on classes of equal width.

#include <vector>

#include "apps/common/class_table.h"
#include "apps/qorvex/figures.h"
#include "apps/qorvex/result_table.h"

namespace qorvex::apps {

/// Classes, and the number of values in each.
struct ClassTable {
  ClassBounds bounds;
  TQorLWordVector counts;
};

/// A row for each class: from, to, the count, its share and the share up to the end of the class.
[[nodiscard]] ResultTable RowsOf(const ClassTable& table);

/// The figures of values in the middle of their classes, of which there is at least one; medians,
/// quartiles and deciles are interpolated within a class.
[[nodiscard]] std::vector<Figure> GroupedFigures(const ClassTable& table, bool population);

}  // namespace qorvex::apps
