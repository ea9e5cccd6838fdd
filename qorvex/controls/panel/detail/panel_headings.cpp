#include "qorvex/controls/panel/detail/panel_headings.h"

#include <algorithm>
#include <limits>
#include <utility>

#include "qorvex/controls/panel/detail/panel_axis.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

// The mouse may be on it, so it is deleted later.
template <class Widget>
void Drop(Widget*& widget) {
  widget->hide();
  std::exchange(widget, nullptr)->deleteLater();
}

void Scroll(EditWindow& window, bool forward) {
  forward ? window.ScrollDown(1) : window.ScrollUp(1);
}

}  // namespace

PanelHeadings::PanelHeadings(QWidget& panel, const CellTable& table, EditWindow& rows,
                             EditWindow& cols, GridGeometry& geometry, const CellGrid& grid,
                             PanelFocus& focus, PanelSelection& selection, Owner owner)
    : panel_(panel),
      table_(table),
      rows_(rows),
      cols_(cols),
      geometry_(geometry),
      grid_(grid),
      focus_(focus),
      selection_(selection),
      owner_(std::move(owner)) {}

PanelHeadings::~PanelHeadings() {
  delete row_bar_;
  delete col_bar_;
  delete corner_;
}

void PanelHeadings::SetRows(bool on) {
  if (on == HasRows()) return;
  if (on) {
    row_bar_ =
        new HeadingBar(panel_, Qt::Vertical, rows_, geometry_,
                       {.text = [this](quint32 row) { return RowText(row); },
                        .is_selected = [this](quint32 row) { return IsRowSelected(row); },
                        .select = [this](quint32 row, bool extend) { SelectRow(row, extend); },
                        .scroll = [this](bool forward) { Scroll(rows_, forward); },
                        .resize = {},
                        .fit = {},
                        .menu = [this](quint32 row, const QPoint& at) { OpenRowMenu(row, at); }});
    row_bar_->setObjectName(QStringLiteral("RowHeadings"));
    row_bar_->show();
  } else {
    Drop(row_bar_);
    geometry_.SetHeaderWidth(0);
  }
  FitCorner();
}

void PanelHeadings::SetCols(bool on) {
  if (on == HasCols()) return;
  if (on) {
    col_bar_ =
        new HeadingBar(panel_, Qt::Horizontal, cols_, geometry_,
                       {.text = [this](quint32 col) { return ColText(col); },
                        .is_selected = [this](quint32 col) { return IsColSelected(col); },
                        .select = [this](quint32 col, bool extend) { SelectCol(col, extend); },
                        .scroll = [this](bool forward) { Scroll(cols_, forward); },
                        .resize = owner_.resize_col,
                        .fit = [this](quint32 col, int width) { FitCol(col, width); },
                        .menu = [this](quint32 col, const QPoint& at) { OpenColMenu(col, at); }});
    col_bar_->setObjectName(QStringLiteral("ColHeadings"));
    col_bar_->show();
  } else {
    Drop(col_bar_);
    geometry_.SetHeaderHeight(0);
  }
  FitCorner();
}

QString PanelHeadings::RowText(quint32 row) const {
  return row < table_.RowCount() ? table_.RowHeading(row) : QString(kSpareMark);
}

QString PanelHeadings::ColText(quint32 col) const {
  return col < table_.ColCount() ? table_.ColHeading(col) : QString(kSpareMark);
}

bool PanelHeadings::IsRowSelected(quint32 row) const {
  const TQorCellRange selected = selection_.Range();
  return row - selected.row < selected.rows;
}

bool PanelHeadings::IsColSelected(quint32 col) const {
  const TQorCellRange selected = selection_.Range();
  return col - selected.col < selected.cols;
}

void PanelHeadings::TakeFocus(quint32 row_edit, quint32 col_edit, bool extend) {
  focus_.CommitPending();
  focus_.SetEditing(false);
  if (extend && focus_.Entered() != nullptr) return;
  const PanelSelection::Hold hold(selection_, PanelSelection::Hold::Entry::kKeeps);
  focus_.FocusCell(row_edit, col_edit);
}

void PanelHeadings::SelectRow(quint32 row, bool extend) {
  TakeFocus(row - rows_.Top(), 0, extend);
  extend ? selection_.ExtendRows(row) : selection_.SelectRows(row, row);
}

void PanelHeadings::SelectCol(quint32 col, bool extend) {
  TakeFocus(0, col - cols_.Top(), extend);
  extend ? selection_.ExtendCols(col) : selection_.SelectCols(col, col);
}

void PanelHeadings::SelectAll() {
  TakeFocus(rows_.Focus(), cols_.Focus(), true);
  constexpr quint32 last = std::numeric_limits<quint32>::max();
  selection_.Select({0, 0}, {last, last});
}

// A menu that opens on the selection is about the selection.
void PanelHeadings::OpenRowMenu(quint32 row, const QPoint& place) {
  const bool selected = IsRowSelected(row) && selection_.Range().cols == table_.ColCount();
  selected ? TakeFocus(row - rows_.Top(), 0, true) : SelectRow(row, false);
  owner_.open_menu({row, 0}, place);
}

void PanelHeadings::OpenColMenu(quint32 col, const QPoint& place) {
  const bool selected = IsColSelected(col) && selection_.Range().rows == table_.RowCount();
  selected ? TakeFocus(0, col - cols_.Top(), true) : SelectCol(col, false);
  owner_.open_menu({0, col}, place);
}

void PanelHeadings::FitCol(quint32 col, int heading_width) {
  owner_.resize_col(col, std::max(heading_width, grid_.FittingWidth(col - cols_.Top())));
}

void PanelHeadings::FitCorner() {
  const bool needed = HasRows() && HasCols();
  if (needed == (corner_ != nullptr)) return;
  if (needed) {
    corner_ = new HeadingCorner(panel_, [this] { SelectAll(); });
    corner_->show();
  } else {
    Drop(corner_);
  }
}

void PanelHeadings::TakeRoom() {
  if (HasCols()) geometry_.SetHeaderHeight(geometry_.RowHeight());
  if (!HasRows()) return;
  const int last_number = row_bar_->WidthOf(QString::number(rows_.Count()));
  geometry_.SetHeaderWidth(std::max(row_text_width_, last_number));
}

void PanelHeadings::Arrange() {
  if (HasRows()) row_bar_->Arrange();
  if (HasCols()) col_bar_->Arrange();
  if (corner_ == nullptr) return;
  corner_->setGeometry(geometry_.Placed({0, 0, geometry_.HeaderWidth(), geometry_.HeaderHeight()}));
}

bool PanelHeadings::Show() {
  Update();
  if (!HasRows()) return false;
  const int width = row_bar_->TextWidth();
  // Asking for a text may have turned the headings off.
  row_text_width_ = std::max(row_text_width_, width);
  return HasRows() && row_text_width_ > geometry_.HeaderWidth();
}

void PanelHeadings::Update() {
  if (HasRows()) row_bar_->update();
  if (HasCols()) col_bar_->update();
}

}  // namespace qorvex::inline QorvexControls::detail
