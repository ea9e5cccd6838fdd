#pragma once

/// @file
/// RegressionPage, least-squares fits.

#include "apps/qorvex-gallery/model/regression_report.h"
#include "apps/qorvex-gallery/widgets/page.h"

class QComboBox;
class QLabel;
class QSpinBox;
class QStackedWidget;

namespace qorvex {
inline namespace QorvexMatrixEdit {
class TQorMatrixEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class ColumnBox;
class ColumnList;
class FigureTable;
class MessageBar;
class PlotView;
class Sheet;

/// The least-squares fit of a response by one predictor, as a polynomial, or by several. The values
/// are typed or pasted here, or are columns of the sheet. Diagrams show the fit with its bands and
/// the residuals, tables the coefficients and how well they fit. Every edit updates all of these.
/// Incomplete rows are left out. The page starts with an example.
class RegressionPage : public Page {
  Q_OBJECT

 public:
  /// The sheet must outlive the page.
  explicit RegressionPage(Sheet& sheet, QWidget* parent = nullptr);
  ~RegressionPage() override;

  /// @{
  /// As in every page.
  [[nodiscard]] QVariantMap State() const override;
  void SetState(const QVariantMap& state) override;
  [[nodiscard]] PageReport Report() const override;
  /// @}

 public Q_SLOTS:
  /// Shows the pairs of the example.
  void ShowExample();

 protected:
  void showEvent(QShowEvent* event) override;

 private:
  QLayout* MakeChoices();
  QWidget* MakeOwnValues();
  QWidget* MakeColumns(Sheet& sheet);
  QLayout* MakeResults();
  void Clear();
  void DeleteValues();
  void ChooseSource();
  [[nodiscard]] bool TakesSheet() const;
  [[nodiscard]] QString NameOf(quint32 column) const;
  [[nodiscard]] RegressionData OwnData() const;
  [[nodiscard]] RegressionData SheetData() const;
  void RefreshSoon();
  void Refresh();
  void ShowFit(const RegressionReport& report);
  [[nodiscard]] QString RemarkOn(std::size_t left_out) const;

  const Sheet& sheet_;
  bool refresh_is_due_ = false;
  // What the tables show, for the report.
  QList<QStringList> coefficient_rows_;
  QList<QStringList> quality_rows_;

  MessageBar* message_;
  QComboBox* source_;
  QSpinBox* degree_;
  QStackedWidget* values_;
  TQorMatrixEdit* own_;
  ColumnBox* response_;
  ColumnList* predictors_;
  PlotView* curve_;
  PlotView* residuals_;
  FigureTable* coefficients_;
  FigureTable* quality_;
  QLabel* heading_;
  QLabel* remark_;
};

}  // namespace qorvex::gallery
