#include "apps/qorvex-gallery/model/column_figures.h"

#include <QCoreApplication>
#include <algorithm>
#include <cmath>

#include "apps/common/hidden_figures.h"
#include "apps/qorvex-gallery/plot/histogram.h"
#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/stats/distributions/normal.h"
#include "qorvex/stats/exact/exact_sample.h"
#include "qorvex/stats/inference/intervals.h"

namespace qorvex::gallery {

namespace {

QString Text(const char* text) {
  return QCoreApplication::translate("qorvex::gallery::DataPage", text);
}

PlotLayer Bars(const Histogram& histogram) {
  PlotLayer layer{PlotShape::kBars, PlotRole::kData, Text("Values"), {}};
  for (std::size_t i = 0; i < histogram.edges.size(); ++i) {
    const Extended density = i == 0 ? 0 : histogram.Density(i - 1);
    layer.points.emplace_back(static_cast<double>(histogram.edges[i]),
                              static_cast<double>(density));
  }
  return layer;
}

// Covers the bars and three standard deviations on both sides of the mean.
PlotLayer NormalCurve(const Histogram& histogram, Extended mean, Extended std_dev) {
  constexpr int steps = 240;
  constexpr Extended reach = 3;
  PlotLayer layer{PlotShape::kLine,
                  PlotRole::kModel,
                  Text("Normal density of the same mean and standard deviation"),
                  {}};
  const Extended low = std::min(histogram.edges.front(), mean - reach * std_dev);
  const Extended high = std::max(histogram.edges.back(), mean + reach * std_dev);
  const NormalDistribution normal(mean, std_dev);
  for (int i = 0; i <= steps; ++i) {
    const Extended x = low + (high - low) * i / steps;
    layer.points.emplace_back(static_cast<double>(x), static_cast<double>(normal.Pdf(x)));
  }
  return layer;
}

// Very long figures get an exponent.
QString Readable(const QString& figure, const QLocale& locale) {
  constexpr qsizetype kMostDigits = 32;
  std::string text = figure.toStdString();
  if (figure.size() > kMostDigits) text = Float2Str(Str2Float(text));
  return QorvexBaseControls::detail::LocalNumber(text, locale);
}

QString IntervalText(const TQorDescStats& stats, const TQorFloatVector& values,
                     const QLocale& locale) {
  const Interval<Extended> mean = MeanInterval(values);
  const auto end = [&](Extended figure) {
    return Readable(QString::fromStdString(Float2EStr(figure, stats.DecimalPlaces())), locale);
  };
  return Text("%1 to %2").arg(end(mean.least), end(mean.greatest));
}

}  // namespace

TQorFloatVector WithoutNulls(const TQorFloatVector& values) {
  auto kept = TQorFloatVector::ForOverwrite(values.size());
  std::size_t count = 0;
  for (const Extended value : values)
    if (!std::isnan(value)) kept[count++] = value;
  kept.SetLength(count);
  return kept;
}

QList<QStringList> ReportTable(TQorDescStats& stats, const TQorFloatVector& values,
                               const QLocale& locale) {
  QList<QStringList> figures;
  for (const QString& line : stats.DescStats())
    figures.append({line.section('\t', 0, 0), Readable(line.section('\t', 1), locale)});
  if (values.size() > 1 && !stats.Population())
    figures.append({Text("95 % Interval for the Mean:"), IntervalText(stats, values, locale)});
  const qsizetype rows = (figures.size() + 1) / 2;
  QList<QStringList> table(rows);
  for (qsizetype i = 0; i < figures.size(); ++i) table[i % rows].append(figures[i]);
  return table;
}

QString RemarkOn(const TQorDescStats& stats, std::size_t empty_cells, int most_decimals,
                 const QLocale& locale) {
  const auto in_number = [&locale](std::size_t n, const char* one, const char* several) {
    return n == 1 ? Text(one) : Text(several).arg(locale.toString(n));
  };
  QStringList remarks;
  if (empty_cells > 0)
    remarks += in_number(empty_cells, "without 1 empty cell", "without %1 empty cells");
  const apps::HiddenFigures hidden =
      apps::HiddenBy(stats.Results(), stats.NoOfValues(), stats.DecimalPlaces());
  if (hidden.count > 0 && hidden.enough_decimals <= most_decimals) {
    remarks += in_number(hidden.count, "1 figure needs up to %1 decimals",
                         "%1 figures need up to %2 decimals")
                   .arg(hidden.enough_decimals);
  } else if (hidden.count > 0) {
    remarks += in_number(hidden.count, "1 figure is too small to show a digit",
                         "%1 figures are too small to show a digit");
  }
  return remarks.join(QStringLiteral("; "));
}

std::vector<PlotLayer> HistogramLayers(const TQorDescStats& stats, const TQorFloatVector& values) {
  std::vector<PlotLayer> layers;
  const Histogram histogram = HistogramOf(values);
  if (histogram.total == 0) return layers;
  layers.push_back(Bars(histogram));
  try {
    if (stats.StdDev() > 0) layers.push_back(NormalCurve(histogram, stats.Mean(), stats.StdDev()));
  } catch (const EMathError&) {
    // The squares of the values are beyond the range.
  }
  return layers;
}

}  // namespace qorvex::gallery
