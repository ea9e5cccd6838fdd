#include "qorvex/controls/panel/detail/grid_geometry.h"

#include <QStyle>
#include <algorithm>

namespace qorvex::inline QorvexControls::detail {

namespace {

int Clamped(int size) {
  return std::clamp(size, 0, ElementSizes::kLargest);
}

}  // namespace

GridGeometry::GridGeometry(const QWidget& panel, const EditWindow& rows, const EditWindow& cols)
    : panel_(panel), rows_(rows), cols_(cols) {}

void GridGeometry::SetCellHeight(int height) {
  cell_height_ = Clamped(height);
}

void GridGeometry::SetHeaderWidth(int width) {
  header_width_ = Clamped(width);
}

void GridGeometry::SetHeaderHeight(int height) {
  header_height_ = Clamped(height);
}

int GridGeometry::RowHeight() const {
  constexpr int frame = 4;
  return std::max(cell_height_, panel_.fontMetrics().height() + frame);
}

QSize GridGeometry::Size(quint32 rows, quint32 cols) const {
  return {header_width_ + col_widths_.LargestSum(cols, cols_.Count()),
          header_height_ + static_cast<int>(rows) * RowHeight()};
}

QRect GridGeometry::InFrontOf(quint32 row) const {
  const int height = RowHeight();
  return {0, header_height_ + static_cast<int>(row) * height, header_width_, height};
}

QRect GridGeometry::Above(quint32 col) const {
  const quint32 left = cols_.Top();
  return {header_width_ + col_widths_.Sum(left, col), 0, col_widths_.Size(left + col),
          header_height_};
}

QRect GridGeometry::Placed(const QRect& rectangle) const {
  const QRect contents = panel_.contentsRect();
  return QStyle::visualRect(panel_.layoutDirection(), contents,
                            rectangle.translated(contents.topLeft()));
}

}  // namespace qorvex::inline QorvexControls::detail
