#pragma once

/// @file
/// ColumnReport, the statistics and a diagram of a column of numbers.

#include <QList>
#include <QVariantMap>
#include <QWidget>
#include <optional>

#include "apps/qorvex-gallery/widgets/page.h"

class QCheckBox;
class QLabel;
class QLayout;
class QSpinBox;

namespace qorvex::gallery {

class FigureTable;
class PlotChooser;
class Sheet;

/// Shows descriptive statistics, with the digits that fit the values or the number of decimals that
/// the user chooses, and a diagram.
class ColumnReport : public QWidget {
  Q_OBJECT

 public:
  /// The sheet must outlive the widget.
  explicit ColumnReport(const Sheet& sheet, QWidget* parent = nullptr);
  ~ColumnReport() override;

  /// Shows a numeric column as it is now, and box plots by the groups of another column; -1 for
  /// none. A remark counts the missing values.
  void ShowColumn(int column, int group_column);
  /// Whether the values are a whole population, as the user has chosen.
  [[nodiscard]] bool OfPopulation() const;

  /// @{
  /// What the user has chosen.
  [[nodiscard]] QVariantMap State() const;
  void SetState(const QVariantMap& state);
  /// @}
  /// The statistics and the diagram.
  [[nodiscard]] QList<PageReport::Part> ReportParts() const;

 Q_SIGNALS:
  /// OfPopulation has changed; the column is to be shown again.
  void PopulationChosen();

 private:
  QLayout* MakeHead();
  void ShowFigures();
  [[nodiscard]] std::optional<int> Decimals() const;

  const Sheet& sheet_;
  int column_ = -1;
  QSpinBox* decimals_;
  QCheckBox* population_;
  FigureTable* figures_;
  QLabel* remark_;
  PlotChooser* plot_;
};

}  // namespace qorvex::gallery
