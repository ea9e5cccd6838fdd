#include "apps/qorvex-gallery/model/column_figures.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <thread>

#include "apps/common/column_numbers.h"
#include "apps/common/figure_format.h"
#include "apps/common/hidden_figures.h"
#include "apps/common/sample_figures.h"
#include "qorvex/base/text.h"
#include "qorvex/base_controls/detail/number_text.h"

namespace qorvex::gallery {

namespace {

// Very long figures get an exponent.
QString Readable(const std::string& figure, const QLocale& locale) {
  constexpr std::size_t kMostDigits = 32;
  return QorvexBaseControls::detail::LocalNumber(
      figure.size() > kMostDigits ? Float2Str(Str2Float(figure)) : figure, locale);
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

ColumnFigures::ColumnFigures(const TQorFloatVector& values, bool population) {
  if (values.empty()) return;
  apps::ColumnNumbers numbers;
  for (const Extended value : values) numbers.Append(value);
  numbers.Sort();
  const unsigned threads = std::thread::hardware_concurrency();
  const apps::SampleFigures figures = apps::ExactFigures(
      apps::ExactSumsOf<4>(numbers, threads), apps::OrderFiguresOf(numbers), numbers, population);
  lines_ = figures.Lines(population);
  significant_digits_ = apps::SignificantDigits(numbers);
  if (values.size() > 1 && !population)
    interval_ = MeanInterval(apps::ExactSumsOf<2>(numbers, threads));
}

QList<QStringList> ColumnFigures::ReportTable(std::optional<int> decimals,
                                              const QLocale& locale) const {
  const apps::FigureFormat fitting = apps::FormatFor(significant_digits_);
  QList<QStringList> figures;
  for (const ReportFigure& line : lines_) {
    const std::string text = decimals     ? line.Text(*decimals)
                             : line.value ? fitting.Text(*line.value)
                                          : std::string();
    figures.append({QString::fromStdString(ReportText(line.label)), Readable(text, locale)});
  }
  if (lines_.empty()) figures.append({QString::fromStdString(MessageText(rsVectorIsEmpty)), {}});
  if (interval_) {
    const auto end = [&](Extended figure) {
      return Readable(decimals ? Float2EStr(figure, *decimals) : fitting.Text(figure), locale);
    };
    figures.append({tr("95 % Interval for the Mean:"),
                    tr("%1 to %2").arg(end(interval_->least), end(interval_->greatest))});
  }
  const qsizetype rows = (figures.size() + 1) / 2;
  QList<QStringList> table(rows);
  for (qsizetype i = 0; i < figures.size(); ++i) table[i % rows].append(figures[i]);
  return table;
}

QString ColumnFigures::Remark(std::size_t empty_cells, std::optional<int> decimals,
                              int most_decimals, const QLocale& locale) const {
  QStringList remarks;
  if (empty_cells == 1) remarks += tr("without 1 empty cell");
  if (empty_cells > 1) remarks += tr("without %1 empty cells").arg(locale.toString(empty_cells));
  if (decimals) remarks += HiddenRemark(*decimals, most_decimals, locale);
  remarks.removeAll(QString());
  return remarks.join(QStringLiteral("; "));
}

QString ColumnFigures::HiddenRemark(int decimals, int most_decimals, const QLocale& locale) const {
  std::vector<Extended> figures;
  for (const ReportFigure& line : lines_)
    if (apps::HasUnit(line) && std::isfinite(*line.value)) figures.push_back(*line.value);
  const auto [count, enough] = apps::HiddenAmong(figures, decimals);
  if (count == 0) return {};
  const QString number = locale.toString(count);
  if (enough > most_decimals) {
    return count == 1 ? tr("1 figure is too small to show a digit")
                      : tr("%1 figures are too small to show a digit").arg(number);
  }
  return count == 1 ? tr("1 figure needs up to %1 decimals").arg(enough)
                    : tr("%1 figures need up to %2 decimals").arg(number).arg(enough);
}

}  // namespace qorvex::gallery
