#include "qorvex/controls/panel/detail/accessible_text.h"

#include <QFontMetrics>
#include <algorithm>

namespace qorvex::inline QorvexControls::detail {

namespace {

QString Part(const QString& text, int start, int end) {
  const auto first = std::clamp<qsizetype>(start, 0, text.size());
  return text.sliced(first, std::clamp<qsizetype>(end, first, text.size()) - first);
}

// The whole text looks the same.
QString NoAttributes(int length, int* start, int* end) {
  *start = 0;
  *end = length;
  return {};
}

}  // namespace

void AccessibleText::selection(int index, int* start, int* end) const {
  const bool exists = index == 0 && cell_.hasSelectedText();
  *start = exists ? cell_.selectionStart() : 0;
  *end = exists ? cell_.selectionEnd() : 0;
}

int AccessibleText::selectionCount() const {
  return cell_.hasSelectedText() ? 1 : 0;
}

void AccessibleText::addSelection(int start, int end) {
  setSelection(0, start, end);
}

void AccessibleText::removeSelection(int index) {
  if (index == 0) cell_.deselect();
}

void AccessibleText::setSelection(int index, int start, int end) {
  if (index == 0) cell_.setSelection(start, end - start);
}

int AccessibleText::cursorPosition() const {
  return cell_.cursorPosition();
}

void AccessibleText::setCursorPosition(int position) {
  cell_.setCursorPosition(position);
}

QString AccessibleText::text(int start, int end) const {
  return Part(cell_.text(), start, end);
}

int AccessibleText::characterCount() const {
  return static_cast<int>(cell_.text().size());
}

QRect AccessibleText::characterRect(int offset) const {
  const QString character = text(offset, offset + 1);
  if (character.isEmpty()) return {};
  // A line edit only tells where its cursor is.
  const QFontMetrics metrics(cell_.font());
  const QRect cursor = cell_.inputMethodQuery(Qt::ImCursorRectangle).toRect();
  const int x = cursor.center().x() - metrics.horizontalAdvance(text(0, cursorPosition())) +
                metrics.horizontalAdvance(text(0, offset));
  return {cell_.mapToGlobal(QPoint(x, cursor.y())),
          QSize(metrics.horizontalAdvance(character), metrics.height())};
}

int AccessibleText::offsetAtPoint(const QPoint& point) const {
  return cell_.cursorPositionAt(cell_.mapFromGlobal(point));
}

void AccessibleText::scrollToSubstring(int start, int end) {
  cell_.setCursorPosition(end);
  cell_.setCursorPosition(start);
}

QString AccessibleText::attributes(int, int* start, int* end) const {
  return NoAttributes(characterCount(), start, end);
}

void AccessibleText::deleteText(int start, int end) {
  replaceText(start, end, {});
}

void AccessibleText::insertText(int offset, const QString& text) {
  replaceText(offset, offset, text);
}

void AccessibleText::replaceText(int start, int end, const QString& text) {
  if (cell_.isReadOnly() || !cell_.isEnabled()) return;
  cell_.setFocus(Qt::OtherFocusReason);
  cell_.setCursorPosition(start);
  cell_.setSelection(start, end - start);
  cell_.insert(text);
  // In an inactive window the cell has no focus to lose, so the text is committed at once.
  if (!cell_.hasFocus()) cell_.CommitOrRestore();
}

QString AccessibleReading::text(int start, int end) const {
  return Part(WholeText(), start, end);
}

QString AccessibleReading::attributes(int, int* start, int* end) const {
  return NoAttributes(characterCount(), start, end);
}

}  // namespace qorvex::inline QorvexControls::detail
