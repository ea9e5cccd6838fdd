#include "apps/qorvex-gallery/model/test_order.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

#include "apps/common/figure_format.h"
#include "apps/qorvex-gallery/model/column_plots.h"
#include "apps/qorvex-gallery/model/test_texts.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"

namespace qorvex::gallery {

namespace {

using apps::ColumnNumbers;
using apps::NumberSample;
using apps::TestInput;

class OrderTexts {
  Q_DECLARE_TR_FUNCTIONS(OrderTexts)
};

// The shortest text of a number that was read from a decimal is that decimal.
void Append(ColumnNumbers& numbers, Extended value) {
  const std::optional<apps::DecimalNumber> decimal = apps::ParseDecimal(Float2Str(value));
  if (!decimal || !numbers.TryAppend(*decimal)) numbers.Append(value);
}

bool NeedsWholeRows(TestInput input) {
  return input == TestInput::kPairs || input == TestInput::kCounts ||
         input == TestInput::kCountTable;
}

// The samples of an order, or why they cannot be taken.
class SampleMaker {
 public:
  explicit SampleMaker(const TestOrder& order) : order_(order) {}

  [[nodiscard]] std::size_t LeftOut() const { return left_out_; }

  [[nodiscard]] std::vector<NumberSample> Make() {
    if (order_.groups) {
      MakeGroups();
    } else if (NeedsWholeRows(order_.test->input)) {
      MakeRows();
    } else {
      for (const TestOrder::Column& column : order_.columns) {
        samples_.push_back({.origin = OriginOf(column)});
        for (const Extended x : column.numbers) AppendUnlessMissing(samples_.back().numbers, x);
      }
    }
    return std::move(samples_);
  }

 private:
  static apps::TestSample OriginOf(const TestOrder::Column& column) {
    return {.column = 1, .name = column.title.toStdString()};
  }

  void AppendUnlessMissing(ColumnNumbers& numbers, Extended value) {
    if (std::isnan(value)) {
      ++left_out_;
    } else {
      Append(numbers, value);
    }
  }

  void MakeGroups() {
    const TestOrder::Column& column = order_.columns[0];
    for (const QString& name : order_.groups->names)
      samples_.push_back({.origin = {.column = 1, .name = name.toStdString()}});
    for (std::size_t row = 0; row < column.numbers.size(); ++row) {
      const int group = order_.groups->group_of_row[row];
      if (group < 0) {
        ++left_out_;
      } else {
        AppendUnlessMissing(samples_[static_cast<std::size_t>(group)].numbers, column.numbers[row]);
      }
    }
    std::erase_if(samples_, [](const NumberSample& sample) { return sample.numbers.empty(); });
  }

  void MakeRows() {
    const std::vector<TestOrder::Column>& columns = order_.columns;
    for (const TestOrder::Column& column : columns)
      samples_.push_back({.origin = OriginOf(column)});
    const std::size_t rows = columns.empty() ? 0 : columns[0].numbers.size();
    for (std::size_t row = 0; row < rows; ++row) {
      if (std::ranges::any_of(columns, [row](const TestOrder::Column& column) {
            return std::isnan(column.numbers[row]);
          })) {
        ++left_out_;
        continue;
      }
      for (std::size_t i = 0; i < columns.size(); ++i)
        Append(samples_[i].numbers, columns[i].numbers[row]);
    }
  }

  const TestOrder& order_;
  std::vector<NumberSample> samples_;
  std::size_t left_out_ = 0;
};

QString NameOf(const NumberSample& sample) {
  return QString::fromStdString(sample.origin.name);
}

// What is wrong with the samples before any test; empty if nothing is.
QString WhyUnsuited(const TestOrder& order, const std::vector<NumberSample>& samples) {
  const TestInput input = order.test->input;
  if (input == TestInput::kTrials) {
    if (order.settings.trials == 0) return OrderTexts::tr("there must be at least one trial");
    return order.settings.successes > order.settings.trials
               ? OrderTexts::tr("there are more successes than trials")
               : QString();
  }
  for (const NumberSample& sample : samples) {
    if (sample.numbers.empty())
      return OrderTexts::tr("%1: there are no numbers").arg(NameOf(sample));
  }
  const std::size_t count = samples.size();
  if (count == 0) return OrderTexts::tr("choose a column of numbers");
  if ((input == TestInput::kTwoSamples || input == TestInput::kPairs) && count != 2) {
    return order.groups
               ? OrderTexts::tr("the test compares two groups, and the labels make %L1").arg(count)
               : OrderTexts::tr("choose two columns");
  }
  if (input == TestInput::kSeveralSamples && count < 2)
    return OrderTexts::tr("the test compares at least two samples");
  const std::size_t count_columns = input == TestInput::kCountTable ? count : 1;
  if (input != TestInput::kCounts && input != TestInput::kCountTable) return {};
  for (std::size_t i = 0; i < count_columns; ++i) {
    if (!apps::WhatIsWrongWithCounts(samples[i]).empty())
      return OrderTexts::tr("%1: not all numbers are counts").arg(NameOf(samples[i]));
  }
  if (order.settings.yates && (count != 2 || samples[0].numbers.size() != 2))
    return OrderTexts::tr("Yates' correction is for tables of 2 by 2");
  return {};
}

// Runs the test of some of the samples.
void RunOn(std::span<const NumberSample> samples, const TestOrder& order, TestOutcome& outcome) {
  try {
    outcome.reports.push_back(order.test->run(samples, order.settings));
  } catch (const EMathError& error) {
    const auto at_fault = apps::SampleAtFault(samples, error.message_id());
    outcome.why_not = (at_fault ? NameOf(samples[*at_fault]) + QStringLiteral(": ") : QString()) +
                      TestTexts::WhyNot(error);
  }
}

// The first samples as boxes; nothing for counts.
PlotContent BoxesOf(const std::vector<NumberSample>& samples, const TestOrder& order) {
  const TestInput input = order.test->input;
  if (input == TestInput::kCounts || input == TestInput::kCountTable || input == TestInput::kTrials)
    return {};
  constexpr std::size_t most = 12;
  QList<NamedValues> groups;
  for (std::size_t i = 0; i < std::min(samples.size(), most); ++i)
    groups.append({NameOf(samples[i]), samples[i].numbers.Values()});
  return BoxPlot(groups, order.columns.size() == 1 ? order.columns[0].title : QString());
}

}  // namespace

TestOutcome RunTest(const TestOrder& order) {
  TestOutcome outcome;
  SampleMaker maker(order);
  std::vector<NumberSample> samples = maker.Make();
  outcome.left_out = maker.LeftOut();
  outcome.why_not = WhyUnsuited(order, samples);
  if (!outcome.why_not.isEmpty()) return outcome;
  for (const NumberSample& sample : samples)
    outcome.digits = std::max(outcome.digits, apps::SignificantDigits(sample.numbers));
  outcome.boxes = BoxesOf(samples, order);
  if (order.test->input != TestInput::kSample) {
    RunOn(samples, order, outcome);
  } else {
    for (std::size_t i = 0; i < samples.size() && outcome.why_not.isEmpty(); ++i)
      RunOn(std::span(samples).subspan(i, 1), order, outcome);
  }
  if (!outcome.why_not.isEmpty()) outcome.reports.clear();
  return outcome;
}

}  // namespace qorvex::gallery
