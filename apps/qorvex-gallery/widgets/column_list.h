#pragma once

/// @file
/// ColumnList, the choice of several columns of the sheet.

#include <QListWidget>
#include <QStringList>
#include <optional>
#include <vector>

namespace qorvex::gallery {

class Sheet;

/// A list of the numeric columns of a sheet with a box to tick at each, which follows the sheet:
/// columns stay ticked when others are inserted or deleted and when they get other names. In
/// another table, columns of the same names are ticked.
class ColumnList : public QListWidget {
  Q_OBJECT

 public:
  /// The sheet must outlive the list.
  explicit ColumnList(const Sheet& sheet, QWidget* parent = nullptr);
  ~ColumnList() override;

  /// The ticked columns of the sheet, in its order.
  [[nodiscard]] const std::vector<int>& Columns() const { return ticked_; }
  /// @{
  /// The names of the ticked columns; each stands for one column. Names that the sheet does not
  /// have are left out.
  [[nodiscard]] QStringList Titles() const;
  void SetTitles(const QStringList& titles);
  /// @}

 Q_SIGNALS:
  /// Other columns are ticked, by the user or because the sheet has changed. Changed cells do not
  /// count: see Sheet::Changed.
  void ColumnsChanged();

 private:
  void Insert(int first, int count);
  void Remove(int first, int count);
  void Follow();
  void TakeTicks();
  void Tick(const QStringList& titles);
  void Fill();

  const Sheet& sheet_;
  std::vector<int> ticked_;
  // The names of the ticked columns of a table that has been replaced.
  std::optional<QStringList> replaced_;
};

}  // namespace qorvex::gallery
