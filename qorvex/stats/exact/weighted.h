#pragma once

/// @file
/// Mean and variance of weighted values, from exact sums.
///
/// For all routines here:
///
/// - The result is the nearest 80-bit number to the exact value, whatever the order of the values.
/// - A value of weight 0 does not count, not even NaN. NaN gives NaN; infinities give the mean that
///   IEEE 754 arithmetic gives, and the variance NaN.
/// - EMathError, in this order: rsSameDimensions for different lengths; rsVectorIsEmpty;
///   rsInvalidWeight if a weight is negative, infinite or NaN; rsWeightsZero if all are zero.
/// - For all numeric elements; values and weights may differ in type. Elements that are not
///   Extended are converted to a temporary vector. LinearModel takes weighted amounts.
/// - Cost: O(n).

#include <cstdint>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/exact/extended_view.h"

namespace qorvex {

/// What weights are, which decides how a variance is estimated from them. V1 is the sum of the
/// weights, V2 the sum of their squares and Q the sum of weight * (value - mean)^2.
enum class WeightKind : std::uint8_t {
  /// The weight is the number of times that the value occurs: the variance Q / (V1 - 1) of the
  /// sample in which it is repeated.
  kFrequency,
  /// The weight is the reliability of the value, proportional to the reciprocal of its variance.
  /// Only ratios of weights matter: the unbiased variance Q / (V1 - V2 / V1).
  kReliability,
  /// The weight is the share of the value in the population: the variance Q / V1.
  kPopulation,
};

/// @{
/// The sum of weight * value over the sum of the weights.
[[nodiscard]] QORVEX_EXPORT Extended WeightedMean(VectorView<Extended> values,
                                                  VectorView<Extended> weights);
template <ContiguousRange Values, ContiguousRange Weights>
requires NumericElement<ElementOf<Values>> && NumericElement<ElementOf<Weights>>
[[nodiscard]] Extended WeightedMean(const Values& values, const Weights& weights) {
  return WeightedMean(VectorView<Extended>(AsExtended(values)),
                      VectorView<Extended>(AsExtended(weights)));
}
/// @}

/// @{
/// The variance of the values by the definition for this kind of weights.
///
/// After the common errors: rsWeightSum for frequencies whose sum is not more than 1; rsOneWeight
/// for reliabilities of which only one is positive.
[[nodiscard]] QORVEX_EXPORT Extended WeightedVariance(VectorView<Extended> values,
                                                      VectorView<Extended> weights,
                                                      WeightKind kind);
template <ContiguousRange Values, ContiguousRange Weights>
requires NumericElement<ElementOf<Values>> && NumericElement<ElementOf<Weights>>
[[nodiscard]] Extended WeightedVariance(const Values& values, const Weights& weights,
                                        WeightKind kind) {
  return WeightedVariance(VectorView<Extended>(AsExtended(values)),
                          VectorView<Extended>(AsExtended(weights)), kind);
}
/// @}

/// @{
/// The square root of the variance, with its errors, rounded once.
[[nodiscard]] QORVEX_EXPORT Extended WeightedStdDev(VectorView<Extended> values,
                                                    VectorView<Extended> weights, WeightKind kind);
template <ContiguousRange Values, ContiguousRange Weights>
requires NumericElement<ElementOf<Values>> && NumericElement<ElementOf<Weights>>
[[nodiscard]] Extended WeightedStdDev(const Values& values, const Weights& weights,
                                      WeightKind kind) {
  return WeightedStdDev(VectorView<Extended>(AsExtended(values)),
                        VectorView<Extended>(AsExtended(weights)), kind);
}
/// @}

}  // namespace qorvex
