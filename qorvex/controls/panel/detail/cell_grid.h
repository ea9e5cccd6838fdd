#pragma once

/// @file
/// CellGrid, the cells of a panel: how many there are, where they are and what they show.

#include <QAccessible>
#include <QRect>
#include <QSize>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <vector>

#include "qorvex/base_controls/custom_edit.h"
#include "qorvex/controls/detail/edit_window.h"
#include "qorvex/controls/panel/cell_table.h"

namespace qorvex::inline QorvexControls::detail {

/// The row and the column of a cell in its grid.
struct CellPlace {
  quint32 row = 0;
  quint32 col = 0;

  friend bool operator==(const CellPlace&, const CellPlace&) = default;
};

/// A column of texts in front of the cells.
struct RowHeader {
  /// Makes the text of a row of cells.
  std::function<TextCell*(QWidget* panel, quint32 row)> make;
  /// Shows what belongs to the row's element; a row without an element shows nothing.
  std::function<void(TextCell& text, quint32 row, bool used)> show;
  /// The name of the text for screen readers.
  std::function<QString(quint32 row)> name;
  /// Applies the settings of the cells, as far as they concern the text.
  std::function<void(TextCell& text, const CellSettings& settings)> apply;
};

/// Rows of cells, which are children of a panel. The first cells show the elements of a table from
/// the tops of two windows on; further cells are disabled. A redisplay costs O(cells).
///
/// Cells have accessible names while assistive technology is active: a step of a scroll bar renames
/// every cell, which takes a tenth of the time of the step.
class CellGrid : private QAccessible::ActivationObserver {
 public:
  static constexpr int kDefaultCellHeight = 21;
  static constexpr int kDefaultCellWidth = 81;

  /// What the panel does with a new cell, and with a cell or a text of the header that goes.
  struct Owner {
    std::function<void(TQorCustomEdit& cell, CellPlace place)> connect;
    std::function<void(TextCell& text)> drop;
  };

  /// A grid without cells.
  CellGrid(QWidget& panel, const CellTable& table, const EditWindow& rows, const EditWindow& cols,
           Owner owner);
  /// Deletes the cells.
  ~CellGrid() override;
  CellGrid(const CellGrid&) = delete;
  CellGrid& operator=(const CellGrid&) = delete;

  /// What makes a cell. Set once, before there are any.
  void SetCellFactory(std::function<TQorCustomEdit*(QWidget* panel)> make);
  /// @{
  /// The texts in front of the cells, if there are any, and their width in pixels.
  void SetHeader(RowHeader header);
  void SetHeaderWidth(int width) { header_width_ = width; }
  /// @}

  [[nodiscard]] bool IsEmpty() const { return cells_.empty() || cells_.front().empty(); }
  [[nodiscard]] TQorCustomEdit* Cell(std::size_t row, std::size_t col) const {
    return cells_[row][col];
  }
  [[nodiscard]] bool HasHeader() const { return !header_texts_.empty(); }
  [[nodiscard]] TextCell* HeaderText(std::size_t row) const { return header_texts_[row]; }
  /// Whether a cell shows an element.
  [[nodiscard]] bool IsUsed(std::size_t row, std::size_t col) const {
    return row < std::min<std::size_t>(rows_.UsedEdits(), cells_.size()) &&
           col < std::min<std::size_t>(cols_.UsedEdits(), cells_[row].size());
  }
  /// Calls a function with each cell.
  void ForEach(const std::function<void(TQorCustomEdit& cell)>& function) const;

  /// Makes and drops cells until there are as many as the windows have edits. New ones get the
  /// settings. In the tab order they follow a widget of the panel, which must accept the focus.
  void Fit(const CellSettings& settings, Qt::FocusPolicy focus, QWidget* before);
  /// Applies the settings to every cell.
  void Apply(const CellSettings& settings, Qt::FocusPolicy focus);
  /// Applies the settings to the texts of the header.
  void ApplyToHeader(const CellSettings& settings);

  /// Enables the cells that show an element.
  void EnableUsedCells();
  /// Shows the elements.
  void Show();

  /// @{
  /// The size of a cell in pixels. A cell is never lower than a line of its font.
  [[nodiscard]] int CellHeight() const noexcept { return cell_height_; }
  [[nodiscard]] int CellWidth() const noexcept { return cell_width_; }
  void SetCellHeight(int height) { cell_height_ = height; }
  void SetCellWidth(int width) { cell_width_ = width; }
  /// @}
  /// The size of the header and the cells.
  [[nodiscard]] QSize Size() const;
  /// Places the header and the cells.
  void Arrange() const;
  /// A rectangle of the panel's contents in a left-to-right layout, where the panel's layout has
  /// it.
  [[nodiscard]] QRect Placed(const QRect& rectangle) const;

 private:
  void accessibilityActiveChanged(bool active) override;
  void NameCells();
  TQorCustomEdit* MakeCell(CellPlace place, const CellSettings& settings, Qt::FocusPolicy focus);
  void FitHeader(QWidget* before);
  void DropCell(TQorCustomEdit* cell);
  void Drop(TextCell* text);
  [[nodiscard]] int RowHeight() const;

  QWidget& panel_;
  const CellTable& table_;
  const EditWindow& rows_;
  const EditWindow& cols_;
  Owner owner_;
  std::function<TQorCustomEdit*(QWidget* panel)> make_cell_;
  RowHeader header_;
  std::vector<std::vector<TQorCustomEdit*>> cells_;
  std::vector<TextCell*> header_texts_;
  int cell_height_ = kDefaultCellHeight;
  int cell_width_ = kDefaultCellWidth;
  int header_width_ = 0;
  // By the settings; single elements may be read-only too.
  bool read_only_ = false;
  bool is_named_ = QAccessible::isActive();
};

}  // namespace qorvex::inline QorvexControls::detail
