#pragma once

/// @file
/// Columns of tables as the routines of regression take them.

#include "apps/common/column_numbers.h"
#include "qorvex/stats/regression/columns.h"

namespace qorvex::apps {

/// A view of the numbers, which must outlive it: decimal data for integers.
[[nodiscard]] ColumnView ViewOf(const ColumnNumbers& numbers);

}  // namespace qorvex::apps
