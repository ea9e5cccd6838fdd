#include "qorvex/controls/panel/detail/panel_mouse.h"

#include <QTimerEvent>

namespace qorvex::inline QorvexControls::detail {

namespace {

void Scroll(EditWindow& window, int direction) {
  if (direction < 0) window.ScrollUp(1);
  if (direction > 0) window.ScrollDown(1);
}

}  // namespace

PanelMouse::PanelMouse(CellPanel& panel, PanelAxis& rows, PanelAxis& cols, const CellGrid& grid,
                       PanelFocus& focus, PanelSelection& selection)
    : panel_(panel), rows_(rows), cols_(cols), grid_(grid), focus_(focus), selection_(selection) {}

bool PanelMouse::Handle(TextCell& text, QMouseEvent& event) {
  const CellGrid::Spot spot = grid_.SpotOf(text);
  const CellPlace element{rows_.Window().Top() + spot.place.row,
                          cols_.Window().Top() + spot.place.col};
  bool used = false;
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      used = Press(text, spot.is_cell, element, event);
      break;
    case QEvent::MouseButtonDblClick:
      if (event.button() == Qt::LeftButton && focus_.Entered() == &text) focus_.SetEditing(true);
      break;
    case QEvent::MouseMove:
      used = dragged_ == &text && event.buttons().testFlag(Qt::LeftButton);
      if (used) DragTo(text.mapTo(&panel_, event.position().toPoint()));
      break;
    default:
      dragged_ = nullptr;
      scrolling_.stop();
      break;
  }
  Tell(text, spot.is_cell, element, event);
  return used;
}

bool PanelMouse::Press(TextCell& text, bool is_cell, CellPlace element, const QMouseEvent& event) {
  dragged_ = nullptr;
  const bool left = event.button() == Qt::LeftButton;
  // A menu that opens on the selection is about the selection.
  if (!left && selection_.Range().Contains(element.row, element.col)) return false;
  if (focus_.KeysBelongToText()) {
    if (!is_cell) selection_.Clear();
    return false;
  }
  const bool extends = left && event.modifiers().testFlag(Qt::ShiftModifier);
  if (left) dragged_ = &text;
  drags_rows_ = !is_cell;
  if (drags_rows_) {
    extends ? selection_.ExtendRows(element.row) : selection_.SelectRows(element.row, element.row);
  } else if (extends) {
    selection_.Extend(element);
  } else {
    selection_.Select(element, element);
  }
  return extends;
}

void PanelMouse::DragTo(QPoint place) {
  place_ = place;
  const CellGrid::Nearest nearest = grid_.NearestTo(place);
  const quint32 row = rows_.Window().Top() + nearest.place.row;
  const quint32 col = cols_.Window().Top() + nearest.place.col;
  if (drags_rows_) {
    selection_.ExtendRows(row);
  } else {
    selection_.Extend({row, col});
  }
  constexpr int milliseconds_per_step = 50;
  if (nearest.rows_beyond == 0 && (drags_rows_ || nearest.cols_beyond == 0)) {
    scrolling_.stop();
  } else if (!scrolling_.isActive()) {
    scrolling_.start(milliseconds_per_step, this);
  }
}

void PanelMouse::timerEvent(QTimerEvent* event) {
  if (event->timerId() != scrolling_.timerId()) return;
  if (!dragged_ || !dragged_->isVisible()) {
    scrolling_.stop();
    return;
  }
  const CellGrid::Nearest nearest = grid_.NearestTo(place_);
  Scroll(rows_.Window(), nearest.rows_beyond);
  if (!drags_rows_) Scroll(cols_.Window(), nearest.cols_beyond);
  DragTo(place_);
}

void PanelMouse::Tell(const TextCell& text, bool is_cell, CellPlace element, QMouseEvent& event) {
  const auto [row, col] = element;
  switch (event.type()) {
    case QEvent::MouseButtonPress:
      Q_EMIT panel_.OnMouseDown(&event);
      if (is_cell) Q_EMIT panel_.OnCellMouseDown(&event, row, col);
      break;
    case QEvent::MouseButtonDblClick:
      Q_EMIT panel_.OnDblClick();
      if (is_cell) Q_EMIT panel_.OnCellDblClick(row, col);
      break;
    case QEvent::MouseMove:
      Q_EMIT panel_.OnMouseMove(&event);
      if (is_cell) Q_EMIT panel_.OnCellMouseMove(&event, row, col);
      break;
    default:
      Q_EMIT panel_.OnMouseUp(&event);
      if (is_cell) Q_EMIT panel_.OnCellMouseUp(&event, row, col);
      if (event.button() != Qt::LeftButton || !text.rect().contains(event.position().toPoint())) {
        break;
      }
      Q_EMIT panel_.OnClick();
      if (is_cell) Q_EMIT panel_.OnCellClick(row, col);
  }
}

}  // namespace qorvex::inline QorvexControls::detail
