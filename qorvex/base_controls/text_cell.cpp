#include "qorvex/base_controls/text_cell.h"

#include <QFocusEvent>
#include <QKeyEvent>
#include <QMouseEvent>

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
  if (text() != shown_) setText(shown_);
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
  if (event->reason() != Qt::MouseFocusReason) {
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
      if (behaviour_.auto_select) selectAll();
      return;
    case Qt::Key_Return:
    case Qt::Key_Enter:
      if (!Commit()) return;
      break;
    default:
      break;
  }
  QLineEdit::keyPressEvent(event);
}

void TextCell::mouseReleaseEvent(QMouseEvent* event) {
  QLineEdit::mouseReleaseEvent(event);
  // A selection that was drawn with the mouse stays.
  if (event->button() == Qt::LeftButton && behaviour_.auto_select_click && !hasSelectedText()) {
    selectAll();
  }
}

}  // namespace qorvex::inline QorvexBaseControls
