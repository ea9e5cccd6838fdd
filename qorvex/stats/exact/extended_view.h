#pragma once

/// @file
/// Extended values of any numeric range.

#include <ranges>
#include <type_traits>

#include "qorvex/base/vector_types.h"
#include "qorvex/vector/conversion.h"

namespace qorvex {

/// The elements as Extended: a view of the range, or a converted copy if it has elements of another
/// type. Both convert to VectorView<Extended>.
template <ContiguousRange Range>
requires NumericElement<ElementOf<Range>>
[[nodiscard]] auto AsExtended(const Range& values) {
  if constexpr (std::is_same_v<ElementOf<Range>, Extended>) {
    return VectorView<Extended>(values);
  } else {
    return ConvertVector<Extended>(values);
  }
}
/// Not for a temporary vector, which its view would outlive.
template <ContiguousRange Range>
requires std::is_same_v<ElementOf<Range>, Extended>
void AsExtended(const Range&& values) requires(!std::ranges::borrowed_range<Range>) = delete;

}  // namespace qorvex
