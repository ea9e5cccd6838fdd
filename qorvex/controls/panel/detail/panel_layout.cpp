#include "qorvex/controls/panel/detail/panel_layout.h"

#include <QStyle>
#include <algorithm>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

namespace {

// With AutoEdits a layout may make the panel as small as this many rows and columns.
constexpr quint32 kLeastAutoEdits = 3;

QSizePolicy::Policy Resized(QSizePolicy::Policy policy, bool automatic) {
  if (automatic && policy == QSizePolicy::Fixed) return QSizePolicy::Expanding;
  if (!automatic && policy == QSizePolicy::Expanding) return QSizePolicy::Fixed;
  return policy;
}

}  // namespace

PanelLayout::PanelLayout(QFrame& panel, PanelAxis& rows, PanelAxis& cols, GridGeometry& geometry,
                         PanelFocus& focus, PanelHeadings& headings, const CellGrid& grid,
                         std::function<void()> fit_grid)
    : panel_(panel),
      rows_(rows),
      cols_(cols),
      geometry_(geometry),
      focus_(focus),
      headings_(headings),
      grid_(grid),
      fit_grid_(std::move(fit_grid)) {}

void PanelLayout::SetAutoEdits(bool on) {
  if (on == auto_edits_) return;
  auto_edits_ = on;
  QSizePolicy policy = panel_.sizePolicy();
  policy.setVerticalPolicy(Resized(policy.verticalPolicy(), on));
  if (cols_.Bar()) policy.setHorizontalPolicy(Resized(policy.horizontalPolicy(), on));
  panel_.setSizePolicy(policy);
  if (!on) {
    ChangeEdits(cols_, cols_.PreferredEdits());
    ChangeEdits(rows_, rows_.PreferredEdits());
  }
  Arrange();
}

void PanelLayout::SetEdits(PanelAxis& axis, int edits) {
  axis.SetPreferredEdits(static_cast<quint32>(std::clamp(edits, 0, kMaxEdits)));
  ChangeEdits(axis, axis.PreferredEdits());
  // Once a layout has had its turn, the number is again the one that has room.
  if (!auto_edits_) return;
  QMetaObject::invokeMethod(
      &panel_, [this] { Arrange(); }, Qt::QueuedConnection);
}

void PanelLayout::ChangeEdits(PanelAxis& axis, quint32 edits) {
  if (edits == axis.Window().Edits()) return;
  focus_.Keep(axis, edits, [&] { axis.Window().SetEdits(edits); });
  fit_grid_();
  axis.ReachWantedTop();
}

int PanelLayout::BarExtent() const {
  return panel_.style()->pixelMetric(QStyle::PM_ScrollBarExtent, nullptr, &panel_);
}

// A bar that is not needed leaves its place to the cells.
bool PanelLayout::NeedsBar(const PanelAxis& axis) const {
  if (axis.Bar() == nullptr) return false;
  return !auto_edits_ || axis.Window().Edits() < axis.Window().Count();
}

void PanelLayout::FitEdits() {
  if (!auto_edits_ || !has_size_) return;
  // Handlers may change the numbers of elements, and with them what fits.
  ChangeEdits(cols_, FittingEdits().cols);
  ChangeEdits(rows_, FittingEdits().rows);
}

// Each bar takes room from the other axis.
PanelLayout::GridSize PanelLayout::FittingEdits() const {
  const EditWindow& rows = rows_.Window();
  const EditWindow& cols = cols_.Window();
  const QSize room =
      panel_.contentsRect().size() - QSize(geometry_.HeaderWidth(), geometry_.HeaderHeight());
  const ElementSizes heights(geometry_.RowHeight());
  const auto rows_within = [&](int height) {
    return heights.Fitting(rows.Top(), rows.Count(), height);
  };
  const auto cols_within = [&](int width) {
    if (cols_.Bar() == nullptr) return cols.Edits();
    return geometry_.ColWidths().Fitting(cols.Top(), cols.Count(), width);
  };
  const auto bar_if = [this](bool needed) { return needed ? BarExtent() : 0; };
  GridSize fitting;
  fitting.rows = rows_within(room.height());
  fitting.cols = cols_within(room.width() - bar_if(fitting.rows < rows.Count()));
  if (fitting.cols < cols.Count()) {
    fitting.rows = rows_within(room.height() - BarExtent());
    fitting.cols = cols_within(room.width() - bar_if(fitting.rows < rows.Count()));
  }
  return fitting;
}

void PanelLayout::Arrange() {
  headings_.TakeRoom();
  FitEdits();
  Place();
}

void PanelLayout::SizeChanged() {
  has_size_ = true;
  Arrange();
}

void PanelLayout::Place() {
  PlaceParts();
  panel_.updateGeometry();
}

void PanelLayout::PlaceParts() {
  grid_.Arrange();
  headings_.Arrange();
  const QSize bars(NeedsBar(rows_) ? BarExtent() : 0, NeedsBar(cols_) ? BarExtent() : 0);
  // With AutoEdits, two bars meet in the corner of the panel, wherever the last cells end.
  const QSize cells =
      auto_edits_ && cols_.Bar() ? panel_.contentsRect().size() - bars : geometry_.Size();
  const int left = geometry_.HeaderWidth();
  const int top = geometry_.HeaderHeight();
  const auto place = [this](QWidget* widget, const QRect& rectangle) {
    if (widget != nullptr) widget->setGeometry(geometry_.Placed(rectangle));
  };
  place(rows_.Bar(), {cells.width(), top, bars.width(), cells.height() - top});
  place(cols_.Bar(), {left, cells.height(), cells.width() - left, bars.height()});
  place(corner_, {cells.width(), cells.height(), bars.width(), bars.height()});
}

QSize PanelLayout::SizeHint() const {
  return SizeFor(rows_.PreferredEdits(), cols_.PreferredEdits());
}

QSize PanelLayout::MinimumSizeHint() const {
  if (!auto_edits_) return SizeHint();
  return SizeFor(std::min(rows_.PreferredEdits(), kLeastAutoEdits),
                 std::min(cols_.PreferredEdits(), kLeastAutoEdits));
}

QSize PanelLayout::SizeFor(quint32 rows, quint32 cols) const {
  const QSize bars(BarExtent(), cols_.Bar() ? BarExtent() : 0);
  const int frame = 2 * panel_.frameWidth();
  return geometry_.Size(rows, cols) + bars + QSize(frame, frame);
}

void PanelLayout::ColsMoved() {
  if (geometry_.ColWidths().AreUsual()) return;
  headings_.TakeRoom();
  FitEdits();
  // The size that the panel wants is that of its widest columns, in sight or not.
  PlaceParts();
}

void PanelLayout::CountChanged() {
  const bool has_headings = headings_.HasRows();
  if (has_headings) headings_.Measure();
  if (has_headings || auto_edits_ || !geometry_.ColWidths().AreUsual()) Arrange();
}

void PanelLayout::SetRowHeadings(bool on) {
  headings_.SetRows(on);
  if (on) headings_.Measure();
  Arrange();
}

void PanelLayout::SetColHeadings(bool on) {
  headings_.SetCols(on);
  Arrange();
}

void PanelLayout::DragColWidth(quint32 col, int width) {
  geometry_.ColWidths().Set(col, width);
  Arrange();
  // A layout makes the panel as wide as its cells; without one, it widens itself.
  if (!auto_edits_ && panel_.sizePolicy().horizontalPolicy() == QSizePolicy::Fixed) {
    panel_.resize(SizeHint().width(), panel_.height());
  }
}

}  // namespace qorvex::inline QorvexControls::detail
