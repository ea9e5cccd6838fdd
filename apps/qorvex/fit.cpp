#include <cmath>
#include <cstddef>
#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "apps/common/input_error.h"
#include "apps/common/pair_fit.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/json_writer.h"
#include "apps/qorvex/table_arguments.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::apps {

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

[[noreturn]] void Refuse(const FitArguments& arguments, InputFault fault, const std::string& what) {
  throw InputError(fault, InputName(arguments.table.file), what);
}

PairFit FitOf(const TableColumn& x, const TableColumn& y, const FitArguments& arguments) {
  try {
    return FitPairs(x.numbers.Values(), y.numbers.Values(), arguments.degree);
  } catch (const PairFitError& error) {
    if (error.Fault() == PairFitFault::kTooLarge)
      Refuse(arguments, InputFault::kOutOfRange, error.what());
    Refuse(arguments, InputFault::kNoResult, x.Title() + ": " + error.what());
  }
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

std::string TextOf(std::size_t count, const PairFit& figures, const FitArguments& arguments) {
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

std::string JsonOf(const TableColumn& x, const TableColumn& y, const PairFit& figures,
                   const FitArguments& arguments) {
  JsonWriter json;
  const auto column = [&json](const char* key, const TableColumn& of) {
    json.Key(key);
    json.BeginObject();
    json.Key("column");
    json.Integer(of.number);
    json.Key("name");
    json.StringOrNull(of.name);
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
  json.Integer(x.numbers.size());
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
  const PairFit figures = FitOf(x, y, arguments);
  WriteResult(arguments.json ? JsonOf(x, y, figures, arguments)
                             : TextOf(x.numbers.size(), figures, arguments));
}

void AddCurve(CLI::App& fit, const char* name, const char* summary, std::size_t degree) {
  CLI::App& command = *fit.add_subcommand(name, summary);
  const auto arguments = std::make_shared<FitArguments>();
  arguments->degree = degree;
  arguments->table.AddPairTo(command);
  AddDecimals(command, arguments->decimals,
              "Decimals of the report. Default: the shortest text that keeps all 80 bits");
  command.add_flag("--json", arguments->json,
                   "One JSON document; each figure is the shortest text that keeps all 80 bits,\n"
                   "or null if it does not exist");
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

}  // namespace qorvex::apps
