#pragma once

/// @file
/// Entries in the menu of a cell.

#include <QAction>
#include <QKeySequence>
#include <QLatin1String>
#include <QMenu>
#include <QString>

namespace qorvex::inline QorvexControls::detail {

/// Adds an entry that names the keys with the same effect, if there are any. They are no shortcut:
/// the panel handles its keys itself.
inline QAction* AddEntry(QMenu& menu, const QString& text, const char* keys, bool enabled) {
  const QString shown = QKeySequence(QLatin1String(keys)).toString(QKeySequence::NativeText);
  QAction* const action = menu.addAction(shown.isEmpty() ? text : text + QLatin1Char('\t') + shown);
  action->setEnabled(enabled);
  return action;
}

}  // namespace qorvex::inline QorvexControls::detail
