#pragma once

/// @file
/// DistributionPage, probabilities, densities and quantiles of distributions.

#include <optional>
#include <vector>

#include "apps/common/distributions.h"
#include "apps/qorvex-gallery/widgets/page.h"

class QComboBox;
class QLabel;

namespace qorvex {
inline namespace QorvexBaseControls {
class TQorFloatEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class FigureTable;
class MessageBar;
class ParameterForm;
class PlotView;

/// A family of distributions with its parameters, the probabilities on both sides of a point or of
/// an interval, as a diagram and with all digits, and a quantile. When numbers are refused, the
/// message bar says why, and the diagram and the figures stay those of the last valid numbers.
class DistributionPage : public Page {
  Q_OBJECT

 public:
  explicit DistributionPage(QWidget* parent = nullptr);
  ~DistributionPage() override;

  [[nodiscard]] QVariantMap State() const override;
  void SetState(const QVariantMap& state) override;
  [[nodiscard]] PageReport Report() const override;

 private:
  void ShowFamily();
  void Update();
  // These return what is wrong, or an empty text.
  [[nodiscard]] QString UpdatePoints(const apps::AnyDistribution& distribution);
  [[nodiscard]] QString UpdateQuantile(const apps::AnyDistribution& distribution);
  [[nodiscard]] QString WhatIsWrong(const std::vector<Extended>& parameters) const;
  void Draw(const apps::AnyDistribution& distribution, const std::vector<Extended>& points);
  [[nodiscard]] const apps::Family& Family() const;
  [[nodiscard]] bool IsInterval() const;

  MessageBar* message_;
  QComboBox* family_;
  QLabel* summary_;
  ParameterForm* parameters_;
  QComboBox* question_;
  QLabel* first_label_;
  TQorFloatEdit* first_;
  QLabel* second_label_;
  TQorFloatEdit* second_;
  QComboBox* side_;
  TQorFloatEdit* probability_;
  FigureTable* quantile_;
  // The last one that could be computed.
  std::optional<Extended> quantile_at_;
  PlotView* plot_;
  FigureTable* figures_;
};

}  // namespace qorvex::gallery
