// What a panel of cells tells screen readers.

#include <QAccessible>
#include <QCoreApplication>

#include "qorvex/controls/panel/detail/accessible_panel.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

void CellPanel::NameBars() {
  parts_->rows.Bar()->setAccessibleName(QCoreApplication::translate("CellPanel", "Rows"));
  if (QScrollBar* const bar = parts_->cols.Bar()) {
    bar->setAccessibleName(QCoreApplication::translate("CellPanel", "Columns"));
  }
}

void CellPanel::AnnounceSize() {
  if (!QAccessible::isActive()) return;
  QAccessibleTableModelChangeEvent event(this, QAccessibleTableModelChangeEvent::ModelReset);
  QAccessible::updateAccessibility(&event);
}

void CellPanel::AnnounceSelection() {
  if (!QAccessible::isActive()) return;
  QAccessibleEvent within(this, QAccessible::SelectionWithin);
  QAccessible::updateAccessibility(&within);
  // Not every platform passes that on. Qt's own views tell of one cell.
  const detail::CellPlace end = parts_->selection.End();
  const auto* const table = detail::AccessiblePanel::Of(this);
  QAccessibleInterface* const cell =
      table == nullptr ? nullptr : table->Cell({.row = end.row, .col = end.col});
  if (cell == nullptr) return;
  QAccessibleEvent added(cell, QAccessible::SelectionAdd);
  QAccessible::updateAccessibility(&added);
}

}  // namespace qorvex::inline QorvexControls
