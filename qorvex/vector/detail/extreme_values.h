#pragma once

#include <cstddef>
#include <span>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexVector::detail {

// The smallest and the largest of some elements, where each occurs first, and whether it occurs
// only once. Equality is that of the elements: zeros of both signs are equal.
template <NumericElement T>
struct Extremes {
  struct Extreme {
    T value;
    std::size_t index = 0;
    bool once = true;
  };
  Extreme smallest;
  Extreme largest;
};

// Shorter vectors gain nothing from the kernels.
inline constexpr std::size_t kLeastForExtremes = 256;

// The extremes of at least one element. A first element that is NaN is both; other NaNs are
// ignored.
template <NumericElement T>
[[nodiscard]] Extremes<T> ExtremesOf(std::span<const T> values) noexcept;

}  // namespace qorvex::inline QorvexVector::detail
