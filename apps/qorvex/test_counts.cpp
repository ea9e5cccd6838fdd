#include <cmath>

#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/parameters.h"
#include "apps/qorvex/test_arguments.h"
#include "apps/qorvex/test_samples.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/inference/binomial_test.h"
#include "qorvex/stats/inference/chi_square_tests.h"
#include "qorvex/stats/inference/intervals.h"

namespace qorvex::apps {

namespace {

TQorInt64Vector CountsIn(const TableColumn& column, const TestArguments& arguments) {
  TQorInt64Vector counts;
  for (const Extended value : column.numbers.Values()) {
    if (const char* const wrong = WhatIsWrong(value, NumberKind::kInt64)) {
      throw InputError(InputFault::kNoResult, InputName(arguments.table.file),
                       column.Title() + ": " + Float2Str(value) + ' ' + wrong);
    }
    counts.Append(static_cast<std::int64_t>(value));
  }
  return counts;
}

Extended Total(const TQorInt64Vector& counts) {
  Extended total = 0;
  for (const std::int64_t count : counts) total += static_cast<Extended>(count);
  return total;
}

TestSample CountSample(const TableColumn& column, const TQorInt64Vector& counts) {
  return {.column = column.number,
          .name = column.name,
          .figures = {{"cells", "Number of Cells:", static_cast<Extended>(counts.size()), true},
                      {"total", "Total:", Total(counts), true}}};
}

TestReport GoodnessOfFit(const TableColumn& column, const TableColumn* proportions,
                         const TestArguments& arguments) {
  const TQorInt64Vector counts = CountsIn(column, arguments);
  const TQorFloatVector expected = proportions != nullptr
                                       ? proportions->numbers.Values()
                                       : TQorFloatVector(std::vector<Extended>(counts.size(), 1));
  TestReport report{.title = "Chi-square test of fit",
                    .samples = {CountSample(column, counts)},
                    .null_hypothesis = proportions != nullptr ? "the counts follow the proportions"
                                                              : "all cells are equally likely",
                    .alternate_hypothesis = proportions != nullptr ? "they do not" : "they are not",
                    .symbol = "chi-square",
                    .law = StatisticLaw::kChiSquare};
  report.result = GoodnessOfFitTest(counts, expected, arguments.fitted_parameters);
  return report;
}

std::vector<TestReport> GoodnessOfFitReports(const TestArguments& arguments) {
  TableArguments table = arguments.table;
  if (arguments.proportions) {
    if (table.selection.columns.empty())
      throw CLI::ValidationError("--proportions", "the column of counts needs --column");
    table.selection.columns.push_back(*arguments.proportions);
    table.selection.whole_rows = true;
  }
  const std::vector<TableColumn> columns = table.Read();
  const TableColumn* const proportions =
      arguments.proportions ? &ColumnOf(columns, *arguments.proportions) : nullptr;
  std::vector<TestReport> reports;
  for (const TableColumn& column : columns)
    if (&column != proportions) reports.push_back(GoodnessOfFit(column, proportions, arguments));
  return reports;
}

std::vector<TestReport> Independence(const TestArguments& arguments) {
  TableArguments table = arguments.table;
  table.selection.whole_rows = true;
  const std::vector<TableColumn> columns = table.Read();
  if (arguments.yates && (columns.size() != 2 || columns[0].numbers.size() != 2))
    throw CLI::ValidationError("--yates", "the correction is for tables of 2 by 2");
  TestReport report{.title = arguments.yates
                                 ? "Chi-square test of independence with Yates' correction"
                                 : "Chi-square test of independence",
                    .null_hypothesis = "rows and columns are independent",
                    .alternate_hypothesis = "they are not",
                    .symbol = "chi-square",
                    .law = StatisticLaw::kChiSquare};
  TQorInt64Matrix counts(columns[0].numbers.size());
  for (TQorInt64Vector& row : counts) row.SetLength(columns.size());
  for (std::size_t j = 0; j < columns.size(); ++j) {
    const TQorInt64Vector column = CountsIn(columns[j], arguments);
    for (std::size_t i = 0; i < counts.size(); ++i) counts[i][j] = column[i];
    report.samples.push_back(CountSample(columns[j], column));
  }
  report.result = IndependenceTest(
      counts, arguments.yates ? ContinuityCorrection::kYates : ContinuityCorrection::kNone);
  return {report};
}

std::vector<TestReport> Binomial(const TestArguments& arguments) {
  const std::uint32_t k = arguments.successes;
  const std::uint32_t n = arguments.trials;
  const auto successes = static_cast<Extended>(k);
  const auto trials = static_cast<Extended>(n);
  if (k > n) throw CLI::ValidationError("--successes", "there are more successes than trials");
  if (n == 0) throw CLI::ValidationError("--trials", "there must be at least one trial");
  TestReport report{
      .title = "Exact binomial test",
      .samples = {{.figures = {{"successes", "Successes:", successes, true},
                               {"trials", "Trials:", trials, true},
                               {"proportion", "Proportion:", successes / trials}}}},
      .alternative = arguments.alternative,
      .symbol = "k",
      .statistic_is_count = true,
      .result = BinomialTest(k, n, arguments.hypothesis.value, arguments.alternative)};
  report.SetHypotheses("the probability of success", arguments.hypothesis.text);
  const Extended confidence = arguments.confidence.value;
  report.intervals = {
      {"clopper_pearson_interval",
       "Confidence Interval by Clopper and Pearson: ", ClopperPearsonInterval(k, n, confidence)},
      {"wilson_interval", "Confidence Interval by Wilson: ", WilsonInterval(k, n, confidence)}};
  return {report};
}

CLI::Option& AddCount(CLI::App& command, std::uint32_t& count, const char* option,
                      const char* description) {
  return AddNumber(command, option, description, NumberKind::kCount,
                   [&count](Extended value) { count = static_cast<std::uint32_t>(value); });
}

}  // namespace

void AddCountTests(CLI::App& test) {
  AddTest(test, {.name = "goodness-of-fit",
                 .summary = "Whether counts follow proportions: chi-square test of each column",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.table.AddTo(command);
                       command
                           .add_option(
                               "--proportions", arguments.proportions,
                               "The column of the expected proportions, which need not add up\n"
                               "to 1. Default: all equal")
                           ->type_name("NAME|N");
                       AddCount(command, arguments.fitted_parameters, "--fitted-parameters",
                                "How many parameters were estimated from the counts. Default: 0");
                     },
                 .run = GoodnessOfFitReports});
  AddTest(test, {.name = "independence",
                 .summary = "Whether rows and columns of a table of counts are independent",
                 .add_options =
                     [](CLI::App& command, TestArguments& arguments) {
                       arguments.table.AddTo(command);
                       command.add_flag("--yates", arguments.yates,
                                        "Yates' correction, for tables of 2 by 2");
                     },
                 .run = Independence});
  AddTest(test,
          {.name = "binomial",
           .summary = "Whether the probability of success has a value: exact binomial test",
           .add_options =
               [](CLI::App& command, TestArguments& arguments) {
                 AddCount(command, arguments.successes, "--successes", "The number of successes")
                     .required();
                 AddCount(command, arguments.trials, "--trials", "The number of trials").required();
                 arguments.AddHypothesis(command, "--success-probability",
                                         "The probability of the null hypothesis",
                                         NumberKind::kShare, "0.5");
                 arguments.AddAlternative(command);
               },
           .run = Binomial,
           .reads_table = false});
}

}  // namespace qorvex::apps
