#pragma once

/// @file
/// DistributionPage, probabilities, densities and quantiles.

#include <QString>
#include <QWidget>
#include <vector>

#include "apps/qorvex/distributions.h"

class QComboBox;
class QGridLayout;
class QLabel;

namespace qorvex {
inline namespace QorvexBaseControls {
class TQorFloatEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

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
  struct Figure {
    QString name;
    QString text;
  };

  void ShowFamily();
  void Update();
  void UpdatePoints(const std::vector<Extended>& parameters);
  void UpdateQuantile(const std::vector<Extended>& parameters);
  void ShowFigures(const std::vector<Figure>& figures);
  void Draw(const std::vector<Extended>& parameters, const std::vector<Extended>& points);
  [[nodiscard]] const cli::Distribution& Family() const;
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
  QLabel* quantile_;
  MessageLabel* quantile_message_;
  PlotView* plot_;
  std::vector<QLabel*> names_;
  std::vector<QLabel*> texts_;
};

}  // namespace qorvex::gallery
