#pragma once

/// @file
/// PanelMouse, what the mouse does in a panel of cells.

#include <QBasicTimer>
#include <QMouseEvent>
#include <QObject>
#include <QPoint>
#include <QPointer>

#include "qorvex/controls/panel/cell_panel.h"
#include "qorvex/controls/panel/detail/panel_axis.h"
#include "qorvex/controls/panel/detail/panel_focus.h"
#include "qorvex/controls/panel/detail/panel_selection.h"

namespace qorvex::inline QorvexControls::detail {

/// Selects with the mouse, and raises the panel's signals for its events: a press selects an
/// element, or the row of a label, Shift extends, dragging extends and scrolls beyond the edge of
/// the grid. A double click edits the text; in a text that is being edited the mouse belongs to the
/// text.
class PanelMouse : public QObject {
 public:
  PanelMouse(CellPanel& panel, PanelAxis& rows, PanelAxis& cols, const CellGrid& grid,
             PanelFocus& focus, PanelSelection& selection);

  /// Handles an event of a cell or a text of the header; true if the text is not to see it.
  bool Handle(TextCell& text, QMouseEvent& event);

 protected:
  void timerEvent(QTimerEvent* event) override;

 private:
  bool Press(TextCell& text, bool is_cell, CellPlace element, const QMouseEvent& event);
  void DragTo(QPoint place);
  void Tell(const TextCell& text, bool is_cell, CellPlace element, QMouseEvent& event);

  CellPanel& panel_;
  PanelAxis& rows_;
  PanelAxis& cols_;
  const CellGrid& grid_;
  PanelFocus& focus_;
  PanelSelection& selection_;
  // The text from which the mouse is dragging, whether it drags whole rows, where it is in the
  // panel, and what scrolls while it is beyond the edge of the grid.
  QPointer<TextCell> dragged_;
  bool drags_rows_ = false;
  QPoint place_;
  QBasicTimer scrolling_;
};

}  // namespace qorvex::inline QorvexControls::detail
