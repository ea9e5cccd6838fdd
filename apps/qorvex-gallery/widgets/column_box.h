#pragma once

/// @file
/// ColumnBox, the choice of a column of the sheet.

#include <QComboBox>
#include <QString>

namespace qorvex::gallery {

class Sheet;

/// A box with the columns of a sheet, which follows it: the chosen column stays chosen as long as
/// there is one of its name. Otherwise none is chosen, or without that choice the one in its place.
class ColumnBox : public QComboBox {
  Q_OBJECT

 public:
  /// Which columns are offered.
  enum Columns { kNumeric, kAll };

  /// The sheet must outlive the box. With a text for it, the first entry stands for no column.
  ColumnBox(const Sheet& sheet, Columns columns, const QString& none = {},
            QWidget* parent = nullptr);
  ~ColumnBox() override;

  /// @{
  /// The chosen column of the sheet, -1 for none. A column that is not offered is not chosen.
  [[nodiscard]] int Column() const;
  void SetColumn(int column);
  /// @}

 Q_SIGNALS:
  /// Another column is chosen, by the user or because the sheet has changed. Changed cells do not
  /// count: see Sheet::Changed.
  void ColumnChanged();

 private:
  void Fill();

  const Sheet& sheet_;
  Columns columns_;
  QString none_;
  // What was chosen last.
  int column_ = -1;
  QString title_;
};

}  // namespace qorvex::gallery
