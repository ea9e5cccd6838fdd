#include "qorvex/controls/panel/detail/accessible_cell.h"

#include "qorvex/controls/panel/detail/accessible_panel.h"

namespace qorvex::inline QorvexControls::detail {

using Kind = AccessiblePlace::Kind;

namespace {

// -1 stands for an index that is not known.
int Index(quint32 index) {
  return index <= quint32{kLargestInt} ? static_cast<int>(index) : -1;
}

}  // namespace

bool AccessibleTableCell::isSelected() const {
  const auto place = Place();
  return place && Table()->IsSelected(*place);
}

QList<QAccessibleInterface*> AccessibleTableCell::columnHeaderCells() const {
  const auto place = Place();
  if (!place || place->kind != Kind::kElement || !Table()->HasColHeadings()) return {};
  return {Table()->Cell({Kind::kColHeading, 0, place->col})};
}

QList<QAccessibleInterface*> AccessibleTableCell::rowHeaderCells() const {
  const auto place = Place();
  if (!place || place->kind != Kind::kElement || !Table()->HasRowHeadings()) return {};
  return {Table()->Cell({Kind::kRowHeading, place->row, 0})};
}

int AccessibleTableCell::columnIndex() const {
  const auto place = Place();
  return place && place->kind != Kind::kRowHeading ? Index(place->col) : -1;
}

int AccessibleTableCell::rowIndex() const {
  const auto place = Place();
  return place && place->kind != Kind::kColHeading ? Index(place->row) : -1;
}

QAccessibleInterface* AccessibleTableCell::table() const {
  return Table();
}

QAccessible::Role AccessibleTableCell::RoleInTable() const {
  switch (Place().value_or(AccessiblePlace()).kind) {
    case Kind::kRowHeading:
      return QAccessible::RowHeader;
    case Kind::kColHeading:
      return QAccessible::ColumnHeader;
    case Kind::kElement:
      break;
  }
  return QAccessible::Cell;
}

QAccessible::State AccessibleTableCell::StateInTable(QAccessible::State state) const {
  const auto place = Place();
  state.selectable = place.has_value();
  state.selected = isSelected();
  return state;
}

AccessiblePanel* AccessibleCell::Table() const {
  return Cell() == nullptr ? nullptr : AccessiblePanel::Of(Cell()->parentWidget());
}

std::optional<AccessiblePlace> AccessibleCell::Place() const {
  const AccessiblePanel* const table = Table();
  return table == nullptr ? std::nullopt : table->PlaceOf(*Cell());
}

QAccessible::State AccessibleCell::state() const {
  QAccessible::State state = StateInTable(QAccessibleWidget::state());
  state.selectableText = true;
  state.readOnly = Cell()->isReadOnly();
  state.editable = !state.readOnly;
  state.hasPopup = true;
  return state;
}

QString AccessibleCell::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Value) return Cell()->text();
  const QString text = QAccessibleWidget::text(kind);
  if (kind != QAccessible::Name || !text.isEmpty()) return text;
  const auto place = Place();
  return place ? Table()->Name(*place) : text;
}

void AccessibleCell::setText(QAccessible::Text kind, const QString& text) {
  if (kind != QAccessible::Value) {
    QAccessibleWidget::setText(kind, text);
  } else if (Cell()->isEnabled() && !Cell()->isReadOnly()) {
    Cell()->selectAll();
    Cell()->insert(text);
    Cell()->CommitOrRestore();
  }
}

void* AccessibleCell::interface_cast(QAccessible::InterfaceType type) {
  switch (type) {
    case QAccessible::TextInterface:
      return static_cast<QAccessibleTextInterface*>(&text_);
    case QAccessible::EditableTextInterface:
      return static_cast<QAccessibleEditableTextInterface*>(&text_);
    case QAccessible::TableCellInterface:
      return static_cast<QAccessibleTableCellInterface*>(this);
    default:
      return QAccessibleWidget::interface_cast(type);
  }
}

AccessiblePanel* AccessibleElement::Table() const {
  return AccessiblePanel::Of(panel_);
}

std::optional<AccessiblePlace> AccessibleElement::Place() const {
  const AccessiblePanel* const table = Table();
  return table != nullptr && table->Has(place_) ? std::optional(place_) : std::nullopt;
}

QWindow* AccessibleElement::window() const {
  const AccessiblePanel* const table = Table();
  return table == nullptr ? nullptr : table->window();
}

QRect AccessibleElement::rect() const {
  return isValid() ? Table()->PlaceOnScreen(place_) : QRect();
}

QAccessible::State AccessibleElement::state() const {
  QAccessible::State state;
  const AccessiblePanel* const table = Table();
  if (!isValid()) {
    state.invalid = true;
    return state;
  }
  state.offscreen = rect().isEmpty();
  state.focusable = place_.kind == Kind::kElement;
  state.disabled = table->state().disabled;
  state.readOnly = table->IsReadOnly(place_);
  return StateInTable(state);
}

QString AccessibleElement::WholeText() const {
  return isValid() ? Table()->Text(place_) : QString();
}

QString AccessibleElement::text(QAccessible::Text kind) const {
  if (kind == QAccessible::Value) return WholeText();
  return kind == QAccessible::Name && isValid() ? Table()->Name(place_) : QString();
}

void* AccessibleElement::interface_cast(QAccessible::InterfaceType type) {
  switch (type) {
    case QAccessible::ActionInterface:
      return static_cast<QAccessibleActionInterface*>(this);
    case QAccessible::TextInterface:
      return static_cast<QAccessibleTextInterface*>(this);
    case QAccessible::TableCellInterface:
      return static_cast<QAccessibleTableCellInterface*>(this);
    default:
      return nullptr;
  }
}

void AccessibleElement::doAction(const QString& name) {
  if (name == setFocusAction() && isValid() && place_.kind == Kind::kElement) {
    Table()->Focus(place_);
  }
}

}  // namespace qorvex::inline QorvexControls::detail
