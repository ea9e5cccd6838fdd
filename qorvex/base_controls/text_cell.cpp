#include "qorvex/base_controls/text_cell.h"

#include <QApplication>
#include <QClipboard>
#include <QDropEvent>
#include <QFocusEvent>
#include <QKeyEvent>
#include <QMimeData>
#include <QMouseEvent>
#include <QRegularExpression>
#include <memory>
#include <utility>

namespace qorvex::inline QorvexBaseControls {

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
  // Setting the same text would give up the selection.
  if (text() != shown_) {
    setText(shown_);
    if (inside_ && behaviour_.auto_select) selectAll();
  }
  setModified(false);
}

void TextCell::CommitOrRestore() {
  if (!Commit()) Restore();
}

void TextCell::Leave() {
  if (!inside_) return;
  inside_ = false;
  CommitOrRestore();
  Q_EMIT Left();
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
      // The focus comes back, and the text is still being typed.
      break;
    case Qt::ActiveWindowFocusReason:
      CommitOrRestore();
      break;
    default:
      Leave();
  }
}

void TextCell::keyPressEvent(QKeyEvent* event) {
  switch (event->key()) {
    case Qt::Key_Escape:
      // Without anything to give up, the key is a dialog's.
      if (!Pending()) break;
      Restore();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!Commit()) return;
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
  // A selection that was drawn with the mouse stays, and a second click places the cursor.
  const bool entered = std::exchange(entered_by_mouse_, false);
  if (entered && behaviour_.auto_select_click && !hasSelectedText()) selectAll();
}

void TextCell::dropEvent(QDropEvent* event) {
  // What is dropped takes the place of what the cell showed, and is committed when the cell is
  // left.
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
  // The line edit would paste tabs and line ends into the text. Its action has no name but its
  // text, which Qt translates.
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
  const std::unique_ptr<QMenu> menu(CreateContextMenu());
  menu->exec(event->globalPos());
}

}  // namespace qorvex::inline QorvexBaseControls
