// What a user or a program does with a whole panel of cells: copying, pasting, undoing.

#include <QApplication>
#include <QClipboard>
#include <QCoreApplication>
#include <QMenu>
#include <QToolTip>
#include <new>
#include <utility>

#include "qorvex/base_controls/detail/tool_tip.h"
#include "qorvex/controls/panel/detail/block_clipboard.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

namespace {

constexpr quint64 kMaxCopiedValues = 10'000'000;

void ShowTip(TextCell& text, const QString& message) {
  if (!text.isVisible()) return;
  QToolTip::showText(text.mapToGlobal(text.rect().bottomLeft()),
                     QorvexBaseControls::detail::AsToolTip(message), &text);
}

}  // namespace

bool CellPanel::PasteBlock(const QString& text) {
  parts_->focus.CommitPending();
  if (EffectiveSettings().read_only) {
    RefuseBlock(detail::NotChangeable());
    return false;
  }
  const detail::Growth growth{
      .rows = MayGrow(CellAxis::kRows), .cols = MayGrow(CellAxis::kCols), .value = NewElement()};
  detail::PasteResult paste =
      detail::PlanPaste(table_, parts_->grid.IsEmpty() ? nullptr : parts_->grid.Cell(0, 0), text,
                        Rows().Top() + Rows().Focus(), Cols().Top() + Cols().Focus(), growth);
  if (paste.refusal.isEmpty()) {
    if (paste.changes.empty() && paste.lines.empty()) return true;
    try {
      if (parts_->history.Apply(paste.lines, std::move(paste.changes), detail::TextOfPaste())) {
        return true;
      }
      paste.refusal = detail::NotChangeable();
    } catch (const std::bad_alloc&) {
      paste.refusal = detail::OutOfMemory();
    }
  }
  RefuseBlock(paste.refusal);
  return false;
}

void CellPanel::CopyBlock(const TQorCellRange& block) {
  parts_->focus.CommitPending();
  if (parts_->grid.IsEmpty()) return;
  const quint64 values = quint64{block.rows} * block.cols;
  if (values > kMaxCopiedValues) {
    RefuseBlock(detail::TooManyValues(values));
    return;
  }
  QApplication::clipboard()->setText(detail::BlockText(table_, *parts_->grid.Cell(0, 0), block));
}

void CellPanel::CopyAll() {
  CopyBlock({0, table_.RowCount(), 0, table_.ColCount()});
}

void CellPanel::RefuseBlock(const QString& message) {
  if (TextCell* const text = parts_->focus.Entered()) ShowTip(*text, message);
  Q_EMIT OnBlockRefused(message);
}

void CellPanel::RefuseText(TextCell& cell, quint32 row, quint32 col, const QString& reason) {
  const QString message = QCoreApplication::translate("CellPanel", "%1: %2 The value stays.",
                                                      "name of a cell, why its text is refused")
                              .arg(table_.CellName(row, col), reason);
  // Later, since a change of the focus hides tool tips.
  QMetaObject::invokeMethod(
      &cell, [&cell, message] { ShowTip(cell, message); }, Qt::QueuedConnection);
  Q_EMIT OnTextRefused(message);
}

void CellPanel::Command(const std::function<void()>& command) {
  parts_->focus.CommitPending();
  const Update update(*this);
  if (!VirtualMode()) command();
}

void CellPanel::AddToMenu(QMenu* menu) {
  menu->addSeparator();
  menu->addAction(QCoreApplication::translate("CellPanel", "Copy All Values"), this,
                  &CellPanel::CopyAll);
  if (EffectiveSettings().read_only) return;
  AddHistoryToMenu(*menu);
}

}  // namespace qorvex::inline QorvexControls
