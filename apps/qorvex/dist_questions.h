#pragma once

/// @file
/// The questions that `dist` answers about every distribution.

#include <CLI/CLI.hpp>
#include <string>
#include <vector>

#include "apps/common/distributions.h"
#include "apps/qorvex/dist_figures.h"
#include "apps/qorvex/dist_points.h"
#include "apps/qorvex/output_format.h"
#include "qorvex/base/element_types.h"

namespace qorvex::apps {

/// The arguments of a question.
struct DistArguments {
  explicit DistArguments(NumberKind kind) : points(kind) {}

  std::vector<Extended> parameters;
  DistPoints points;
  /// Two points, or the ends of a table.
  Extended first = 0;
  Extended last = 0;
  /// The steps of a continuous table.
  Extended steps = 0;
  DistOptions options;
  OutputFormat output;
};

struct DistQuestion;

/// A question about a distribution.
struct AskedQuestion {
  const Family& family;
  const DistQuestion& question;
  const DistArguments& arguments;
};

/// An entry of the list of questions, each of which is a command of every family.
struct DistQuestion {
  using Figure = Extended (DistFigures::*)(Extended point) const;

  const char* name;
  std::vector<const char*> aliases = {};
  const char* summary;
  void (*add_options)(CLI::App& command, const Family& family, DistArguments& arguments);
  /// The whole output. Throws InputError and CLI::ValidationError.
  std::string (*answer)(const AskedQuestion& asked);
  /// The figure at a point, with its heading and its name in CSV and JSON; null where the answer is
  /// something else.
  Figure figure = nullptr;
  const char* title = "";
  const char* key = "";
  bool has_classic = true;
};

/// @{
/// Answers: a figure at each point, the probability between two points, a table of densities and
/// tails.
[[nodiscard]] std::string AnswerAtPoints(const AskedQuestion& asked);
[[nodiscard]] std::string AnswerBetween(const AskedQuestion& asked);
[[nodiscard]] std::string AnswerTable(const AskedQuestion& asked);
/// @}

}  // namespace qorvex::apps
