// Undoing, growing, and inserting and deleting lines of a panel of cells.

#include <QCoreApplication>
#include <QMenu>
#include <QMetaMethod>
#include <algorithm>
#include <functional>
#include <limits>
#include <new>
#include <optional>
#include <stdexcept>

#include "qorvex/base/errors.h"
#include "qorvex/controls/panel/detail/menu_entry.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

namespace {

constexpr quint32 kNoEnd = std::numeric_limits<quint32>::max();

QString TextOf(CellAxis axis, bool insert) {
  if (axis == CellAxis::kRows) {
    return insert ? QCoreApplication::translate("CellPanel", "Insert Rows")
                  : QCoreApplication::translate("CellPanel", "Delete Rows");
  }
  return insert ? QCoreApplication::translate("CellPanel", "Insert Columns")
                : QCoreApplication::translate("CellPanel", "Delete Columns");
}

// In virtual mode, whether lines can be inserted depends on these signals of the editors.
bool InsertsLines(const QMetaMethod& signal) {
  return signal.name() == "OnInsertRows" || signal.name() == "OnInsertCols";
}

}  // namespace

bool CellPanel::CanUndo() const {
  return parts_->history.CanUndo();
}

bool CellPanel::CanRedo() const {
  return parts_->history.CanRedo();
}

void CellPanel::Undo() {
  parts_->focus.CommitPending();
  parts_->history.Undo();
}

void CellPanel::Redo() {
  parts_->focus.CommitPending();
  parts_->history.Redo();
}

qint64 CellPanel::UndoLimit() const noexcept {
  return parts_->history.Limit();
}

void CellPanel::setUndoLimit(qint64 bytes) {
  parts_->history.SetLimit(bytes);
}

void CellPanel::resetUndoLimit() {
  setUndoLimit(detail::ChangeHistory::kDefaultLimit);
}

QUndoStack* CellPanel::UndoStack() const {
  return &parts_->history.Stack();
}

void CellPanel::setUndoStack(QUndoStack* stack) {
  parts_->focus.CommitPending();
  parts_->history.SetStack(stack);
}

void CellPanel::setCanGrow(bool grow) {
  can_grow_ = grow;
  FitSpareLines();
}

bool CellPanel::MayGrow(CellAxis axis) const {
  return can_grow_ && !EffectiveSettings().read_only && table_.CanInsert(axis);
}

bool CellPanel::HasSpareCol(quint32 cols) const {
  // Without columns there would be no cell to type or paste into.
  return cols == 0 && MayGrow(CellAxis::kCols);
}

void CellPanel::FitSpareLines() {
  const auto fit = [this](detail::PanelAxis& axis, const std::function<bool()>& has_spare) {
    if (has_spare() == axis.HasSpare()) return;
    parts_->focus.CommitLines(axis, axis.Count(), kNoEnd);
    SetLines(axis, axis.Count(), has_spare());
    parts_->layout.CountChanged();
  };
  fit(parts_->rows, [this] { return MayGrow(CellAxis::kRows); });
  fit(parts_->cols, [this] { return HasSpareCol(parts_->cols.Count()); });
}

std::optional<QString> CellPanel::TakeFromSpareRow(const detail::PanelAxis& axis) {
  auto* const cell = qobject_cast<TQorCustomEdit*>(parts_->focus.Entered());
  const bool is_spare = axis.HasSpare() && Rows().Top() + Rows().Focus() >= axis.Count();
  if (!is_spare || cell == nullptr || !cell->Pending() || !cell->hasFocus()) return std::nullopt;
  const QString typed = cell->text();
  cell->Restore();
  return typed;
}

void CellPanel::TypeIntoSpareRow(const QString& typed) {
  parts_->focus.FocusElement(parts_->rows.Count(), Cols().Top() + Cols().Focus());
  TextCell* const cell = parts_->focus.Entered();
  if (cell == nullptr) return;
  parts_->focus.SetEditing(true);
  cell->selectAll();
  cell->insert(typed);
}

void CellPanel::connectNotify(const QMetaMethod& signal) {
  if (InsertsLines(signal)) FitSpareLines();
}

void CellPanel::disconnectNotify(const QMetaMethod& signal) {
  // Later: Qt holds the lock that isSignalConnected takes.
  if (!InsertsLines(signal)) return;
  QMetaObject::invokeMethod(
      this, [this] { FitSpareLines(); }, Qt::QueuedConnection);
}

Extended CellPanel::NewElement() const {
  const bool null = EffectiveSettings().nulls.allow_kbd_null;
  return null ? std::numeric_limits<Extended>::quiet_NaN() : 0;
}

