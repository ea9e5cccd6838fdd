#pragma once

/// @file
/// The gamma distribution of large shapes.

#include "qorvex/base/detail/tails.h"

namespace qorvex::inline QorvexGlobals::detail {

/// From here on the expansion holds for shapes.
inline constexpr Extended kUniformShape = 1000;

/// The tails of the gamma distribution at x for a shape from kUniformShape on, by Temme's expansion
/// (1979, "The asymptotic expansion of the incomplete gamma functions"), whose cost does not depend
/// on the shape. Needs |x / shape - 1| <= kUniformDistance.
inline constexpr Extended kUniformDistance = 0.2L;
[[nodiscard]] Tails UniformGammaTails(Extended shape, ExtendedPair x);

}  // namespace qorvex::inline QorvexGlobals::detail
