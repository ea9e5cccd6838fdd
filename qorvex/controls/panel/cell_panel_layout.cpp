// The layout of a panel of cells: sizes of cells, columns, headings, and the cells that have room.

#include <QStyle>
#include <algorithm>

#include "qorvex/controls/panel/detail/panel_parts.h"

namespace qorvex::inline QorvexControls {

namespace {

// With AutoEdits a layout may make the panel as small as this many rows and columns.
constexpr quint32 kLeastAutoEdits = 3;

QSizePolicy::Policy Resized(QSizePolicy::Policy policy, bool automatic) {
  if (automatic && policy == QSizePolicy::Fixed) return QSizePolicy::Expanding;
  if (!automatic && policy == QSizePolicy::Expanding) return QSizePolicy::Fixed;
  return policy;
}

}  // namespace

int CellPanel::CellHeight() const noexcept {
  return parts_->geometry.CellHeight();
}

void CellPanel::setCellHeight(int height) {
  parts_->geometry.SetCellHeight(height);
  Arrange();
}

void CellPanel::resetCellHeight() {
  setCellHeight(detail::GridGeometry::kDefaultCellHeight);
}

int CellPanel::CellWidth() const noexcept {
  return parts_->geometry.ColWidths().Usual();
}

void CellPanel::setCellWidth(int width) {
  parts_->geometry.ColWidths().SetUsual(width);
  Arrange();
}

void CellPanel::resetCellWidth() {
  setCellWidth(detail::GridGeometry::kDefaultCellWidth);
}

void CellPanel::setAutoEdits(bool on) {
  if (on == auto_edits_) return;
  auto_edits_ = on;
  QSizePolicy policy = sizePolicy();
  policy.setVerticalPolicy(Resized(policy.verticalPolicy(), on));
  if (parts_->cols.Bar()) policy.setHorizontalPolicy(Resized(policy.horizontalPolicy(), on));
  setSizePolicy(policy);
  if (!on) {
    ChangeEdits(parts_->cols, parts_->cols.PreferredEdits());
    ChangeEdits(parts_->rows, parts_->rows.PreferredEdits());
  }
  Arrange();
}

void CellPanel::SetEdits(detail::PanelAxis& axis, int edits) {
  axis.SetPreferredEdits(static_cast<quint32>(std::clamp(edits, 0, detail::kMaxEdits)));
  ChangeEdits(axis, axis.PreferredEdits());
  // Once a layout has had its turn, the number is again the one that has room.
  if (!auto_edits_) return;
  QMetaObject::invokeMethod(
      this, [this] { Arrange(); }, Qt::QueuedConnection);
}

void CellPanel::ChangeEdits(detail::PanelAxis& axis, quint32 edits) {
  if (edits == axis.Window().Edits()) return;
  parts_->focus.Keep(axis, edits, [&] { axis.Window().SetEdits(edits); });
  FitGrid();
  axis.ReachWantedTop();
}

void CellPanel::SetCorner(QWidget* corner) {
  parts_->corner = corner;
}

int CellPanel::BarExtent() const {
  return style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, this);
}

// A bar that is not needed leaves its place to the cells.
bool CellPanel::NeedsBar(const detail::PanelAxis& axis) const {
  if (axis.Bar() == nullptr) return false;
  return !auto_edits_ || axis.Window().Edits() < axis.Window().Count();
}

void CellPanel::FitEdits() {
  if (!auto_edits_ || !has_size_) return;
  // Handlers may change the numbers of elements, and with them what fits.
  ChangeEdits(parts_->cols, FittingEdits().cols);
  ChangeEdits(parts_->rows, FittingEdits().rows);
}

// Each bar takes room from the other axis.
CellPanel::GridSize CellPanel::FittingEdits() const {
  const detail::GridGeometry& geometry = parts_->geometry;
  const QSize room = contentsRect().size() - QSize(geometry.HeaderWidth(), geometry.HeaderHeight());
  const detail::ElementSizes heights(geometry.RowHeight());
  const auto rows_within = [&](int height) {
    return heights.Fitting(Rows().Top(), Rows().Count(), height);
  };
  const auto cols_within = [&](int width) {
    if (parts_->cols.Bar() == nullptr) return Cols().Edits();
    return geometry.ColWidths().Fitting(Cols().Top(), Cols().Count(), width);
  };
  const auto bar_if = [this](bool needed) { return needed ? BarExtent() : 0; };
  GridSize fitting;
  fitting.rows = rows_within(room.height());
  fitting.cols = cols_within(room.width() - bar_if(fitting.rows < Rows().Count()));
  if (fitting.cols < Cols().Count()) {
    fitting.rows = rows_within(room.height() - BarExtent());
    fitting.cols = cols_within(room.width() - bar_if(fitting.rows < Rows().Count()));
  }
  return fitting;
}

