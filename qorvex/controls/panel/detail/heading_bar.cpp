#include "qorvex/controls/panel/detail/heading_bar.h"

#include <QContextMenuEvent>
#include <QHelpEvent>
#include <QMouseEvent>
#include <QStyle>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "qorvex/base_controls/detail/tool_tip.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

// How near to an edge the mouse drags it, and how small it can drag a column.
constexpr int kGrip = 4;
constexpr int kLeastSize = 2 * kGrip;

// Longer headings of rows are shortened.
constexpr int kMostCharacters = 40;

// A text keeps this distance from both edges of its heading.
constexpr int kMargin = 4;

// Selected headings are bold; all of them have room for it.
QFont Bold(QFont font) {
  font.setBold(true);
  return font;
}

}  // namespace

HeadingBar::HeadingBar(QWidget& panel, Qt::Orientation orientation, const EditWindow& window,
                       const GridGeometry& geometry, HeadingEvents events)
    : QWidget(&panel),
      orientation_(orientation),
      window_(window),
      geometry_(geometry),
      events_(std::move(events)) {
  setFocusPolicy(Qt::NoFocus);
  setMouseTracking(true);
}

HeadingBar::~HeadingBar() = default;

void HeadingBar::Arrange() {
  const quint32 edits = window_.Edits();
  QRect room = orientation_ == Qt::Vertical ? geometry_.InFrontOf(0) : geometry_.Above(0);
  if (orientation_ == Qt::Vertical) {
    room.setBottom(geometry_.InFrontOf(edits).y() - 1);
  } else {
    room.setRight(geometry_.Above(edits).x() - 1);
  }
  setGeometry(geometry_.Placed(room));
}

int HeadingBar::WidthOf(const QString& text) const {
  // The advance is rounded, perhaps down.
  return QFontMetrics(Bold(font())).horizontalAdvance(text) + 1 + 2 * kMargin;
}

int HeadingBar::TextWidth() const {
  int width = 0;
  for (quint32 edit = 0; edit < window_.UsedEdits(); ++edit) {
    width = std::max(width, WidthOf(TextOf(edit)));
  }
  return std::min(width, kMostCharacters * fontMetrics().averageCharWidth());
}

QString HeadingBar::TextOf(quint32 edit) const {
  return edit < window_.UsedEdits() ? events_.text(window_.Top() + edit) : QString();
}

QRect HeadingBar::Section(quint32 edit) const {
  if (orientation_ == Qt::Vertical) {
    return {0, static_cast<int>(edit) * geometry_.RowHeight(), width(), geometry_.RowHeight()};
  }
  const QRect above = geometry_.Above(edit);
  const QRect section(above.x() - geometry_.HeaderWidth(), 0, above.width(), height());
  return QStyle::visualRect(layoutDirection(), rect(), section);
}

std::optional<quint32> HeadingBar::EditAt(const QPoint& place) const {
  const quint32 used = window_.UsedEdits();
  if (used == 0) return std::nullopt;
  for (quint32 edit = 0; edit < used; ++edit) {
    const QRect section = Section(edit);
    const bool before_end = orientation_ == Qt::Vertical           ? place.y() <= section.bottom()
                            : layoutDirection() == Qt::RightToLeft ? place.x() >= section.left()
                                                                   : place.x() <= section.right();
    if (before_end) return edit;
  }
  return used - 1;
}

int HeadingBar::SideOf(const QPoint& place) const {
  const bool vertical = orientation_ == Qt::Vertical;
  const int along = vertical ? place.y() : place.x();
  if (along >= 0 && along < (vertical ? height() : width())) return 0;
  const bool forward = along >= 0;
  return forward == (vertical || layoutDirection() == Qt::LeftToRight) ? 1 : -1;
}

std::optional<quint32> HeadingBar::EdgeAt(const QPoint& place) const {
  if (!events_.resize) return std::nullopt;
  // The last one first, so that a column without a width can be widened.
  for (quint32 edit = window_.UsedEdits(); edit-- > 0;) {
    const QRect section = Section(edit);
    const int edge = layoutDirection() == Qt::RightToLeft ? section.left() : section.right() + 1;
    if (std::abs(place.x() - edge) <= kGrip) return edit;
  }
  return std::nullopt;
}

void HeadingBar::mousePressEvent(QMouseEvent* event) {
  if (event->button() != Qt::LeftButton) {
    QWidget::mousePressEvent(event);
    return;
  }
  const QPoint place = event->position().toPoint();
  if (const auto edge = EdgeAt(place)) {
    drag_ = Drag{window_.Top() + *edge, Section(*edge).width(), place.x()};
  } else if (const auto edit = EditAt(place)) {
    selecting_ = true;
    events_.select(window_.Top() + *edit, event->modifiers().testFlag(Qt::ShiftModifier));
  }
}

