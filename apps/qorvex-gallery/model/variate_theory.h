#pragma once

/// @file
/// What is known of variates without drawing any.

#include <functional>
#include <optional>
#include <span>

#include "apps/common/variates.h"

namespace qorvex::gallery {

/// From the catalogue of distributions. Empty where no family has the variate, and where a moment
/// is infinite or does not exist.
struct VariateTheory {
  /// The density, or the probability of a count.
  std::function<Extended(Extended)> density;
  std::optional<Extended> mean;
  std::optional<Extended> variance;
  bool is_count = false;
};

/// For parameters that the variate takes.
[[nodiscard]] VariateTheory TheoryOf(const apps::Variate& variate,
                                     std::span<const Extended> parameters);

}  // namespace qorvex::gallery
