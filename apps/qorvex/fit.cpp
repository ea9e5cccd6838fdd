#include "apps/qorvex/fit.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/input_error.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/table_arguments.h"
#include "apps/qorvex/text_input.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/comparisons.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/QorvexPairStats.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"
#include "qorvex/stats/dispersion.h"
#include "qorvex/stats/location.h"
#include "qorvex/vector/aggregates.h"

namespace qorvex::cli {

namespace {

constexpr const char* kExamples = R"(

Examples:
  qorvex fit line load.csv --x load --y deflection
  qorvex fit quadratic load.csv --x 1 --y 2 --decimals 6
  qorvex fit line load.csv --x 1 --y 2 --json)";

struct FitArguments {
  TableArguments table;
  std::size_t degree = 1;
  std::optional<int> decimals;
  bool json = false;
};

struct Figures {
  Extended mean_x, mean_y;
  Extended std_dev_x, std_dev_y;
  Extended covariance;
  std::vector<Extended> coefficients;  // of 1, x, x^2
  Extended sse;
  // Without a value when the y are all the same.
  std::optional<Extended> correlation, determination;
};

[[noreturn]] void Refuse(const FitArguments& arguments, InputFault fault, const std::string& what) {
  throw InputError(fault, InputName(arguments.table.file), what);
}

// The number of different values, but at most enough.
std::size_t DifferentValues(const TQorFloatVector& values, std::size_t enough) {
  std::vector<Extended> different;
  for (const Extended value : values) {
    if (different.size() == enough) break;
    if (std::ranges::find(different, value) == different.end()) different.push_back(value);
  }
  return different.size();
}

// Their figures would be rounding residue.
void RequireDifferentX(const TableColumn& x, const FitArguments& arguments) {
  const std::size_t needed = arguments.degree + 1;
  if (DifferentValues(x.values, needed) == needed) return;
  Refuse(arguments, InputFault::kNoResult,
         x.Title() + ": " +
             (needed == 2 ? "a line needs two different x" : "a parabola needs three different x"));
}

[[noreturn]] void RefuseTooLarge(const FitArguments& arguments) {
  Refuse(arguments, InputFault::kOutOfRange,
         "the values are too large; their sums are beyond the range of extended precision");
}

// A column as numbers near zero that spread over 1 to 2: values / 2^exponent - offset. With a whole
// offset that is exact, unless the column mixes large numbers with far smaller ones.
struct ScaledColumn {
  TQorFloatVector values;
  int exponent;
  Extended offset;
};

ScaledColumn Scaled(const TQorFloatVector& column, Extended mean, const FitArguments& arguments) {
  const auto [smallest, largest] = std::ranges::minmax(column);
  const Extended range = largest - smallest;
  if (!std::isfinite(range) || !std::isfinite(mean)) RefuseTooLarge(arguments);
  const int exponent = range > 0 ? std::ilogb(range) : 0;
  ScaledColumn scaled{
      .values = TQorFloatVector::ForOverwrite(column.size()),
      .exponent = exponent,
      .offset = range > 0 ? std::nearbyint(std::scalbn(mean, -exponent)) : smallest};
  for (std::size_t i = 0; i < column.size(); ++i)
    scaled.values[i] = std::scalbn(column[i], -exponent) - scaled.offset;
  return scaled;
}

std::vector<Extended> ScaledCoefficients(const ScaledColumn& x, const ScaledColumn& y,
                                         const std::string& title, const FitArguments& arguments) {
  std::vector<Extended> c(arguments.degree + 1);
  if (arguments.degree == 1) {
    GetRegressionLine(x.values, y.values, c[0], c[1]);
    return c;
  }
  try {
    GetQuadraticCurve(x.values, y.values, c[0], c[1], c[2]);
  } catch (const EMathError&) {
    Refuse(arguments, InputFault::kNoResult,
           title + ": the x lie too close to only two places for a parabola");
  }
  return c;
}

// From a polynomial in the scaled x that gives scaled y.
std::vector<Extended> Coefficients(std::vector<Extended> c, const ScaledColumn& x,
                                   const ScaledColumn& y) {
  for (std::size_t i = 0; i + 1 < c.size(); ++i) {
    for (std::size_t j = c.size() - 1; j-- > i;) c[j] -= x.offset * c[j + 1];
  }
  c[0] += y.offset;
  int exponent = y.exponent;
  for (Extended& coefficient : c) {
    coefficient = std::scalbn(coefficient, exponent);
    exponent -= x.exponent;
  }
  return c;
}

Extended SumOfSquaredErrors(const TQorFloatVector& x, const TQorFloatVector& y,
                            const std::vector<Extended>& c) {
  if (c.size() == 2) return GetSSE(x, y, c[0], c[1]);
  Extended sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) {
    const Extended residual = (c[2] * x[i] + c[1]) * x[i] + c[0] - y[i];
    sum += residual * residual;
  }
  return sum;
}

