#pragma once

/// @file
/// DistributionPage, probabilities, densities and quantiles.

#include <QWidget>
#include <vector>

#include "apps/common/distributions.h"

class QComboBox;
class QLabel;

namespace qorvex {
inline namespace QorvexBaseControls {
class TQorFloatEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class FigureTable;
class MessageLabel;
class ParameterForm;
class PlotView;

/// A family of distributions with its parameters, a point or an interval with the probabilities on
/// its sides, drawn and with all digits, and a quantile. What is refused is said beside it; the
/// diagram and the figures stay those of the last numbers that were fine.
class DistributionPage : public QWidget {
  Q_OBJECT

 public:
  explicit DistributionPage(QWidget* parent = nullptr);
  ~DistributionPage() override;

 private:
  void ShowFamily();
  void Update();
  void UpdatePoints(const std::vector<Extended>& parameters);
  void UpdateQuantile(const std::vector<Extended>& parameters);
  void Draw(const std::vector<Extended>& parameters, const std::vector<Extended>& points);
  [[nodiscard]] const apps::Distribution& Family() const;
  [[nodiscard]] bool Interval() const;

  QComboBox* family_;
  QLabel* summary_;
  ParameterForm* parameters_;
  QComboBox* question_;
  QLabel* first_label_;
  TQorFloatEdit* first_;
  QLabel* second_label_;
  TQorFloatEdit* second_;
  MessageLabel* points_message_;
  QComboBox* side_;
  TQorFloatEdit* probability_;
  FigureTable* quantile_;
  MessageLabel* quantile_message_;
  PlotView* plot_;
  FigureTable* figures_;
};

}  // namespace qorvex::gallery
