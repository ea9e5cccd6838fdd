#include "apps/qorvex-gallery/model/column_plots.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>
#include <iterator>

#include "apps/qorvex-gallery/model/autocorrelation.h"
#include "apps/qorvex-gallery/plot/histogram.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/distributions/normal.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/order_statistics.h"
#include "qorvex/stats/regression/pair_fit.h"

namespace qorvex::gallery {

namespace {

struct ColumnPlots {
  Q_DECLARE_TR_FUNCTIONS(ColumnPlots)
};

QPointF Point(Extended x, Extended y) {
  return {static_cast<double>(x), static_cast<double>(y)};
}

PlotLayer Guide(std::vector<QPointF> points) {
  return {PlotShape::kLine, PlotRole::kGuide, {}, std::move(points)};
}

PlotLayer Bars(const Histogram& histogram) {
  PlotLayer layer{PlotShape::kBars, PlotRole::kData, ColumnPlots::tr("Values"), {}};
  for (std::size_t i = 0; i < histogram.edges.size(); ++i)
    layer.points.push_back(Point(histogram.edges[i], i == 0 ? 0 : histogram.Density(i - 1)));
  return layer;
}

// Covers the bars and three standard deviations on both sides of the mean.
PlotLayer NormalCurve(const Histogram& histogram, Extended mean, Extended std_dev) {
  constexpr int steps = 240;
  constexpr Extended reach = 3;
  PlotLayer layer{PlotShape::kLine,
                  PlotRole::kModel,
                  ColumnPlots::tr("Normal density of the same mean and standard deviation"),
                  {}};
  const Extended low = std::min(histogram.edges.front(), mean - reach * std_dev);
  const Extended high = std::max(histogram.edges.back(), mean + reach * std_dev);
  const NormalDistribution normal(mean, std_dev);
  for (int i = 0; i <= steps; ++i) {
    const Extended x = low + (high - low) * i / steps;
    layer.points.push_back(Point(x, normal.Pdf(x)));
  }
  return layer;
}

// The ranks from 0 that a diagram of quantiles shows: all, or both ends and some between.
std::vector<std::size_t> ShownRanks(std::size_t count) {
  constexpr std::size_t most = 4000;
  constexpr std::size_t at_each_end = 500;
  const std::size_t step = count <= most ? 1 : (count - 2 * at_each_end) / (most - 2 * at_each_end);
  std::vector<std::size_t> ranks;
  for (std::size_t rank = 0; rank < count;) {
    ranks.push_back(rank);
    const bool between = rank >= at_each_end && rank + step < count - at_each_end;
    rank += between ? step : 1;
  }
  return ranks;
}

void AddBox(PlotContent& plot, const TQorFloatVector& sorted) {
  const auto place = static_cast<double>(plot.y.categories.size());
  Extended q1, q3;
  GetQuartiles(sorted, q1, q3);
  constexpr Extended reach = 1.5L;
  const Extended length = q3 - q1;
  const auto* const first = std::ranges::lower_bound(sorted, q1 - reach * length);
  const auto* const last = std::ranges::upper_bound(sorted, q3 + reach * length) - 1;
  PlotLayer box{PlotShape::kBox, PlotRole::kData, {}, {}};
  box.labels = {ColumnPlots::tr("Lower whisker"), ColumnPlots::tr("First quartile"),
                ColumnPlots::tr("Median"), ColumnPlots::tr("Third quartile"),
                ColumnPlots::tr("Upper whisker")};
  // Quartiles between values may lie beyond the values that the whiskers extend to.
  for (const Extended value :
       {std::min(*first, q1), q1, GetMedian(sorted), q3, std::max(*last, q3)})
    box.points.emplace_back(static_cast<double>(value), place);
  PlotLayer outside{PlotShape::kPoints, PlotRole::kTail, {}, {}};
  for (const auto* value = sorted.begin(); value != sorted.end(); ++value)
    if (value < first || value > last)
      outside.points.emplace_back(static_cast<double>(*value), place);
  plot.layers.push_back(std::move(box));
  if (!outside.points.empty()) plot.layers.push_back(std::move(outside));
}

struct Pairs {
  TQorFloatVector x, y;
};

Pairs FinitePairs(const TQorFloatVector& x, const TQorFloatVector& y) {
  Pairs pairs;
  for (std::size_t i = 0; i < std::min(x.size(), y.size()); ++i) {
    if (!std::isfinite(x[i]) || !std::isfinite(y[i])) continue;
    pairs.x.Append(x[i]);
    pairs.y.Append(y[i]);
  }
  return pairs;
}

}  // namespace

PlotContent HistogramPlot(const NamedValues& column, std::size_t classes) {
  const TQorFloatVector sorted = SortedFinite(column.values);
  PlotContent plot{{}, {column.name}, {ColumnPlots::tr("Density")}};
  const Histogram histogram = classes == 0 ? HistogramOf(sorted) : HistogramOf(sorted, classes);
  if (histogram.total == 0) return plot;
  plot.layers.push_back(Bars(histogram));
  try {
    ExactSample<2> sample;
    sample.Add(sorted);
    const Extended std_dev = sample.SampleStdDev();
    if (std_dev > 0) plot.layers.push_back(NormalCurve(histogram, sample.Mean(), std_dev));
  } catch (const EMathError&) {
    // There is one value, or the standard deviation or the density is beyond the range.
  }
  return plot;
}

PlotContent NormalQuantilePlot(const NamedValues& column) {
  const TQorFloatVector sorted = SortedFinite(column.values);
  PlotContent plot{{}, {ColumnPlots::tr("Normal quantile")}, {column.name}};
  if (sorted.empty()) return plot;
  const NormalDistribution normal;
  PlotLayer values{PlotShape::kPoints, PlotRole::kData, ColumnPlots::tr("Values"), {}};
  for (const std::size_t rank : ShownRanks(sorted.size())) {
    const Extended p = (static_cast<Extended>(rank) + 0.5L) / static_cast<Extended>(sorted.size());
    values.points.push_back(Point(normal.Quantile(Tail::kLower, p), sorted[rank]));
  }
  Extended q1, q3;
  GetQuartiles(sorted, q1, q3);
  const Extended slope = (q3 / 2 - q1 / 2) / normal.Quantile(Tail::kLower, 0.75L);
  PlotLayer line{
      PlotShape::kLine, PlotRole::kModel, ColumnPlots::tr("Line through the quartiles"), {}};
  for (const Extended z : {values.points.front().x(), values.points.back().x()})
    line.points.push_back(Point(z, q1 / 2 + q3 / 2 + slope * z));
  plot.layers = {std::move(line), std::move(values)};
  return plot;
}

PlotContent OrderPlot(const NamedValues& column) {
  PlotLayer values{PlotShape::kPoints, PlotRole::kData, {}, {}};
  for (std::size_t i = 0; i < column.values.size(); ++i)
    values.points.push_back(Point(static_cast<Extended>(i + 1), column.values[i]));
  PlotContent plot{{std::move(values)}, {ColumnPlots::tr("Row")}, {column.name}};
  plot.x.least = 0;
  return plot;
}

PlotContent AutocorrelationPlot(const NamedValues& column) {
  PlotContent plot{
      {}, {ColumnPlots::tr("Lag")}, {ColumnPlots::tr("Autocorrelation of %1").arg(column.name)}};
  const std::size_t count = column.values.size();
  if (count == 0) return plot;
  const auto lags = static_cast<std::size_t>(10 * Log10(static_cast<Extended>(count)));
  const std::vector<Extended> correlations = Autocorrelations(column.values, lags);
  if (correlations.empty()) return plot;
  PlotLayer stems{PlotShape::kStems, PlotRole::kData, {}, {}};
  for (std::size_t lag = 0; lag < correlations.size(); ++lag)
    stems.points.push_back(Point(static_cast<Extended>(lag), correlations[lag]));
  const auto present =
      std::ranges::count_if(column.values, [](Extended value) { return !std::isnan(value); });
  const Extended bound = NormalDistribution().Quantile(Tail::kLower, 0.975L) /
                         std::sqrt(static_cast<Extended>(present));
  const auto last = static_cast<Extended>(correlations.size() - 1);
  PlotLayer upper = Guide({Point(0, bound), Point(last, bound)});
  upper.name = ColumnPlots::tr("95 % of independent values");
  plot.layers = {std::move(upper), Guide({Point(0, -bound), Point(last, -bound)}),
                 std::move(stems)};
  return plot;
}

PlotContent BoxPlot(const QList<NamedValues>& groups, const QString& title) {
  PlotContent plot{{}, {title}, {}};
  // The first group is at the top.
  for (auto group = groups.rbegin(); group != groups.rend(); ++group) {
    const TQorFloatVector sorted = SortedFinite(group->values);
    if (sorted.empty()) continue;
    AddBox(plot, sorted);
    plot.y.categories.append(group->name);
  }
  return plot;
}

PlotContent ScatterPlot(const NamedValues& x, const NamedValues& y) {
  const Pairs pairs = FinitePairs(x.values, y.values);
  PlotLayer points{PlotShape::kPoints, PlotRole::kData, {}, {}};
  std::ranges::transform(pairs.x, pairs.y, std::back_inserter(points.points), Point);
  return {{std::move(points)}, {x.name}, {y.name}};
}

PlotContent ResidualPlot(const NamedValues& x, const NamedValues& y) {
  const Pairs pairs = FinitePairs(x.values, y.values);
  PlotContent plot{{}, {x.name}, {ColumnPlots::tr("Residual of %1").arg(y.name)}};
  try {
    const PairFit fit = FitPairs(pairs.x, pairs.y);
    const Extended slope = fit.curve.Coefficient(1).value;
    PlotLayer points{PlotShape::kPoints, PlotRole::kData, {}, {}};
    // From the means, because the constant would lose the digits that all x have in common.
    for (std::size_t i = 0; i < pairs.x.size(); ++i) {
      const Extended residual = (pairs.y[i] - fit.mean_y) - slope * (pairs.x[i] - fit.mean_x);
      points.points.push_back(Point(pairs.x[i], residual));
    }
    const auto [least, greatest] = std::ranges::minmax(pairs.x);
    plot.layers = {Guide({Point(least, 0), Point(greatest, 0)}), std::move(points)};
  } catch (const EMathError&) {
    // There are not two different x, or the figures are beyond the range.
  }
  return plot;
}

}  // namespace qorvex::gallery