Extended Covariance(const TQorFloatVector& x, const TQorFloatVector& y) {
  const Extended mean_x = QorMean(x);
  const Extended mean_y = QorMean(y);
  Extended sum = 0;
  for (std::size_t i = 0; i < x.size(); ++i) sum += (x[i] - mean_x) * (y[i] - mean_y);
  return sum / static_cast<Extended>(x.size() - 1);
}

// All but the means comes from the scaled columns, so that digits which the values share cost none
// and their size does not matter.
Figures FiguresOf(const TableColumn& x_column, const TableColumn& y_column,
                  const FitArguments& arguments) {
  RequireDifferentX(x_column, arguments);
  const Extended mean_x = QorMean(x_column.values);
  const Extended mean_y = QorMean(y_column.values);
  const ScaledColumn x = Scaled(x_column.values, mean_x, arguments);
  const ScaledColumn y = Scaled(y_column.values, mean_y, arguments);
  const std::vector<Extended> c = ScaledCoefficients(x, y, x_column.Title(), arguments);
  const Extended sse = SumOfSquaredErrors(x.values, y.values, c);
  Figures figures{
      .mean_x = mean_x,
      .mean_y = mean_y,
      .std_dev_x = std::scalbn(SampleStdDev(x.values), x.exponent),
      .std_dev_y = std::scalbn(SampleStdDev(y.values), y.exponent),
      .covariance = std::scalbn(Covariance(x.values, y.values), x.exponent + y.exponent),
      .coefficients = Coefficients(c, x, y),
      .sse = std::scalbn(sse, 2 * y.exponent),
      .correlation = {},
      .determination = {}};
  if (DifferentValues(y.values, 2) < 2) return figures;
  // Rounding may leave a little more than 1.
  const Extended correlation = std::clamp<Extended>(CoeffCorrelation(x.values, y.values), -1, 1);
  figures.correlation = correlation;
  figures.determination = arguments.degree == 1
                              ? correlation * correlation
                              : 1 - sse / SumSqDiffVector(y.values, QorMean(y.values));
  return figures;
}

bool AllFinite(const Figures& figures) {
  const auto finite = [](Extended figure) { return std::isfinite(figure); };
  return std::ranges::all_of(figures.coefficients, finite) && finite(figures.sse) &&
         finite(figures.covariance) && finite(figures.std_dev_x) && finite(figures.std_dev_y) &&
         finite(figures.correlation.value_or(0)) && finite(figures.determination.value_or(0));
}

// "a + b x - c x^2"
std::string Formula(const std::vector<Extended>& coefficients,
                    const std::function<std::string(Extended)>& number) {
  constexpr const char* powers[] = {"", " x", " x^2"};
  std::string text = number(coefficients[0]);
  for (std::size_t i = 1; i < coefficients.size(); ++i) {
    text += std::signbit(coefficients[i]) ? " - " : " + ";
    text += number(std::fabs(coefficients[i])) + powers[i];
  }
  return text;
}

