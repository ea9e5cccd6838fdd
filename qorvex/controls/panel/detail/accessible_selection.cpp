// The size and the selection of a table for screen readers.

#include <algorithm>
#include <limits>
#include <numeric>

#include "qorvex/controls/panel/detail/accessible_panel.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

// A list of what is selected may have as many entries as the table. Screen readers ask for the
// first few.
constexpr quint32 kMaxListed = 1000;

QList<int> Numbers(quint32 first, quint32 count) {
  // Those that are an int.
  const quint32 end = std::numeric_limits<int>::max();
  QList<int> numbers(std::min({count, kMaxListed, end - std::min(first, end)}));
  std::iota(numbers.begin(), numbers.end(), AsInt(first));
  return numbers;
}

}  // namespace

int AccessiblePanel::rowCount() const {
  return AsInt(Rows());
}

int AccessiblePanel::columnCount() const {
  return AsInt(Cols());
}

QAccessibleInterface* AccessiblePanel::cellAt(int row, int col) const {
  if (row < 0 || col < 0) return nullptr;
  return Cell(
      {AccessiblePlace::Kind::kElement, static_cast<quint32>(row), static_cast<quint32>(col)});
}

QString AccessiblePanel::rowDescription(int row) const {
  const bool exists = HasRowHeadings() && row >= 0 && row < rowCount();
  return exists ? Parts()->table.RowHeading(static_cast<quint32>(row)) : QString();
}

QString AccessiblePanel::columnDescription(int col) const {
  const bool exists = HasColHeadings() && col >= 0 && col < columnCount();
  return exists ? Parts()->table.ColHeading(static_cast<quint32>(col)) : QString();
}

TQorCellRange AccessiblePanel::Selection() const {
  return Parts() == nullptr ? TQorCellRange() : Parts()->selection.Range();
}

// The spare row has no elements that could be selected.
bool AccessiblePanel::HasAllRows(const TQorCellRange& range) const {
  if (range.row != 0 || range.rows == 0) return false;
  const quint32 rows = Parts()->table.RowCount();
  return rows > 0 && range.rows >= rows;
}

bool AccessiblePanel::HasAllCols(const TQorCellRange& range) const {
  if (range.col != 0 || range.cols == 0) return false;
  const quint32 cols = Parts()->table.ColCount();
  return cols > 0 && range.cols >= cols;
}

bool AccessiblePanel::IsSelected(const AccessiblePlace& place) const {
  switch (place.kind) {
    case AccessiblePlace::Kind::kRowHeading:
      return isRowSelected(AsInt(place.row));
    case AccessiblePlace::Kind::kColHeading:
      return isColumnSelected(AsInt(place.col));
    case AccessiblePlace::Kind::kElement:
      break;
  }
  return Selection().Contains(place.row, place.col);
}

bool AccessiblePanel::isRowSelected(int row) const {
  const TQorCellRange range = Selection();
  return row >= 0 && HasAllCols(range) && range.Contains(static_cast<quint32>(row), 0);
}

bool AccessiblePanel::isColumnSelected(int col) const {
  const TQorCellRange range = Selection();
  return col >= 0 && HasAllRows(range) && range.Contains(0, static_cast<quint32>(col));
}

int AccessiblePanel::selectedCellCount() const {
  const TQorCellRange range = Selection();
  return AsInt(quint64{range.rows} * range.cols);
}

QList<QAccessibleInterface*> AccessiblePanel::selectedCells() const {
  const TQorCellRange range = Selection();
  QList<QAccessibleInterface*> cells;
  for (quint32 row = 0; row < range.rows; ++row) {
    for (quint32 col = 0; col < range.cols; ++col) {
      if (cells.size() == kMaxListed) return cells;
      cells.append(Cell({AccessiblePlace::Kind::kElement, range.row + row, range.col + col}));
    }
  }
  return cells;
}

int AccessiblePanel::selectedRowCount() const {
  const TQorCellRange range = Selection();
  return HasAllCols(range) ? AsInt(range.rows) : 0;
}

int AccessiblePanel::selectedColumnCount() const {
  const TQorCellRange range = Selection();
  return HasAllRows(range) ? AsInt(range.cols) : 0;
}

QList<int> AccessiblePanel::selectedRows() const {
  const TQorCellRange range = Selection();
  return HasAllCols(range) ? Numbers(range.row, range.rows) : QList<int>();
}

QList<int> AccessiblePanel::selectedColumns() const {
  const TQorCellRange range = Selection();
  return HasAllRows(range) ? Numbers(range.col, range.cols) : QList<int>();
}

bool AccessiblePanel::selectRow(int row) {
  if (row < 0 || row >= rowCount()) return false;
  Panel().SelectRows(static_cast<quint32>(row), 1);
  return true;
}

bool AccessiblePanel::selectColumn(int col) {
  if (col < 0 || col >= columnCount()) return false;
  Panel().SelectCols(static_cast<quint32>(col), 1);
  return true;
}

bool AccessiblePanel::unselectRow(int row) {
  // What is left would not always be a rectangle.
  if (!isRowSelected(row) || selectedRowCount() > 1) return false;
  Panel().ClearSelection();
  return true;
}

bool AccessiblePanel::unselectColumn(int col) {
  if (!isColumnSelected(col) || selectedColumnCount() > 1) return false;
  Panel().ClearSelection();
  return true;
}

}  // namespace qorvex::inline QorvexControls::detail
