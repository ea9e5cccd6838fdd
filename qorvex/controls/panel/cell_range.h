#pragma once

/// @file
/// TQorCellRange, a rectangle of elements.

#include <QtGlobal>
#include <algorithm>

namespace qorvex::inline QorvexControls {

/// A rectangle of elements of a table: so many rows and columns from the given ones on.
struct TQorCellRange {
  quint32 row = 0;   ///< The first row.
  quint32 rows = 0;  ///< The number of rows.
  quint32 col = 0;   ///< The first column.
  quint32 cols = 0;  ///< The number of columns.

  /// Whether it has no element.
  [[nodiscard]] bool IsEmpty() const noexcept { return rows == 0 || cols == 0; }
  /// Whether an element belongs to it.
  [[nodiscard]] bool Contains(quint32 a_row, quint32 a_col) const noexcept {
    return a_row >= row && a_row - row < rows && a_col >= col && a_col - col < cols;
  }
  /// The part of it that lies in a table of this size.
  [[nodiscard]] TQorCellRange Within(quint32 table_rows, quint32 table_cols) const noexcept {
    const quint32 first_row = std::min(row, table_rows);
    const quint32 first_col = std::min(col, table_cols);
    return {first_row, std::min(rows, table_rows - first_row), first_col,
            std::min(cols, table_cols - first_col)};
  }
  /// Equal in all members.
  friend bool operator==(const TQorCellRange&, const TQorCellRange&) = default;
};

}  // namespace qorvex::inline QorvexControls
