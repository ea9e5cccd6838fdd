#pragma once

/// @file
/// The forms of the output of `fit`.

#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "apps/qorvex/fit_arguments.h"
#include "apps/qorvex/fit_model.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/report_parts.h"

namespace qorvex::apps {

/// "a + b x - c x^2". The terms begin with the names of the coefficients, the first of which may be
/// a constant.
[[nodiscard]] std::string Formula(const std::vector<std::string>& terms,
                                  const TQorFloatVector& coefficients, Intercept intercept,
                                  const FigureFormat& format);

/// The format of the figures of a report on the columns.
[[nodiscard]] FigureFormat FormatOf(const FitColumns& columns, const FitArguments& arguments);

/// The parts of a report in that form.
[[nodiscard]] std::string PrintedOf(const std::vector<ReportPart>& parts, const FitColumns& columns,
                                    const FitArguments& arguments);

/// Figures, then tables of coefficients, of predictions and of the analysis of variance.
[[nodiscard]] std::vector<ReportPart> PartsOf(const FitColumns& columns, const FittedModel& model,
                                              const FitArguments& arguments);

/// Writes a remark if figures are too small for the format.
void RemarkOnUnderflow(const FittedModel& model, const FitArguments& arguments);

/// The keys that both JSON documents begin with, from the file to the number of rows.
void WriteHead(JsonWriter& json, const FitColumns& columns, std::size_t count,
               const FitArguments& arguments);

/// One JSON document.
[[nodiscard]] std::string JsonOf(const FitColumns& columns, const FittedModel& model,
                                 const FitArguments& arguments);

}  // namespace qorvex::apps
