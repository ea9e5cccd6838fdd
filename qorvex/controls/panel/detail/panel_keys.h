#pragma once

/// @file
/// PanelKeys, what keys and the wheel do in a panel of cells.

#include <QKeyEvent>
#include <QObject>
#include <QPoint>
#include <QWheelEvent>

#include "qorvex/controls/detail/grid_keys.h"
#include "qorvex/controls/panel/cell_panel.h"
#include "qorvex/controls/panel/detail/panel_axis.h"
#include "qorvex/controls/panel/detail/panel_focus.h"
#include "qorvex/controls/panel/detail/panel_mouse.h"
#include "qorvex/controls/panel/detail/panel_selection.h"

namespace qorvex::inline QorvexControls::detail {

/// Handles the keys and the wheel of the cells, the header and the bars of a panel, and raises the
/// panel's signals for them. Hands on the events of the mouse.
class PanelKeys : public QObject {
 public:
  PanelKeys(CellPanel& panel, PanelAxis& rows, PanelAxis& cols, PanelFocus& focus,
            PanelSelection& selection, PanelMouse& mouse);

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
  // The meaning of a key here and now.
  [[nodiscard]] GridKey MeaningOf(const QKeyEvent& event) const;
  // Whether a key of the grid has nothing to do and goes to the application, past the text.
  [[nodiscard]] bool IsLeftToApplication(GridKey key) const;
  bool UseKey(QKeyEvent& event);
  void Act(GridAction action);
  // Goes to another cell, which clears the selection.
  void Go(GridAction action);
  void Move(GridAction action);
  void GoTo(ElementPlace element);
  void Extend(GridAction action);
  // Goes to the next or the previous widget outside the panel.
  void Leave(bool forward);
  void Edit();
  void Escape();
  [[nodiscard]] bool FocusInside() const;

  CellPanel& panel_;
  PanelAxis& rows_;
  PanelAxis& cols_;
  PanelFocus& focus_;
  PanelSelection& selection_;
  PanelMouse& mouse_;
  // What a finely resolved wheel has turned since the last whole notch, across and down.
  QPoint wheel_rest_;
};

}  // namespace qorvex::inline QorvexControls::detail
