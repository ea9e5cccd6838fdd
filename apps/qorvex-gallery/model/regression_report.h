#pragma once

/// @file
/// What the page of regressions shows about pairs.

#include <QList>
#include <QString>
#include <QStringList>
#include <cstddef>
#include <optional>
#include <vector>

#include "apps/qorvex-gallery/plot/plot_layer.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/stats/regression/pair_fit.h"

namespace qorvex::gallery {

/// The least-squares line and parabola through pairs, of which those with a NaN are left out.
class RegressionReport {
 public:
  RegressionReport(const TQorFloatVector& x, const TQorFloatVector& y);

  /// The number of pairs that are left out.
  [[nodiscard]] std::size_t LeftOut() const { return left_out_; }
  /// Why there is no line, or else no parabola; empty if there are both.
  [[nodiscard]] const QString& WhyNot() const { return why_not_; }

  /// The pairs, the curves, and the bands that contain the mean of y at each x with a probability
  /// of 95 %.
  [[nodiscard]] std::vector<PlotLayer> Curves() const;
  /// What y exceeds the curves by.
  [[nodiscard]] std::vector<PlotLayer> Residuals() const;
  /// A row for each coefficient: its name, the estimate, the standard error, the ends of its
  /// interval and its p.
  [[nodiscard]] QList<QStringList> CoefficientRows() const;
  /// Rows of a label and the figures of line and parabola.
  [[nodiscard]] QList<QStringList> QualityRows() const;

 private:
  struct Curve {
    QString name;
    PlotRole role;
    std::optional<PairFit> fit = {};
  };

  void FitCurve(Curve& curve, std::size_t degree);
  [[nodiscard]] PlotLayer Line(const Curve& curve) const;
  [[nodiscard]] PlotLayer Band(const Curve& curve) const;
  [[nodiscard]] Extended PlaceOf(int step, int steps) const;

  TQorFloatVector x_;
  TQorFloatVector y_;
  std::size_t left_out_ = 0;
  Extended least_x_ = 0;
  Extended greatest_x_ = 0;
  Curve line_;
  Curve parabola_;
  QString why_not_;
};

}  // namespace qorvex::gallery
