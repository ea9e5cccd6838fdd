#pragma once

/// @file
/// The two forms of the output of `fit`.

#include <string>

#include "apps/qorvex/fit_arguments.h"
#include "apps/qorvex/fit_model.h"

namespace qorvex::apps {

/// "a + b x - c x^2". The terms are the names of the coefficients, the first of which may be a
/// constant.
[[nodiscard]] std::string Formula(const std::vector<std::string>& terms,
                                  const TQorFloatVector& coefficients, Intercept intercept,
                                  std::optional<int> decimals);

/// Lines of figures, then tables of coefficients, of predictions and of the analysis of variance.
[[nodiscard]] std::string TextOf(const FitColumns& columns, const FittedModel& model,
                                 const FitArguments& arguments);

/// One JSON document.
[[nodiscard]] std::string JsonOf(const FitColumns& columns, const FittedModel& model,
                                 const FitArguments& arguments);

}  // namespace qorvex::apps
