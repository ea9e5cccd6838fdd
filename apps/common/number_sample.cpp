#include "apps/common/number_sample.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/column_differences.h"
#include "apps/common/figure_format.h"
#include "apps/common/input_error.h"
#include "apps/common/sample_figures.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/Qorvex_RS_DescStats.h"

namespace qorvex::apps {

namespace {

TestFigure CountOf(const NumberSample& sample) {
  return {"count", ReportText(rsDSNoOfValues), static_cast<Extended>(sample.numbers.size()), true};
}

// Whether the sample is what the error complains of.
bool IsAtFault(const NumberSample& sample, MessageId error) {
  if (error == rsVectorG1) return sample.numbers.size() < 2;
  const TQorFloatVector values = sample.numbers.Values();
  return error == rsSameValue && std::ranges::count(values, values[0]) == std::ssize(values);
}

}  // namespace

std::string NumberSample::Title() const {
  return ColumnTitle(origin.column, origin.name) +
         (origin.group.empty() ? "" : ", " + origin.group);
}

TestSample WithMoments(const NumberSample& sample) {
  const ExactSample<2> sums = ExactSumsOf<2>(sample.numbers);
  TestSample origin = sample.origin;
  origin.significant_digits = SignificantDigits(sample.numbers);
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
  origin.significant_digits = SignificantDigits(sample.numbers);
  origin.figures = {CountOf(sample), {"median", ReportText(rsDSMedian), median}};
  return origin;
}

Shifted ShiftedBy(const WrittenNumber& hypothesis, const ColumnNumbers& numbers) {
  if (const std::optional<DecimalNumber> decimal = ParseDecimal(hypothesis.text)) {
    if (std::optional<ColumnNumbers> exact = ExactDifferences(numbers, *decimal))
      return {std::move(*exact), 0};
  }
  return {numbers, hypothesis.value};
}

std::string WhatIsWrongWithCounts(const NumberSample& sample) {
  for (const Extended value : sample.numbers.Values()) {
    if (const char* const wrong = WhatIsWrong(value, NumberKind::kInt64))
      return Float2Str(value) + ' ' + wrong;
  }
  return {};
}

const char* WhyNoResult(MessageId error) {
  switch (error) {
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

std::optional<std::size_t> SampleAtFault(std::span<const NumberSample> samples, MessageId error) {
  if (samples.size() == 1) return 0;
  if (samples.size() != 2) return std::nullopt;
  const bool first = IsAtFault(samples[0], error);
  const bool second = IsAtFault(samples[1], error);
  if (first == second) return std::nullopt;
  return first ? 0 : 1;
}

}  // namespace qorvex::apps
