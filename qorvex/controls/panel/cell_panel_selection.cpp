// The selection of a panel of cells: selecting, copying, pasting, deleting and filling.

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QMenu>
#include <QMimeData>
#include <limits>
#include <new>
#include <utility>

#include "qorvex/controls/panel/detail/block_clipboard.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

namespace {

constexpr quint32 kAll = std::numeric_limits<quint32>::max();

}  // namespace

TQorCellRange CellPanel::Selection() const {
  return parts_->selection.Range();
}

void CellPanel::Select(const TQorCellRange& range) {
  const TQorCellRange inside = range.Within(table_.RowCount(), table_.ColCount());
  if (inside.IsEmpty()) return ClearSelection();
  parts_->selection.Select({inside.row, inside.col},
                           {inside.row + inside.rows - 1, inside.col + inside.cols - 1});
}

void CellPanel::SelectAll() {
  Select({0, kAll, 0, kAll});
}

void CellPanel::SelectRows(quint32 first, quint32 count) {
  Select({first, count, 0, kAll});
}

void CellPanel::SelectCols(quint32 first, quint32 count) {
  Select({0, kAll, first, count});
}

void CellPanel::ClearSelection() {
  parts_->selection.Clear();
}

bool CellPanel::CopyCells(const TQorCellRange& range) {
  parts_->focus.CommitPending();
  const TQorCellRange inside = range.Within(table_.RowCount(), table_.ColCount());
  if (inside.IsEmpty() || parts_->grid.IsEmpty()) return false;
  const quint64 values = quint64{inside.rows} * inside.cols;
  if (values > detail::kMaxBlockValues) {
    RefuseBlock(detail::TooManyToCopy(values));
    return false;
  }
  QString text = detail::BlockText(table_, *parts_->grid.Cell(0, 0), inside);
  // An empty text could not be pasted.
  if (values == 1 && text.size() > 1) text.chop(1);
  QApplication::clipboard()->setText(text);
  return true;
}

bool CellPanel::Copy() {
  return CopyCells(Selection());
}

void CellPanel::CopyAll() {
  CopyCells({0, kAll, 0, kAll});
}

bool CellPanel::RequireChangeable() {
  if (!EffectiveSettings().read_only) return true;
  RefuseBlock(detail::NotChangeable());
  return false;
}

bool CellPanel::ChangeBlock(const QString& step,
                            const std::function<detail::BlockChanges()>& plan) {
  parts_->focus.CommitPending();
  if (!RequireChangeable()) return false;
  detail::BlockChanges block = plan();
  detail::RefuseReadOnly(table_, block);
  if (block.refusal.isEmpty()) {
    if (block.changes.empty() && block.lines.empty()) return true;
    try {
      if (parts_->history.Apply(block.lines, std::move(block.changes), step)) return true;
      block.refusal = detail::NotChangeable();
    } catch (const std::bad_alloc&) {
      block.refusal = detail::OutOfMemory();
    }
  }
  RefuseBlock(block.refusal);
  return false;
}

bool CellPanel::PasteBlock(const QString& text) {
  return ChangeBlock(QCoreApplication::translate("CellPanel", "Paste"), [&] {
    const detail::Growth growth{
        .rows = MayGrow(CellAxis::kRows), .cols = MayGrow(CellAxis::kCols), .value = NewElement()};
    return detail::PlanPaste(table_, parts_->grid.IsEmpty() ? nullptr : parts_->grid.Cell(0, 0),
                             text, SelectedBlock(), growth);
  });
}

bool CellPanel::Paste() {
  const QMimeData* const contents = QApplication::clipboard()->mimeData();
  return contents != nullptr && contents->hasText() && PasteBlock(contents->text());
}

bool CellPanel::RequireNulls() {
  if (EffectiveSettings().nulls.allow_kbd_null) return true;
  RefuseBlock(detail::NotNull());
  return false;
}

bool CellPanel::DeleteSelected() {
  return RequireChangeable() && RequireNulls() &&
         ChangeBlock(QCoreApplication::translate("CellPanel", "Delete"), [this] {
           return detail::PlanDelete(table_,
                                     Selection().Within(table_.RowCount(), table_.ColCount()));
         });
}

bool CellPanel::Cut() {
  return RequireChangeable() && RequireNulls() && Copy() && DeleteSelected();
}

bool CellPanel::FillDown() {
  return ChangeBlock(QCoreApplication::translate("CellPanel", "Fill Down"), [this] {
    return detail::PlanFillDown(table_, Selection().Within(table_.RowCount(), table_.ColCount()));
  });
}

bool CellPanel::FillRight() {
  return ChangeBlock(QCoreApplication::translate("CellPanel", "Fill Right"), [this] {
    return detail::PlanFillRight(table_, Selection().Within(table_.RowCount(), table_.ColCount()));
  });
}

void CellPanel::AddSelectionToMenu(QMenu* menu) {
  // The entries of the line edit concern its text.
  menu->clear();
  const CellSettings settings = EffectiveSettings();
  const bool changes = !settings.read_only;
  const bool deletes = changes && settings.nulls.allow_kbd_null;
  const auto add = [menu](const QString& text, Qt::KeyboardModifiers held, Qt::Key key) {
    const QKeySequence keys(QKeyCombination(held, key));
    return menu->addAction(text + QLatin1Char('\t') + keys.toString(QKeySequence::NativeText));
  };
  const auto connect_to = [this](QAction* action, bool enabled, auto function) {
    action->setEnabled(enabled);
    connect(action, &QAction::triggered, this, function);
  };
  connect_to(add(QCoreApplication::translate("CellPanel", "Cut"), Qt::ControlModifier, Qt::Key_X),
             deletes, &CellPanel::Cut);
  connect_to(add(QCoreApplication::translate("CellPanel", "Copy"), Qt::ControlModifier, Qt::Key_C),
             true, &CellPanel::Copy);
  const QMimeData* const contents = QApplication::clipboard()->mimeData();
  connect_to(add(QCoreApplication::translate("CellPanel", "Paste"), Qt::ControlModifier, Qt::Key_V),
             changes && contents != nullptr && contents->hasText(), &CellPanel::Paste);
  connect_to(add(QCoreApplication::translate("CellPanel", "Delete"), {}, Qt::Key_Delete), deletes,
             &CellPanel::DeleteSelected);
  menu->addSeparator();
  connect_to(
      add(QCoreApplication::translate("CellPanel", "Fill Down"), Qt::ControlModifier, Qt::Key_D),
      changes, &CellPanel::FillDown);
  if (parts_->cols.Bar() != nullptr) {
    connect_to(
        add(QCoreApplication::translate("CellPanel", "Fill Right"), Qt::ControlModifier, Qt::Key_R),
        changes, &CellPanel::FillRight);
  }
  menu->addSeparator();
  connect_to(
      add(QCoreApplication::translate("CellPanel", "Select All"), Qt::ControlModifier, Qt::Key_A),
      true, &CellPanel::SelectAll);
}

}  // namespace qorvex::inline QorvexControls
