#pragma once

// The sums of a sample in two passes instead of five. Each sum is added in ascending order, as by
// its own loop, and waits for its last addition. So sums that advance side by side take as long as
// the slowest alone.

#include "qorvex/base/element_types.h"
#include "qorvex/base/vector_view.h"

namespace qorvex::inline QorvexStatistics::detail {

struct SumAndSquares {
  Extended sum;
  Extended squares;
};

// SumVector and SumSqVector of at least one element.
[[nodiscard]] SumAndSquares AddUp(VectorView<Extended> vector) noexcept;

// The sums of the powers of x - mean.
struct DeviationSums {
  Extended squares = 0;
  Extended cubes = 0;
  Extended fourth_powers = 0;
};

[[nodiscard]] DeviationSums AddUpDeviations(VectorView<Extended> vector, Extended mean) noexcept;

}  // namespace qorvex::inline QorvexStatistics::detail
