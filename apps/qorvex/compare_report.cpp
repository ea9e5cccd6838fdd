#include "apps/qorvex/compare_report.h"

#include <algorithm>
#include <iterator>
#include <utility>

#include "apps/common/column_differences.h"
#include "apps/common/text_input.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/inference/intervals.h"
#include "qorvex/stats/inference/kolmogorov_smirnov.h"
#include "qorvex/stats/inference/rank_tests.h"
#include "qorvex/stats/inference/t_tests.h"
#include "qorvex/stats/inference/variance_tests.h"

namespace qorvex::apps {

namespace {

// The result of a computation, or nothing if the values are too few or equal.
template <class Compute>
auto IfAny(Compute compute) -> std::optional<decltype(compute())> {
  try {
    return compute();
  } catch (const EMathError& error) {
    if (error.message_id() != rsVectorG1 && error.message_id() != rsSameValue) throw;
    return std::nullopt;
  }
}

// Of sorted numbers. The whiskers end at the last values within one and a half inter-quartile
// ranges of the box.
BoxPlot PlotOf(const ColumnNumbers& sorted, const OrderFigures& order, Extended mean,
               const std::string& title) {
  const Extended reach = 1.5L * (order.third_quartile - order.first_quartile);
  BoxPlot plot{.name = title,
               .first_quartile = sorted.ValueOf(order.first_quartile),
               .median = sorted.ValueOf(order.median),
               .third_quartile = sorted.ValueOf(order.third_quartile),
               .mean = mean};
  sorted.Visit([&](const auto& numbers) {
    const auto is_below = [&](auto x) {
      return static_cast<Extended>(x) < order.first_quartile - reach;
    };
    const auto is_within = [&](auto x) {
      return static_cast<Extended>(x) <= order.third_quartile + reach;
    };
    const auto first = std::partition_point(numbers.begin(), numbers.end(), is_below);
    const auto end = std::partition_point(first, numbers.end(), is_within);
    const auto value = [&](auto x) { return sorted.ValueOf(static_cast<Extended>(x)); };
    plot.lower_end = value(*first);
    plot.upper_end = value(*(end - 1));
    std::transform(numbers.begin(), first, std::back_inserter(plot.outliers), value);
    std::transform(end, numbers.end(), std::back_inserter(plot.outliers), value);
  });
  return plot;
}

struct DescribedColumn {
  std::vector<ReportFigure> lines;
  BoxPlot plot;
  ExactSample<2> sums;
  // In ascending order.
  TQorFloatVector values;
};

DescribedColumn Described(const ComparedColumn& column) {
  ColumnNumbers sorted = column.column.numbers;
  sorted.Sort();
  const OrderFigures order = OrderFiguresOf(sorted);
  const SampleFigures figures = ExactFigures(ExactSumsOf<4>(sorted), order, sorted, false);
  std::vector<ReportFigure> lines = figures.Lines(false);
  RequireFinite(lines, InputName(column.file), column.column.Title());
  return {std::move(lines), PlotOf(sorted, order, figures.results.mean, column.title),
          ExactSumsOf<2>(sorted), sorted.TakeValues()};
}

void AddPaired(ComparisonReport& report, const ColumnNumbers& differences, Extended confidence) {
  const ExactSample<2> sums = ExactSumsOf<2>(differences);
  report.difference = sums.Mean();
  report.interval = IfAny([&] { return MeanInterval(sums, confidence); });
  report.tests = {
      {"paired_t", "Student", "mean difference 0", "t",
       IfAny([&] { return OneSampleTTest(sums); })},
      {"wilcoxon_signed_rank", "Wilcoxon", "median difference 0", "V", IfAny([&] {
         return differences.Visit(
             [](const auto& numbers) { return WilcoxonSignedRankTest(numbers); });
       })},
  };
}

void AddIndependent(ComparisonReport& report, const DescribedColumn& first,
                    const DescribedColumn& second, Extended confidence) {
  report.difference = (first.sums.ExactMean() - second.sums.ExactMean()).Round();
  report.interval =
      IfAny([&] { return WelchDifferenceInterval(first.sums, second.sums, confidence); });
  report.tests = {
      {"welch_t", "Welch", "equal means", "t",
       IfAny([&] { return WelchTTest(first.sums, second.sums); })},
      {"variance_ratio", "F", "equal variances", "F",
       IfAny([&] { return VarianceRatioTest(first.sums, second.sums); })},
      {"mann_whitney", "Mann-Whitney", "P(x > y) = P(x < y)", "U",
       IfAny([&] { return MannWhitneyTest(first.values, second.values); })},
      {"kolmogorov_smirnov", "Kolmogorov-Smirnov", "equal distributions", "D",
       IfAny([&] { return KolmogorovSmirnovTest(first.values, second.values); })},
  };
}

}  // namespace

ComparisonReport ReportOn(const ComparedColumn& first, const ComparedColumn& second, bool paired,
                          Extended confidence) {
  const DescribedColumn a = Described(first);
  const DescribedColumn b = Described(second);
  ComparisonReport report{
      .first = a.lines, .second = b.lines, .first_plot = a.plot, .second_plot = b.plot};
  if (paired) {
    AddPaired(report, DifferencesOf(first.column.numbers, second.column.numbers), confidence);
  } else {
    AddIndependent(report, a, b, confidence);
  }
  return report;
}

}  // namespace qorvex::apps
