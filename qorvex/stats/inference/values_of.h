#pragma once

/// @file
/// The values of any numeric element type for routines that compare or sort them.

#include <type_traits>

#include "qorvex/vector/conversion.h"

/// @cond internal
namespace qorvex::inference {

// A view of extended values, a vector of others converted exactly.
template <ContiguousRange Range>
[[nodiscard]] auto ValuesOf(const Range& values) {
  if constexpr (std::is_same_v<ElementOf<Range>, Extended>) {
    return VectorView<Extended>(values);
  } else {
    return Vector2FloatVector(values);
  }
}

}  // namespace qorvex::inference
/// @endcond
