#pragma once

/// @file
/// The distributions that `dist` knows, their parameters and routines.

#include <cstdint>
#include <limits>
#include <span>
#include <vector>

#include "apps/common/number_parameter.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::apps {

/// The distribution's parameters in order, then a point, two points or a probability.
using DistributionArguments = std::span<const Extended>;
using DistributionRoutine = Extended (*)(DistributionArguments);

/// The routines with full relative accuracy in both tails. Lower is at most x, upper more than x.
struct FullPrecisionRoutines {
  DistributionRoutine density;
  DistributionRoutine lower;
  DistributionRoutine upper;
  DistributionRoutine log_lower;
  DistributionRoutine log_upper;
  DistributionRoutine quantile;
  DistributionRoutine upper_quantile;
};

/// The routines of the unit QorvexStatistics; null where it has none.
struct ClassicRoutines {
  DistributionRoutine density = nullptr;
  DistributionRoutine less = nullptr;
  DistributionRoutine greater = nullptr;
  DistributionRoutine between = nullptr;
  DistributionRoutine quantile = nullptr;
  DistributionRoutine upper_quantile = nullptr;
  /// Takes the parameters and the ends of the range.
  void (*table)(DistributionArguments arguments, std::int32_t n, TQorFloatVector& x_values,
                TQorFloatVector& y_values) = nullptr;
};

/// The ends of a continuous distribution.
struct Support {
  Extended least = -std::numeric_limits<Extended>::infinity();
  Extended greatest = std::numeric_limits<Extended>::infinity();
};

struct Distribution {
  const char* name;
  const char* summary;
  std::vector<NumberParameter> parameters;
  /// Whether its points are counts.
  bool is_discrete;
  FullPrecisionRoutines full_precision;
  ClassicRoutines classic;
  /// Null where a continuous distribution has no ends.
  Support (*support)(DistributionArguments parameters) = nullptr;
  /// What is wrong with parameters that are fine one by one, or null; null itself where nothing can
  /// be.
  const char* (*inconsistency)(DistributionArguments parameters) = nullptr;
};

/// The probability between two points, in either order, both excluded, with full relative accuracy
/// where it is small because the points are in one tail. The points follow the parameters.
[[nodiscard]] Extended ProbabilityBetween(const Distribution& distribution,
                                          DistributionArguments arguments);

/// The distributions in the order of --help.
[[nodiscard]] std::span<const Distribution> Distributions();

}  // namespace qorvex::apps
