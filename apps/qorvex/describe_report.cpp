#include "apps/qorvex/describe_report.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "apps/common/cells.h"
#include "apps/common/figure_format.h"
#include "apps/common/input_error.h"
#include "apps/common/sample_figures.h"
#include "apps/common/text_input.h"
#include "apps/common/weighted_numbers.h"
#include "apps/qorvex/further_figures.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/distributions/chi_square.h"
#include "qorvex/stats/inference/intervals.h"

namespace qorvex::apps {

namespace {

// Holds the sum of any column, so that the order of the amounts does not matter.
__extension__ typedef __int128 Int128;

[[noreturn]] void Refuse(const DescribeOptions& options, InputFault fault,
                         const TableColumn& column, const std::string& what) {
  throw InputError(fault, InputName(options.table.file), column.Title() + ": " + what);
}

// The figures of amounts that are amounts themselves; without a sum if the weights do not count.
std::map<ReportTextId, Currency> AmountsOf(const TableColumn& column,
                                           const TQorFloatVector& weights,
                                           const DescribeOptions& options) {
  const auto amount = [&](Int128 parts, const char* figure, bool overflow = false) {
    const auto stored = static_cast<std::int64_t>(parts);
    if (overflow || stored != parts) {
      Refuse(options, InputFault::kOutOfRange, column,
             std::string("the amounts are too large; their ") + figure +
                 " is beyond the range of amounts");
    }
    return Currency(stored);
  };
  const TQorInt64Vector& parts = column.numbers.Integers();
  const bool has_sum = !options.HasReliabilities();
  Int128 sum = 0;
  std::int64_t minimum = std::numeric_limits<std::int64_t>::max();
  std::int64_t maximum = std::numeric_limits<std::int64_t>::min();
  bool overflow = false;
  for (std::size_t i = 0; i < parts.size(); ++i) {
    const Extended weight = weights.empty() ? 1 : weights[i];
    if (weight == 0) continue;
    minimum = std::min(minimum, parts[i]);
    maximum = std::max(maximum, parts[i]);
    if (!has_sum) continue;
    Int128 product = 0;
    overflow |= __builtin_mul_overflow(Int128{parts[i]}, static_cast<Int128>(weight), &product) ||
                __builtin_add_overflow(sum, product, &sum);
  }
  std::map<ReportTextId, Currency> amounts{{rsDSMaximum, Currency(maximum)},
                                           {rsDSMinimum, Currency(minimum)},
                                           {rsDSRange, amount(Int128{maximum} - minimum, "range")}};
  if (has_sum) amounts.emplace(rsDSSum, amount(sum, "sum", overflow));
  return amounts;
}

// Not the roots of the interval of the variance, whose ends may be below the range of the format.
Interval<Extended> StdDevInterval(const ExactSample<2>& sums, Extended confidence) {
  const ChiSquareDistribution chi_square(static_cast<Extended>(sums.Count() - 1));
  const auto end = [&](Tail tail) {
    const Extended quantile = chi_square.Quantile(tail, (1 - confidence) / 2);
    if (quantile == 0) return std::numeric_limits<Extended>::infinity();
    return (sums.ExactSumOfSquaredDeviations() / exact::Rational(quantile)).RoundRoot();
  };
  return {end(Tail::kUpper), end(Tail::kLower)};
}

ColumnIntervals IntervalsOf(const ExactSample<2>& sums, Extended confidence) {
  return {MeanInterval(sums, confidence), VarianceInterval(sums, confidence),
          StdDevInterval(sums, confidence)};
}

bool AllAreZero(const TableColumn& weights) {
  return weights.numbers.Visit([](const auto& vector) {
    return std::ranges::all_of(vector, [](auto x) { return x == 0; });
  });
}

TQorFloatVector ValidWeights(const TableColumn& weights, const DescribeOptions& options) {
  TQorFloatVector values = weights.numbers.Values();
  if (const auto fault = FaultOf(values, options.weight_kind)) {
    const bool may_be_reliability =
        options.weight_kind == WeightKind::kFrequency && fault->weight > 0;
    Refuse(options, InputFault::kNotANumber, weights,
           "the weight " + Float2Str(fault->weight) + ' ' + fault->what +
               (may_be_reliability ? "; --weights-kind reliability takes any weights" : ""));
  }
  if (AllAreZero(weights))
    Refuse(options, InputFault::kNotANumber, weights, "all weights are zero");
  return values;
}

void AddWeighted(ColumnReport& report, const ColumnNumbers& numbers, const TQorFloatVector& weights,
                 const DescribeOptions& options) {
  const WeightedNumbers weighted(numbers, weights);
  report.sum_of_weights = weighted.SumOfWeights();
  if (options.HasReliabilities()) {
    report.lines = weighted.ReliabilityLines(options.population);
  } else {
    report.lines = weighted.FrequencyFigures(options.population).Lines(options.population);
  }
  for (const WrittenNumber& probability : options.quantiles)
    report.quantiles.push_back(weighted.Quantile(probability.value, options.TypeOfQuantiles()));
  if (options.HasConfidence() && *report.sum_of_weights > 1) {
    report.intervals = IntervalsOf(weighted.FrequencySums<2>(), options.confidence.value);
  }
}

void AddUnweighted(ColumnReport& report, ColumnNumbers numbers, const DescribeOptions& options,
                   unsigned threads) {
  if (options.classic) {
    report.lines =
        ClassicFigures(options.quantiles.empty() ? numbers.TakeValues() : numbers.Values(),
                       options.population)
            .Lines(options.population);
  }
  if (options.Needs(FigureSource::kOrder) || !options.quantiles.empty()) numbers.Sort();
  for (const WrittenNumber& probability : options.quantiles)
    report.quantiles.push_back(QuantileOf(numbers, probability.value, options.TypeOfQuantiles()));
  if (options.classic) return;
  const OrderFigures order =
      options.Needs(FigureSource::kOrder) ? OrderFiguresOf(numbers) : ExtremesOf(numbers);
  const SampleFigures figures =
      options.Needs(FigureSource::kHigherPowers)
          ? ExactFigures(ExactSumsOf<4>(numbers, threads), order, numbers, options.population)
          : ExactFigures(ExactSumsOf<2>(numbers, threads), order, numbers, options.population);
  report.lines = figures.Lines(options.population);
  if (options.HasConfidence() && numbers.size() > 1) {
    report.intervals = IntervalsOf(ExactSumsOf<2>(numbers, threads), options.confidence.value);
  }
  report.further = FurtherFigures(numbers, options);
}

// A report on no values: the lines of one value, with a count of 0 and figures that do not exist.
void AddNothing(ColumnReport& report, const DescribeOptions& options) {
  constexpr Extended none = std::numeric_limits<Extended>::quiet_NaN();
  if (options.HasReliabilities()) {
    ColumnNumbers one;
    one.Append(1);
    report.lines = WeightedNumbers(one, TQorFloatVector{1}).ReliabilityLines(options.population);
  } else {
    report.lines = DescriptiveFigures({}, 1, options.population, false);
  }
  for (ReportFigure& line : report.lines)
    if (line.value) line.value = line.label == rsDSNoOfValues ? 0 : none;
  report.quantiles.assign(options.quantiles.size(), none);
  if (options.HasReliabilities()) report.sum_of_weights = 0;
  report.further = FurtherFigures({}, options);
}

}  // namespace

std::string GroupLabel::Text() const {
  return column + " = " + label;
}

ColumnReport ReportOn(DescribedSample& sample, const DescribeOptions& options, unsigned threads) {
  TableColumn& column = sample.column;
  ColumnReport report{.number = column.number,
                      .name = column.name,
                      .groups = std::move(sample.groups),
                      .missing = column.missing,
                      .significant_digits = SignificantDigits(column.numbers)};
  const bool has_values =
      !column.numbers.empty() &&
      !(options.HasWeights() && !report.groups.empty() && AllAreZero(sample.weights));
  if (!has_values) {
    AddNothing(report, options);
    return report;
  }
  const TQorFloatVector values =
      options.HasWeights() ? ValidWeights(sample.weights, options) : TQorFloatVector();
  if (options.table.selection.currency) report.amounts = AmountsOf(column, values, options);
  if (options.HasWeights()) {
    AddWeighted(report, std::exchange(column.numbers, {}), values, options);
  } else {
    AddUnweighted(report, std::exchange(column.numbers, {}), options, threads);
  }
  RequireFinite(report.lines, InputName(options.table.file), column.Title());
  if (report.intervals && !std::isfinite(report.intervals->variance.greatest)) {
    Refuse(options, InputFault::kOutOfRange, column,
           "the confidence intervals are beyond the range of extended precision");
  }
  return report;
}

}  // namespace qorvex::apps
