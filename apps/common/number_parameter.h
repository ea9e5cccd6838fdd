#pragma once

/// @file
/// Numbers that distributions and variates take, and what they may be.

#include <optional>

#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// The numbers that an option takes, all finite.
enum class NumberKind {
  kReal,
  kReals,             ///< with commas between them
  kPositive,          ///< and not subnormal
  kShape,             ///< a shape, in the range of the full-precision routines
  kDegreesOfFreedom,  ///< the same, and whole for the classic routines
  kShare,             ///< from 0 to 1
  kProbability,       ///< between 0 and 1
  // From here on whole numbers from 0.
  kSteps,  ///< the steps of a table, which has at most ten million points
  kInt32,
  kCount,  ///< a number that 32 bits hold
  kInt64,
  kUint64,
};

/// The most points of a table, which is in memory before any of it is printed.
inline constexpr Extended kMostPoints = 1e7L;

struct NumberParameter {
  const char* option;
  const char* description;
  NumberKind kind;
  /// What it is when it is not given; none if it has to be.
  std::optional<Extended> standard = std::nullopt;
};

inline constexpr NumberParameter kMean = {"--mean", "The mean. Default: 0", NumberKind::kReal, 0};
inline constexpr NumberParameter kStdDev = {"--std-dev", "The standard deviation. Default: 1",
                                            NumberKind::kPositive, 1};
inline constexpr NumberParameter kScale = {"--scale", "The scale. Default: 1",
                                           NumberKind::kPositive, 1};
inline constexpr NumberParameter kLowerEnd = {
    "--lower-end", "The lower end of the support. Default: 0", NumberKind::kReal, 0};
inline constexpr NumberParameter kUpperEnd = {
    "--upper-end", "The upper end of the support. Default: 1", NumberKind::kReal, 1};
inline constexpr NumberParameter kSuccessProbability = {
    "--success-probability", "The probability of success in each trial", NumberKind::kShare};
inline constexpr NumberParameter kLambda = {"--lambda", "The mean", NumberKind::kPositive};

/// What is wrong with a number of the given kind; null if it is fine.
[[nodiscard]] const char* WhatIsWrong(Extended value, NumberKind kind);

/// What is wrong with the ends of a support; null if they are fine.
[[nodiscard]] const char* WhatIsWrongWithEnds(Extended lower, Extended upper);

}  // namespace qorvex::apps
