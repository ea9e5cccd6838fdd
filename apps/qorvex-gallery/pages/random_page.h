#pragma once

/// @file
/// RandomPage, samples of random variates.

#include <cstddef>
#include <memory>
#include <vector>

#include "apps/qorvex-gallery/model/background_work.h"
#include "apps/qorvex-gallery/model/random_sample.h"
#include "apps/qorvex-gallery/widgets/page.h"

class QComboBox;
class QLabel;
class QProgressBar;
class QPushButton;
class QSpinBox;

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

/// Draws a sample in the background and shows its histogram with the density, and its mean and
/// variance next to those of the distribution. The values can be copied and saved. A sample is
/// shown until the next one is complete.
class RandomPage : public Page {
  Q_OBJECT

 public:
  explicit RandomPage(QWidget* parent = nullptr);
  ~RandomPage() override;

  /// Draws a sample with the chosen settings, unless they are invalid or work is in progress.
  void Generate();
  /// The last sample, or null.
  [[nodiscard]] std::shared_ptr<const RandomSample> Sample() const { return sample_; }
  /// Writes the values to a file in the background, one per line with all digits.
  void Save(const QString& path);

  [[nodiscard]] QVariantMap State() const override;
  void SetState(const QVariantMap& state) override;
  [[nodiscard]] PageReport Report() const override;

 protected:
  /// Draws the first sample.
  void showEvent(QShowEvent* event) override;

 private:
  void ShowVariate();
  void ShowSample();
  void UpdateClasses();
  void EndWork();
  void ShowRunning();
  void Copy();
  void AskAndSave();
  [[nodiscard]] const apps::Variate& Chosen() const;
  [[nodiscard]] QString WhatIsWrong(const std::vector<Extended>& parameters) const;

  std::vector<const apps::Variate*> variates_;
  std::shared_ptr<const RandomSample> sample_;

  MessageBar* message_;
  QComboBox* variate_;
  QLabel* summary_;
  ParameterForm* parameters_;
  QSpinBox* size_;
  TQorFloatEdit* seed_;
  QSpinBox* classes_;
  QPushButton* generate_;
  QPushButton* cancel_;
  QProgressBar* progress_;
  QPushButton* copy_;
  QPushButton* save_;
  PlotView* plot_;
  QLabel* title_;
  FigureTable* moments_;
  // Declared last: its destructor waits for the thread before the members it reports to are
  // destroyed.
  BackgroundWork work_;
};

}  // namespace qorvex::gallery
