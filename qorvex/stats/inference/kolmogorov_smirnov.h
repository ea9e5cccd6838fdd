#pragma once

/// @file
/// Kolmogorov-Smirnov tests.
///
/// - The statistic is the greatest difference D of two distribution functions: its magnitude for
///   kTwoSided, first above second for kGreater, second above first for kLess. A distribution
///   function that lies above another belongs to smaller values.
/// - Infinite values are values.

#include <cstddef>
#include <vector>

#include "qorvex/base/export.h"
#include "qorvex/stats/distributions/distribution.h"
#include "qorvex/stats/inference/comparable.h"
#include "qorvex/stats/inference/test_result.h"

namespace qorvex {

/// @cond internal
namespace inference {
// The tails of the hypothesis at the sorted values.
[[nodiscard]] QORVEX_EXPORT TestResult KolmogorovSmirnovOfTails(const std::vector<Tails>& tails,
                                                                Alternative alternative);
[[nodiscard]] QORVEX_EXPORT std::vector<Extended> Sorted(VectorView<Extended> values);
}  // namespace inference
/// @endcond

/// @{
/// Whether the values come from the given continuous distribution, whose parameters are not
/// estimated from them.
///
/// - D is off by a few units of 2^-64.
/// - Up to 1000 values p is exact: by the powers of Marsaglia, Tsang and Wang's matrix, and where
///   n D^2 > 8 or D > 1/2 as twice the one-sided probability of Birnbaum and Tingey, which is then
///   the same to 1e-20. Beyond by the limit; the logarithm of a small p is then too large by about
///   2 D / 3 + 4 n D^4 / 9.
/// - Takes numbers; amounts as Currency2Float gives them.
/// - Errors: rsVectorIsEmpty for no values.
/// - Cost: a sort, and n tails; the exact two-sided p up to 10 milliseconds for 1000 values.
/// - Source: Marsaglia, Tsang and Wang (2003), "Evaluating Kolmogorov's distribution"; Birnbaum and
///   Tingey (1951), "One-sided confidence contours for probability distribution functions"; Smirnov
///   (1948), "Table for estimating the goodness of fit of empirical distributions".
template <ContinuousDistribution D>
[[nodiscard]] TestResult KolmogorovSmirnovTest(VectorView<Extended> values, const D& distribution,
                                               Alternative alternative = Alternative::kTwoSided) {
  std::vector<Tails> tails;
  tails.reserve(values.size());
  for (const Extended x : inference::Sorted(values)) tails.push_back(distribution.At(x));
  return inference::KolmogorovSmirnovOfTails(tails, alternative);
}
template <ContiguousRange Range, ContinuousDistribution D>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] TestResult KolmogorovSmirnovTest(const Range& values, const D& distribution,
                                               Alternative alternative = Alternative::kTwoSided) {
  return KolmogorovSmirnovTest(VectorView<Extended>(AsExtended(values)), distribution, alternative);
}
/// @}

/// @{
/// Whether two samples come from the same distribution.
///
/// - Up to 1000 values in each sample p is exact, given the values that occur, ties included:
///   paths through the grid of both samples are counted. Beyond by the limit.
/// - Takes numbers, or amounts of one type.
/// - Errors: rsVectorIsEmpty for no values in a sample.
/// - Cost: a sort; for the exact p some 5 nanoseconds times the product of the lengths.
/// - Source: Hodges (1958), "The significance probability of the Smirnov two-sample test"; Schroeer
///   and Trenkler (1995), "Exact and randomization distributions of Kolmogorov-Smirnov tests two or
///   three samples".
[[nodiscard]] QORVEX_EXPORT TestResult
KolmogorovSmirnovTest(VectorView<Extended> first, VectorView<Extended> second,
                      Alternative alternative = Alternative::kTwoSided);
template <ContiguousRange First, ContiguousRange Second>
requires inference::ComparableElements<ElementOf<First>, ElementOf<Second>>
[[nodiscard]] TestResult KolmogorovSmirnovTest(const First& first, const Second& second,
                                               Alternative alternative = Alternative::kTwoSided) {
  return KolmogorovSmirnovTest(VectorView<Extended>(inference::Comparable(first)),
                               VectorView<Extended>(inference::Comparable(second)), alternative);
}
/// @}

}  // namespace qorvex
