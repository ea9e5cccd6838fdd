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
  const bool exists = index == 0 && line_.hasSelectedText();
  *start = exists ? line_.selectionStart() : 0;
  *end = exists ? line_.selectionEnd() : 0;
}

int AccessibleText::selectionCount() const {
  return line_.hasSelectedText() ? 1 : 0;
}

void AccessibleText::addSelection(int start, int end) {
  setSelection(0, start, end);
}

void AccessibleText::removeSelection(int index) {
  if (index == 0) line_.deselect();
}

void AccessibleText::setSelection(int index, int start, int end) {
  if (index == 0) line_.setSelection(start, end - start);
}

int AccessibleText::cursorPosition() const {
  return line_.cursorPosition();
}

void AccessibleText::setCursorPosition(int position) {
  line_.setCursorPosition(position);
}

QString AccessibleText::text(int start, int end) const {
  return Part(line_.text(), start, end);
}

int AccessibleText::characterCount() const {
  return static_cast<int>(line_.text().size());
}

QRect AccessibleText::characterRect(int offset) const {
  const QString character = text(offset, offset + 1);
  if (character.isEmpty()) return {};
  // A line edit only tells where its cursor is.
  const QFontMetrics metrics(line_.font());
  const QRect cursor = line_.inputMethodQuery(Qt::ImCursorRectangle).toRect();
  const int x = cursor.center().x() - metrics.horizontalAdvance(text(0, cursorPosition())) +
                metrics.horizontalAdvance(text(0, offset));
  return {line_.mapToGlobal(QPoint(x, cursor.y())),
          QSize(metrics.horizontalAdvance(character), metrics.height())};
}

int AccessibleText::offsetAtPoint(const QPoint& point) const {
  return line_.cursorPositionAt(line_.mapFromGlobal(point));
}

void AccessibleText::scrollToSubstring(int start, int end) {
  line_.setCursorPosition(end);
  line_.setCursorPosition(start);
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
  if (line_.isReadOnly() || !line_.isEnabled()) return;
  // What is typed takes effect when the focus leaves.
  line_.setFocus(Qt::OtherFocusReason);
  line_.setCursorPosition(start);
  line_.setSelection(start, end - start);
  line_.insert(text);
}

QString AccessibleReading::text(int start, int end) const {
  return Part(WholeText(), start, end);
}

QString AccessibleReading::attributes(int, int* start, int* end) const {
  return NoAttributes(characterCount(), start, end);
}

}  // namespace qorvex::inline QorvexControls::detail
