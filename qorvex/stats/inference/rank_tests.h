#pragma once

/// @file
/// Tests on ranks.
///
/// - Differences are compared with 125 bits, so that rounding them neither makes nor breaks a tie.
///   Decimals tie as they should as amounts of one type, with an amount as shift or centre, or as
///   the integers of a decimal column: 80 bits hold 0.3 - 0.1 and 0.2 differently.
/// - p is exact, and rounded once, up to 50 values in each sample without ties. Otherwise it comes
///   from the normal approximation, with the variance corrected for ties and the statistic moved by
///   1/2 so that p grows.
/// - Two-sided p is twice the smaller tail, at most 1.
/// - Cost: a sort; for an exact p up to a millisecond.
/// - Source: Wilcoxon (1945), "Individual comparisons by ranking methods"; Mann and Whitney (1947),
///   "On a test of whether one of two random variables is stochastically larger than the other".

#include "qorvex/base/export.h"
#include "qorvex/stats/inference/comparable.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex {

/// @{
/// Whether the first sample is the second one moved by `shift`. The statistic is U, the number of
/// pairs whose first value exceeds the second plus shift; equal ones count 1/2.
///
/// - Infinite values are values for a shift of 0, and give NaN otherwise.
/// - Errors: rsVectorIsEmpty for no values in a sample; rsSameValue where all values, moved, are
///   equal.
[[nodiscard]] QORVEX_EXPORT TestResult
MannWhitneyTest(VectorView<Extended> first, VectorView<Extended> second, Extended shift = 0,
                Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange First, ContiguousRange Second>
requires inference::ComparableElements<ElementOf<First>, ElementOf<Second>>
[[nodiscard]] TestResult MannWhitneyTest(const First& first, const Second& second,
                                         inference::OffsetOf<ElementOf<First>> shift = {},
                                         Alternative alternative = Alternative::kTwoSided) {
  return MannWhitneyTest(VectorView<Extended>(inference::Comparable(first)),
                         VectorView<Extended>(inference::Comparable(second)),
                         inference::Comparable(shift), alternative);
}
/// @}

/// @{
/// Whether the values are symmetric around `centre`. The statistic is V, the sum of the ranks that
/// positive differences from the centre have among the magnitudes of all.
///
/// - Differences of 0 are left out; where there are any, p comes from the normal approximation.
/// - Errors: rsVectorIsEmpty for no values; rsSameValue where every difference is 0.
[[nodiscard]] QORVEX_EXPORT TestResult
WilcoxonSignedRankTest(VectorView<Extended> values, Extended centre = 0,
                       Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] TestResult WilcoxonSignedRankTest(const Range& values,
                                                inference::OffsetOf<ElementOf<Range>> centre = {},
                                                Alternative alternative = Alternative::kTwoSided) {
  return WilcoxonSignedRankTest(VectorView<Extended>(inference::Comparable(values)),
                                inference::Comparable(centre), alternative);
}
/// @}

/// @{
/// The same for the differences x - y of pairs.
///
/// - A centre other than 0 is subtracted from the differences with 125 bits. Differences beyond the
///   format give NaN.
/// - Errors before the others: rsSameDimensions for vectors of different lengths.
[[nodiscard]] QORVEX_EXPORT TestResult
WilcoxonSignedRankTest(VectorView<Extended> x, VectorView<Extended> y, Extended centre = 0,
                       Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange X, ContiguousRange Y>
requires inference::ComparableElements<ElementOf<X>, ElementOf<Y>>
[[nodiscard]] TestResult WilcoxonSignedRankTest(const X& x, const Y& y,
                                                inference::OffsetOf<ElementOf<X>> centre = {},
                                                Alternative alternative = Alternative::kTwoSided) {
  return WilcoxonSignedRankTest(VectorView<Extended>(inference::Comparable(x)),
                                VectorView<Extended>(inference::Comparable(y)),
                                inference::Comparable(centre), alternative);
}
/// @}

}  // namespace qorvex
