#pragma once

/// @file
/// PanelFocus, which cell of a panel is being edited and where keys move the focus.

#include <functional>

#include "qorvex/base_controls/text_cell.h"
#include "qorvex/controls/detail/grid_navigation.h"
#include "qorvex/controls/panel/detail/cell_grid.h"
#include "qorvex/controls/panel/detail/panel_axis.h"

namespace qorvex::inline QorvexControls::detail {

/// The focus within a grid of cells. Keys move it in the grid, and at the edge of the grid they
/// scroll the table under it.
class PanelFocus {
 public:
  PanelFocus(QWidget& panel, PanelAxis& rows, PanelAxis& cols, const CellGrid& grid,
             CurrentRule rule);

  /// The text that has been entered and not left, or a null pointer.
  [[nodiscard]] TextCell* Entered() const noexcept { return entered_; }
  /// @{
  /// A cell or a text of the header has been entered or left.
  void Enter(TextCell& text, CellPlace place, bool in_header);
  void Leave(const TextCell& text);
  /// @}
  /// Commits what is being typed, or discards it if it is not a number.
  void CommitPending();
  /// The same before the elements change or are read, unless the one that is being edited stays as
  /// it is or is not concerned.
  void CommitUnless(const std::function<bool(quint32 row, quint32 col)>& stays);
  /// The same before the lines from the first one on, up to the end, move.
  void CommitLines(const PanelAxis& axis, quint32 first, quint32 end);

  /// @{
  /// Whether the keys of a text belong to the entered one: from the first typed character, F2 or a
  /// double click until it is committed, restored or left.
  [[nodiscard]] bool Editing() const noexcept { return editing_ && entered_ != nullptr; }
  void SetEditing(bool editing);
  /// @}
  /// Whether keys belong to the entered text: it is being edited, or it is a text of the header
  /// that can be.
  [[nodiscard]] bool KeysBelongToText() const;

  /// Gives the focus to a cell that shows an element; others are ignored.
  void FocusCell(std::size_t row, std::size_t col);
  /// The same, but when the focus was last in the header, it stays in the header.
  void Navigate(std::size_t row, std::size_t col);
  /// Scrolls as little as it takes to bring an element into sight, and gives its cell the focus. A
  /// text that is not a number keeps the focus.
  void FocusElement(quint32 row, quint32 col);

  /// Moves the focus one cell along an axis. A text that is not a number keeps it.
  void Step(PanelAxis& along, PanelAxis& across, bool forward);
  /// Moves the focus as the tab key does to the next element in reading order if that is out of
  /// sight. False if it is in sight, at the end of the table, and if the key does not stop at the
  /// cells.
  bool TabOn(bool forward);
  /// The focus that the panel gets is for the text that had it last. It waits on the bar as long as
  /// no cell shows an element.
  void Lead();
  /// A text is about to get the focus. If the tab key or a buddy leads to the panel, the first text
  /// gets it instead, and the result is true.
  bool Redirect(const QObject* text, Qt::FocusReason reason);

  /// Runs a change of an axis, after which its edits from the given one on are gone or show no
  /// element. A focus there leaves its cell before the change and goes to the last used cell
  /// after it.
  template <class Change>
  void Keep(PanelAxis& axis, quint32 first_gone, Change change) {
    const bool moves = entered_ != nullptr && axis.Window().Focus() >= first_gone;
    if (moves) Park(axis);
    change();
    if (moves) Navigate(rows_.Window().Focus(), cols_.Window().Focus());
  }

 private:
  // False if the typed text is not a number, which keeps the focus.
  bool CommitToLeave();
  // The cell, or the text of the header when the focus was last there.
  [[nodiscard]] TextCell* TextAt(std::size_t row, std::size_t col) const;
  // The edit that shows an element; scrolls on while wider columns keep it out of sight.
  static quint32 Reveal(EditWindow& window, quint32 element);
  // Leaves the cell; the focus waits on the bar.
  void Park(const PanelAxis& axis);
  // Scrolls if need be, and moves the focus.
  void Go(PanelAxis& along, PanelAxis& across, const GridStep& step);
  // Whether the tab key stops at the text in front of a row.
  [[nodiscard]] bool StopsAtHeader(std::size_t row) const;

  QWidget& panel_;
  PanelAxis& rows_;
  PanelAxis& cols_;
  const CellGrid& grid_;
  CurrentRule rule_;
  TextCell* entered_ = nullptr;
  bool in_header_ = false;
  bool editing_ = false;
};

}  // namespace qorvex::inline QorvexControls::detail
