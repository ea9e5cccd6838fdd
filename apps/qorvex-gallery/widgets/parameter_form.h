#pragma once

/// @file
/// ParameterForm, cells for the parameters of a distribution or of a variate.

#include <QString>
#include <QWidget>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "apps/common/number_parameter.h"

class QFormLayout;
class QLabel;

namespace qorvex {
inline namespace QorvexBaseControls {
class TQorFloatEdit;
}
}  // namespace qorvex

namespace qorvex::gallery {

class MessageLabel;

/// One labelled cell for each parameter, with what is wrong with its number beneath.
class ParameterForm : public QWidget {
  Q_OBJECT

 public:
  explicit ParameterForm(QWidget* parent = nullptr);
  ~ParameterForm() override;

  /// Cells for these parameters, which have to outlive the form, with numbers to start from.
  void SetParameters(std::span<const apps::NumberParameter> parameters);

  /// The numbers in order; nothing while one of them is refused, which the form shows.
  [[nodiscard]] std::optional<std::vector<Extended>> Numbers();

  /// Shows what is wrong with the numbers together. Options in the text become the names that the
  /// cells have here.
  void ShowInconsistency(const std::string& text);

  /// The cell of a parameter.
  [[nodiscard]] TQorFloatEdit* Cell(std::size_t index) const { return rows_[index].cell; }

 Q_SIGNALS:
  /// A number has changed.
  void Changed();

 private:
  struct Row {
    const apps::NumberParameter* parameter;
    QWidget* holder;
    TQorFloatEdit* cell;
    MessageLabel* message;
  };

  std::vector<Row> rows_;
  MessageLabel* inconsistency_;
};

/// A cell that shows every digit of a number.
[[nodiscard]] TQorFloatEdit* MakeNumberCell(Extended value, const QString& accessible_name,
                                            QWidget* parent);

/// A number with all its digits, as the locale writes numbers, without separators of groups.
[[nodiscard]] QString ExactText(Extended value);

/// "log-normal" as it begins a line: "Log-normal".
[[nodiscard]] QString Title(const QString& text);

}  // namespace qorvex::gallery
