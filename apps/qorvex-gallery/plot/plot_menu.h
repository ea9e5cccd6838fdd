#pragma once

/// @file
/// The menu of a diagram.

#include <QPoint>

class QKeyEvent;

namespace qorvex::gallery {

class PlotView;

/// Shows the menu at a place on the screen: copy, save and print the picture, zoom.
void ShowPlotMenu(PlotView& plot, const QPoint& at);

/// Whether a key is that of an entry in the first part of the menu: copy, save or print.
[[nodiscard]] bool IsPlotMenuKey(const QKeyEvent& key);

/// Does what such a key says; false for other keys.
bool HandlePlotMenuKey(PlotView& plot, const QKeyEvent& key);

}  // namespace qorvex::gallery
