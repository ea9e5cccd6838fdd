#pragma once

/// @file
/// RegressionPage, lines and parabolas through pairs of numbers.

#include "apps/qorvex-gallery/widgets/page.h"
#include "qorvex/controls/labelled_vector_edit.h"

class QLabel;
class QSpinBox;

namespace qorvex::gallery {

class FigureTable;
class MessageBar;
class PlotView;

/// Two editors, for x and y, that scroll together; diagrams of the pairs with their least-squares
/// line and parabola, and of the residuals; and the coefficients of both with their standard errors
/// and intervals. Every edit updates all of these. Incomplete pairs are left out. The page starts
/// with an example.
class RegressionPage : public Page {
  Q_OBJECT

 public:
  explicit RegressionPage(QWidget* parent = nullptr);
  ~RegressionPage() override;

 public Q_SLOTS:
  /// Shows the pairs of the example.
  void ShowExample();

 private:
  QLayout* MakeEditors();
  QLayout* MakeResults();
  void SetRows(int rows);
  void RefreshSoon();
  void Refresh();
  [[nodiscard]] QString RemarkOn(std::size_t left_out) const;

  bool refresh_is_due_ = false;

  MessageBar* message_;
  QSpinBox* rows_;
  TQorLabelledVectorEdit* x_;
  TQorVectorEdit* y_;
  PlotView* curves_;
  PlotView* residuals_;
  FigureTable* coefficients_;
  FigureTable* quality_;
  QLabel* remark_;
};

}  // namespace qorvex::gallery
