#pragma once

/// @file
/// Differences of the numbers in columns.

#include <optional>

#include "apps/common/column_numbers.h"

namespace qorvex::apps {

/// @{
/// The differences x - constant, or x - y of two columns of the same length. Nothing unless all
/// numbers are decimal and all differences fit.
[[nodiscard]] std::optional<ColumnNumbers> ExactDifferences(const ColumnNumbers& x,
                                                            DecimalNumber constant);
[[nodiscard]] std::optional<ColumnNumbers> ExactDifferences(const ColumnNumbers& x,
                                                            const ColumnNumbers& y);
/// @}

/// The differences x - y of two columns of the same length: without rounding if possible, otherwise
/// of their values.
[[nodiscard]] ColumnNumbers DifferencesOf(const ColumnNumbers& x, const ColumnNumbers& y);

}  // namespace qorvex::apps
