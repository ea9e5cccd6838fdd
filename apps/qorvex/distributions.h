#pragma once

/// @file
/// The distributions that `dist` knows, their parameters and routines.

#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "qorvex/base/vector_types.h"

namespace qorvex::cli {

/// The numbers that an option takes, all finite.
enum class NumberKind {
  kReal,
  kPositive,
  kShape,        ///< a shape or degrees of freedom, in the range of the full-precision routines
  kShare,        ///< from 0 to 1
  kProbability,  ///< between 0 and 1
  kCount,        ///< a whole number that 32 bits hold
  kSteps,        ///< the steps of a table, which has at most ten million points
};

struct DistributionParameter {
  const char* option;
  const char* description;
  NumberKind kind;
  /// What it is when it is not given; none if it has to be.
  std::optional<Extended> standard = std::nullopt;
  /// Whether the prescribed routines take counts only.
  bool whole_when_prescribed = false;
};

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
struct PrescribedRoutines {
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

struct Distribution {
  const char* name;
  const char* summary;
  std::vector<DistributionParameter> parameters;
  /// Whether its points are counts.
  bool is_discrete;
  FullPrecisionRoutines full_precision;
  PrescribedRoutines prescribed;
  /// What is wrong with parameters that are fine one by one, or null; null itself where nothing can
  /// be.
  const char* (*inconsistency)(DistributionArguments parameters) = nullptr;
};

/// The distributions in the order of --help.
[[nodiscard]] std::span<const Distribution> Distributions();

}  // namespace qorvex::cli
