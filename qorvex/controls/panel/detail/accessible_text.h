#pragma once

/// @file
/// Texts of cells for screen readers.

#include <QAccessible>
#include <QRect>
#include <QString>

#include "qorvex/base_controls/text_cell.h"

namespace qorvex::inline QorvexControls::detail {

/// The text of a cell. Changes count as typed.
class AccessibleText : public QAccessibleTextInterface, public QAccessibleEditableTextInterface {
 public:
  explicit AccessibleText(TextCell& cell) : cell_(cell) {}

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
  TextCell& cell_;
};

/// A text that is out of sight. It can only be read.
class AccessibleReading : public QAccessibleTextInterface {
 public:
  /// The whole text, now.
  [[nodiscard]] virtual QString WholeText() const = 0;

  void selection(int, int* start, int* end) const override { *start = *end = 0; }
  int selectionCount() const override { return 0; }
  void addSelection(int, int) override {}
  void removeSelection(int) override {}
  void setSelection(int, int, int) override {}
  int cursorPosition() const override { return 0; }
  void setCursorPosition(int) override {}
  QString text(int start, int end) const override;
  int characterCount() const override { return static_cast<int>(WholeText().size()); }
  QRect characterRect(int) const override { return {}; }
  int offsetAtPoint(const QPoint&) const override { return -1; }
  void scrollToSubstring(int, int) override {}
  QString attributes(int offset, int* start, int* end) const override;
};

}  // namespace qorvex::inline QorvexControls::detail
