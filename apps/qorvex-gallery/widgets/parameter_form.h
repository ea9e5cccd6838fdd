#pragma once

/// @file
/// ParameterForm, cells for the parameters of a distribution or variate.

#include <QList>
#include <QString>
#include <QStringList>
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
  /// @{
  /// The numbers as texts with all digits, for SetTexts, which ignores other texts.
  [[nodiscard]] QStringList Texts() const;
  void SetTexts(const QStringList& texts);
  /// @}
  /// The labels with the numbers in the format of the locale, for a report.
  [[nodiscard]] QList<QStringList> Rows() const;
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

/// @{
/// The number of a cell as a text with all digits that is the same in every locale, and the cell
/// with such a number, which is unchanged if the text is not a number.
[[nodiscard]] QString NumberText(const TQorFloatEdit& cell);
void SetNumberText(TQorFloatEdit& cell, const QString& text);
/// @}

}  // namespace qorvex::gallery
