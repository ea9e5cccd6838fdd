#pragma once

/// @file
/// Quantiles of weighted values that are already sorted ascending.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/exact/extended_view.h"
#include "qorvex/stats/quantiles.h"

namespace qorvex {

/// @{
/// The quantile of probability p of sorted values with weights, where weights[i] belongs to
/// sorted[i].
///
/// - Type 1 is the inverse of the weighted distribution function: the first value up to which the
///   weights add up to p times their sum or more. Type 2 is the mean of that value and the next if
///   they add up to exactly that. For any weights.
/// - The types 3 to 9 are GetQuantile of the sample in which each value is repeated as often as its
///   weight says, without building it. Frequencies are whole numbers whose sum is at most 2^62.
///   For such weights types 1 and 2 agree with GetQuantile as well.
/// - Weights are added exactly. A sum within 4 units in the last place of p times the total counts
///   as equal to it. p = 1 gives the last value that counts, however small its weight is.
/// - A value of weight 0 does not count, not even NaN. NaN sorts last; see GetQuantile.
/// - EMathError, in this order: rsSameDimensions for different lengths; rsVectorIsEmpty;
///   rsInvalidWeight if a weight is negative, infinite or NaN; rsWeightsZero if all are zero;
///   rsValue01Inc unless 0 <= p <= 1; rsInvalidValue for a type outside 1 to 9; rsFrequencies if
///   the types 3 to 9 get other weights than frequencies.
/// - For all numeric elements; values and weights may differ in type. Elements that are not
///   Extended are converted to a temporary vector.
/// - Cost: O(n).
[[nodiscard]] QORVEX_EXPORT Extended WeightedQuantile(VectorView<Extended> sorted,
                                                      VectorView<Extended> weights, Extended p,
                                                      QuantileType type = QuantileType::k1);
template <ContiguousRange Values, ContiguousRange Weights>
requires NumericElement<ElementOf<Values>> && NumericElement<ElementOf<Weights>>
[[nodiscard]] Extended WeightedQuantile(const Values& sorted, const Weights& weights, Extended p,
                                        QuantileType type = QuantileType::k1) {
  return WeightedQuantile(VectorView<Extended>(AsExtended(sorted)),
                          VectorView<Extended>(AsExtended(weights)), p, type);
}
/// @}

}  // namespace qorvex
