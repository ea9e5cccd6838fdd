#pragma once

/// @file
/// ColumnBox, the choice of a column of the sheet.

#include <QComboBox>
#include <QString>
#include <QVariantList>

namespace qorvex::gallery {

class Sheet;

/// A box with the columns of a sheet, which follows it: the chosen column stays chosen, wherever it
/// goes. If it is removed, none is chosen, or without that choice the one in its place. In another
/// table it is the column of the same name.
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
  /// @{
  /// The chosen column with its name, by which it is found again in another run of the program.
  [[nodiscard]] QVariantList State() const { return {column_, title_}; }
  void SetState(const QVariantList& state);
  /// @}

 Q_SIGNALS:
  /// Another column is chosen. A change of the sheet does not count: see Sheet::Changed, at which
  /// the box has followed.
  void ColumnChanged();

 private:
  static constexpr int kNoId = -1;

  // Of no column: kNoId.
  [[nodiscard]] int IdOf(int column) const;
  void FindAgain();
  void Fill();
  // Keeps what is chosen.
  void Remember();

  const Sheet& sheet_;
  Columns columns_;
  QString none_;
  // What was chosen last.
  int id_ = kNoId;
  int column_ = -1;
  QString title_;
};

}  // namespace qorvex::gallery
