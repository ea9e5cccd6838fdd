// What a user or a program does with a whole panel of cells: commands, undoing, messages.

#include <QCoreApplication>
#include <QMenu>
#include <QToolTip>

#include "qorvex/base_controls/detail/tool_tip.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

namespace {

void ShowTip(TextCell& text, const QString& message) {
  if (!text.isVisible()) return;
  QToolTip::showText(text.mapToGlobal(text.rect().bottomLeft()),
                     QorvexBaseControls::detail::AsToolTip(message), &text);
}

}  // namespace

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

void CellPanel::FillMenu(QMenu& menu, const detail::CellPlace& element) {
  if (!parts_->focus.KeysBelongToText()) AddSelectionToMenu(menu);
  menu.addSeparator();
  menu.addAction(QCoreApplication::translate("CellPanel", "Copy All Values"), this,
                 &CellPanel::CopyAll);
  if (!EffectiveSettings().read_only) AddHistoryToMenu(menu);
  Q_EMIT OnContextMenu(menu, element.row, element.col);
}

void CellPanel::OpenMenu(const detail::CellPlace& element, const QPoint& place) {
  auto* const menu = new QMenu(this);
  menu->setAttribute(Qt::WA_DeleteOnClose);
  FillMenu(*menu, element);
  menu->popup(place);
}

}  // namespace qorvex::inline QorvexControls
