#pragma once

/// @file
/// Sums of amounts that raise instead of wrapping around.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexFinVector {

/// The sum of the amounts, in their type.
///
/// - EOverflow with rsAmountOverflow if the sum is out of range. The order of the amounts does not
///   matter: sums of some of them may be out of range.
/// - n = 0: EMathError with rsVectorIsEmpty. n = 1: the amount.
/// - For currencies. O(n).
template <CurrencyElement T>
[[nodiscard]] QORVEX_EXPORT T CheckedSum(VectorView<T> amounts);

/// The same for every contiguous range of amounts.
template <ContiguousRange Range>
requires CurrencyElement<ElementOf<Range>>
[[nodiscard]] inline ElementOf<Range> CheckedSum(const Range& amounts) {
  return CheckedSum<ElementOf<Range>>(amounts);
}

}  // namespace qorvex::inline QorvexFinVector
