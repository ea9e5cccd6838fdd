#include "apps/qorvex/test_samples.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/column_differences.h"
#include "apps/common/figure_format.h"
#include "apps/common/groups.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/parameters.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::apps {

namespace {

[[noreturn]] void Refuse(const TestArguments& arguments, const std::string& what) {
  throw InputError(InputFault::kNoSuchColumn, InputName(arguments.table.file), what);
}

NumberSample SampleOf(TableColumn column) {
  const int digits = SignificantDigits(column.numbers);
  return {std::move(column.numbers),
          {.column = column.number,
           .name = column.name,
           .missing = column.skipped,
           .significant_digits = digits}};
}

// The groups are in the order in which their labels appear.
std::vector<NumberSample> SamplesOf(const TableColumn& column, const TableColumn& labels) {
  const std::string label_name = labels.name.empty() ? labels.Title() : OnOneLine(labels.name);
  std::vector<NumberSample> samples;
  for (GroupNumbers& group : Split(column, GroupsOf({&labels, 1}))) {
    const std::string& label = labels.labels.Texts()[samples.size()];
    samples.push_back({std::move(group.numbers),
                       {.column = column.number,
                        .name = column.name,
                        .group = label_name + " = " + OnOneLine(label),
                        .significant_digits = SignificantDigits(column.numbers)}});
  }
  return samples;
}

std::vector<NumberSample> SplitSamples(const TestArguments& arguments) {
  TableArguments table = arguments.table;
  if (table.selection.columns.size() != 1)
    throw CLI::ValidationError("--by", "it splits one column: one --column is needed");
  table.selection.labels = {*arguments.by};
  table.selection.whole_rows = true;
  const std::vector<TableColumn> columns = table.Read();
  return SamplesOf(columns[0], columns[1]);
}

TestFigure CountOf(const NumberSample& sample) {
  return {"count", ReportText(rsDSNoOfValues), static_cast<Extended>(sample.numbers.size()), true};
}

const char* WhyNot(MessageId id) {
  switch (id) {
    case rsVectorG1:
      return "the test needs at least two values";
    case rsVectorG2:
      return "the test needs at least three values";
    case rsSameValue:
      return "the values must not all be the same";
    case rsDF:
      return "no degrees of freedom are left";
    case rsVectorZero:
      return "all counts are 0";
    case rsVectorNotPos:
      return "the proportions must all be greater than 0";
    case rsInvalidRow:
    case rsInvalidCol:
      return "the table needs at least two rows and two columns";
    case rsMatrixZero:
      return "a row or a column of the table holds nothing but 0";
    default:
      return nullptr;
  }
}

// "g = A, g = B, g = C", at most five of them.
std::string GroupsOf(const std::vector<NumberSample>& samples) {
  constexpr std::size_t most = 5;
  std::string text;
  for (std::size_t i = 0; i < std::min(samples.size(), most); ++i)
    text += (i == 0 ? "" : ", ") + samples[i].origin.group;
  return samples.size() > most ? text + ", ..." : text;
}

std::vector<NumberSample> ReadTwoSamples(const TestArguments& arguments) {
  std::vector<NumberSample> samples = ReadSamples(arguments);
  if (samples.size() == 2) return samples;
  if (arguments.by) {
    Refuse(arguments, "the test compares two groups, and the labels make " +
                          Int2EStr(samples.size()) + ": " + GroupsOf(samples));
  }
  if (samples.size() == 1 && arguments.table.selection.columns.size() == 2) {
    const TestSample& origin = samples[0].origin;
    Refuse(arguments, "both samples are " + ColumnTitle(origin.column, origin.name));
  }
  Refuse(arguments, "the test compares two columns, and there " +
                        std::string(samples.size() == 1 ? "is " : "are ") +
                        Int2EStr(samples.size()));
}

// Whether the sample is what the error complains of.
bool IsAtFault(const NumberSample& sample, MessageId id) {
  if (id == rsVectorG1) return sample.numbers.size() < 2;
  const TQorFloatVector values = sample.numbers.Values();
  return id == rsSameValue && std::ranges::count(values, values[0]) == std::ssize(values);
}

}  // namespace

std::string NumberSample::Place(const std::string& file) const {
  return InputName(file) + ": " + ColumnTitle(origin.column, origin.name) +
         (origin.group.empty() ? "" : ", " + origin.group);
}

std::vector<NumberSample> ReadSamples(const TestArguments& arguments) {
  if (arguments.by) return SplitSamples(arguments);
  std::vector<NumberSample> samples;
  for (TableColumn& column : arguments.table.Read()) samples.push_back(SampleOf(std::move(column)));
  return samples;
}

std::vector<NumberSample> ReadPairs(const TestArguments& arguments) {
  std::vector<TableColumn> columns = arguments.table.Read();
  if (columns.size() == 1) Refuse(arguments, "x and y are both " + columns[0].Title());
  return {SampleOf(std::move(columns[0])), SampleOf(std::move(columns[1]))};
}

TestSample WithMoments(const NumberSample& sample) {
  const ExactSample<2> sums = ExactSumsOf<2>(sample.numbers);
  TestSample origin = sample.origin;
  origin.figures = {CountOf(sample), {"mean", ReportText(rsDSMean), sums.Mean()}};
  if (sums.Count() > 1)
    origin.figures.push_back({"standard_deviation", ReportText(rsDSStdDev), sums.SampleStdDev()});
  return origin;
}

TestSample WithMedian(const NumberSample& sample) {
  ColumnNumbers sorted = sample.numbers;
  sorted.Sort();
  const Extended median = sorted.ValueOf(OrderFiguresOf(sorted).median);
  TestSample origin = sample.origin;
  origin.figures = {CountOf(sample), {"median", ReportText(rsDSMedian), median}};
  return origin;
}

std::vector<TestReport> TestEach(const TestArguments& arguments,
                                 const std::function<TestReport(const NumberSample&)>& test) {
  std::vector<TestReport> reports;
  for (const NumberSample& sample : ReadSamples(arguments)) {
    try {
      reports.push_back(test(sample));
    } catch (const EMathError& error) {
      throw TestRefusal(sample.Place(arguments.table.file), error);
    }
  }
  return reports;
}

std::vector<TestReport> TestTwo(
    const TestArguments& arguments,
    const std::function<TestReport(const std::vector<NumberSample>& samples)>& test) {
  const std::vector<NumberSample> samples = ReadTwoSamples(arguments);
  try {
    return {test(samples)};
  } catch (const EMathError& error) {
    const bool first = IsAtFault(samples[0], error.message_id());
    const bool second = IsAtFault(samples[1], error.message_id());
    if (first == second) throw;
    throw TestRefusal(samples[first ? 0 : 1].Place(arguments.table.file), error);
  }
}

InputError TestRefusal(const std::string& place, const EMathError& error) {
  const char* const why = WhyNot(error.message_id());
  return why == nullptr ? Refusal(place, error, "") : InputError(InputFault::kNoResult, place, why);
}

Shifted ShiftedBy(const WrittenNumber& hypothesis, const ColumnNumbers& numbers) {
  if (const std::optional<DecimalNumber> decimal = ParseDecimal(hypothesis.text)) {
    if (std::optional<ColumnNumbers> exact = ExactDifferences(numbers, *decimal))
      return {std::move(*exact), 0};
  }
  return {numbers, hypothesis.value};
}

}  // namespace qorvex::apps
