#pragma once

/// @file
/// ColumnReport, the statistics and the histogram of a column of numbers.

#include <QWidget>

#include "qorvex/base/vector_types.h"

class QCheckBox;
class QLabel;
class QSpinBox;

namespace qorvex::gallery {

class FigureTable;
class PlotView;

/// Shows descriptive statistics, with the number of decimals and the divisor that the user chooses,
/// and a histogram with the normal density of the same mean and standard deviation.
class ColumnReport : public QWidget {
  Q_OBJECT

 public:
  explicit ColumnReport(QWidget* parent = nullptr);
  ~ColumnReport() override;

  /// Shows the figures of the values, which hold no NaN, of the column with the title. A remark
  /// counts the empty cells beside them.
  void Show(const TQorFloatVector& values, std::size_t empty_cells, const QString& title);

 Q_SIGNALS:
  /// The user has chosen other decimals or another divisor; the next Show applies them.
  void OptionsChanged();

 private:
  QSpinBox* decimals_;
  QCheckBox* population_;
  FigureTable* figures_;
  QLabel* remark_;
  PlotView* plot_;
};

}  // namespace qorvex::gallery
