#pragma once

/// @file
/// Rows without missing values.

#include <cstddef>
#include <vector>

#include "apps/common/table_reader.h"

namespace qorvex::apps {

/// Removes the rows that are among the gaps of any of the columns, of which each has that many rows
/// with its gaps, and counts them as missing in all of them. No gaps are left. Memory: if there are
/// gaps, 4 bytes a row and that of one column again.
void KeepWholeRows(std::vector<TableColumn>& columns, std::size_t rows);

}  // namespace qorvex::apps