void HeadingBar::mouseDoubleClickEvent(QMouseEvent* event) {
  const auto edge = EdgeAt(event->position().toPoint());
  if (edge && event->button() == Qt::LeftButton) {
    events_.fit(window_.Top() + *edge, WidthOf(TextOf(*edge)));
  } else {
    mousePressEvent(event);
  }
}

void HeadingBar::mouseMoveEvent(QMouseEvent* event) {
  const QPoint place = event->position().toPoint();
  if (drag_) {
    const int moved = place.x() - drag_->start;
    const int size = drag_->size + (layoutDirection() == Qt::RightToLeft ? -moved : moved);
    events_.resize(drag_->element, std::max(size, kLeastSize));
  } else if (selecting_) {
    SelectTo(place);
  } else {
    setCursor(EdgeAt(place) ? Qt::SplitHCursor : Qt::ArrowCursor);
  }
}

void HeadingBar::SelectTo(const QPoint& place) {
  place_ = place;
  if (const auto edit = EditAt(place)) events_.select(window_.Top() + *edit, true);
  constexpr int milliseconds_per_step = 50;
  if (SideOf(place) == 0) {
    scrolling_.stop();
  } else if (!scrolling_.isActive()) {
    scrolling_.start(milliseconds_per_step, this);
  }
}

void HeadingBar::timerEvent(QTimerEvent*) {
  if (!isVisible()) return Release();
  events_.scroll(SideOf(place_) > 0);
  SelectTo(place_);
}

void HeadingBar::mouseReleaseEvent(QMouseEvent*) {
  Release();
}

void HeadingBar::Release() {
  drag_.reset();
  selecting_ = false;
  scrolling_.stop();
}

void HeadingBar::leaveEvent(QEvent* event) {
  unsetCursor();
  QWidget::leaveEvent(event);
}

void HeadingBar::contextMenuEvent(QContextMenuEvent* event) {
  const auto edit = EditAt(event->pos());
  if (edit && parentWidget()->contextMenuPolicy() == Qt::DefaultContextMenu) {
    events_.menu(window_.Top() + *edit, event->globalPos());
  } else {
    // It goes on to the panel, which follows its policy.
    event->ignore();
  }
}

bool HeadingBar::event(QEvent* event) {
  if (event->type() == QEvent::ToolTip) {
    const auto& help = static_cast<const QHelpEvent&>(*event);
    const auto edit = EditAt(help.pos());
    const QString text = edit ? TextOf(*edit) : QString();
    if (edit && WidthOf(text) > Section(*edit).width()) {
      QToolTip::showText(help.globalPos(), QorvexBaseControls::detail::AsToolTip(text), this);
      return true;
    }
  }
  return QWidget::event(event);
}

QStyleOptionHeader HeadingBar::Option(quint32 edit) const {
  QStyleOptionHeader option;
  option.initFrom(this);
  option.rect = Section(edit);
  option.orientation = orientation_;
  option.section = static_cast<int>(edit);
  option.textAlignment = Qt::AlignCenter;
  option.state.setFlag(QStyle::State_Horizontal, orientation_ == Qt::Horizontal);
  option.state |= QStyle::State_Raised;
  // Only a heading under the mouse is meant to look so, and then not the whole bar.
  option.state &= ~QStyle::State_MouseOver;
  const quint32 last = window_.Edits() - 1;
  option.position = last == 0      ? QStyleOptionHeader::OnlyOneSection
                    : edit == 0    ? QStyleOptionHeader::Beginning
                    : edit == last ? QStyleOptionHeader::End
                                   : QStyleOptionHeader::Middle;
  if (edit < window_.UsedEdits() && events_.is_selected(window_.Top() + edit)) {
    option.state |= QStyle::State_On | QStyle::State_Sunken;
  }
  option.text = QFontMetrics(Bold(font()))
                    .elidedText(TextOf(edit), Qt::ElideRight, option.rect.width() - 2 * kMargin);
  return option;
}

void HeadingBar::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  // Asking for a text may change how many edits there are.
  for (quint32 edit = 0; edit < window_.Edits(); ++edit) {
    const QStyleOptionHeader option = Option(edit);
    painter.setFont(option.state.testFlag(QStyle::State_On) ? Bold(font()) : font());
    style()->drawControl(QStyle::CE_Header, &option, &painter, this);
  }
}

HeadingCorner::HeadingCorner(QWidget& panel, std::function<void()> clicked)
    : QWidget(&panel), clicked_(std::move(clicked)) {
  setFocusPolicy(Qt::NoFocus);
}

HeadingCorner::~HeadingCorner() = default;

void HeadingCorner::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) clicked_();
}

void HeadingCorner::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  QStyleOptionHeader option;
  option.initFrom(this);
  option.state |= QStyle::State_Raised;
  option.position = QStyleOptionHeader::OnlyOneSection;
  style()->drawControl(QStyle::CE_Header, &option, &painter, this);
}

}  // namespace qorvex::inline QorvexControls::detail
