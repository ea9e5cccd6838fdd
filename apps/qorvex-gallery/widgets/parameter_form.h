#pragma once

/// @file
/// ParameterForm, cells for the parameters of a distribution or variate.

#include <QString>
#include <QWidget>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "apps/common/number_parameter.h"

namespace qorvex {
inline namespace QorvexBaseControls {
class TQorFloatEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class MessageBar;

/// One labelled cell for each parameter.
class ParameterForm : public QWidget {
  Q_OBJECT

 public:
  /// The bar watches the cells; it must outlive the form.
  explicit ParameterForm(MessageBar& message, QWidget* parent = nullptr);
  ~ParameterForm() override;

  /// Replaces the cells by cells for these parameters, which have to outlive the form.
  void SetParameters(std::span<const apps::NumberParameter> parameters);

  /// The numbers in order.
  [[nodiscard]] std::vector<Extended> Numbers() const;
  /// What is wrong with the numbers, each taken by itself; empty if nothing is.
  [[nodiscard]] QString WhatIsWrong() const;
  /// A message with the labels of the cells in place of command line options.
  [[nodiscard]] QString Labelled(const std::string& message) const;

 Q_SIGNALS:
  /// A number has changed.
  void Changed();

 private:
  struct Row {
    const apps::NumberParameter* parameter;
    QWidget* holder;
    TQorFloatEdit* cell;
  };

  MessageBar& message_;
  std::vector<Row> rows_;
};

/// A cell that shows all digits of its number.
[[nodiscard]] TQorFloatEdit* MakeNumberCell(Extended value, const QString& accessible_name,
                                            QWidget* parent);

}  // namespace qorvex::gallery
