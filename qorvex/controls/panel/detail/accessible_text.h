#pragma once

/// @file
/// AccessibleText, the text of a line edit for screen readers.

#include <QAccessible>
#include <QLineEdit>
#include <QRect>
#include <QString>

namespace qorvex::inline QorvexControls::detail {

/// The text of a line edit. Changes count as typed.
class AccessibleText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleText(QLineEdit& line) : line_(line) {}

  void selection(int index, int* start, int* end) const override;
  int selectionCount() const override;
  void addSelection(int start, int end) override;
  void removeSelection(int index) override;
  void setSelection(int index, int start, int end) override;
  int cursorPosition() const override;
  void setCursorPosition(int position) override;
  QString text(int start, int end) const override;
  int characterCount() const override;
  QRect characterRect(int offset) const override;
  int offsetAtPoint(const QPoint& point) const override;
  void scrollToSubstring(int start, int end) override;
  QString attributes(int offset, int* start, int* end) const override;

  void deleteText(int start, int end) override;
  void insertText(int offset, const QString& text) override;
  void replaceText(int start, int end, const QString& text) override;

 private:
  QLineEdit& line_;
};

}  // namespace qorvex::inline QorvexControls::detail
