#pragma once

/// @file
/// The parts that a CellPanel is made of.

#include <optional>
#include <utility>

#include "qorvex/controls/panel/cell_panel.h"
#include "qorvex/controls/panel/detail/block_clipboard.h"
#include "qorvex/controls/panel/detail/cell_grid.h"
#include "qorvex/controls/panel/detail/change_history.h"
#include "qorvex/controls/panel/detail/model_link.h"
#include "qorvex/controls/panel/detail/panel_axis.h"
#include "qorvex/controls/panel/detail/panel_focus.h"
#include "qorvex/controls/panel/detail/panel_headings.h"
#include "qorvex/controls/panel/detail/panel_keys.h"
#include "qorvex/controls/panel/detail/panel_layout.h"
#include "qorvex/controls/panel/detail/panel_mouse.h"
#include "qorvex/controls/panel/detail/panel_selection.h"
#include "qorvex/controls/panel/detail/panel_wheel.h"
#include "qorvex/controls/panel/detail/shared_settings.h"

namespace qorvex::inline QorvexControls::detail {

/// The grid comes last, so that its cells are deleted before the parts that watch them.
struct PanelParts {
  PanelParts(CellPanel& panel, CurrentRule rule, EditWindowEvents row_events,
             EditWindowEvents col_events)
      : table(panel.table_),
        settings(panel, [&panel] { panel.ApplySettings(); }),
        history(panel.table_,
                {.commit_lines =
                     [this](CellAxis axis, quint32 first, quint32 end) {
                       focus.CommitLines(axis == CellAxis::kRows ? rows : cols, first, end);
                     },
                 .batch =
                     [&panel](const std::function<void()>& run) {
                       const CellPanel::Update update(panel);
                       run();
                     },
                 .follow = [this](const ElementChanges& changes) { return model.Follow(changes); },
                 .restored = [&panel] { Q_EMIT panel.OnUndo(); },
                 .out_of_memory = [&panel] { panel.RefuseBlock(OutOfMemory()); },
                 .can_undo_changed = [&panel](bool can) { Q_EMIT panel.OnCanUndoChange(can); },
                 .can_redo_changed = [&panel](bool can) { Q_EMIT panel.OnCanRedoChange(can); }}),
        model({.locale = [&panel] { return panel.locale(); },
               .typed = [&panel] { return panel.TypedPlace(); },
               .changed = [&panel](const TQorCellRange& range) { panel.ModelChanged(range); },
               .headings_changed = [&panel] { panel.Redisplay(); },
               .moved = [&panel](const ModelMove& move) { panel.ModelMoved(move); },
               .deleted = [&panel] { panel.ModelDeleted(); }}),
        rows(rule, std::move(row_events)),
        cols(rule, std::move(col_events)),
        geometry(panel, rows.Window(), cols.Window()),
        focus(panel, rows, cols, grid, rule),
        selection(panel.table_, rows.Window(), cols.Window(), grid,
                  [this, &panel] {
                    headings.Update();
                    Q_EMIT panel.OnSelectionChange();
                  }),
        mouse(panel, rows, cols, grid, focus, selection),
        wheel(panel, rows, cols),
        keys(panel, rows, cols, focus, selection, mouse, wheel),
        headings(
            panel, panel.table_, rows.Window(), cols.Window(), geometry, grid, focus, selection,
            {.resize_col = [this](quint32 col, int width) { layout.DragColWidth(col, width); },
             .open_menu = [&panel](CellPlace first_element,
                                   const QPoint& place) { panel.OpenMenu(first_element, place); }}),
        layout(panel, rows, cols, geometry, focus, headings, grid, [&panel] { panel.FitGrid(); }),
        grid(panel, panel.table_, rows.Window(), cols.Window(), geometry,
             {.connect = [&panel](TQorCustomEdit& cell,
                                  CellPlace place) { panel.ConnectCell(cell, place); },
              .drop =
                  [this](TextCell& text) {
                    text.removeEventFilter(&keys);
                    focus.Leave(text);
                  }}) {}

  /// The parts of a widget that is a panel; a null pointer for others, and while the editor is
  /// being made or destroyed, when there is no table.
  static PanelParts* Of(QWidget* widget) {
    const auto* const panel = qobject_cast<const CellPanel*>(widget);
    const bool is_editor = panel != nullptr && panel->metaObject() != &CellPanel::staticMetaObject;
    return is_editor ? panel->parts_.get() : nullptr;
  }

  CellTable& table;
  SharedSettings settings;
  ChangeHistory history;
  ModelLink model;
  PanelAxis rows;
  PanelAxis cols;
  GridGeometry geometry;
  PanelFocus focus;
  PanelSelection selection;
  PanelMouse mouse;
  PanelWheel wheel;
  PanelKeys keys;
  PanelHeadings headings;
  PanelLayout layout;
  CellGrid grid;
  // Where the typed text belongs, while that is not where its cell is.
  std::optional<CellPlace> typed_place;
  // The model tells of a move.
  bool model_moves = false;
};

}  // namespace qorvex::inline QorvexControls::detail
