#pragma once

/// @file
/// What the page of regressions shows about columns of numbers.

#include <QCoreApplication>
#include <QList>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <optional>
#include <vector>

#include "apps/qorvex-gallery/plot/plot_layer.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/regression/linear_fit.h"

namespace qorvex::gallery {

/// The columns of a regression, and the curve. All columns have the same length; NaN is a missing
/// value.
struct RegressionData {
  struct Column {
    QString name;
    TQorFloatVector values;
  };

  std::vector<Column> predictors;
  Column response;
  /// Of the polynomial, from 1; for a single predictor only.
  std::size_t degree = 1;
};

/// The least-squares fit through the rows that are complete. With one predictor, the diagram shows
/// the curve over it; with several, the response over the fitted values.
class RegressionReport {
  Q_DECLARE_TR_FUNCTIONS(RegressionReport)

 public:
  explicit RegressionReport(const RegressionData& data);

  /// The number of rows that are left out because a value is missing.
  [[nodiscard]] std::size_t LeftOut() const { return left_out_; }
  /// Why there is no fit; empty if there is one.
  [[nodiscard]] const QString& WhyNot() const { return why_not_; }

  /// The rows, the fitted curve, and the bands that contain the mean response, and a single
  /// response, at each x with a probability of 95 %.
  [[nodiscard]] std::vector<PlotLayer> Curve() const;
  /// What the response exceeds the fitted values by.
  [[nodiscard]] std::vector<PlotLayer> Residuals() const;
  /// @{
  /// The titles of the axes: x and y of the curve; x of the residuals is that of the curve.
  [[nodiscard]] QString XTitle() const;
  [[nodiscard]] const QString& YTitle() const { return response_.name; }
  /// @}
  /// A row for each coefficient: its name, the estimate, the standard error, the ends of its
  /// interval and its p.
  [[nodiscard]] QList<QStringList> CoefficientRows() const;
  /// Rows of a label and a figure.
  [[nodiscard]] QList<QStringList> QualityRows() const;

 private:
  void TakeCompleteRows(const RegressionData& data);
  void Fit();
  [[nodiscard]] QString WhyTooFew() const;
  [[nodiscard]] QString WhyCollinear(std::size_t predictor) const;
  [[nodiscard]] bool HasOnePredictor() const { return predictors_.size() == 1; }
  [[nodiscard]] QStringList Terms() const;
  void AddCurve(std::vector<PlotLayer>& layers) const;

  std::vector<RegressionData::Column> predictors_;
  RegressionData::Column response_;
  std::size_t degree_;
  std::size_t left_out_ = 0;
  std::optional<LinearFit> fit_;
  TQorFloatVector fitted_;
  QString why_not_;
};

}  // namespace qorvex::gallery
