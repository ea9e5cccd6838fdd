#pragma once

/// @file
/// What keys do in a grid of cells. It does not depend on a screen.

#include <QtCore/qnamespace.h>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexControls::detail {

/// What a key does in a grid of cells.
enum class GridAction {
  kNone,     ///< Nothing: the key belongs to the text or to the application.
  kNothing,  ///< Nothing, although the key belongs to the grid.
  kEnter,    ///< Commits, and goes to the next row.
  kRowBack,
  kRowForward,
  kColBack,
  kColForward,
  kPageBack,
  kPageForward,
  kRowStart,  ///< To the first element of the row.
  kRowEnd,
  kTableStart,  ///< To the first element of the table.
  kTableEnd,
  kLeaveBack,  ///< To the widget before the editor.
  kLeaveForward,
  kEdit,    ///< Turns the editing of the text on or off.
  kEscape,  ///< Takes back what has been typed, then the selection.
  kSelectAll,
  kSelectRows,  ///< Selects the whole rows of the selection.
  kSelectCols,
  kCopy,
  kCopyAll,
  kCut,
  kPaste,
  kDelete,
  kFillDown,
  kFillRight,
  kInsertLines,  ///< Inserts rows or columns, and deletes them, if the table can grow.
  kDeleteLines,
  kUndo,
  kRedo
};

/// The meaning of a key.
struct GridKey {
  GridAction action = GridAction::kNone;
  bool extends = false;  ///< Moves the end of the selection, not the cell alone.
  friend bool operator==(const GridKey&, const GridKey&) = default;
};

/// Where a key is pressed.
struct KeyPlace {
  bool editing = false;   ///< A text is being edited.
  bool has_cols = false;  ///< The table has columns, not only rows.
  bool mirrored = false;  ///< The first column is on the right.
};

/// The meaning of a key with its modifiers; keys of the keypad count like the others. The page
/// docs/controls/editing.md has the table for users. O(1).
[[nodiscard]] QORVEX_EXPORT GridKey GridKeyOf(int key, Qt::KeyboardModifiers modifiers,
                                              const KeyPlace& place);

}  // namespace qorvex::inline QorvexControls::detail
