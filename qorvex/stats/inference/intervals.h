#pragma once

/// @file
/// Confidence intervals, and the prediction of one more value.
///
/// - `confidence` is the probability that an interval has before the data are known; half of the
///   rest lies on each side.
/// - The intervals of samples assume normal data. They take exact samples, or ranges of any element
///   type, as the tests of means do.
/// - Equal values give intervals without width. NaN and infinities among the values, and a
///   confidence of NaN, give NaN. Ends beyond the format are infinite.
/// - Errors, in this order: the ones that an interval lists; rsValue01 unless 0 < confidence < 1.
/// - Cost: a quantile of the distribution.

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/stats/distributions/distribution.h"
#include "qorvex/stats/inference/sample_of.h"

namespace qorvex {

/// @{
/// The mean: mean -+ t s / sqrt(n), t with n - 1 degrees of freedom.
///
/// - Errors: rsVectorG1 for fewer than two values.
[[nodiscard]] QORVEX_EXPORT Interval<Extended> MeanInterval(const ExactSample<2>& sample,
                                                            Extended confidence = 0.95L);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] Interval<Extended> MeanInterval(const Range& values, Extended confidence = 0.95L) {
  return MeanInterval(inference::SampleOf(values), confidence);
}
/// @}

/// @{
/// One more value of the same kind: mean -+ t s sqrt(1 + 1/n), t with n - 1 degrees of freedom.
///
/// - Errors: rsVectorG1 for fewer than two values.
[[nodiscard]] QORVEX_EXPORT Interval<Extended> PredictionInterval(const ExactSample<2>& sample,
                                                                  Extended confidence = 0.95L);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] Interval<Extended> PredictionInterval(const Range& values,
                                                    Extended confidence = 0.95L) {
  return PredictionInterval(inference::SampleOf(values), confidence);
}
/// @}

/// @{
/// The variance: (n - 1) s^2 over the upper and the lower quantile of chi-square with n - 1 degrees
/// of freedom. The roots of its ends are those of the standard deviation.
///
/// - Errors: rsVectorG1 for fewer than two values.
[[nodiscard]] QORVEX_EXPORT Interval<Extended> VarianceInterval(const ExactSample<2>& sample,
                                                                Extended confidence = 0.95L);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] Interval<Extended> VarianceInterval(const Range& values,
                                                  Extended confidence = 0.95L) {
  return VarianceInterval(inference::SampleOf(values), confidence);
}
/// @}

/// @{
/// The difference of two means, first minus second: of equal variances as in TwoSampleTTest, and of
/// any as in WelchTTest.
///
/// - Errors: rsVectorG1 for fewer than two values in a sample.
[[nodiscard]] QORVEX_EXPORT Interval<Extended> PooledDifferenceInterval(
    const ExactSample<2>& first, const ExactSample<2>& second, Extended confidence = 0.95L);
[[nodiscard]] QORVEX_EXPORT Interval<Extended> WelchDifferenceInterval(const ExactSample<2>& first,
                                                                       const ExactSample<2>& second,
                                                                       Extended confidence = 0.95L);
template <ContiguousRange First, ContiguousRange Second>
requires AnyElement<ElementOf<First>> && AnyElement<ElementOf<Second>>
[[nodiscard]] Interval<Extended> PooledDifferenceInterval(const First& first, const Second& second,
                                                          Extended confidence = 0.95L) {
  return PooledDifferenceInterval(inference::SampleOf(first), inference::SampleOf(second),
                                  confidence);
}
template <ContiguousRange First, ContiguousRange Second>
requires AnyElement<ElementOf<First>> && AnyElement<ElementOf<Second>>
[[nodiscard]] Interval<Extended> WelchDifferenceInterval(const First& first, const Second& second,
                                                         Extended confidence = 0.95L) {
  return WelchDifferenceInterval(inference::SampleOf(first), inference::SampleOf(second),
                                 confidence);
}
/// @}

/// @{
/// The probability of success: by Clopper and Pearson (1934), "The use of confidence or fiducial
/// limits illustrated in the case of the binomial", never below its confidence; and by Wilson
/// (1927), "Probable inference, the law of succession, and statistical inference", shorter and
/// right on average.
///
/// - Errors: rsBinomDistInvalid unless successes <= trials and trials > 0, and
///   for Clopper and Pearson from 2^32 trials on.
[[nodiscard]] QORVEX_EXPORT Interval<Extended> ClopperPearsonInterval(std::uint64_t successes,
                                                                      std::uint64_t trials,
                                                                      Extended confidence = 0.95L);
[[nodiscard]] QORVEX_EXPORT Interval<Extended> WilsonInterval(std::uint64_t successes,
                                                              std::uint64_t trials,
                                                              Extended confidence = 0.95L);
/// @}

/// The correlation of n pairs whose sample correlation is r: tanh(artanh r -+ z / sqrt(n - 3)).
///
/// - r = 1 and r = -1 give intervals without width.
/// - Errors: rsVectorG3 for fewer than four pairs; rsInvalidValue unless -1 <= r <= 1.
/// - Source: Fisher (1921), "On the 'probable error' of a coefficient of correlation deduced from a
///   small sample".
[[nodiscard]] QORVEX_EXPORT Interval<Extended> CorrelationInterval(Extended r, std::uint64_t n,
                                                                   Extended confidence = 0.95L);

}  // namespace qorvex
