#pragma once

/// @file
/// The samples that tests and intervals take, from the ranges that callers have.

#include "qorvex/stats/exact/exact_sample.h"

/// @cond internal
namespace qorvex::inference {

// The exact sums of the values. Amounts count as the decimal numbers that they stand for.
template <ContiguousRange Range>
[[nodiscard]] ExactSample<2> SampleOf(const Range& values) {
  ExactSample<2> sample;
  sample.Add(values);
  return sample;
}

}  // namespace qorvex::inference
/// @endcond
