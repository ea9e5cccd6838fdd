#include <memory>

#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/command_tree.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/fit_arguments.h"
#include "apps/qorvex/fit_classic.h"
#include "apps/qorvex/fit_model.h"
#include "apps/qorvex/fit_output.h"
#include "apps/qorvex/text_output.h"

namespace qorvex::apps {

namespace {

constexpr const char* kExamples = R"(

Examples:
  qorvex fit line load.csv --x load --y deflection
  qorvex fit quadratic load.csv --x 1 --y 2 --decimals 6 --predict 2.5
  qorvex fit polynomial load.csv --x 1 --y 2 --degree 4 --residuals rest.csv
  qorvex fit linear flats.csv --x area --x rooms --y rent --weights precision --json)";

constexpr FitCurve kCurves[] = {
    {.name = "line",
     .summary = "The least-squares line y = a + b x",
     .label = "Regression Line:",
     .degree = 1,
     .has_classic_routine = true},
    {.name = "quadratic",
     .summary = "The least-squares parabola y = a0 + a1 x + a2 x^2",
     .label = "Regression Parabola:",
     .degree = 2,
     .has_classic_routine = true},
    {.name = "polynomial",
     .summary = "The least-squares polynomial of a degree",
     .label = "Regression Polynomial:"},
    {.name = "linear",
     .summary = "The least-squares linear function of several columns",
     .label = "Regression Function:",
     .has_several_predictors = true},
};

void Fit(const FitArguments& arguments) {
  const FitColumns columns = ReadColumns(arguments);
  if (arguments.classic) return WriteResult(ClassicOutput(columns, arguments));
  const FittedModel model = FitOf(columns, arguments);
  const std::vector<ReportPart> parts = PartsOf(columns, model, arguments);
  const std::string output = arguments.output.IsJson() ? JsonOf(columns, model, arguments)
                                                       : PrintedOf(parts, columns, arguments);
  RemarkOnHidden(OnOneLine(InputName(arguments.table.file)) + ": ", parts, arguments.output);
  RemarkOnUnderflow(model, arguments);
  if (!arguments.residual_file.empty()) WriteResiduals(columns, model.fit, arguments);
  WriteResult(output);
}

void AddCurve(CLI::App& fit, const FitCurve& curve) {
  CLI::App& command = *fit.add_subcommand(curve.name, curve.summary);
  const auto arguments = std::make_shared<FitArguments>();
  arguments->curve = &curve;
  arguments->AddTo(command);
  command.footer(TableHelp() + kExamples + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([arguments] { Fit(*arguments); });
}

}  // namespace

void AddFit(CLI::App& program) {
  CLI::App& fit = *program.add_subcommand(
      "fit", "Lines, polynomials and linear functions of several columns by least squares");
  for (const FitCurve& curve : kCurves) AddCurve(fit, curve);
  RequireOneCommand(fit, "model");
}

}  // namespace qorvex::apps
