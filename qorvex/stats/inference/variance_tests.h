#pragma once

/// @file
/// Tests of variances.
///
/// - They assume normal data and are sensitive to data that are not.
/// - Each takes exact samples or ranges of any element type, as the tests of means do.
/// - The statistic is a rational number of the data, rounded once.
/// - Two-sided p is twice the smaller tail, at most 1.
/// - Source: Fisher (1925), "Statistical methods for research workers".

#include "qorvex/base/export.h"
#include "qorvex/stats/inference/sample_of.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex {

/// @{
/// Whether the variance is `variance`: chi-square = (n - 1) s^2 / variance with n - 1 degrees of
/// freedom. The statistic of equal values is 0.
///
/// - Errors: rsVectorG1 for fewer than two values; rsValueGZero unless 0 < variance < infinity.
[[nodiscard]] QORVEX_EXPORT TestResult
VarianceTest(const ExactSample<2>& sample, Extended variance,
             Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] TestResult VarianceTest(const Range& values, Extended variance,
                                      Alternative alternative = Alternative::kTwoSided) {
  return VarianceTest(inference::SampleOf(values), variance, alternative);
}
/// @}

/// @{
/// Whether the variances have the given ratio, first to second: F = s1^2 / s2^2 / ratio with n1 - 1
/// and n2 - 1 degrees of freedom.
///
/// - Errors: rsVectorG1 for fewer than two values in a sample; rsValueGZero unless
///   0 < ratio < infinity; rsSameValue where the values of a sample do not differ.
[[nodiscard]] QORVEX_EXPORT TestResult
VarianceRatioTest(const ExactSample<2>& first, const ExactSample<2>& second, Extended ratio = 1,
                  Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange First, ContiguousRange Second>
requires AnyElement<ElementOf<First>> && AnyElement<ElementOf<Second>>
[[nodiscard]] TestResult VarianceRatioTest(const First& first, const Second& second,
                                           Extended ratio = 1,
                                           Alternative alternative = Alternative::kTwoSided) {
  return VarianceRatioTest(inference::SampleOf(first), inference::SampleOf(second), ratio,
                           alternative);
}
/// @}

}  // namespace qorvex
