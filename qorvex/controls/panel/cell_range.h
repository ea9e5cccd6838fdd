#pragma once

/// @file
/// TQorCellRange, a rectangle of elements.

#include <QtGlobal>

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
  /// Equal in all members.
  friend bool operator==(const TQorCellRange&, const TQorCellRange&) = default;
};

}  // namespace qorvex::inline QorvexControls
