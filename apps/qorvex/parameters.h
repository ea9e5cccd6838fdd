#pragma once

/// @file
/// Numbers that options take, those that several commands name alike, and what is said when a
/// routine refuses them.

#include <CLI/CLI.hpp>
#include <optional>
#include <string>

#include "apps/qorvex/input_error.h"
#include "qorvex/base/element_types.h"
#include "qorvex/base/errors.h"

namespace qorvex::cli {

/// The numbers that an option takes, all finite.
enum class NumberKind {
  kReal,
  kReals,  ///< with commas between them
  kPositive,
  kShape,             ///< a shape, in the range of the full-precision routines
  kDegreesOfFreedom,  ///< the same, and whole for the prescribed routines
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

/// The number of the given kind that was passed to an option.
[[nodiscard]] Extended ParseNumber(const std::string& option, const std::string& text,
                                   NumberKind kind);

/// Adds an option that takes one number. Set is called with it when the option is given.
template <class Set>
CLI::Option& AddNumber(CLI::App& command, const std::string& option, const std::string& description,
                       NumberKind kind, Set set) {
  return *command
              .add_option_function<std::string>(
                  option,
                  [option, kind, set](const std::string& text) {
                    set(ParseNumber(option, text, kind));
                  },
                  description)
              ->type_name(kind >= NumberKind::kSteps ? "N" : "X");
}

/// The error of a routine as the program's own, "name: what", with a remark behind it.
[[nodiscard]] InputError Refusal(const std::string& name, const EMathError& error,
                                 const std::string& remark);

}  // namespace qorvex::cli
