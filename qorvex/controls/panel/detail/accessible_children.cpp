// The tree of a table's cells for screen readers.

#include <QApplication>

#include "qorvex/controls/panel/detail/accessible_panel.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls::detail {

using Kind = AccessiblePlace::Kind;

int AccessiblePanel::childCount() const {
  const quint64 headings = (HasRowHeadings() ? Rows() : 0) + (HasColHeadings() ? Cols() : 0);
  return AsInt(quint64{Rows()} * Cols() + headings);
}

int AccessiblePanel::indexOfChild(const QAccessibleInterface* child) const {
  const auto* const cell = dynamic_cast<const AccessibleTableCell*>(child);
  if (cell == nullptr || cell->Table() != this || !cell->Place()) return -1;
  const AccessiblePlace place = *cell->Place();
  quint64 index = quint64{place.row} * Cols() + place.col;
  if (place.kind != Kind::kElement) {
    index = quint64{Rows()} * Cols() + place.row + place.col;
    if (place.kind == Kind::kColHeading && HasRowHeadings()) index += Rows();
  }
  return index < quint64{kLargestInt} ? static_cast<int>(index) : -1;
}

QAccessibleInterface* AccessiblePanel::child(int index) const {
  if (index < 0 || index >= childCount()) return nullptr;
  auto rest = static_cast<quint64>(index);
  const auto at = [](quint64 place) { return static_cast<quint32>(place); };
  const quint64 elements = quint64{Rows()} * Cols();
  if (rest < elements) return Cell({Kind::kElement, at(rest / Cols()), at(rest % Cols())});
  rest -= elements;
  if (HasRowHeadings()) {
    if (rest < Rows()) return Cell({Kind::kRowHeading, at(rest), 0});
    rest -= Rows();
  }
  return Cell({Kind::kColHeading, 0, at(rest)});
}

QAccessibleInterface* AccessiblePanel::childAt(int x, int y) const {
  if (const PanelParts* const parts = Parts()) {
    // Some headings are painted, and are no widgets.
    for (quint32 row = 0; row < parts->rows.Window().UsedEdits(); ++row) {
      const AccessiblePlace heading{Kind::kRowHeading, parts->rows.Window().Top() + row, 0};
      if (PlaceOnScreen(heading).contains(x, y)) return Cell(heading);
    }
    for (quint32 col = 0; col < parts->cols.Window().UsedEdits(); ++col) {
      const AccessiblePlace heading{Kind::kColHeading, 0, parts->cols.Window().Top() + col};
      if (PlaceOnScreen(heading).contains(x, y)) return Cell(heading);
    }
  }
  QWidget* const at = widget()->childAt(widget()->mapFromGlobal(QPoint(x, y)));
  return at == nullptr ? nullptr : QAccessible::queryAccessibleInterface(at);
}

QAccessibleInterface* AccessiblePanel::focusChild() const {
  QWidget* const focus = QApplication::focusWidget();
  if (focus == nullptr || !widget()->isAncestorOf(focus)) return nullptr;
  return QAccessible::queryAccessibleInterface(focus);
}

QList<std::pair<QAccessibleInterface*, QAccessible::Relation>> AccessiblePanel::relations(
    QAccessible::Relation match) const {
  auto found = QAccessibleWidget::relations(match);
  if (Parts() == nullptr || !match.testFlag(QAccessible::Controller)) return found;
  for (QScrollBar* const bar : {Parts()->rows.Bar(), Parts()->cols.Bar()}) {
    if (bar == nullptr) continue;
    found.append({QAccessible::queryAccessibleInterface(bar), QAccessible::Controller});
  }
  return found;
}

}  // namespace qorvex::inline QorvexControls::detail
