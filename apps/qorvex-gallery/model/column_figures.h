#pragma once

/// @file
/// What the page of data shows about a column.

#include <QCoreApplication>
#include <QList>
#include <QLocale>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <optional>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "qorvex/stats/descriptive_stats.h"
#include "qorvex/stats/inference/intervals.h"

namespace qorvex::gallery {

/// The values that are not NaN, which stands for an empty cell.
[[nodiscard]] TQorFloatVector WithoutNulls(const TQorFloatVector& values);

/// The statistics of a column from exact sums.
class ColumnFigures {
  Q_DECLARE_TR_FUNCTIONS(ColumnFigures)

 public:
  /// The statistics of a sample or of a population. The values hold no NaN.
  ColumnFigures(const TQorFloatVector& values, bool population);

  /// The lines of a report, and the interval that contains the mean of a normal population with a
  /// probability of 95 %, as rows of two labels, each with its figure. Without decimals, figures
  /// have the significant digits that fit the values.
  [[nodiscard]] QList<QStringList> ReportTable(std::optional<int> decimals,
                                               const QLocale& locale) const;
  /// A remark on what the report does not show: the empty cells, and figures that need more
  /// decimals, of which there can be at most most_decimals.
  [[nodiscard]] QString Remark(std::size_t empty_cells, std::optional<int> decimals,
                               int most_decimals, const QLocale& locale) const;

 private:
  [[nodiscard]] QString HiddenRemark(int decimals, int most_decimals, const QLocale& locale) const;

  std::vector<ReportFigure> lines_;
  int significant_digits_ = 0;
  std::optional<Interval<Extended>> interval_;
};

}  // namespace qorvex::gallery
