#include "apps/qorvex/fit_classic.h"

#include <algorithm>
#include <cmath>
#include <iterator>

#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/fit_output.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/stats/dispersion.h"
#include "qorvex/stats/location.h"

namespace qorvex::apps {

namespace {

struct ClassicFit {
  std::vector<Figure> columns;
  TQorFloatVector coefficients;
  std::vector<Figure> quality;
};

// Added in the order of the rows, as GetSSE does for a line.
Extended SumOfSquaredErrors(const TQorFloatVector& x, const TQorFloatVector& y,
                            const TQorFloatVector& c) {
  if (c.size() == 2) return GetSSE(x, y, c[0], c[1]);
  Extended sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const Extended residual = (c[2] * x[i] + c[1]) * x[i] + c[0] - y[i];
    sum += residual * residual;
  }
  return sum;
}

ClassicFit FitOf(const TQorFloatVector& x, const TQorFloatVector& y, std::size_t degree) {
  ClassicFit fit;
  fit.columns = {{"mean_x", ReportText(rsDSMeanX), QorMean(x)},
                 {"mean_y", ReportText(rsDSMeanY), QorMean(y)},
                 {"standard_deviation_x", ReportText(rsDSStdDevX), SampleStdDev(x)},
                 {"standard_deviation_y", ReportText(rsDSStdDevY), SampleStdDev(y)}};
  Extended c[3];
  if (degree == 1) {
    GetRegressionLine(x, y, c[0], c[1]);
  } else {
    GetQuadraticCurve(x, y, c[0], c[1], c[2]);
  }
  fit.coefficients = TQorFloatVector(std::span(c, degree + 1));
  const Extended sse = SumOfSquaredErrors(x, y, fit.coefficients);
  const Extended determination =
      degree == 1 ? CoeffDetermination(x, y)
                  : 1 - sse / (PopulationVariance(y) * static_cast<Extended>(y.size()));
  fit.quality = {{"sum_of_squared_errors", ReportText(rsDSSSE), sse},
                 {"correlation", ReportText(rsDSCoeffCor), CoeffCorrelation(x, y)},
                 {"determination", ReportText(rsDSCoeffDet), determination}};
  return fit;
}

}  // namespace

std::string ClassicOutput(const FitColumns& columns, const FitArguments& arguments) {
  RequireDetermined(columns, arguments);
  const TQorFloatVector y = columns.y.numbers.Values();
  if (std::ranges::count(y, y[0]) == std::ssize(y)) {
    throw InputError(InputFault::kNoResult, InputName(arguments.table.file),
                     columns.y.Title() + ": the classic routines need two different y");
  }
  ClassicFit fit;
  try {
    fit = FitOf(columns.x[0].numbers.Values(), y, arguments.degree);
    for (const std::vector<Figure>& figures : {fit.columns, fit.quality})
      for (const Figure& figure : figures)
        if (!std::isfinite(std::get<Extended>(figure.value))) throw EOverflow();
  } catch (const EMathError& error) {
    throw Refusal(InputName(arguments.table.file), error,
                  "; without --classic there is no such limit");
  }
  if (arguments.output.IsJson()) {
    JsonWriter json;
    json.BeginObject();
    WriteHead(json, columns, columns.y.numbers.size(), arguments);
    WriteFigures(json, fit.columns);
    json.Key("coefficients");
    json.Numbers(fit.coefficients);
    WriteFigures(json, fit.quality);
    json.EndObject();
    return json.TakeText();
  }
  ReportPart part{.key = "fit"};
  part.figures = {{"count", ReportText(rsDSNoOfValues), std::uint64_t{columns.y.numbers.size()}}};
  part.figures.insert(part.figures.end(), fit.columns.begin(), fit.columns.end());
  part.figures.push_back(
      {"formula", arguments.degree == 1 ? ReportText(rsDSRegressionLine) : arguments.curve->label,
       Formula({"Constant", "x", "x^2"}, fit.coefficients, Intercept::kIncluded,
               FormatOf(columns, arguments))});
  part.figures.insert(part.figures.end(), fit.quality.begin(), fit.quality.end());
  return PrintedOf({part}, columns, arguments);
}

}  // namespace qorvex::apps
