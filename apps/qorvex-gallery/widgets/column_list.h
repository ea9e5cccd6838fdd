#pragma once

/// @file
/// ColumnList, the choice of several columns of the sheet.

#include <QListWidget>
#include <QVariantList>
#include <vector>

namespace qorvex::gallery {

class Sheet;

/// A list of the numeric columns of a sheet with a box to tick at each, which follows the sheet:
/// columns stay ticked wherever they go, and in another table those of the same names.
class ColumnList : public QListWidget {
  Q_OBJECT

 public:
  /// The sheet must outlive the list.
  explicit ColumnList(const Sheet& sheet, QWidget* parent = nullptr);
  ~ColumnList() override;

  /// @{
  /// The ticked columns of the sheet, in its order.
  [[nodiscard]] std::vector<int> Columns() const;
  void SetColumns(const std::vector<int>& columns);
  /// @}
  /// @{
  /// The ticked columns with their names, by which they are found again in another run of the
  /// program. Those that the sheet does not have are left out.
  [[nodiscard]] QVariantList State() const;
  void SetState(const QVariantList& state);
  /// @}

 Q_SIGNALS:
  /// Other columns are ticked. A change of the sheet does not count: see Sheet::Changed, at which
  /// the list has followed.
  void ColumnsChanged();

 private:
  [[nodiscard]] QList<const QListWidgetItem*> Ticked() const;
  void FindAgain();
  void Fill(const std::vector<int>& ticked);

  const Sheet& sheet_;
};

}  // namespace qorvex::gallery
