#include "apps/qorvex/fit_arguments.h"

#include <cmath>

#include "apps/common/input_error.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/parameters.h"

namespace qorvex::apps {

namespace {

constexpr Extended kGreatestDegree = 30;

void AddDegree(CLI::App& command, std::size_t& degree) {
  command
      .add_option_function<std::string>(
          "--degree",
          [&degree](const std::string& text) {
            const Extended value = ParseNumber("--degree", text, NumberKind::kReal);
            if (value < 1 || value > kGreatestDegree || value != std::floor(value)) {
              throw CLI::ValidationError("--degree",
                                         Excerpt(text) + " is not a whole number from 1 to 30");
            }
            degree = static_cast<std::size_t>(value);
          },
          "The degree of the polynomial")
      ->type_name("N")
      ->required();
}

void AddFitColumns(CLI::App& command, const FitCurve& curve, FitArguments& arguments) {
  if (curve.has_several_predictors) {
    AddColumns(command, "--x", arguments.x,
               "A column of x, by name or by number from 1; a name takes precedence. Several\n"
               "have commas between them; a name with a comma is quoted as in CSV.\n"
               "Repeat it for more columns")
        .required();
  } else {
    command
        .add_option("--x", arguments.x,
                    "The column of x, by name or by number from 1;\n"
                    "a name takes precedence")
        ->type_name("NAME|N")
        ->required()
        ->allow_extra_args(false)
        ->expected(1);
  }
  command.add_option("--y", arguments.y, "The column of y")->type_name("NAME|N")->required();
  command
      .add_option("--weights", arguments.weights,
                  "A column of weights of the squared residuals: the variance of y is inverse\n"
                  "to them. Rows of weight 0 do not count")
      ->type_name("NAME|N");
}

void AddResults(CLI::App& command, FitArguments& arguments) {
  AddConfidence(command, "The level of the intervals. Default: 0.95", arguments.confidence);
  const bool several = arguments.curve->has_several_predictors;
  command
      .add_option_function<std::vector<std::string>>(
          "--predict",
          [&](const std::vector<std::string>& texts) {
            for (const std::string& text : texts)
              arguments.places.push_back(ParseNumbers("--predict", text, NumberKind::kReals));
          },
          several ? "The fitted value where the predictors have these values, and intervals for\n"
                    "the mean and for one value of y, of weight 1. Repeat it for more"
                  : "The fitted value at x, and intervals for the mean and for one value of y,\n"
                    "of weight 1. Repeat it for more")
      ->type_name(several ? "X,X,..." : "X")
      ->allow_extra_args(false);
  command
      .add_option_function<std::string>(
          "--residuals",
          [&](const std::string& name) {
            if (name.empty() || name == "-")
              throw CLI::ValidationError("--residuals", Excerpt(name) + " is no file");
            arguments.residual_file = name;
          },
          "A file to write: a line row,fitted,residual,leverage for each row")
      ->type_name("FILE");
}

}  // namespace

void FitArguments::AddTo(CLI::App& command) {
  table.selection.whole_rows = true;
  degree = curve->degree;
  AddFitColumns(command, *curve, *this);
  if (curve->IsPolynomial() && degree == 0) AddDegree(command, degree);
  command.add_flag("--no-intercept", no_intercept, "Leave the constant out");
  AddResults(command, *this);
  table.AddFileTo(command);
  if (curve->has_classic_routine) {
    CLI::Option* const option = command.add_flag(
        "--classic", classic,
        "Compute with the classic routines, which round at each step: the figures\n"
        "depend on the order of the rows, and lose the digits that all x have in\n"
        "common. No standard errors, tests or intervals");
    for (const char* const other :
         {"--weights", "--no-intercept", "--confidence", "--predict", "--residuals"}) {
      option->excludes(command.get_option(other));
    }
  }
  output.AddTo(command);
}

}  // namespace qorvex::apps
