#include "qorvex/controls/panel/detail/accessible_panel.h"

#include <QCoreApplication>
#include <utility>

#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

using Kind = AccessiblePlace::Kind;

QAccessibleInterface* MakeAccessible(const QString&, QObject* object) {
  if (auto* const panel = qobject_cast<CellPanel*>(object)) return new AccessiblePanel(panel);
  auto* const text = qobject_cast<TextCell*>(object);
  if (text == nullptr || !qobject_cast<CellPanel*>(text->parentWidget())) return nullptr;
  return new AccessibleCell(text);
}

// Taken back at the end, for a library that is unloaded.
struct Registration {
  Registration() { QAccessible::installFactory(MakeAccessible); }
  ~Registration() { QAccessible::removeFactory(MakeAccessible); }
};

}  // namespace

void RegisterAccessiblePanels() {
  static const Registration registration;
}

AccessiblePanel::AccessiblePanel(CellPanel* panel) : QAccessibleWidget(panel, QAccessible::Table) {}

AccessiblePanel::~AccessiblePanel() {
  DropElements();
}

AccessiblePanel* AccessiblePanel::Of(QWidget* panel) {
  return dynamic_cast<AccessiblePanel*>(QAccessible::queryAccessibleInterface(panel));
}

PanelParts* AccessiblePanel::Parts() const {
  PanelParts* const parts = PanelParts::Of(widget());
  return parts == nullptr || parts->grid.IsEmpty() ? nullptr : parts;
}

quint32 AccessiblePanel::Rows() const {
  // With the empty row that takes a new value.
  return Parts() == nullptr ? 0 : Parts()->rows.Window().Count();
}

quint32 AccessiblePanel::Cols() const {
  return Parts() == nullptr ? 0 : Parts()->cols.Window().Count();
}

bool AccessiblePanel::Has(const AccessiblePlace& place) const {
  switch (place.kind) {
    case Kind::kRowHeading:
      return HasRowHeadings() && place.row < Rows();
    case Kind::kColHeading:
      return HasColHeadings() && place.col < Cols();
    case Kind::kElement:
      break;
  }
  return place.row < Rows() && place.col < Cols();
}

bool AccessiblePanel::HasRowHeadings() const {
  const PanelParts* const parts = Parts();
  return parts != nullptr && (parts->grid.HasHeader() || parts->headings.HasRows());
}

bool AccessiblePanel::HasColHeadings() const {
  return Parts() != nullptr && Parts()->headings.HasCols();
}

bool AccessiblePanel::IsReadOnly(const AccessiblePlace& place) const {
  if (place.kind != Kind::kElement || state().readOnly) return true;
  const CellTable& table = Parts()->table;
  return place.row < table.RowCount() && place.col < table.ColCount() &&
         table.IsReadOnly(place.row, place.col);
}

QString AccessiblePanel::Name(const AccessiblePlace& place) const {
  return place.kind == Kind::kElement ? Parts()->table.CellName(place.row, place.col) : Text(place);
}

QString AccessiblePanel::Text(const AccessiblePlace& place) const {
  const PanelParts& parts = *Parts();
  if (place.kind == Kind::kColHeading) {
    return place.col < parts.table.ColCount() ? parts.table.ColHeading(place.col) : QString();
  }
  if (place.row >= parts.table.RowCount()) return {};
  if (place.kind == Kind::kRowHeading) return parts.table.RowHeading(place.row);
  if (place.col >= parts.table.ColCount()) return {};
  const Extended value = parts.table.Value(place.row, place.col);
  // Asking for it may have taken the cells away.
  return parts.grid.IsEmpty() ? QString() : parts.grid.TextFor(place.col, value);
}

