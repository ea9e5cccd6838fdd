#pragma once

/// @file
/// PanelLayout, how many cells a panel has and where everything in it is.

#include <QFrame>
#include <QSize>
#include <functional>

#include "qorvex/controls/panel/detail/cell_grid.h"
#include "qorvex/controls/panel/detail/grid_geometry.h"
#include "qorvex/controls/panel/detail/panel_axis.h"
#include "qorvex/controls/panel/detail/panel_focus.h"
#include "qorvex/controls/panel/detail/panel_headings.h"

namespace qorvex::inline QorvexControls::detail {

/// Places the cells, the headings, the bars and the corner of a panel. The numbers of cells are
/// those that were asked for, or with AutoEdits those that the panel has room for.
class PanelLayout {
 public:
  /// The function makes and drops cells until there are as many as the axes have edits, and calls
  /// Place.
  PanelLayout(QFrame& panel, PanelAxis& rows, PanelAxis& cols, GridGeometry& geometry,
              PanelFocus& focus, PanelHeadings& headings, const CellGrid& grid,
              std::function<void()> fit_grid);
  PanelLayout(const PanelLayout&) = delete;
  PanelLayout& operator=(const PanelLayout&) = delete;

  /// @{
  /// Whether the numbers of cells follow the size of the panel; see CellPanel::AutoEdits.
  [[nodiscard]] bool AutoEdits() const noexcept { return auto_edits_; }
  void SetAutoEdits(bool on);
  /// @}
  /// Changes the number of cells along an axis. A focus that would be lost goes to the last cell in
  /// use. With AutoEdits, the number is the preferred one.
  void SetEdits(PanelAxis& axis, int edits);
  /// @{
  /// Shows or hides headings.
  void SetRowHeadings(bool on);
  void SetColHeadings(bool on);
  /// @}
  /// The user has dragged the edge of a column.
  void DragColWidth(quint32 col, int width);
  /// Sets the widget that is placed where the bars meet.
  void SetCorner(QWidget* corner) { corner_ = corner; }

  /// Makes as many cells as AutoEdits needs, and places everything.
  void Arrange();
  /// Places everything.
  void Place();
  /// @{
  /// The panel has got a size; the table has been scrolled across; it has got longer or shorter.
  void SizeChanged();
  void ColsMoved();
  void CountChanged();
  /// @}

  /// @{
  /// The size of the panel with the preferred numbers of cells, and with the least.
  [[nodiscard]] QSize SizeHint() const;
  [[nodiscard]] QSize MinimumSizeHint() const;
  /// @}

 private:
  struct GridSize {
    quint32 rows = 0;
    quint32 cols = 0;
  };
  void ChangeEdits(PanelAxis& axis, quint32 edits);
  void FitEdits();
  [[nodiscard]] GridSize FittingEdits() const;
  void PlaceParts();
  [[nodiscard]] int BarExtent() const;
  [[nodiscard]] bool NeedsBar(const PanelAxis& axis) const;
  [[nodiscard]] QSize SizeFor(quint32 rows, quint32 cols) const;

  QFrame& panel_;
  PanelAxis& rows_;
  PanelAxis& cols_;
  GridGeometry& geometry_;
  PanelFocus& focus_;
  PanelHeadings& headings_;
  const CellGrid& grid_;
  std::function<void()> fit_grid_;
  QWidget* corner_ = nullptr;
  bool auto_edits_ = false;
  // Qt sends the size when the panel is shown; until then it is not the one that a layout gives.
  bool has_size_ = false;
};

}  // namespace qorvex::inline QorvexControls::detail
