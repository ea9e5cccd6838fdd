#pragma once

/// @file
/// PanelHeadings, the headings in front of the rows and above the columns of a panel.

#include <functional>

#include "qorvex/controls/panel/cell_range.h"
#include "qorvex/controls/panel/cell_table.h"
#include "qorvex/controls/panel/detail/heading_bar.h"

namespace qorvex::inline QorvexControls::detail {

/// What the headings of a panel call.
struct PanelHeadingEvents {
  /// @{
  /// A heading has been pressed, or reached by dragging; see HeadingEvents.
  std::function<void(quint32 row, bool extend)> select_row;
  std::function<void(quint32 col, bool extend)> select_col;
  std::function<void()> select_all;
  /// @}
  /// The selected elements, whose headings are marked.
  std::function<TQorCellRange()> selection;
  /// The edge of a column's heading has been dragged.
  std::function<void(quint32 col, int width)> resize_col;
  /// It has been clicked twice; see HeadingEvents.
  std::function<void(quint32 col, int width)> fit_col;
};

/// A bar of row headings, a bar of column headings, both or neither, with the texts of the table.
/// The row headings are as wide as the widest that has been in sight since they were measured, and
/// as the last number.
class PanelHeadings {
 public:
  PanelHeadings(QWidget& panel, const CellTable& table, EditWindow& rows, EditWindow& cols,
                GridGeometry& geometry, PanelHeadingEvents events);
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

  QWidget& panel_;
  const CellTable& table_;
  EditWindow& rows_;
  EditWindow& cols_;
  GridGeometry& geometry_;
  PanelHeadingEvents events_;
  // Children of the panel.
  HeadingBar* row_bar_ = nullptr;
  HeadingBar* col_bar_ = nullptr;
  HeadingCorner* corner_ = nullptr;
  int row_text_width_ = 0;
};

}  // namespace qorvex::inline QorvexControls::detail
