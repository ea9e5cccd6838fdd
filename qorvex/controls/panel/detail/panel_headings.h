#pragma once

/// @file
/// PanelHeadings, the headings in front of the rows and above the columns of a panel.

#include <functional>

#include "qorvex/controls/panel/cell_table.h"
#include "qorvex/controls/panel/detail/cell_grid.h"
#include "qorvex/controls/panel/detail/heading_bar.h"
#include "qorvex/controls/panel/detail/panel_focus.h"
#include "qorvex/controls/panel/detail/panel_selection.h"

namespace qorvex::inline QorvexControls::detail {

/// A bar of row headings, a bar of column headings, both or neither, with the texts of the table.
/// The row headings are as wide as the widest that has been in sight since they were measured, and
/// as the last number.
///
/// The mouse selects rows and columns by them. A heading takes no focus: the keys that follow are
/// for the cells.
class PanelHeadings {
 public:
  /// What the panel does when the user has given a column a width, or asks for the menu of a
  /// heading, whose row or column is selected.
  struct Owner {
    std::function<void(quint32 col, int width)> resize_col;
    std::function<void(CellPlace first_element, const QPoint& place)> open_menu;
  };

  /// No headings.
  PanelHeadings(QWidget& panel, const CellTable& table, EditWindow& rows, EditWindow& cols,
                GridGeometry& geometry, const CellGrid& grid, PanelFocus& focus,
                PanelSelection& selection, Owner owner);
  ~PanelHeadings();
  PanelHeadings(const PanelHeadings&) = delete;
  PanelHeadings& operator=(const PanelHeadings&) = delete;

  /// @{
  /// Whether there are row headings or column headings; none at first. Arrange follows.
  [[nodiscard]] bool HasRows() const noexcept { return row_bar_ != nullptr; }
  [[nodiscard]] bool HasCols() const noexcept { return col_bar_ != nullptr; }
  void SetRows(bool on);
  void SetCols(bool on);
  /// @}

  /// Measures the row headings in sight, which must be on.
  void Measure() { row_text_width_ = row_bar_->TextWidth(); }
  /// Takes the room that the headings need. Call it before cells are arranged.
  void TakeRoom();
  /// Places the bars.
  void Arrange();
  /// Shows the texts. True if they need more room.
  bool Show();
  /// Shows which headings are selected.
  void Update();

 private:
  void FitCorner();
  [[nodiscard]] QString RowText(quint32 row) const;
  [[nodiscard]] QString ColText(quint32 col) const;
  [[nodiscard]] bool IsRowSelected(quint32 row) const;
  [[nodiscard]] bool IsColSelected(quint32 col) const;
  // Takes the focus to a cell in the row or the column whose heading is pressed.
  void TakeFocus(quint32 row_edit, quint32 col_edit, bool extend);
  void SelectRow(quint32 row, bool extend);
  void SelectCol(quint32 col, bool extend);
  void SelectAll();
  void OpenRowMenu(quint32 row, const QPoint& place);
  void OpenColMenu(quint32 col, const QPoint& place);
  void FitCol(quint32 col, int heading_width);

  QWidget& panel_;
  const CellTable& table_;
  EditWindow& rows_;
  EditWindow& cols_;
  GridGeometry& geometry_;
  const CellGrid& grid_;
  PanelFocus& focus_;
  PanelSelection& selection_;
  Owner owner_;
  // Children of the panel.
  HeadingBar* row_bar_ = nullptr;
  HeadingBar* col_bar_ = nullptr;
  HeadingCorner* corner_ = nullptr;
  int row_text_width_ = 0;
};

}  // namespace qorvex::inline QorvexControls::detail
