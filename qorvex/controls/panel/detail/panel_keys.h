#pragma once

/// @file
/// PanelKeys, what keys do in a panel of cells.

#include <QKeyEvent>
#include <QObject>

#include "qorvex/controls/detail/grid_keys.h"
#include "qorvex/controls/panel/cell_panel.h"
#include "qorvex/controls/panel/detail/panel_axis.h"
#include "qorvex/controls/panel/detail/panel_focus.h"
#include "qorvex/controls/panel/detail/panel_mouse.h"
#include "qorvex/controls/panel/detail/panel_selection.h"
#include "qorvex/controls/panel/detail/panel_wheel.h"

namespace qorvex::inline QorvexControls::detail {

/// Handles the keys of the cells and the header of a panel, and raises the panel's signals for
/// them. Hands on the events of the mouse and the wheel.
class PanelKeys : public QObject {
 public:
  PanelKeys(CellPanel& panel, PanelAxis& rows, PanelAxis& cols, PanelFocus& focus,
            PanelSelection& selection, PanelMouse& mouse, PanelWheel& wheel);

  /// Handles the events of a cell or a text of the header.
  void Watch(TextCell& text) { text.installEventFilter(this); }
  /// Handles the wheel over a bar.
  void WatchBar(QScrollBar& bar) { bar.installEventFilter(this); }

 protected:
  bool eventFilter(QObject* watched, QEvent* event) override;

 private:
  // True when the key is used up.
  bool EditKeyDown(QKeyEvent& event);
  bool EditKeyPress(QKeyEvent& event);
  // The meaning of a key here and now.
  [[nodiscard]] GridKey MeaningOf(const QKeyEvent& event) const;
  [[nodiscard]] bool IsTyping() const;
  // Whether a key of the grid has nothing to do and goes to the application, past the text.
  [[nodiscard]] bool IsLeftToApplication(GridKey key) const;
  bool UseKey(QKeyEvent& event);
  void Act(GridAction action);
  // Goes to another cell, which clears the selection.
  void Go(GridAction action);
  void Move(GridAction action);
  void GoTo(CellPlace element);
  void Extend(GridAction action);
  // Goes to the next or the previous widget outside the panel.
  void Leave(bool forward);
  void Edit();
  void Escape();

  CellPanel& panel_;
  PanelAxis& rows_;
  PanelAxis& cols_;
  PanelFocus& focus_;
  PanelSelection& selection_;
  PanelMouse& mouse_;
  PanelWheel& wheel_;
};

}  // namespace qorvex::inline QorvexControls::detail
