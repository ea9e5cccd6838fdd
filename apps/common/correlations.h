#pragma once

/// @file
/// How the columns of a table depend on one another.

#include <cstdint>
#include <span>

#include "apps/common/column_numbers.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// What is computed from two columns.
enum class PairFigure : std::uint8_t {
  kPearson,     ///< the correlation
  kSpearman,    ///< the correlation of the ranks
  kKendall,     ///< tau-b
  kCovariance,  ///< the covariance of a sample
};

/// The figure of columns i and j at (i, j). Values with the same index belong together.
///
/// - There are at least two values in each column, and as many in all of them.
/// - NaN where the values of one of the columns are all equal, except for the covariance.
/// - Columns of decimals count as the numbers they stand for. Each figure is rounded once.
/// - Cost: O(n p^2) for p columns of n values, with ranks O(n log n) for each column and with tau
///   for each pair. Memory: 16 bytes a value.
[[nodiscard]] TQorFloatMatrix PairFigures(std::span<const ColumnNumbers> columns,
                                          PairFigure figure);

}  // namespace qorvex::apps
