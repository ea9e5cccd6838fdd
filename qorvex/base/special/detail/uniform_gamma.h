#pragma once

/// @file
/// The gamma distribution of large shapes.

#include "qorvex/base/special/tails.h"

namespace qorvex::special {

/// The shapes from which the expansion holds.
inline constexpr Extended kUniformShape = 1000;
/// How far from 1 x / shape may be.
inline constexpr Extended kUniformDistance = 0.2L;

/// The tails of the gamma distribution at x within these bounds, by Temme's expansion (1979, "The
/// asymptotic expansion of the incomplete gamma functions"), whose cost does not depend on the
/// shape.
[[nodiscard]] Tails UniformGammaTails(Extended shape, ExtendedPair x);

}  // namespace qorvex::special
