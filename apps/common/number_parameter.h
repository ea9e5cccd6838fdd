#pragma once

/// @file
/// The parameters of distributions and variates, and which numbers they take.

#include <string>

#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// The numbers that an option takes, all finite.
enum class NumberKind {
  kReal,
  kReals,             ///< with commas between them
  kPositive,          ///< and not subnormal
  kShape,             ///< a shape, in the range of the distributions
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

/// A number as it was written and as it is read.
struct WrittenNumber {
  std::string text;
  Extended value = 0;
};

/// A parameter, for both programs: an option of a command and a cell of a form.
struct NumberParameter {
  const char* option;
  /// As it follows "The": "degrees of freedom".
  const char* name;
  NumberKind kind;
  /// What a form starts with, and the option's default if it has one.
  Extended start = 0;
  bool has_default = false;
  /// Other names of the option, with commas between them.
  const char* aliases = "";
  /// An option that takes 1 / the parameter, such as the rate instead of the mean; or empty.
  const char* reciprocal = "";

  /// "The scale. Default: 1"
  [[nodiscard]] std::string Description() const;
};

inline constexpr NumberParameter kMean = {"--mean", "mean", NumberKind::kReal, 0, true};
inline constexpr NumberParameter kStdDev = {
    "--std-dev", "standard deviation", NumberKind::kPositive, 1, true, "--sd"};
inline constexpr NumberParameter kScale = {"--scale", "scale", NumberKind::kPositive, 1, true};
inline constexpr NumberParameter kGammaScale = {"--scale", "scale", NumberKind::kPositive, 1, true,
                                                "",        "--rate"};
inline constexpr NumberParameter kLowerEnd = {
    "--lower-end", "lower end of the support", NumberKind::kReal, 0, true, "--min"};
inline constexpr NumberParameter kUpperEnd = {
    "--upper-end", "upper end of the support", NumberKind::kReal, 1, true, "--max"};
inline constexpr NumberParameter kConcentration = {
    "--concentration", "concentration", NumberKind::kReal, 2, false, "--kappa"};
inline constexpr NumberParameter kSuccessProbability = {"--success-probability",
                                                        "probability of success in each trial",
                                                        NumberKind::kShare,
                                                        0.3L,
                                                        false,
                                                        "-p,--prob"};
/// The same where 0 and 1 are excluded.
inline constexpr NumberParameter kOpenSuccessProbability = {"--success-probability",
                                                            "probability of success in each trial",
                                                            NumberKind::kProbability,
                                                            0.3L,
                                                            false,
                                                            "-p,--prob"};
inline constexpr NumberParameter kLambda = {"--lambda", "mean", NumberKind::kPositive,
                                            4,          false,  "--mean,--rate"};

/// What is wrong with a number of the given kind; null if it is valid.
[[nodiscard]] const char* WhatIsWrong(Extended value, NumberKind kind);

/// What is wrong with the ends of a support; null if they are valid.
[[nodiscard]] const char* WhatIsWrongWithEnds(Extended lower, Extended upper);

}  // namespace qorvex::apps
