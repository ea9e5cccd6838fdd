#pragma once

/// @file
/// Dividing an amount without losing a cent.

#include <initializer_list>

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexFinVector {

/// Parts of the amount in proportion to the weights: 100.00 in the proportions {1, 1, 1} is 33.34,
/// 33.33 and 33.33.
///
/// - The sum of the parts is the amount, always. Each part is its exact share rounded down or up
///   to the resolution of the type, which is the cent here: all shares are first rounded toward
///   zero, and what is left goes, cent by cent, to the parts that lost most; to the first of them
///   if they lost the same (the method of largest remainders).
/// - The shares and what they lose are computed and compared exactly, also for floating weights.
/// - The parts of a negative amount are those of its opposite, with the sign changed. A weight of
///   zero gives a part of zero.
/// - EMathError, in this order: rsVectorIsEmpty without weights; rsInvalidWeight if a weight is
///   negative, infinite or NaN; rsWeightsZero if all are zero.
/// - For weights of all thirteen element types; amounts may be weights too, so that a discount can
///   follow the lines of an invoice.
/// - O(n) on average for weights of similar magnitude. If the largest is 2^k times the smallest,
///   time and memory are O(n k).
template <CurrencyElement C, AnyElement Weight>
[[nodiscard]] QORVEX_EXPORT TQorVector<C> Allocate(C amount, VectorView<Weight> weights);

/// @{
/// The same for every contiguous range of weights, and for weights in braces.
template <CurrencyElement C, ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] inline TQorVector<C> Allocate(C amount, const Range& weights) {
  return Allocate<C, ElementOf<Range>>(amount, weights);
}
template <CurrencyElement C, AnyElement Weight>
[[nodiscard]] inline TQorVector<C> Allocate(C amount, std::initializer_list<Weight> weights) {
  return Allocate<C, Weight>(amount, VectorView<Weight>(weights));
}
/// @}

}  // namespace qorvex::inline QorvexFinVector
