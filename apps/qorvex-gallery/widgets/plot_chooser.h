#pragma once

/// @file
/// PlotChooser, a diagram of a column of the kind that the user chooses.

#include <QVariantMap>
#include <QWidget>

#include "apps/qorvex-gallery/plot/plot_layer.h"

class QComboBox;
class QLabel;
class QSpinBox;

namespace qorvex::gallery {

class ColumnBox;
class PlotView;
class Sheet;

/// A diagram of a column of the sheet: histogram, box plot, normal quantiles, values in order,
/// autocorrelations, or against another column, values or residuals. The choice beside it is the
/// number of classes or the other column.
class PlotChooser : public QWidget {
  Q_OBJECT

 public:
  /// The sheet must outlive the widget.
  explicit PlotChooser(const Sheet& sheet, QWidget* parent = nullptr);
  ~PlotChooser() override;

  /// Shows the column as it is now, box plots by the groups of another column; -1 for none.
  void ShowColumn(int column, int group_column);
  /// The diagram.
  [[nodiscard]] const PlotView& Plot() const { return *plot_; }
  /// The kind of diagram, for a heading.
  [[nodiscard]] QString KindName() const;

  /// @{
  /// The kind of diagram and the number of classes.
  [[nodiscard]] QVariantMap State() const;
  void SetState(const QVariantMap& state);
  /// @}

 private:
  enum Kind { kHistogram, kBox, kNormalQuantiles, kOrder, kAutocorrelation, kScatter, kResiduals };

  void Update();
  [[nodiscard]] Kind ChosenKind() const;
  [[nodiscard]] QString WhyEmpty() const;
  [[nodiscard]] PlotContent Content() const;
  [[nodiscard]] PlotContent Boxes() const;
  [[nodiscard]] PlotContent AgainstOther() const;

  const Sheet& sheet_;
  int column_ = -1;
  int group_column_ = -1;
  QComboBox* kind_;
  QLabel* classes_label_;
  QSpinBox* classes_;
  QLabel* other_label_;
  ColumnBox* other_;
  PlotView* plot_;
};

}  // namespace qorvex::gallery
