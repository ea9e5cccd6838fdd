#pragma once

// A function over ranges, from its kernel.

#include <span>

#include "qorvex/base/Qorvex_rs_math.h"
#include "qorvex/base/elementary/detail/binary80.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/vector_view.h"

namespace qorvex::elementary {

/// Stores kernel(bits of x[i]), which are the bits of a result, in results[i]. The kernel reads and
/// writes memory directly, so the x87 unit takes no part.
template <class Kernel>
inline void OverSpans(VectorView<Extended> x, std::span<Extended> results, Kernel kernel) {
  if (x.size() != results.size()) RaiseMathError(rsSameDimensions);
  Extended* result = results.data();
  for (const Extended& t : x) Store(kernel(BitsOf(t)), *result++);
}

}  // namespace qorvex::elementary
