// The selection of a panel of cells: selecting, copying, pasting, deleting and filling.

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QMenu>
#include <QMimeData>
#include <algorithm>
#include <limits>
#include <new>
#include <utility>

#include "qorvex/controls/panel/detail/block_clipboard.h"
#include "qorvex/controls/panel/detail/menu_entry.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

namespace {

constexpr quint32 kAll = std::numeric_limits<quint32>::max();

// Entries of the menu, which also name the steps that can be undone.
QString TextOfCut() {
  return QCoreApplication::translate("CellPanel", "Cut");
}

QString TextOfPaste() {
  return QCoreApplication::translate("CellPanel", "Paste");
}

QString TextOfDelete() {
  return QCoreApplication::translate("CellPanel", "Delete");
}

QString TextOfFillDown() {
  return QCoreApplication::translate("CellPanel", "Fill Down");
}

QString TextOfFillRight() {
  return QCoreApplication::translate("CellPanel", "Fill Right");
}

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
  parts_->focus.CommitUnless(
      [&range](quint32 row, quint32 col) { return !range.Contains(row, col); });
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

bool CellPanel::ChangeBlock(const QString& step, const BlockPlan& plan) {
  parts_->focus.CommitPending();
  if (!RequireChangeable()) return false;
  const TQorCellRange selection = Selection();
  detail::BlockChanges block = plan(selection);
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
  return ChangeBlock(TextOfPaste(), [&](const TQorCellRange& selection) {
    const TQorCustomEdit* const cell = parts_->grid.IsEmpty() ? nullptr : parts_->grid.Cell(0, 0);
    return detail::PlanPaste(table_, cell, text, selection,
                             {.rows = MayGrow(CellAxis::kRows),
                              .cols = MayGrow(CellAxis::kCols),
                              .value = NewElement()});
  });
}

bool CellPanel::Paste() {
  const QMimeData* const contents = QApplication::clipboard()->mimeData();
  return contents != nullptr && contents->hasText() && PasteBlock(contents->text());
}

bool CellPanel::RequireNulls() {
  if (!RequireChangeable()) return false;
  if (EffectiveSettings().nulls.allow_kbd_null) return true;
  RefuseBlock(detail::NotNull());
  return false;
}

bool CellPanel::MakeNull(const QString& step) {
  return ChangeBlock(step, [this](const TQorCellRange& selection) {
    return detail::PlanDelete(table_, selection);
  });
}

bool CellPanel::DeleteSelected() {
  return RequireNulls() && MakeNull(TextOfDelete());
}

bool CellPanel::Cut() {
  return RequireNulls() && Copy() && MakeNull(TextOfCut());
}

bool CellPanel::FillDown() {
  return ChangeBlock(TextOfFillDown(), [this](const TQorCellRange& selection) {
    return detail::PlanFillDown(table_, selection);
  });
}

bool CellPanel::FillRight() {
  return ChangeBlock(TextOfFillRight(), [this](const TQorCellRange& selection) {
    return detail::PlanFillRight(table_, selection);
  });
}

void CellPanel::AddSelectionToMenu(QMenu& menu) {
  // The entries of the line edit concern its text.
  menu.clear();
  const auto add = [this, &menu](const QString& text, const char* keys, bool enabled,
                                 auto function) {
    connect(detail::AddEntry(menu, text, keys, enabled), &QAction::triggered, this, function);
  };
  const CellSettings settings = EffectiveSettings();
  const bool changes = !settings.read_only;
  const bool deletes = changes && settings.nulls.allow_kbd_null;
  const QMimeData* const contents = QApplication::clipboard()->mimeData();
  const bool pastes = changes && contents != nullptr && contents->hasText();
  add(TextOfCut(), "Ctrl+X", deletes, &CellPanel::Cut);
  add(QCoreApplication::translate("CellPanel", "Copy"), "Ctrl+C", true, &CellPanel::Copy);
  add(TextOfPaste(), "Ctrl+V", pastes, &CellPanel::Paste);
  add(TextOfDelete(), "Del", deletes, &CellPanel::DeleteSelected);
  menu.addSeparator();
  add(TextOfFillDown(), "Ctrl+D", changes, &CellPanel::FillDown);
  if (parts_->cols.Bar() != nullptr) {
    add(TextOfFillRight(), "Ctrl+R", changes, &CellPanel::FillRight);
  }
  menu.addSeparator();
  add(QCoreApplication::translate("CellPanel", "Select All"), "Ctrl+A", true,
      &CellPanel::SelectAll);
}

}  // namespace qorvex::inline QorvexControls
