#pragma once

/// @file
/// The two forms of the output of `fit`.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "apps/qorvex/fit_arguments.h"
#include "apps/qorvex/fit_model.h"
#include "apps/qorvex/json_writer.h"

namespace qorvex::apps {

/// "a + b x - c x^2". The terms begin with the names of the coefficients, the first of which may be
/// a constant.
[[nodiscard]] std::string Formula(const std::vector<std::string>& terms,
                                  const TQorFloatVector& coefficients, Intercept intercept,
                                  std::optional<int> decimals);

/// Lines of figures, then tables of coefficients, of predictions and of the analysis of variance.
[[nodiscard]] std::string TextOf(const FitColumns& columns, const FittedModel& model,
                                 const FitArguments& arguments);

/// Writes remarks if figures are too small for the decimals or for the format.
void RemarkOnSmallFigures(const FittedModel& model, const FitArguments& arguments);

/// The keys that both JSON documents begin with, from the file to the number of rows.
void WriteHead(JsonWriter& json, const FitColumns& columns, std::size_t count,
               const FitArguments& arguments);

/// One JSON document.
[[nodiscard]] std::string JsonOf(const FitColumns& columns, const FittedModel& model,
                                 const FitArguments& arguments);

}  // namespace qorvex::apps
