#pragma once

#include "qorvex/base/element_types.h"
#include "qorvex/random/uniform_source.h"

namespace qorvex::inline QorvexRandom::detail {

// The smallest and largest number of the arithmetic that the published methods were written for.
// They are part of the streams: with the limits of the extended range, other draws would be
// rejected.
inline constexpr Extended kVerySmall = 5.0E-324L;
inline constexpr Extended kVeryLarge = 1.7E+308L;

// The first uniform value above the limit.
inline Extended PositiveUniform(UniformSource source) {
  Extended u = source();
  while (!(u > kVerySmall)) u = source();
  return u;
}

}  // namespace qorvex::inline QorvexRandom::detail
