#pragma once

/// @file
/// The options of `fit`.

#include <CLI/CLI.hpp>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "apps/qorvex/output_format.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/table_arguments.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/regression/gram_matrix.h"

namespace qorvex::apps {

/// A command of `fit`.
struct FitCurve {
  const char* name;
  const char* summary;
  /// The label of the curve in a report.
  const char* label;
  /// 0 if the user chooses it.
  std::size_t degree = 0;
  bool has_several_predictors = false;
  /// Whether there is a classic routine.
  bool has_classic_routine = false;

  /// Whether its terms are powers of one x.
  [[nodiscard]] bool IsPolynomial() const { return !has_several_predictors; }
};

/// The arguments of a command of `fit`.
struct FitArguments {
  const FitCurve* curve = nullptr;
  TableArguments table = {};
  std::vector<std::string> x = {};
  std::string y = {};
  std::optional<std::string> weights = {};
  std::size_t degree = 1;
  bool no_intercept = false;
  WrittenNumber confidence = {"0.95", 0.95L};
  /// Of each --predict, one value of each predictor.
  std::vector<TQorFloatVector> places = {};
  std::string residual_file = {};
  OutputFormat output = {};
  bool classic = false;

  /// Adds the options of the curve to its command. This object must outlive the parsing.
  void AddTo(CLI::App& command);

  [[nodiscard]] Intercept HasIntercept() const {
    return no_intercept ? Intercept::kOmitted : Intercept::kIncluded;
  }
};

}  // namespace qorvex::apps
