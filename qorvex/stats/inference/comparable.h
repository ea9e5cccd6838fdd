#pragma once

/// @file
/// The values that tests compare with each other, from the ranges that callers have.

#include <concepts>
#include <type_traits>
#include <vector>

#include "qorvex/stats/exact/extended_view.h"

/// @cond internal
namespace qorvex::inference {

// Numbers compare with numbers, and amounts with amounts of the same type.
template <class A, class B>
concept ComparableElements = (NumericElement<A> && NumericElement<B>) ||
                             (CurrencyElement<A> && std::same_as<A, B>);

// What the values may be moved by: an amount for amounts.
template <class T>
using OffsetOf = std::conditional_t<CurrencyElement<T>, T, Extended>;

// Numbers that compare, and differ from each other, as the values do: for amounts the integers that
// they store.
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] auto Comparable(const Range& values) {
  if constexpr (CurrencyElement<ElementOf<Range>>) {
    std::vector<Extended> stored;
    for (const ElementOf<Range> amount : VectorView<ElementOf<Range>>(values))
      stored.push_back(static_cast<Extended>(amount.stored()));
    return stored;
  } else {
    return AsExtended(values);
  }
}
template <CurrencyElement T>
[[nodiscard]] Extended Comparable(T amount) {
  return static_cast<Extended>(amount.stored());
}
[[nodiscard]] inline Extended Comparable(Extended number) {
  return number;
}

}  // namespace qorvex::inference
/// @endcond
