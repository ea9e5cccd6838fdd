#pragma once

/// @file
/// GridGeometry, where the cells of a panel and the texts around them are.

#include <QRect>
#include <QSize>
#include <QWidget>

#include "qorvex/controls/detail/edit_window.h"
#include "qorvex/controls/detail/element_sizes.h"

namespace qorvex::inline QorvexControls::detail {

/// The places of cells, which show the elements of two windows. In front of the rows and above the
/// columns is room for texts. Rectangles are those in a left-to-right layout, until Placed.
class GridGeometry {
 public:
  static constexpr int kDefaultCellHeight = 21;
  static constexpr int kDefaultCellWidth = 81;

  GridGeometry(const QWidget& panel, const EditWindow& rows, const EditWindow& cols);

  /// @{
  /// The size of a cell in pixels; a column may have a width of its own. A cell is never lower than
  /// a line of its font: RowHeight.
  [[nodiscard]] int CellHeight() const noexcept { return cell_height_; }
  void SetCellHeight(int height);
  [[nodiscard]] int RowHeight() const;
  [[nodiscard]] ElementSizes& ColWidths() noexcept { return col_widths_; }
  [[nodiscard]] const ElementSizes& ColWidths() const noexcept { return col_widths_; }
  /// @}
  /// @{
  /// The room in front of the rows and above the columns, in pixels; none at first.
  [[nodiscard]] int HeaderWidth() const noexcept { return header_width_; }
  void SetHeaderWidth(int width);
  [[nodiscard]] int HeaderHeight() const noexcept { return header_height_; }
  void SetHeaderHeight(int height);
  /// @}

  /// The size of the header and so many rows and columns, wherever the table is scrolled to.
  [[nodiscard]] QSize Size(quint32 rows, quint32 cols) const;
  /// The size of the header and the cells, wherever the table is scrolled to.
  [[nodiscard]] QSize Size() const { return Size(rows_.Edits(), cols_.Edits()); }
  /// @{
  /// The room in front of a row and above a column of cells.
  [[nodiscard]] QRect InFrontOf(quint32 row) const;
  [[nodiscard]] QRect Above(quint32 col) const;
  /// @}

  /// A rectangle in the panel's contents, where the panel's layout has it.
  [[nodiscard]] QRect Placed(const QRect& rectangle) const;

 private:
  const QWidget& panel_;
  const EditWindow& rows_;
  const EditWindow& cols_;
  ElementSizes col_widths_{kDefaultCellWidth};
  int cell_height_ = kDefaultCellHeight;
  int header_width_ = 0;
  int header_height_ = 0;
};

}  // namespace qorvex::inline QorvexControls::detail
