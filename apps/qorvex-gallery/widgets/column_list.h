#pragma once

/// @file
/// ColumnList, the choice of several columns of the sheet.

#include <QListWidget>
#include <QStringList>
#include <vector>

namespace qorvex::gallery {

class Sheet;

/// A list of the numeric columns of a sheet with a box to tick at each, which follows the sheet:
/// columns stay ticked as long as there are columns of their names.
class ColumnList : public QListWidget {
  Q_OBJECT

 public:
  /// The sheet must outlive the list.
  explicit ColumnList(const Sheet& sheet, QWidget* parent = nullptr);
  ~ColumnList() override;

  /// The ticked columns of the sheet, in its order.
  [[nodiscard]] std::vector<int> Columns() const;
  /// @{
  /// The names of the ticked columns. Names that the sheet does not have are left out.
  [[nodiscard]] QStringList Titles() const;
  void SetTitles(const QStringList& titles);
  /// @}

 Q_SIGNALS:
  /// Other columns are ticked, by the user or because the sheet has changed. Changed cells do not
  /// count: see Sheet::Changed.
  void ColumnsChanged();

 private:
  void Fill(const QStringList& ticked);

  const Sheet& sheet_;
};

}  // namespace qorvex::gallery
