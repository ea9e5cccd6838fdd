#pragma once

/// @file
/// SheetView, the sheet in an editor.

#include <QString>
#include <QWidget>

#include "qorvex/controls/QorvexMatrixEdit.h"

class QLabel;
class QMenu;

namespace qorvex::gallery {

class Sheet;

/// The columns of a sheet side by side, under their names. Numbers are on the right of their cells
/// and texts on the left; words for missing values are grey, and texts in a column of numbers red.
/// The table grows as values are typed or pasted; buttons below add rows and columns.
class SheetView : public QWidget {
  Q_OBJECT

 public:
  /// The sheet must outlive the view.
  explicit SheetView(Sheet& sheet, QWidget* parent = nullptr);
  ~SheetView() override;

  [[nodiscard]] TQorMatrixEdit& Editor() const noexcept { return *editor_; }
  /// Stores a text that is being typed, or discards it if it cannot be stored.
  void CommitText();
  /// The column of the selection, -1 without columns.
  [[nodiscard]] int ChosenColumn() const;
  /// Adds the commands on rows and columns to a menu.
  void AddCommands(QMenu& menu);

 public Q_SLOTS:
  /// @{
  /// Insert rows or columns before the selected ones, as many as are selected, or delete these.
  void InsertRowsHere();
  void InsertColumnsHere();
  void DeleteRowsHere();
  void DeleteColumnsHere();
  /// @}
  /// @{
  /// Append a row or a column, and go there.
  void AppendRow();
  void AppendColumn();
  /// @}
  /// Undoes the last change, also of rows and columns.
  void UndoLast();
  /// Asks for a name for the chosen column, if there is one.
  void RenameColumn();
  /// Makes the texts of the first row the names of the columns.
  void TakeNamesFromFirstRow();
  /// Asks for the words that stand for missing values.
  void ChooseMissingWords();

 Q_SIGNALS:
  /// The selection is in another column.
  void ColumnChosen(int column);
  /// The user pastes a text into the empty sheet.
  void TablePasted(const QString& text);

 private:
  void SetUpEditor();
  void FollowSelection();
  // Columns as wide as their names and the first texts in them, and the view no wider than all
  // columns.
  void FitColumns(int first, int last);
  void FitWidth();
  [[nodiscard]] QColor ColorOf(quint32 row, quint32 column, const QColor& usual) const;

  Sheet& sheet_;
  TQorMatrixEdit* editor_;
  // Shown while the sheet is empty.
  QLabel* hint_;
  int chosen_ = -1;
};

}  // namespace qorvex::gallery
