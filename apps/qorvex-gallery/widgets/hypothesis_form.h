#pragma once

/// @file
/// HypothesisForm, the choice of what a test compares its data with.

#include <QVariantMap>
#include <QWidget>

#include "apps/common/hypothesis_tests.h"

class QComboBox;
class QFormLayout;

namespace qorvex {
inline namespace QorvexBaseControls {
class TQorFloatEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class MessageBar;
class ParameterForm;

/// The number or the distribution of the null hypothesis, the alternative, and the confidence
/// level. Only what the test has shows.
class HypothesisForm : public QWidget {
  Q_OBJECT

 public:
  /// The bar watches the cells; it must outlive the form.
  explicit HypothesisForm(MessageBar& message, QWidget* parent = nullptr);
  ~HypothesisForm() override;

  /// Shows what the test has, with its default for the number of the null hypothesis.
  void SetTest(const apps::HypothesisTest& test);
  /// Sets the choices; they are valid if the next function returns nothing.
  void Fill(apps::TestSettings& settings) const;
  [[nodiscard]] QString WhatIsWrong() const;

  /// @{
  /// The choices. They are to be set after the test.
  [[nodiscard]] QVariantMap State() const;
  void SetState(const QVariantMap& state);
  /// @}

 Q_SIGNALS:
  /// A choice or a number has changed.
  void Changed();

 private:
  [[nodiscard]] const apps::Family& Family() const;
  void ShowParameters();

  const apps::HypothesisTest* test_ = nullptr;
  QFormLayout* layout_;
  TQorFloatEdit* null_value_;
  QComboBox* family_;
  ParameterForm* parameters_;
  QComboBox* alternative_;
  TQorFloatEdit* confidence_;
};

}  // namespace qorvex::gallery
