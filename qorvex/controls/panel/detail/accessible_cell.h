#pragma once

/// @file
/// The cells of a panel's table for screen readers.

#include <QAccessible>
#include <QAccessibleWidget>
#include <QPointer>
#include <QString>
#include <compare>
#include <optional>

#include "qorvex/base_controls/text_cell.h"
#include "qorvex/controls/panel/cell_panel.h"
#include "qorvex/controls/panel/detail/accessible_text.h"

namespace qorvex::inline QorvexControls::detail {

class AccessiblePanel;

/// An element of a table, or the heading of one of its rows or columns.
struct AccessiblePlace {
  enum class Kind { kElement, kRowHeading, kColHeading };
  Kind kind = Kind::kElement;
  quint32 row = 0;  ///< 0 for the heading of a column.
  quint32 col = 0;  ///< 0 for the heading of a row.

  friend auto operator<=>(const AccessiblePlace&, const AccessiblePlace&) = default;
};

/// What the cells in sight and those out of sight have in common.
class AccessibleTableCell : public QAccessibleTableCellInterface {
 public:
  /// The table, or a null pointer after its deletion.
  [[nodiscard]] virtual AccessiblePanel* Table() const = 0;
  /// The place, or nothing if the cell does not belong to the table.
  [[nodiscard]] virtual std::optional<AccessiblePlace> Place() const = 0;

  bool isSelected() const override;
  QList<QAccessibleInterface*> columnHeaderCells() const override;
  QList<QAccessibleInterface*> rowHeaderCells() const override;
  int columnIndex() const override;
  int rowIndex() const override;
  int columnExtent() const override { return 1; }
  int rowExtent() const override { return 1; }
  QAccessibleInterface* table() const override;

 protected:
  // The role of a cell.
  [[nodiscard]] QAccessible::Role RoleInTable() const;
  // Adds the states of a cell to those of an interface.
  [[nodiscard]] QAccessible::State StateInTable(QAccessible::State state) const;
};

/// A cell or a heading in sight, which can be edited like any line edit.
class AccessibleCell : public QAccessibleWidget, public AccessibleTableCell {
 public:
  explicit AccessibleCell(TextCell* cell) : QAccessibleWidget(cell), text_(*cell) {}

  AccessiblePanel* Table() const override;
  std::optional<AccessiblePlace> Place() const override;

  QAccessible::Role role() const override { return RoleInTable(); }
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  /// A value counts as typed and committed.
  void setText(QAccessible::Text kind, const QString& text) override;
  void* interface_cast(QAccessible::InterfaceType type) override;

 private:
  [[nodiscard]] TextCell* Cell() const { return static_cast<TextCell*>(widget()); }

  AccessibleText text_;
};

/// An element out of sight, or a heading that is no widget. Giving an element the focus scrolls it
/// into sight.
class AccessibleElement : public QAccessibleInterface,
                          public AccessibleTableCell,
                          public QAccessibleActionInterface,
                          public AccessibleReading {
 public:
  AccessibleElement(CellPanel* panel, const AccessiblePlace& place)
      : panel_(panel), place_(place) {}

  QString WholeText() const override;

  AccessiblePanel* Table() const override;
  std::optional<AccessiblePlace> Place() const override;

  bool isValid() const override { return Place().has_value(); }
  QObject* object() const override { return nullptr; }
  QWindow* window() const override;
  QAccessibleInterface* parent() const override { return table(); }
  QAccessibleInterface* child(int) const override { return nullptr; }
  QAccessibleInterface* childAt(int, int) const override { return nullptr; }
  int childCount() const override { return 0; }
  int indexOfChild(const QAccessibleInterface*) const override { return -1; }
  QRect rect() const override;
  QAccessible::Role role() const override { return RoleInTable(); }
  QAccessible::State state() const override;
  QString text(QAccessible::Text kind) const override;
  using AccessibleReading::text;
  void setText(QAccessible::Text, const QString&) override {}
  void* interface_cast(QAccessible::InterfaceType type) override;

  QStringList actionNames() const override { return {setFocusAction()}; }
  void doAction(const QString& name) override;
  QStringList keyBindingsForAction(const QString&) const override { return {}; }

 private:
  QPointer<CellPanel> panel_;
  AccessiblePlace place_;
};

}  // namespace qorvex::inline QorvexControls::detail
