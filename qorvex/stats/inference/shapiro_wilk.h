#pragma once

/// @file
/// The test of normality of Shapiro and Wilk.

#include "qorvex/base/export.h"
#include "qorvex/stats/inference/comparable.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex {

/// @{
/// Whether the values are normal: W, the squared correlation of the ordered values with weights
/// that approximate the best ones.
///
/// - p is exact for three values, and by Royston's normal approximation of ln(1 - W) beyond. His
///   formulas are approximations of some three digits, and are evaluated to 17.
/// - Location and scale do not matter.
/// - Errors: rsVectorG2 for fewer than three values; rsInvalidValue for more than 5000; rsSameValue
///   where no value differs from the others.
/// - Cost: a sort and n / 2 normal quantiles.
/// - Source: Royston (1995), "Remark AS R94: a remark on algorithm AS 181: the W-test for
///   normality".
[[nodiscard]] QORVEX_EXPORT TestResult ShapiroWilkTest(VectorView<Extended> values);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] TestResult ShapiroWilkTest(const Range& values) {
  return ShapiroWilkTest(VectorView<Extended>(inference::Comparable(values)));
}
/// @}

}  // namespace qorvex
