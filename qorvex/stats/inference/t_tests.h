#pragma once

/// @file
/// Student's tests of means.
///
/// - They assume normal data; the samples of the two-sample tests are independent.
/// - Each takes exact samples, so that sums that were merged, decimal columns and amounts serve as
///   well, or ranges of any element type.
/// - The statistic is the root of a rational number of the data, rounded once.
/// - Errors, in this order: rsVectorG1 for fewer than two values in a sample; rsSameValue where no
///   value differs from the others, in both samples where there are two.
/// - Cost: O(n) for ranges, a few microseconds for samples.
/// - Source: Student (1908), "The probable error of a mean"; Welch (1947), "The generalization of
///   'Student's' problem when several different population variances are involved".

#include "qorvex/base/export.h"
#include "qorvex/stats/inference/comparable.h"
#include "qorvex/stats/inference/sample_of.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex {

/// @{
/// Whether the mean is `mean`: t = (sample mean - mean) / (s / sqrt(n)) with n - 1 degrees of
/// freedom.
[[nodiscard]] QORVEX_EXPORT TestResult
OneSampleTTest(const ExactSample<2>& sample, Extended mean = 0,
               Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] TestResult OneSampleTTest(const Range& values, Extended mean = 0,
                                        Alternative alternative = Alternative::kTwoSided) {
  return OneSampleTTest(inference::SampleOf(values), mean, alternative);
}
/// @}

/// @{
/// Whether the means differ by `difference`, first minus second, for equal variances: t from the
/// pooled variance with n1 + n2 - 2 degrees of freedom.
[[nodiscard]] QORVEX_EXPORT TestResult
TwoSampleTTest(const ExactSample<2>& first, const ExactSample<2>& second, Extended difference = 0,
               Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange First, ContiguousRange Second>
requires AnyElement<ElementOf<First>> && AnyElement<ElementOf<Second>>
[[nodiscard]] TestResult TwoSampleTTest(const First& first, const Second& second,
                                        Extended difference = 0,
                                        Alternative alternative = Alternative::kTwoSided) {
  return TwoSampleTTest(inference::SampleOf(first), inference::SampleOf(second), difference,
                        alternative);
}
/// @}

/// @{
/// The same for variances that may differ: t = (mean1 - mean2 - difference) / sqrt(v1 + v2) for
/// v = s^2 / n, with (v1 + v2)^2 / (v1^2 / (n1 - 1) + v2^2 / (n2 - 1)) degrees of freedom.
[[nodiscard]] QORVEX_EXPORT TestResult WelchTTest(const ExactSample<2>& first,
                                                  const ExactSample<2>& second,
                                                  Extended difference = 0,
                                                  Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange First, ContiguousRange Second>
requires AnyElement<ElementOf<First>> && AnyElement<ElementOf<Second>>
[[nodiscard]] TestResult WelchTTest(const First& first, const Second& second,
                                    Extended difference = 0,
                                    Alternative alternative = Alternative::kTwoSided) {
  return WelchTTest(inference::SampleOf(first), inference::SampleOf(second), difference,
                    alternative);
}
/// @}

/// @{
/// Whether the differences x - y of pairs have the mean `difference`: the one-sample test of the
/// exact differences.
///
/// - Takes numbers, or amounts of one type with an amount as difference.
/// - Errors before the others: rsSameDimensions for vectors of different lengths.
[[nodiscard]] QORVEX_EXPORT TestResult
PairedTTest(VectorView<Extended> x, VectorView<Extended> y, Extended difference = 0,
            Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange X, ContiguousRange Y>
requires inference::ComparableElements<ElementOf<X>, ElementOf<Y>>
[[nodiscard]] TestResult PairedTTest(const X& x, const Y& y,
                                     inference::OffsetOf<ElementOf<X>> difference = {},
                                     Alternative alternative = Alternative::kTwoSided) {
  return PairedTTest(VectorView<Extended>(inference::Comparable(x)),
                     VectorView<Extended>(inference::Comparable(y)),
                     inference::Comparable(difference), alternative);
}
/// @}

}  // namespace qorvex
