#include <algorithm>
#include <cmath>
#include <memory>
#include <string>
#include <vector>

#include "apps/common/cells.h"
#include "apps/common/correlations.h"
#include "apps/common/input_error.h"
#include "apps/common/similar_words.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/commands.h"
#include "apps/qorvex/common_arguments.h"
#include "apps/qorvex/json_figures.h"
#include "apps/qorvex/result_table.h"
#include "apps/qorvex/table_arguments.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

constexpr const char* kExamples = R"(

Examples:
  qorvex correlate speeds.csv
  qorvex correlate speeds.csv --column run --column speed --method spearman
  qorvex correlate speeds.csv --method covariance --csv)";

struct Method {
  std::string name;
  PairFigure figure;
};

const std::vector<Method>& Methods() {
  static const std::vector<Method> methods{{"pearson", PairFigure::kPearson},
                                           {"spearman", PairFigure::kSpearman},
                                           {"kendall", PairFigure::kKendall},
                                           {"covariance", PairFigure::kCovariance}};
  return methods;
}

const Method& MethodNamed(const std::string& name) {
  const auto method = std::ranges::find(Methods(), name, &Method::name);
  if (method != Methods().end()) return *method;
  std::vector<std::string> names;
  for (const Method& known : Methods()) names.push_back(known.name);
  throw CLI::ValidationError("--method", Excerpt(name) + " is not " + Alternatives(names));
}

struct CorrelateArguments {
  TableArguments table;
  Method method = Methods()[0];
  OutputFormat output;
};

[[noreturn]] void Refuse(const CorrelateArguments& arguments, InputFault fault,
                         const std::string& what) {
  throw InputError(fault, InputName(arguments.table.file), what);
}

std::string NameOf(const TableColumn& column) {
  return column.name.empty() ? Int2EStr(column.number) : column.name;
}

std::string JsonOf(const std::vector<TableColumn>& columns, const TQorFloatMatrix& matrix,
                   const CorrelateArguments& arguments) {
  JsonWriter json;
  json.BeginObject();
  json.Key("file");
  json.String(arguments.table.file);
  json.Key("method");
  json.String(arguments.method.name);
  json.Key("count");
  json.Integer(columns[0].numbers.size());
  json.Key("missing");
  json.Integer(columns[0].missing);
  json.Key("columns");
  json.BeginArray();
  for (const TableColumn& column : columns) {
    json.BeginObject();
    WriteColumnKeys(json, column.number, column.name);
    json.EndObject();
  }
  json.EndArray();
  json.Key("matrix");
  json.BeginArray();
  for (const TQorFloatVector& row : matrix) {
    json.BeginArray();
    for (const Extended figure : row) json.Number(figure);
    json.EndArray();
  }
  json.EndArray();
  json.EndObject();
  return json.TakeText();
}

std::string TextOf(const std::vector<TableColumn>& columns, const TQorFloatMatrix& matrix,
                   const CorrelateArguments& arguments) {
  ResultTable table{.columns = {{"column", ""}}};
  int digits = 0;
  for (std::size_t i = 0; i < columns.size(); ++i) {
    const std::string name = NameOf(columns[i]);
    table.columns.push_back({name, name});
    std::vector<Cell>& row = table.rows.emplace_back();
    row.emplace_back(name);
    for (const Extended figure : matrix[i]) row.emplace_back(figure);
    if (arguments.method.figure == PairFigure::kCovariance)
      digits = std::max(digits, SignificantDigits(columns[i].numbers));
  }
  const FigureFormat format = arguments.output.ForReport(digits);
  return arguments.output.form == OutputForm::kCsv ? CsvOf(table, format)
                                                   : AlignedTextOf(table, format);
}

void Correlate(const CorrelateArguments& arguments) {
  const std::vector<TableColumn> columns = arguments.table.Read();
  if (columns.size() < 2) {
    Refuse(arguments, InputFault::kNoSuchColumn,
           "two columns are needed, and there is only " + columns[0].Title());
  }
  if (columns[0].numbers.size() < 2)
    Refuse(arguments, InputFault::kNoValues, "two rows are needed, and there is only one");
  std::vector<ColumnNumbers> numbers;
  for (const TableColumn& column : columns) numbers.push_back(column.numbers);
  const TQorFloatMatrix matrix = PairFigures(numbers, arguments.method.figure);
  const bool overflows = std::ranges::any_of(matrix, [](const TQorFloatVector& row) {
    return std::ranges::any_of(row, [](Extended figure) { return std::isinf(figure); });
  });
  if (overflows)
    Refuse(arguments, InputFault::kOutOfRange,
           "a covariance is beyond the range of extended precision");
  if (columns[0].missing > 0) {
    WriteRemark(OnOneLine(InputName(arguments.table.file)) + ": left out " +
                Cardinal(columns[0].missing, "row") + " with a missing value");
  }
  WriteResult(arguments.output.IsJson() ? JsonOf(columns, matrix, arguments)
                                        : TextOf(columns, matrix, arguments));
}

}  // namespace

void AddCorrelate(CLI::App& program) {
  CLI::App& command =
      *program.add_subcommand("correlate", "The correlations of the columns of a table");
  const auto arguments = std::make_shared<CorrelateArguments>();
  arguments->table.selection.whole_rows = true;
  arguments->table.AddTo(command);
  command
      .add_option_function<std::string>(
          "--method",
          [arguments](const std::string& name) { arguments->method = MethodNamed(name); },
          "Pearson's correlation (default); Spearman's, of the ranks; Kendall's tau-b;\n"
          "or the covariance of a sample")
      ->type_name("pearson|spearman|kendall|covariance");
  arguments->output.AddTo(command);
  command.footer(TableHelp() + kExamples + kExitStatusHelp + kNothingPrintedHelp);
  command.callback([arguments] { Correlate(*arguments); });
}

}  // namespace qorvex::apps
