#pragma once

/// @file
/// The tab order around a panel.

#include <QWidget>

namespace qorvex::inline QorvexControls::detail {

/// The next widget of the window, or the one before, that the tab key stops at outside a panel; a
/// null pointer if the panel is the only one.
[[nodiscard]] QWidget* StopOutside(const QWidget& panel, bool forward);

}  // namespace qorvex::inline QorvexControls::detail
