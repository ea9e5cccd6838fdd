#include "apps/qorvex-gallery/model/column_figures.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <thread>

#include "apps/common/column_numbers.h"
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
  if (values.size() > 1 && !population)
    interval_ = MeanInterval(apps::ExactSumsOf<2>(numbers, threads));
}

QList<QStringList> ColumnFigures::ReportTable(int decimals, const QLocale& locale) const {
  QList<QStringList> figures;
  for (const ReportFigure& line : lines_) {
    figures.append(
        {QString::fromStdString(ReportText(line.label)), Readable(line.Text(decimals), locale)});
  }
  if (lines_.empty()) figures.append({QString::fromStdString(MessageText(rsVectorIsEmpty)), {}});
  if (interval_) {
    const auto end = [&](Extended figure) {
      return Readable(Float2EStr(figure, decimals), locale);
    };
    figures.append({tr("95 % Interval for the Mean:"),
                    tr("%1 to %2").arg(end(interval_->least), end(interval_->greatest))});
  }
  const qsizetype rows = (figures.size() + 1) / 2;
  QList<QStringList> table(rows);
  for (qsizetype i = 0; i < figures.size(); ++i) table[i % rows].append(figures[i]);
  return table;
}

QString ColumnFigures::Remark(std::size_t empty_cells, int decimals, int most_decimals,
                              const QLocale& locale) const {
  const auto in_number = [&locale](std::size_t n, const QString& one, const QString& several) {
    return n == 1 ? one : several.arg(locale.toString(n));
  };
  QStringList remarks;
  if (empty_cells > 0)
    remarks += in_number(empty_cells, tr("without 1 empty cell"), tr("without %1 empty cells"));
  std::vector<Extended> figures;
  for (const ReportFigure& line : lines_)
    if (apps::HasUnit(line) && std::isfinite(*line.value)) figures.push_back(*line.value);
  const apps::HiddenFigures hidden = apps::HiddenAmong(figures, decimals);
  if (hidden.count > 0 && hidden.enough_decimals <= most_decimals) {
    remarks += in_number(hidden.count, tr("1 figure needs up to %1 decimals"),
                         tr("%1 figures need up to %2 decimals"))
                   .arg(hidden.enough_decimals);
  } else if (hidden.count > 0) {
    remarks += in_number(hidden.count, tr("1 figure is too small to show a digit"),
                         tr("%1 figures are too small to show a digit"));
  }
  return remarks.join(QStringLiteral("; "));
}

}  // namespace qorvex::gallery
