#include "apps/qorvex/test_samples.h"

#include <algorithm>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/figure_format.h"
#include "apps/common/groups.h"
#include "apps/common/input_error.h"
#include "apps/common/text_input.h"
#include "apps/qorvex/text_output.h"
#include "qorvex/base/text.h"

namespace qorvex::apps {

namespace {

using SampleList = std::vector<NumberSample>;

[[noreturn]] void Refuse(const TestArguments& arguments, const std::string& what) {
  throw InputError(InputFault::kNoSuchColumn, InputName(arguments.table.file), what);
}

NumberSample SampleOf(const TableColumn& column) {
  return {column.numbers,
          {.column = column.number,
           .name = column.name,
           .missing = column.missing,
           .significant_digits = SignificantDigits(column.numbers)}};
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
                        .missing = group.missing,
                        .significant_digits = SignificantDigits(column.numbers)}});
  }
  return samples;
}

SampleList SamplesOf(const std::vector<TableColumn>& columns) {
  SampleList samples;
  for (const TableColumn& column : columns) samples.push_back(SampleOf(column));
  return samples;
}

void Remark(const TestArguments& arguments, const std::string& what) {
  WriteRemark(OnOneLine(InputName(arguments.table.file)) + ": left out " + what);
}

SampleList SplitSamples(const TestArguments& arguments) {
  TableArguments table = arguments.table;
  if (table.selection.columns.size() != 1)
    throw CLI::ValidationError("--by", "it splits one column: one --column is needed");
  table.selection.labels = {*arguments.by};
  const std::vector<TableColumn> columns = table.Read();
  const TableColumn& labels = columns[1];
  if (labels.missing > 0)
    Remark(arguments, Cardinal(labels.missing, "row") + " without a label in " + labels.Title());
  SampleList samples = SamplesOf(columns[0], labels);
  std::erase_if(samples, [&](const NumberSample& sample) {
    if (sample.numbers.empty()) Remark(arguments, sample.Title() + ", without a value");
    return sample.numbers.empty();
  });
  return samples;
}

// Each chosen column is a sample, or one is split by its labels.
SampleList ReadColumns(const TestArguments& arguments) {
  return arguments.by ? SplitSamples(arguments) : SamplesOf(arguments.table.Read());
}

// "g = A, g = B, g = C", at most five of them.
std::string GroupsOf(const SampleList& samples) {
  constexpr std::size_t most = 5;
  std::string text;
  for (std::size_t i = 0; i < std::min(samples.size(), most); ++i)
    text += (i == 0 ? "" : ", ") + samples[i].origin.group;
  return samples.size() > most ? text + ", ..." : text;
}

void RequireTwo(const SampleList& samples, const TestArguments& arguments) {
  if (samples.size() == 2) return;
  if (arguments.by) {
    Refuse(arguments, "the test compares two groups, and the labels make " +
                          Int2EStr(samples.size()) + ": " + GroupsOf(samples));
  }
  if (samples.size() == 1 && arguments.table.selection.columns.size() == 2)
    Refuse(arguments, "both samples are " + samples[0].Title());
  Refuse(arguments, "the test compares two columns, and there " +
                        std::string(samples.size() == 1 ? "is " : "are ") +
                        Int2EStr(samples.size()));
}

SampleList ReadPairs(const TestArguments& arguments) {
  SampleList pair = SamplesOf(arguments.table.Read());
  if (pair.size() == 1) Refuse(arguments, "x and y are both " + pair[0].Title());
  return pair;
}

// A cell of the table of counts cannot be skipped: the test would be about fewer cells.
void RequireCounts(const NumberSample& sample, const TestArguments& arguments) {
  const std::string wrong = sample.origin.missing > 0 ? "a count or a proportion is missing"
                                                      : WhatIsWrongWithCounts(sample);
  if (!wrong.empty()) {
    throw InputError(InputFault::kNoResult,
                     InputName(arguments.table.file) + ": " + sample.Title() + ": " + wrong);
  }
}

// Each column of counts, with that of the proportions.
std::vector<SampleList> ReadCounts(const TestArguments& arguments) {
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
  std::vector<SampleList> counts;
  for (const TableColumn& column : columns) {
    if (&column == proportions) continue;
    counts.push_back({SampleOf(column)});
    RequireCounts(counts.back()[0], arguments);
    if (proportions != nullptr) counts.back().push_back(SampleOf(*proportions));
  }
  return counts;
}

SampleList ReadCountTable(const TestArguments& arguments) {
  TableArguments table = arguments.table;
  table.selection.whole_rows = true;
  SampleList columns = SamplesOf(table.Read());
  if (arguments.yates && (columns.size() != 2 || columns[0].numbers.size() != 2))
    throw CLI::ValidationError("--yates", "the correction is for tables of 2 by 2");
  for (const NumberSample& column : columns) RequireCounts(column, arguments);
  return columns;
}

void RequireTrials(const TestArguments& arguments) {
  if (arguments.successes > arguments.trials)
    throw CLI::ValidationError("--successes", "there are more successes than trials");
  if (arguments.trials == 0)
    throw CLI::ValidationError("--trials", "there must be at least one trial");
}

}  // namespace

std::vector<SampleList> ReadSamples(const HypothesisTest& test, const TestArguments& arguments) {
  switch (test.input) {
    case TestInput::kSample: {
      std::vector<SampleList> each;
      for (NumberSample& sample : ReadColumns(arguments)) each.push_back({std::move(sample)});
      return each;
    }
    case TestInput::kTwoSamples: {
      SampleList samples = ReadColumns(arguments);
      RequireTwo(samples, arguments);
      return {std::move(samples)};
    }
    case TestInput::kSeveralSamples: {
      SampleList samples = ReadColumns(arguments);
      if (samples.size() < 2) {
        Refuse(arguments, samples[0].Title() + ": the test compares at least two samples");
      }
      return {std::move(samples)};
    }
    case TestInput::kPairs:
      return {ReadPairs(arguments)};
    case TestInput::kCounts:
      return ReadCounts(arguments);
    case TestInput::kCountTable:
      return {ReadCountTable(arguments)};
    case TestInput::kTrials:
      RequireTrials(arguments);
      break;
  }
  return {{}};
}

}  // namespace qorvex::apps
