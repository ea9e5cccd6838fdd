// What a panel of cells tells screen readers.

#include <QAccessible>
#include <QCoreApplication>

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
  QAccessibleEvent event(this, QAccessible::SelectionWithin);
  QAccessible::updateAccessibility(&event);
}

}  // namespace qorvex::inline QorvexControls
