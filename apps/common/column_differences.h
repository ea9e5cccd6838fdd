#pragma once

/// @file
/// Differences of decimal numbers without rounding.

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

}  // namespace qorvex::apps