void CellPanel::AppendLines(TQorCustomEdit& cell, quint32 row, quint32 col, Extended value) {
  const QPointer<TQorCustomEdit> in_use(&cell);
  QString refusal = detail::NotChangeable();
  detail::LineInsertions lines;
  if (row >= table_.RowCount()) lines.push_back({CellAxis::kRows, row, 1, NewElement()});
  if (col >= table_.ColCount()) lines.push_back({CellAxis::kCols, col, 1, NewElement()});
  try {
    if (parts_->history.Apply(lines, {{row, col, value}},
                              QCoreApplication::translate("CellPanel", "Typing"))) {
      return;
    }
  } catch (const std::bad_alloc&) {
    refusal = detail::OutOfMemory();
  }
  if (in_use) in_use->ShowNothing();
  RefuseBlock(refusal);
}

void CellPanel::InsertLines(CellAxis axis, quint32 first, quint32 count) {
  const detail::PanelAxis& lines = axis == CellAxis::kRows ? parts_->rows : parts_->cols;
  parts_->focus.CommitLines(lines, first, lines.Count());
  if (first > lines.Count()) RaiseMathError(axis == CellAxis::kRows ? rsInvalidRow : rsInvalidCol);
  if (count > std::numeric_limits<quint32>::max() - lines.Count()) {
    throw std::length_error("An editor has at most 4294967295 rows and columns");
  }
  if (count == 0) return;
  parts_->history.Apply({{axis, first, count, NewElement()}}, {}, TextOf(axis, true));
}

void CellPanel::DeleteLines(CellAxis axis, quint32 first, quint32 count) {
  const detail::PanelAxis& lines = axis == CellAxis::kRows ? parts_->rows : parts_->cols;
  parts_->focus.CommitLines(lines, first, kNoEnd);
  if (first > lines.Count() || count > lines.Count() - first) {
    RaiseMathError(axis == CellAxis::kRows ? rsInvalidRow : rsInvalidCol);
  }
  if (count == 0) return;
  parts_->history.Remove(axis, first, count, TextOf(axis, false));
}

void CellPanel::InsertRows(quint32 row, quint32 count) {
  InsertLines(CellAxis::kRows, row, count);
}

void CellPanel::DeleteRows(quint32 row, quint32 count) {
  DeleteLines(CellAxis::kRows, row, count);
}

void CellPanel::ChangeSelectedLines(CellAxis axis, bool insert) {
  if (!MayGrow(axis)) return;
  parts_->focus.CommitPending();
  const bool rows = axis == CellAxis::kRows;
  const TQorCellRange block = Selection();
  const quint32 lines = rows ? table_.RowCount() : table_.ColCount();
  const quint32 first = std::min(rows ? block.row : block.col, lines);
  const quint32 room = (insert ? std::numeric_limits<quint32>::max() - lines : lines - first);
  const quint32 count = std::min(rows ? block.rows : block.cols, room);
  try {
    insert ? InsertLines(axis, first, count) : DeleteLines(axis, first, count);
  } catch (const std::bad_alloc&) {
    RefuseBlock(detail::OutOfMemory());
  }
}

CellAxis CellPanel::AxisOfSelection() const {
  const TQorCellRange block = Selection();
  const bool all_rows = block.row == 0 && block.rows >= table_.RowCount();
  const bool all_cols = block.col == 0 && block.cols >= table_.ColCount();
  return all_rows && !all_cols ? CellAxis::kCols : CellAxis::kRows;
}

void CellPanel::InsertSelectedLines() {
  ChangeSelectedLines(AxisOfSelection(), true);
}

void CellPanel::DeleteSelectedLines() {
  ChangeSelectedLines(AxisOfSelection(), false);
}

void CellPanel::AddHistoryToMenu(QMenu& menu) {
  const auto add = [&](const QString& text, const char* keys, bool enabled, auto function) {
    connect(detail::AddEntry(menu, text, keys, enabled), &QAction::triggered, this, function);
  };
  // A text that is being edited has its own entries.
  if (!parts_->focus.KeysBelongToText()) {
    menu.addSeparator();
    add(QCoreApplication::translate("CellPanel", "Undo"), "Ctrl+Z", CanUndo(), &CellPanel::Undo);
    add(QCoreApplication::translate("CellPanel", "Redo"), "Ctrl+Y", CanRedo(), &CellPanel::Redo);
  }
  menu.addSeparator();
  const TQorCellRange block = Selection();
  for (const CellAxis axis : {CellAxis::kRows, CellAxis::kCols}) {
    if (!MayGrow(axis)) continue;
    const bool keys = axis == AxisOfSelection();
    const bool exists =
        axis == CellAxis::kRows ? block.row < table_.RowCount() : block.col < table_.ColCount();
    add(TextOf(axis, true), keys ? "Ctrl++" : "", true,
        [this, axis] { ChangeSelectedLines(axis, true); });
    add(TextOf(axis, false), keys ? "Ctrl+-" : "", exists,
        [this, axis] { ChangeSelectedLines(axis, false); });
  }
}

}  // namespace qorvex::inline QorvexControls
