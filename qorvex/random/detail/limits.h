#pragma once

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexRandom::detail {

// The ends of the range that the published methods were written for. They belong to the streams:
// widening them to the extended range would change which draws are taken again.
inline constexpr Extended kVerySmall = 5.0E-324L;
inline constexpr Extended kVeryLarge = 1.7E+308L;

}  // namespace qorvex::inline QorvexRandom::detail
