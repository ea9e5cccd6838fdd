#pragma once

/// @file
/// Sheet, the table of the program.

#include <QAbstractTableModel>
#include <QString>
#include <QStringList>
#include <memory>
#include <vector>

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
class Sheet : public QAbstractTableModel {
  Q_OBJECT

 public:
  /// No rows, no columns.
  explicit Sheet(QObject* parent = nullptr);
  ~Sheet() override;

  /// The name of a column, or "Column 3" for one without.
  [[nodiscard]] QString Title(int column) const;
  [[nodiscard]] bool IsNumeric(int column) const;
  /// The numbers of a column, one for each row; NaN for missing cells and for text. The vector
  /// shares its memory with the sheet, which never changes it. O(1) unless the column has changed.
  [[nodiscard]] TQorFloatVector Numbers(int column) const;
  /// The texts of a column, one for each row; empty for missing cells.
  [[nodiscard]] QStringList Labels(int column) const;
  /// The groups of a column, numeric or not. Takes a fraction of the memory of Labels.
  [[nodiscard]] SheetGroups Groups(int column) const;

  /// @{
  /// As in every model.
  [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
  [[nodiscard]] QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  /// @}

 Q_SIGNALS:
  /// Cells, columns or their names have changed; at most once a turn of the event loop.
  void Changed();
};

}  // namespace qorvex::gallery
