#pragma once

/// @file
/// Sheet, the table of the program.

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>
#include <functional>
#include <optional>
#include <vector>

#include "apps/qorvex-gallery/model/sheet_data.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::gallery {

/// A column as groups of rows: those with the same text.
struct SheetGroups {
  /// The texts in the order of their first rows.
  QStringList names;
  /// For each row the index of its name; -1 for a row whose cell is missing.
  std::vector<int> group_of_row;
};

/// The one table of the program, which all pages share: columns of numbers or of text.
///
/// A cell is missing if it is empty or one of the words for missing values, such as NA. A column is
/// numeric if it has a number, and all its cells are numbers or missing.
///
/// As a model, EditRole of a number in a numeric column is the number, of any other cell its text;
/// DisplayRole is the text of every cell. setData takes numbers and texts. A text that is a number
/// in the locale of the application becomes that number.
class Sheet : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// No rows, no columns.
  explicit Sheet(QObject* parent = nullptr);
  ~Sheet() override;

  /// The name of a column, or "Column 3" for one without.
  [[nodiscard]] QString Title(int column) const;
  [[nodiscard]] bool IsNumeric(int column) const;
  /// @{
  /// A number that stays with a column wherever it goes, and the column of such a number: -1 if it
  /// is no longer there. The columns of another table have other numbers.
  [[nodiscard]] int ColumnId(int column) const { return ids_[static_cast<std::size_t>(column)]; }
  [[nodiscard]] int ColumnWith(int id) const;
  /// @}
  /// A column of this name: the given one if it has it, otherwise the first; -1 for none.
  [[nodiscard]] int FindColumn(const QString& title, int column) const;
  /// The numbers of a column, one for each row; NaN for missing cells and for text. The vector
  /// shares its memory with the sheet, which never changes it. O(1) unless the column has changed.
  [[nodiscard]] TQorFloatVector Numbers(int column) const;
  /// The texts of a column, one for each row; empty for missing cells.
  [[nodiscard]] QStringList Labels(int column) const;
  /// The groups of a column, numeric or not. Takes a fraction of the memory of Labels.
  [[nodiscard]] SheetGroups Groups(int column) const;

  /// @{
  /// All cells. Setting them shows another table, and raises Changed at once.
  [[nodiscard]] const SheetData& Data() const noexcept { return data_; }
  void SetData(SheetData data);
  /// @}
  /// The text of a cell.
  [[nodiscard]] QString Text(int row, int column) const;
  /// The first cell of a column that is neither a number nor missing; -1 for none.
  [[nodiscard]] int FirstText(int column) const;
  /// Makes the cells of the first row the names of the columns.
  void TakeNamesFromFirstRow();
  /// @{
  /// Undoes the last insertion or removal of rows or columns, if there is one.
  [[nodiscard]] bool CanUndoLines() const { return data_.LastLines().has_value(); }
  void UndoLines();
  /// @}
  /// Other words for missing values.
  void SetMissingWords(const apps::MissingWords& words);
  [[nodiscard]] bool IsChanged() const { return data_.IsChanged(); }
  /// Marks all changes as saved, in a file of this format.
  void SetSaved(const apps::TableFormat& format);

  /// @{
  /// As in every model.
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                    int role = Qt::DisplayRole) const override;
  [[nodiscard]] Qt::ItemFlags flags(const QModelIndex& index) const override;
  bool setData(const QModelIndex& index, const QVariant& value, int role = Qt::EditRole) override;
  bool setHeaderData(int section, Qt::Orientation orientation, const QVariant& value,
                     int role = Qt::EditRole) override;
  bool insertRows(int row, int count, const QModelIndex& parent = {}) override;
  bool removeRows(int row, int count, const QModelIndex& parent = {}) override;
  bool insertColumns(int column, int count, const QModelIndex& parent = {}) override;
  bool removeColumns(int column, int count, const QModelIndex& parent = {}) override;
  /// @}

 Q_SIGNALS:
  /// Cells, columns or their names have changed, or all are saved; otherwise than by
  /// SetData at most once a turn of the event loop.
  void Changed();

 private:
  // Does something to rows or columns between the signals that announce and report it.
  void ChangeLines(const SheetData::Lines& lines, const std::function<void()>& change);
  // Gives the new columns their numbers.
  void InsertIds(int column, std::size_t count);
  void ChangedSoon();
  // The text for a cell, as this table writes it.
  [[nodiscard]] std::string TextFor(const QVariant& value) const;
  void Store(std::size_t row, std::size_t column, const std::string& text);

  SheetData data_;
  // By column, once they have been asked for.
  mutable std::vector<std::optional<TQorFloatVector>> numbers_;
  std::vector<int> ids_;
  int next_id_ = 0;
  bool change_is_due_ = false;
};

}  // namespace qorvex::gallery