TextCell* AccessiblePanel::CellInSight(const AccessiblePlace& place) const {
  const PanelParts& parts = *Parts();
  const std::size_t row = place.row - parts.rows.Window().Top();
  const std::size_t col = place.col - parts.cols.Window().Top();
  switch (place.kind) {
    case Kind::kElement:
      return parts.grid.IsUsed(row, col) ? parts.grid.Cell(row, col) : nullptr;
    case Kind::kRowHeading:
      return parts.grid.IsUsed(row, 0) ? parts.grid.HeaderText(row) : nullptr;
    case Kind::kColHeading:
      break;
  }
  return nullptr;
}

QRect AccessiblePanel::PlaceOnScreen(const AccessiblePlace& place) const {
  const PanelParts& parts = *Parts();
  const quint32 row = place.row - parts.rows.Window().Top();
  const quint32 col = place.col - parts.cols.Window().Top();
  QRect heading;
  if (place.kind == Kind::kRowHeading && parts.grid.IsUsed(row, 0)) {
    heading = parts.geometry.InFrontOf(row);
  } else if (place.kind == Kind::kColHeading && parts.grid.IsUsed(0, col)) {
    heading = parts.geometry.Above(col);
  }
  if (heading.isEmpty()) return {};
  heading = parts.geometry.Placed(heading);
  return {widget()->mapToGlobal(heading.topLeft()), heading.size()};
}

std::optional<AccessiblePlace> AccessiblePanel::PlaceOf(const TextCell& cell) const {
  const PanelParts* const parts = Parts();
  if (parts == nullptr) return std::nullopt;
  const quint32 top = parts->rows.Window().Top();
  const quint32 left = parts->cols.Window().Top();
  for (quint32 row = 0; parts->grid.IsUsed(row, 0); ++row) {
    if (parts->grid.HeaderText(row) == &cell) return {{Kind::kRowHeading, top + row, 0}};
    for (quint32 col = 0; parts->grid.IsUsed(row, col); ++col) {
      if (parts->grid.Cell(row, col) == &cell) return {{Kind::kElement, top + row, left + col}};
    }
  }
  return std::nullopt;
}

QAccessibleInterface* AccessiblePanel::Cell(const AccessiblePlace& place) const {
  if (!Has(place)) return nullptr;
  if (TextCell* const cell = CellInSight(place)) return QAccessible::queryAccessibleInterface(cell);
  const auto [found, is_new] = out_of_sight_.try_emplace(place);
  if (is_new) {
    auto* const element = new AccessibleElement(&Panel(), place);
    found->second = QAccessible::registerAccessibleInterface(element);
  }
  return QAccessible::accessibleInterface(found->second);
}

void AccessiblePanel::Focus(const AccessiblePlace& element) {
  Parts()->focus.FocusElement(element.row, element.col);
}

void AccessiblePanel::DropElements() {
  for (const auto& [place, id] : std::exchange(out_of_sight_, {})) {
    QAccessible::deleteAccessibleInterface(id);
  }
}

QString AccessiblePanel::text(QAccessible::Text kind) const {
  const QString text = QAccessibleWidget::text(kind);
  if (kind != QAccessible::Name || !text.isEmpty()) return text;
  return Parts() != nullptr && Parts()->cols.Bar() != nullptr
             ? QCoreApplication::translate("CellPanel", "Matrix")
             : QCoreApplication::translate("CellPanel", "Vector");
}

QAccessible::State AccessiblePanel::state() const {
  QAccessible::State state = QAccessibleWidget::state();
  // The focus is in a cell.
  state.focused = false;
  state.multiSelectable = true;
  state.extSelectable = true;
  state.readOnly = Panel().EffectiveSettings().read_only;
  return state;
}

void* AccessiblePanel::interface_cast(QAccessible::InterfaceType type) {
  if (type == QAccessible::TableInterface) return static_cast<QAccessibleTableInterface*>(this);
  return QAccessibleWidget::interface_cast(type);
}

void AccessiblePanel::modelChange(QAccessibleTableModelChangeEvent*) {
  DropElements();
}

}  // namespace qorvex::inline QorvexControls::detail