void CellPanel::Arrange() {
  parts_->headings.TakeRoom();
  FitEdits();
  Place();
  updateGeometry();
}

void CellPanel::Place() {
  parts_->grid.Arrange();
  parts_->headings.Arrange();
  const QSize bars(NeedsBar(parts_->rows) ? BarExtent() : 0,
                   NeedsBar(parts_->cols) ? BarExtent() : 0);
  QSize cells = parts_->geometry.Size();
  // Two bars meet in the corner of the panel, wherever the last cells end.
  if (auto_edits_ && parts_->cols.Bar()) cells = contentsRect().size() - bars;
  const int left = parts_->geometry.HeaderWidth();
  const int top = parts_->geometry.HeaderHeight();
  const auto place = [this](QWidget* widget, const QRect& rectangle) {
    if (widget != nullptr) widget->setGeometry(parts_->geometry.Placed(rectangle));
  };
  place(parts_->rows.Bar(), {cells.width(), top, bars.width(), cells.height() - top});
  place(parts_->cols.Bar(), {left, cells.height(), cells.width() - left, bars.height()});
  place(parts_->corner, {cells.width(), cells.height(), bars.width(), bars.height()});
}

QSize CellPanel::sizeHint() const {
  return SizeFor(parts_->rows.PreferredEdits(), parts_->cols.PreferredEdits());
}

QSize CellPanel::minimumSizeHint() const {
  if (!auto_edits_) return sizeHint();
  return SizeFor(std::min(parts_->rows.PreferredEdits(), kLeastAutoEdits),
                 std::min(parts_->cols.PreferredEdits(), kLeastAutoEdits));
}

QSize CellPanel::SizeFor(quint32 rows, quint32 cols) const {
  const QSize bars(BarExtent(), parts_->cols.Bar() ? BarExtent() : 0);
  return parts_->geometry.Size(rows, cols) + bars + QSize(2 * frameWidth(), 2 * frameWidth());
}

// Columns of different widths move when the table is scrolled across.
void CellPanel::ColsMoved() {
  if (!parts_->geometry.ColWidths().AreUsual()) Arrange();
}

void CellPanel::CountChanged() {
  const bool has_headings = parts_->headings.HasRows();
  if (has_headings) parts_->headings.Measure();
  if (has_headings || auto_edits_ || !parts_->geometry.ColWidths().AreUsual()) Arrange();
}

bool CellPanel::HasRowHeadings() const noexcept {
  return parts_->headings.HasRows();
}

void CellPanel::ShowRowHeadings(bool on) {
  parts_->headings.SetRows(on);
  if (on) parts_->headings.Measure();
  Arrange();
}

bool CellPanel::HasColHeadings() const noexcept {
  return parts_->headings.HasCols();
}

void CellPanel::ShowColHeadings(bool on) {
  parts_->headings.SetCols(on);
  Arrange();
}

void CellPanel::DragColWidth(quint32 col, int width) {
  parts_->geometry.ColWidths().Set(col, width);
  Arrange();
  // A layout makes the panel as wide as its cells; without one, it widens itself.
  if (!auto_edits_ && sizePolicy().horizontalPolicy() == QSizePolicy::Fixed) {
    resize(sizeHint().width(), height());
  }
}

void CellPanel::FitColWidth(quint32 col, int heading_width) {
  DragColWidth(col, std::max(heading_width, parts_->grid.FittingWidth(col - Cols().Top())));
}

// A heading takes no focus: the keys that follow are for the cells, and what is typed for one that
// is selected.
void CellPanel::FocusFromHeading(quint32 row_edit, quint32 col_edit, bool extend) {
  parts_->focus.CommitPending();
  parts_->focus.SetEditing(false);
  if (extend && parts_->focus.Entered() != nullptr) return;
  using Hold = detail::PanelSelection::Hold;
  const Hold hold(parts_->selection, Hold::Entry::kKeeps);
  parts_->focus.FocusCell(row_edit, col_edit);
}

detail::PanelHeadingEvents CellPanel::HeadingEvents() {
  return {.select_row =
              [this](quint32 row, bool extend) {
                FocusFromHeading(row - Rows().Top(), 0, extend);
                extend ? parts_->selection.ExtendRows(row) : parts_->selection.SelectRows(row, row);
              },
          .select_col =
              [this](quint32 col, bool extend) {
                FocusFromHeading(0, col - Cols().Top(), extend);
                extend ? parts_->selection.ExtendCols(col) : parts_->selection.SelectCols(col, col);
              },
          .select_all =
              [this] {
                FocusFromHeading(Rows().Focus(), Cols().Focus(), true);
                SelectAll();
              },
          .selection = [this] { return Selection(); },
          .resize_col = [this](quint32 col, int width) { DragColWidth(col, width); },
          .fit_col = [this](quint32 col, int width) { FitColWidth(col, width); }};
}

}  // namespace qorvex::inline QorvexControls
