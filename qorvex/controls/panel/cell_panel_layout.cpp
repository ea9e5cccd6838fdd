// The sizes of cells in a panel, and its own.

#include "qorvex/controls/detail/shift_keys.h"
#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

int CellPanel::CellHeight() const noexcept {
  return parts_->geometry.CellHeight();
}

void CellPanel::setCellHeight(int height) {
  parts_->geometry.SetCellHeight(height);
  parts_->layout.Arrange();
}

void CellPanel::resetCellHeight() {
  setCellHeight(detail::GridGeometry::kDefaultCellHeight);
}

int CellPanel::CellWidth() const noexcept {
  return parts_->geometry.ColWidths().Usual();
}

void CellPanel::setCellWidth(int width) {
  parts_->geometry.ColWidths().SetUsual(width);
  parts_->layout.Arrange();
}

void CellPanel::resetCellWidth() {
  setCellWidth(detail::GridGeometry::kDefaultCellWidth);
}

void CellPanel::ReplaceCols(const detail::ReplacedCols& cols) {
  parts_->geometry.ColWidths().Replace(cols.first, cols.removed, cols.inserted);
  detail::ShiftKeys(parts_->grid.ColFormats(), cols.first, cols.removed, cols.inserted);
  ColsReplaced();
}

void CellPanel::ColsReplaced() {
  parts_->layout.Arrange();
  ApplySettings();
}

bool CellPanel::AutoEdits() const noexcept {
  return parts_->layout.AutoEdits();
}

void CellPanel::setAutoEdits(bool on) {
  parts_->layout.SetAutoEdits(on);
}

QSize CellPanel::sizeHint() const {
  return parts_->layout.SizeHint();
}

QSize CellPanel::minimumSizeHint() const {
  return parts_->layout.MinimumSizeHint();
}

}  // namespace qorvex::inline QorvexControls
