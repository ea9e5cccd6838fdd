#pragma once

/// @file
/// PanelWheel, what the wheel of the mouse does in a panel of cells.

#include <QPoint>
#include <QWheelEvent>
#include <QWidget>

#include "qorvex/controls/panel/detail/panel_axis.h"

namespace qorvex::inline QorvexControls::detail {

/// Scrolls a panel by the wheel, whole rows and columns at a time.
class PanelWheel {
 public:
  PanelWheel(QWidget& panel, PanelAxis& rows, PanelAxis& cols);

  /// Scrolls while the focus is in the panel; ignores the event otherwise.
  void EditMouseWheel(QWheelEvent& event);

 private:
  [[nodiscard]] bool FocusInside() const;

  QWidget& panel_;
  PanelAxis& rows_;
  PanelAxis& cols_;
  // What a finely resolved wheel has turned since the last whole notch, across and down.
  QPoint wheel_rest_;
};

}  // namespace qorvex::inline QorvexControls::detail
