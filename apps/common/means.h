#pragma once

/// @file
/// Means beside the arithmetic one.

#include <cstddef>
#include <optional>

#include "apps/common/column_numbers.h"
#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// @{
/// The geometric mean, the n-th root of the product, and the harmonic mean, n over the sum of the
/// reciprocals; none unless there is a number and all of them are greater than 0. The error is
/// at most two units in the last place, whatever n.
[[nodiscard]] std::optional<Extended> GeometricMeanOf(const ColumnNumbers& numbers);
[[nodiscard]] std::optional<Extended> HarmonicMeanOf(const ColumnNumbers& numbers);
/// @}

/// The mean without the trunc(n * share) smallest and as many of the largest numbers, which are in
/// ascending order, and of which there is at least one. The share is from 0 to 0.5; for the latter
/// it is the median. Rounded once.
[[nodiscard]] Extended TrimmedMeanOf(const ColumnNumbers& sorted, Extended share);

}  // namespace qorvex::apps
