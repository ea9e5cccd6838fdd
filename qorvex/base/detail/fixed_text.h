#pragma once

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexGlobals::detail {

/// The most decimals that WriteFixed writes, and the room that it needs.
inline constexpr int kMostFixedDecimals = 104;
inline constexpr int kLongestFixedText = 136;

/// Writes the value with the given number of decimals, correctly rounded, ties to even, and returns
/// the end of the text. A value that rounds to zero has no sign. Returns nullptr, for a slower
/// routine to take over, unless 2^-64 <= |value| < 2^64 or value = 0, and 0 <= decimals <=
/// kMostFixedDecimals.
char* WriteFixed(Extended value, int decimals, char* text);

}  // namespace qorvex::inline QorvexGlobals::detail
