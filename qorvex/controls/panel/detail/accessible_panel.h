#pragma once

/// @file
/// AccessiblePanel, a panel of cells for screen readers.

#include <QAccessible>
#include <QAccessibleWidget>
#include <QString>
#include <algorithm>
#include <limits>
#include <map>
#include <optional>

#include "qorvex/controls/panel/cell_panel.h"
#include "qorvex/controls/panel/detail/accessible_cell.h"

namespace qorvex::inline QorvexControls::detail {

struct PanelParts;

/// Qt counts in int.
inline constexpr int kLargestInt = std::numeric_limits<int>::max();
/// A count or a number, or the largest int.
inline int AsInt(quint64 count) {
  return static_cast<int>(std::min<quint64>(count, kLargestInt));
}

/// Makes every CellPanel a table to screen readers, and its cells the cells of that table. Further
/// calls do nothing.
void RegisterAccessiblePanels();

/// A panel as a table of all elements, not only of those in sight. An element in sight is its cell;
/// others are made when they are asked for, and deleted with the table or when its size changes.
///
/// Its children are the elements, row by row, then the headings of the rows and of the columns.
/// What lies beyond the largest int cannot be reached until it is in sight. The scroll bars are
/// no children, because those of a table must be its cells, but relations lead to them.
class AccessiblePanel : public QAccessibleWidget, public QAccessibleTableInterface {
 public:
  explicit AccessiblePanel(CellPanel* panel);
  ~AccessiblePanel() override;
  AccessiblePanel(const AccessiblePanel&) = delete;
  AccessiblePanel& operator=(const AccessiblePanel&) = delete;

  /// The interface of a widget that is a panel; a null pointer for others.
  static AccessiblePanel* Of(QWidget* panel);

  /// @{
  /// What cells ask about themselves.
  [[nodiscard]] bool Has(const AccessiblePlace& place) const;
  [[nodiscard]] bool HasRowHeadings() const;
  [[nodiscard]] bool HasColHeadings() const;
  [[nodiscard]] bool IsSelected(const AccessiblePlace& place) const;
  [[nodiscard]] bool IsReadOnly(const AccessiblePlace& place) const;
  [[nodiscard]] QString Name(const AccessiblePlace& place) const;
  [[nodiscard]] QString Text(const AccessiblePlace& place) const;
  /// Of a heading in sight; empty for others.
  [[nodiscard]] QRect PlaceOnScreen(const AccessiblePlace& place) const;
  [[nodiscard]] std::optional<AccessiblePlace> PlaceOf(const TextCell& cell) const;
  [[nodiscard]] QAccessibleInterface* Cell(const AccessiblePlace& place) const;
  void Focus(const AccessiblePlace& element);
  /// @}

  int childCount() const override;
  int indexOfChild(const QAccessibleInterface* child) const override;
  QAccessibleInterface* child(int index) const override;
  QAccessibleInterface* childAt(int x, int y) const override;
  QAccessibleInterface* focusChild() const override;
  QList<std::pair<QAccessibleInterface*, QAccessible::Relation>> relations(
      QAccessible::Relation match) const override;
  QString text(QAccessible::Text kind) const override;
  QAccessible::State state() const override;
  void* interface_cast(QAccessible::InterfaceType type) override;

  QAccessibleInterface* caption() const override { return nullptr; }
  QAccessibleInterface* summary() const override { return nullptr; }
  QAccessibleInterface* cellAt(int row, int col) const override;
  int selectedCellCount() const override;
  QList<QAccessibleInterface*> selectedCells() const override;
  QString columnDescription(int col) const override;
  QString rowDescription(int row) const override;
  int selectedColumnCount() const override;
  int selectedRowCount() const override;
  int columnCount() const override;
  int rowCount() const override;
  QList<int> selectedColumns() const override;
  QList<int> selectedRows() const override;
  bool isColumnSelected(int col) const override;
  bool isRowSelected(int row) const override;
  bool selectRow(int row) override;
  bool selectColumn(int col) override;
  bool unselectRow(int row) override;
  bool unselectColumn(int col) override;
  void modelChange(QAccessibleTableModelChangeEvent* event) override;

 private:
  // The parts of the panel; a null pointer unless it is complete and has cells.
  [[nodiscard]] PanelParts* Parts() const;
  [[nodiscard]] quint32 Rows() const;
  [[nodiscard]] quint32 Cols() const;
  [[nodiscard]] CellPanel& Panel() const { return static_cast<CellPanel&>(*widget()); }
  [[nodiscard]] TQorCellRange Selection() const;
  [[nodiscard]] bool HasAllRows(const TQorCellRange& range) const;
  [[nodiscard]] bool HasAllCols(const TQorCellRange& range) const;
  [[nodiscard]] TextCell* CellInSight(const AccessiblePlace& place) const;
  void DropElements();

  mutable std::map<AccessiblePlace, QAccessible::Id> out_of_sight_;
};

}  // namespace qorvex::inline QorvexControls::detail
