#pragma once

/// @file
/// Finds the chosen columns of a table.

#include <cstddef>
#include <span>
#include <string>
#include <vector>

#include "apps/common/table_reader.h"

namespace qorvex::apps {

/// The chosen columns, still empty and without duplicates, or all columns but the names of rows if
/// none is chosen; then the weights and the labels. There are no names without a header. Throws
/// InputError (kNoSuchColumn) for a column that does not exist or is chosen twice for different
/// purposes, and if only the weights or the labels are left.
[[nodiscard]] std::vector<TableColumn> ChosenColumns(const TableSelection& selection,
                                                     std::span<const std::string> names,
                                                     std::size_t width, bool has_row_names,
                                                     const std::string& input_name);

}  // namespace qorvex::apps
