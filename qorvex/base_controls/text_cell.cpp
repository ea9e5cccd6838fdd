#include "qorvex/base_controls/text_cell.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFocusEvent>
#include <QHelpEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QPainter>
#include <QRegularExpression>
#include <QStyle>
#include <QStyleOptionFrame>
#include <QTextLayout>
#include <QToolTip>
#include <algorithm>
#include <cstdlib>
#include <utility>

#include "qorvex/base_controls/detail/tool_tip.h"

namespace qorvex::inline QorvexBaseControls {

namespace {

// The margins of a line edit around its text.
constexpr int kMarginAtSide = 2;
constexpr int kMarginAbove = 1;

QTextLine LineOf(QTextLayout& layout) {
  layout.beginLayout();
  const QTextLine line = layout.createLine();
  layout.endLayout();
  return line;
}

// The width of a text and the available width, as the line edit counts them.
int WidthOf(const QTextLine& line) {
  return qRound(line.naturalTextWidth()) + 1;
}

int RoomFor(const QRect& contents) {
  return contents.width() - 2 * kMarginAtSide;
}

}  // namespace

TextCell::TextCell(QWidget* parent) : QLineEdit(parent) {}
TextCell::~TextCell() = default;

bool TextCell::Pending() const {
  return isModified() && text() != shown_;
}

void TextCell::ShowText(const QString& text, bool keep_pending) {
  const bool keep = keep_pending && Pending();
  shown_ = text;
  if (!keep) Restore();
}

void TextCell::Restore() {
  // Setting the same text would lose the selection.
  if (text() != shown_) {
    setText(shown_);
    if (inside_ && behaviour_.auto_select) selectAll();
  }
  setModified(false);
}

bool TextCell::CommitOrRefuse() {
  if (Commit()) return true;
  Q_EMIT Refused(text());
  return false;
}

void TextCell::CommitOrRestore() {
  if (Commit()) return;
  const QString refused = text();
  Restore();
  Q_EMIT Refused(refused);
}

void TextCell::Leave() {
  if (!inside_) return;
  inside_ = false;
  CommitOrRestore();
  Q_EMIT Left();
}

bool TextCell::IsEdited() const {
  // Another text has been typed or set by the program.
  if (text() != shown_) return true;
  if (hasSelectedText() && selectedText() != text()) return true;
  return hasFocus() && !isReadOnly() && (editing_ || !hasSelectedText());
}

void TextCell::SetEditing(bool editing) {
  if (editing == editing_) return;
  editing_ = editing;
  update();
}

QString TextCell::PaintedText() const {
  if (IsEdited()) return displayText();
  const QString whole = WholeText();
  return HasRoom(whole) ? whole : ShorterText();
}

int TextCell::FittingWidth() const {
  QTextLayout layout(WholeText(), font(), this);
  return WidthOf(LineOf(layout)) + width() - RoomFor(Contents());
}

QString TextCell::ShorterText() const {
  return fontMetrics().elidedText(displayText(), Qt::ElideRight, RoomFor(Contents()) - 1);
}

QString TextCell::Tip() const {
  return HasRoom(WholeText()) ? QString() : text();
}

bool TextCell::HasRoom(const QString& text) const {
  const int room = RoomFor(Contents());
  // Most texts have room to spare, and adding up their characters takes a fraction of the time of a
  // layout. The height of the font covers kerning, and slanted glyphs that reach beyond their
  // advance; half a pixel per character covers the rounding of its advance.
  const bool is_simple = font().letterSpacing() == 0 && font().wordSpacing() == 0 &&
                         std::ranges::all_of(text, [](QChar c) { return c.unicode() < 0x80; });
  if (is_simple) {
    const QFontMetrics metrics = fontMetrics();
    int width = metrics.height() + static_cast<int>(text.size()) / 2;
    for (const QChar character : text) width += metrics.horizontalAdvance(character);
    if (width <= room) return true;
  }
  QTextLayout layout(text, font(), this);
  return WidthOf(LineOf(layout)) <= room;
}

QRect TextCell::Contents() const {
  QStyleOptionFrame frame;
  initStyleOption(&frame);
  const QRect contents = style()->subElementRect(QStyle::SE_LineEditContents, &frame, this);
  return contents.marginsRemoved(textMargins());
}

void TextCell::paintEvent(QPaintEvent* event) {
  const QString painted = PaintedText();
  if (painted == displayText()) {
    QLineEdit::paintEvent(event);
  } else {
    PaintText(painted);
  }
  PaintLostFrame();
}

void TextCell::PaintLostFrame() {
  // Styles derive the frame from the colour of the window, which they darken. In dark palettes
  // there would be nothing between the cells.
  constexpr int darkening = 140;
  constexpr int least_difference = 24;
  const QColor frame = palette().color(QPalette::Window).darker(darkening);
  const QColor base = palette().color(QPalette::Base);
  const bool lost = std::abs(frame.lightness() - base.lightness()) < least_difference;
  if (!lost || !hasFrame() || hasFocus()) return;
  QPainter painter(this);
  QColor line = palette().color(QPalette::Text);
  line.setAlphaF(base.lightness() == 0 ? 0.5F : 0.25F);
  painter.setPen(line);
  painter.drawRect(rect().adjusted(0, 0, -1, -1));
}

void TextCell::PaintText(const QString& painted) {
  QPainter painter(this);
  QStyleOptionFrame frame;
  initStyleOption(&frame);
  style()->drawPrimitive(QStyle::PE_PanelLineEdit, &frame, &painter, this);

  // The text is placed where the line edit would place it, in the direction of the text.
  QTextLayout layout(painted, font(), this);
  const QTextLine line = LineOf(layout);
  const QFontMetrics metrics = fontMetrics();
  const QSize size(WidthOf(line),
                   std::max(metrics.height(), metrics.boundingRect(painted).height()));
  const QRect contents = Contents();
  const auto direction = painted.isRightToLeft() ? Qt::RightToLeft : Qt::LeftToRight;
  const Qt::Alignment alignment = QStyle::visualAlignment(direction, this->alignment());
  QPoint place(contents.x() + kMarginAtSide,
               contents.y() + (contents.height() - size.height() + 1) / 2);
  const int free = RoomFor(contents) - size.width();
  if (alignment.testFlag(Qt::AlignRight)) place.rx() += free - 1;
  if (alignment.testFlag(Qt::AlignHCenter)) place.rx() += free / 2;
  if (alignment.testFlag(Qt::AlignTop)) place.setY(contents.y() + kMarginAbove);
  if (alignment.testFlag(Qt::AlignBottom)) {
    place.setY(contents.y() + contents.height() - size.height() - kMarginAbove);
  }

  painter.setClipRect(contents);
  const bool selected = hasSelectedText();
  if (selected) painter.fillRect(QRect(place, size), palette().highlight());
  painter.setPen(palette().color(selected ? QPalette::HighlightedText : QPalette::Text));
  layout.draw(&painter, place + QPoint(0, metrics.ascent() - qRound(line.ascent())));
}

bool TextCell::event(QEvent* event) {
  // While the window was inactive, the focus has been given to another widget.
  if (event->type() == QEvent::WindowActivate && window()->focusWidget() != this) Leave();
  if (event->type() == QEvent::ToolTip && toolTip().isEmpty()) {
    const QString tip = Tip();
    if (!tip.isEmpty()) {
      QToolTip::showText(static_cast<const QHelpEvent&>(*event).globalPos(), detail::AsToolTip(tip),
                         this);
      return true;
    }
  }
  return QLineEdit::event(event);
}

void TextCell::focusInEvent(QFocusEvent* event) {
  QLineEdit::focusInEvent(event);
  if (inside_) return;
  inside_ = true;
  entered_by_mouse_ = event->reason() == Qt::MouseFocusReason;
  if (!entered_by_mouse_) {
    if (behaviour_.auto_select) {
      selectAll();
    } else {
      deselect();
    }
  }
  Q_EMIT Entered();
}

void TextCell::focusOutEvent(QFocusEvent* event) {
  QLineEdit::focusOutEvent(event);
  switch (event->reason()) {
    case Qt::PopupFocusReason:
    case Qt::MenuBarFocusReason:
    case Qt::ActiveWindowFocusReason:
      // The focus comes back, and the text is still being typed.
      break;
    default:
      Leave();
  }
}

void TextCell::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      // With nothing to discard, the key is for the dialog.
      if (!Pending()) break;
      Restore();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!CommitOrRefuse()) return;
      break;
    default:
      if (event == QKeySequence::Paste) {
        PasteFrom(QApplication::clipboard()->mimeData());
        return;
      }
      break;
  }
  QLineEdit::keyPressEvent(event);
}

