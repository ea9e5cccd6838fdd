#pragma once

/// @file
/// FormatDialog, the choice of the form in which a file is read.

#include <QByteArray>
#include <QDialog>
#include <QString>

#include "apps/common/table_format.h"
#include "apps/qorvex-gallery/model/sheet.h"

class QCheckBox;
class QComboBox;
class QDialogButtonBox;
class QLabel;
class QLineEdit;

namespace qorvex::gallery {

/// Shows how the first lines of a file are read: with which delimiter, decimal sign, encoding,
/// names and words for missing values. Every choice shows its result at once.
class FormatDialog : public QDialog {
  Q_OBJECT

 public:
  /// Starts with a format and with the reason for asking.
  FormatDialog(const QString& title, const QByteArray& first_lines, const apps::TableFormat& format,
               const QString& reason, QWidget* parent);
  ~FormatDialog() override;

  /// What is chosen.
  [[nodiscard]] apps::TableFormat Format() const;

 private:
  QLayout* MakeChoices(const apps::TableFormat& format);
  void Read();

  QByteArray first_lines_;
  Sheet sheet_;
  QComboBox* delimiter_;
  QComboBox* decimal_sign_;
  QComboBox* encoding_;
  QLineEdit* missing_;
  QCheckBox* header_;
  QLabel* error_;
  QDialogButtonBox* buttons_;
};

}  // namespace qorvex::gallery