std::string TextOf(std::size_t count, const Figures& figures, const FitArguments& arguments) {
  const auto number = [&](Extended figure) { return FigureText(figure, arguments.decimals); };
  std::string text;
  const auto line = [&text](const std::string& label, const std::string& figure) {
    text += label + '\t' + figure + '\n';
  };
  const auto if_any = [&](std::optional<Extended> figure) {
    return figure ? number(*figure) : MessageText(rsNA);
  };
  line(ReportText(rsDSNoOfValues), Int2EStr(count));
  line(ReportText(rsDSMeanX), number(figures.mean_x));
  line(ReportText(rsDSMeanY), number(figures.mean_y));
  line(ReportText(rsDSStdDevX), number(figures.std_dev_x));
  line(ReportText(rsDSStdDevY), number(figures.std_dev_y));
  line(ReportText(rsDSCovar), number(figures.covariance));
  line(arguments.degree == 1 ? ReportText(rsDSRegressionLine) : "Regression Parabola:",
       Formula(figures.coefficients, number));
  line(ReportText(rsDSSSE), number(figures.sse));
  line(ReportText(rsDSCoeffCor), if_any(figures.correlation));
  line(ReportText(rsDSCoeffDet), if_any(figures.determination));
  return text;
}

std::string JsonOf(const TableColumn& x, const TableColumn& y, const Figures& figures,
                   const FitArguments& arguments) {
  JsonWriter json;
  const auto column = [&json](const char* key, const TableColumn& of) {
    json.Key(key);
    json.BeginObject();
    json.Key("column");
    json.Integer(of.number);
    json.Key("name");
    if (of.name.empty()) {
      json.Null();
    } else {
      json.String(of.name);
    }
    json.EndObject();
  };
  const auto figure = [&json](const char* key, std::optional<Extended> value) {
    json.Key(key);
    json.Number(value);
  };
  json.BeginObject();
  json.Key("file");
  json.String(arguments.table.file);
  column("x", x);
  column("y", y);
  json.Key("count");
  json.Integer(x.values.size());
  json.Key("skipped");
  json.Integer(x.skipped);
  figure("mean_x", figures.mean_x);
  figure("mean_y", figures.mean_y);
  figure("standard_deviation_x", figures.std_dev_x);
  figure("standard_deviation_y", figures.std_dev_y);
  figure("covariance", figures.covariance);
  json.Key("coefficients");
  json.BeginArray();
  for (const Extended coefficient : figures.coefficients) json.Number(coefficient);
  json.EndArray();
  figure("sum_of_squared_errors", figures.sse);
  figure("correlation", figures.correlation);
  figure("determination", figures.determination);
  json.EndObject();
  return json.TakeText();
}

void Fit(const FitArguments& arguments) {
  const std::vector<TableColumn> columns = arguments.table.Read();
  if (columns.size() == 1) {
    Refuse(arguments, InputFault::kNoSuchColumn, "x and y are both " + columns[0].Title());
  }
  const TableColumn& x = columns[0];
  const TableColumn& y = columns[1];
  const Figures figures = FiguresOf(x, y, arguments);
  if (!AllFinite(figures)) RefuseTooLarge(arguments);
  WriteResult(arguments.json ? JsonOf(x, y, figures, arguments)
                             : TextOf(x.values.size(), figures, arguments));
}

void AddCurve(CLI::App& fit, const char* name, const char* summary, std::size_t degree) {
  CLI::App& command = *fit.add_subcommand(name, summary);
  const auto arguments = std::make_shared<FitArguments>();
  arguments->degree = degree;
  arguments->table.AddPairTo(command);
  AddDecimals(command, arguments->decimals,
              "Decimals of the report. Default: the shortest text that keeps all 80 bits");
  command.add_flag("--json", arguments->json,
                   "One JSON document; figures in the shortest text that keeps all 80 bits,\n"
                   "null for those that do not exist");
  command.footer(TableHelp() + kExamples + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([arguments] { Fit(*arguments); });
}

}  // namespace

void AddFit(CLI::App& program) {
  CLI::App& fit = *program.add_subcommand("fit", "A line or a parabola through pairs of numbers");
  AddCurve(fit, "line", "The least-squares line y = a + b x", 1);
  AddCurve(fit, "quadratic", "The least-squares parabola y = a0 + a1 x + a2 x^2", 2);
  RequireOneCommand(fit, "A command of fit");
}

}  // namespace qorvex::cli
