#pragma once

/// @file
/// PanelSelection, the selected elements of a panel of cells.

#include <functional>
#include <optional>
#include <utility>

#include "qorvex/controls/detail/grid_keys.h"
#include "qorvex/controls/panel/cell_range.h"
#include "qorvex/controls/panel/detail/cell_grid.h"
#include "qorvex/controls/panel/detail/cell_place.h"

namespace qorvex::inline QorvexControls::detail {

/// One rectangle of elements between an anchor, where it was begun, and an end, which moves. It
/// consists of elements, not of cells, so scrolling leaves it alone. Unless more has been selected,
/// it is the element under the focus.
///
/// Its cells are marked if there are several elements. All functions are O(cells in sight).
class PanelSelection {
 public:
  /// The element under the focus. The function is called when the selection has changed.
  PanelSelection(const CellTable& table, const EditWindow& rows, const EditWindow& cols,
                 CellGrid& grid, std::function<void()> changed);

  /// The selected elements; empty if the table is.
  [[nodiscard]] TQorCellRange Range() const;
  /// Whether there are several.
  [[nodiscard]] bool IsMultiple() const;
  /// The element under the focus.
  [[nodiscard]] CellPlace Current() const;
  /// @{
  /// Where the selection was begun, and its other corner.
  [[nodiscard]] CellPlace Anchor() const { return chosen_ ? anchor_ : Current(); }
  [[nodiscard]] CellPlace End() const { return chosen_ ? end_ : Current(); }
  /// @}

  /// @{
  /// Selects the elements between two, which may be beyond the end of the table; or moves the end
  /// alone. If the table has none of them, the element under the focus is selected. Scrolls
  /// nothing.
  void Select(CellPlace anchor, CellPlace end);
  void Extend(CellPlace end) { Select(Anchor(), end); }
  /// @}
  /// @{
  /// Selects whole rows or columns, from a first one or from the anchor on.
  void SelectRows(quint32 anchor, quint32 end);
  void SelectCols(quint32 anchor, quint32 end);
  void ExtendRows(quint32 end) { SelectRows(Anchor().row, end); }
  void ExtendCols(quint32 end) { SelectCols(Anchor().col, end); }
  /// @}
  /// Where an action leads from an element: by a row, a column or a page, or to an end of the row
  /// or the table; never beyond the elements, of which there must be some.
  [[nodiscard]] CellPlace Moved(CellPlace place, GridAction action) const;
  /// Back to the element under the focus.
  void Clear();

  /// The focus has come to a cell. This clears the selection, but not if the focus was last at the
  /// same element, nor if the mouse has brought it: the press selects next, perhaps from the old
  /// anchor on.
  void Entered(bool by_mouse);
  /// The focus has left the cell of an element.
  void Left(CellPlace element) { left_ = element; }
  /// While it lives, cells can be entered and the table can scroll without an Update; entering a
  /// cell clears the selection or keeps it. Call Update afterwards.
  class Hold {
   public:
    enum class Entry { kClears, kKeeps };
    Hold(PanelSelection& selection, Entry entry)
        : selection_(selection), before_(std::exchange(selection.held_, entry)) {}
    ~Hold() { selection_.held_ = before_; }
    Hold(const Hold&) = delete;
    Hold& operator=(const Hold&) = delete;

   private:
    PanelSelection& selection_;
    std::optional<Entry> before_;
  };

  /// Keeps the selection within the table, marks its cells, and tells of a change. Call it when the
  /// table, what is in sight or the focus has changed.
  void Update();

 private:
  [[nodiscard]] CellPlace Fitted(CellPlace place) const;
  // Whether there are elements between the anchor and the end.
  [[nodiscard]] bool HasElements() const;

  const CellTable& table_;
  const EditWindow& rows_;
  const EditWindow& cols_;
  CellGrid& grid_;
  std::function<void()> changed_;
  // Something else than the element under the focus is selected: between these two.
  bool chosen_ = false;
  CellPlace anchor_;
  CellPlace end_;
  CellPlace left_;
  std::optional<Hold::Entry> held_;
  bool marked_ = false;
  TQorCellRange announced_;
};

}  // namespace qorvex::inline QorvexControls::detail
