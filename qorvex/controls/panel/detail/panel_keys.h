#pragma once

/// @file
/// PanelKeys, what keys, the wheel and the mouse do in a panel of cells.

#include <QKeyEvent>
#include <QMouseEvent>
#include <QObject>
#include <QPoint>
#include <QWheelEvent>

#include "qorvex/controls/panel/cell_panel.h"
#include "qorvex/controls/panel/detail/panel_axis.h"
#include "qorvex/controls/panel/detail/panel_focus.h"

namespace qorvex::inline QorvexControls::detail {

/// Handles the keys, the wheel and the mouse of the cells, the header and the bars of a panel, and
/// raises the panel's signals for them.
class PanelKeys : public QObject {
 public:
  PanelKeys(CellPanel& panel, PanelAxis& rows, PanelAxis& cols, PanelFocus& focus);

  /// Handles the events of a cell or a text of the header.
  void Watch(TextCell& text) { text.installEventFilter(this); }
  /// Handles the wheel over a bar.
  void WatchBar(QScrollBar& bar) { bar.installEventFilter(this); }

  /// Scrolls while the focus is in the panel; ignores the event otherwise.
  void EditMouseWheel(QWheelEvent& event);

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // True when the key is used up.
  bool EditKeyDown(QKeyEvent& event);
  bool EditKeyPress(QKeyEvent& event);
  [[nodiscard]] bool IsTyping() const;
  // Undo or redo when there is nothing to undo or redo here.
  [[nodiscard]] bool IsForTheApplication(const QKeyEvent& event) const;
  [[nodiscard]] bool IsOwnKey(const QKeyEvent& event) const;
  bool UseKey(const QKeyEvent& event);
  void ForwardMouse(const QWidget& widget, QMouseEvent& event);
  [[nodiscard]] bool FocusInside() const;

  CellPanel& panel_;
  PanelAxis& rows_;
  PanelAxis& cols_;
  PanelFocus& focus_;
  // What a finely resolved wheel has turned since the last whole notch, across and down.
  QPoint wheel_rest_;
};

}  // namespace qorvex::inline QorvexControls::detail