void TextCell::mouseReleaseEvent(QMouseEvent* event) {
  QClipboard& clipboard = *QApplication::clipboard();
  if (event->button() == Qt::MiddleButton && clipboard.supportsSelection()) {
    deselect();
    PasteFrom(clipboard.mimeData(QClipboard::Selection));
    return;
  }
  QLineEdit::mouseReleaseEvent(event);
  if (event->button() != Qt::LeftButton) return;
  // A selection by dragging stays, and a second click places the cursor.
  const bool entered = std::exchange(entered_by_mouse_, false);
  if (entered && behaviour_.auto_select_click && !hasSelectedText()) selectAll();
}

void TextCell::dragEnterEvent(QDragEnterEvent* event) {
  dragMoveEvent(event);
}

void TextCell::dragMoveEvent(QDragMoveEvent* event) {
  // Files and links, which have a text as well, are for the parent.
  if (event->mimeData()->hasUrls()) {
    event->ignore();
  } else {
    QLineEdit::dragMoveEvent(event);
  }
}

void TextCell::dropEvent(QDropEvent* event) {
  // The dropped text replaces the text of the cell, and is committed when the cell is left.
  setFocus(Qt::OtherFocusReason);
  selectAll();
  PasteFrom(event->mimeData());
  event->acceptProposedAction();
}

void TextCell::PasteFrom(const QMimeData* contents) {
  if (!isReadOnly() && contents != nullptr && contents->hasText()) Paste(contents->text());
}

void TextCell::Paste(const QString& text) {
  static const QRegularExpression separator(QStringLiteral("[\t\r\n]"));
  insert(text.section(separator, 0, 0).trimmed());
}

QMenu* TextCell::CreateContextMenu() {
  QMenu* menu = createStandardContextMenu();
  // The line edit would paste tabs and line ends into the text. Its action can only be identified
  // by its text, which Qt translates.
  constexpr const char* text_of_paste = "&Paste";
  const QString paste = QLineEdit::tr(text_of_paste);
  for (QAction* action : menu->actions()) {
    if (action->text().section(QLatin1Char('\t'), 0, 0) != paste) continue;
    action->disconnect(this);
    connect(action, &QAction::triggered, this,
            [this] { PasteFrom(QApplication::clipboard()->mimeData()); });
  }
  Q_EMIT MenuOpening(menu);
  return menu;
}

void TextCell::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* const menu = CreateContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  menu->popup(event->globalPos());
}

}  // namespace qorvex::inline QorvexBaseControls
