#pragma once

/// @file
/// CellGrid, the cells of a panel: how many there are and what they show.

#include <QAccessible>
#include <QWidget>
#include <algorithm>
#include <functional>
#include <map>
#include <vector>

#include "qorvex/base_controls/custom_edit.h"
#include "qorvex/controls/detail/edit_window.h"
#include "qorvex/controls/panel/cell_range.h"
#include "qorvex/controls/panel/cell_table.h"
#include "qorvex/controls/panel/detail/cell_place.h"
#include "qorvex/controls/panel/detail/grid_geometry.h"

namespace qorvex::inline QorvexControls::detail {

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
  /// What the panel does with a new cell, and with a cell or a text of the header that goes.
  struct Owner {
    std::function<void(TQorCustomEdit& cell, CellPlace place)> connect;
    std::function<void(TextCell& text)> drop;
  };

  /// A grid without cells.
  CellGrid(QWidget& panel, const CellTable& table, const EditWindow& rows, const EditWindow& cols,
           const GridGeometry& geometry, Owner owner);
  /// Deletes the cells.
  ~CellGrid() override;
  CellGrid(const CellGrid&) = delete;
  CellGrid& operator=(const CellGrid&) = delete;

  /// What makes a cell. Set once, before there are any.
  void SetCellFactory(std::function<TQorCustomEdit*(QWidget* panel)> make);
  /// Texts that elements stand for; a null pointer for none, the default.
  void SetTexts(QorvexBaseControls::detail::TextElements* texts);
  /// The texts in front of the cells, if there are any.
  void SetHeader(RowHeader header);

  [[nodiscard]] bool IsEmpty() const { return cells_.empty() || cells_.front().empty(); }
  [[nodiscard]] TQorCustomEdit* Cell(std::size_t row, std::size_t col) const {
    return cells_[row][col];
  }
  [[nodiscard]] bool HasHeader() const { return !header_texts_.empty(); }
  /// The text in front of a row of cells; a null pointer if the row has no such text.
  [[nodiscard]] TextCell* HeaderText(std::size_t row) const {
    return row < header_texts_.size() ? header_texts_[row] : nullptr;
  }
  /// Whether a cell shows an element.
  [[nodiscard]] bool IsUsed(std::size_t row, std::size_t col) const {
    return row < std::min<std::size_t>(rows_.UsedEdits(), cells_.size()) &&
           col < std::min<std::size_t>(cols_.UsedEdits(), cells_[row].size());
  }
  /// A cell or a text of the header.
  struct Spot {
    CellPlace place;
    bool is_cell = false;
  };
  [[nodiscard]] Spot SpotOf(const TextCell& text) const;
  /// The used cell nearest to a point of the panel, and in which direction the point is beyond the
  /// used cells: -1, 0 or 1 along the rows and along the columns.
  struct Nearest {
    CellPlace place;
    int rows_beyond = 0;
    int cols_beyond = 0;
  };
  [[nodiscard]] Nearest NearestTo(QPoint point) const;
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
  /// Marks the cells that show elements of a range, and no others.
  void MarkSelected(const TQorCellRange& range);

  /// The width that the texts in a column of cells need.
  [[nodiscard]] int FittingWidth(std::size_t col) const;
  /// The text that a cell of a column, in sight or not, would show for a value. Needs a cell.
  [[nodiscard]] QString TextFor(quint32 col, Extended value) const;

  /// Places the header and the cells.
  void Arrange() const;

  /// The formats of columns that do not have the one in the settings. Apply follows a change.
  [[nodiscard]] std::map<quint32, NumberSettings>& ColFormats() noexcept { return col_formats_; }
  [[nodiscard]] const std::map<quint32, NumberSettings>& ColFormats() const noexcept {
    return col_formats_;
  }

 private:
  void accessibilityActiveChanged(bool active) override;
  void NameCells();
  TQorCustomEdit* MakeCell(CellPlace place, const CellSettings& settings, Qt::FocusPolicy focus);
  void ApplyToCells(const CellSettings& settings);
  // Whether a cell shows an element of the table. A spare line has cells, but no elements yet.
  [[nodiscard]] bool HasElement(std::size_t row, std::size_t col) const;
  // By the settings, or because the element is.
  [[nodiscard]] bool IsReadOnly(std::size_t row, std::size_t col) const;
  [[nodiscard]] CellSettings SettingsOf(quint32 col) const;
  void FitHeader(QWidget* before);
  void DropCell(TQorCustomEdit* cell);
  void Drop(TextCell* text);

  QWidget& panel_;
  const CellTable& table_;
  const EditWindow& rows_;
  const EditWindow& cols_;
  const GridGeometry& geometry_;
  Owner owner_;
  std::function<TQorCustomEdit*(QWidget* panel)> make_cell_;
  QorvexBaseControls::detail::TextElements* texts_ = nullptr;
  RowHeader header_;
  std::vector<std::vector<TQorCustomEdit*>> cells_;
  std::vector<TextCell*> header_texts_;
  std::map<quint32, NumberSettings> col_formats_;
  // What was applied last.
  CellSettings settings_;
  bool is_named_ = QAccessible::isActive();
};

}  // namespace qorvex::inline QorvexControls::detail
