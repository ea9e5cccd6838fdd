#pragma once

/// @file
/// The standard normal distribution in the far tail.

#include "qorvex/base/export.h"
#include "qorvex/base/special/scaled.h"

namespace qorvex::special {

/// The density of the standard normal distribution at z, divided by a scale.
[[nodiscard]] QORVEX_EXPORT Scaled NormalDensity(ExtendedPair z, Extended scale);

/// The probability above z >= 0.
[[nodiscard]] QORVEX_EXPORT Scaled NormalUpperTail(ExtendedPair z);

}  // namespace qorvex::special
