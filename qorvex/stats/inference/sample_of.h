#pragma once

/// @file
/// The samples that tests and intervals take, from the ranges that callers have.

#include "qorvex/base/vector_types.h"

namespace qorvex {

template <int kPowerSums>
class ExactSample;

}  // namespace qorvex

namespace qorvex::inference {

/// The exact sums of the values. Amounts count as scaled integers.
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] ExactSample<2> SampleOf(const Range& values);

}  // namespace qorvex::inference
