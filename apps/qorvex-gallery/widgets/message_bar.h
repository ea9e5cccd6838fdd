#pragma once

/// @file
/// MessageBar, the place on a page for error messages.

#include <QFrame>
#include <QString>

class QLineEdit;

namespace qorvex {
inline namespace QorvexBaseControls {
class TQorCustomEdit;
}
inline namespace QorvexControls {
class CellPanel;
}
}  // namespace qorvex

namespace qorvex::gallery {

/// One line of text that stays on its page until it is closed, replaced or cleared. The bar keeps
/// its space while it is hidden, so nothing moves when it appears. A text that is too long for the
/// bar can be scrolled and selected, and its tool tip shows more of it.
///
/// What was typed into a watched cell and is not a number is reported in front of the text when the
/// cell is left, and stays until a number is typed there or the bar is closed. What took the focus
/// from the cell may change the text, but does not clear that report.
class MessageBar : public QFrame {
  Q_OBJECT

 public:
  /// Hidden until it has a text.
  explicit MessageBar(QWidget* parent = nullptr);
  ~MessageBar() override;

  /// Shows the text; an empty one hides the bar.
  void SetText(const QString& text);
  [[nodiscard]] QString Text() const;

  /// @{
  /// Reports texts that a cell or an editor refuses, and blocks that an editor cannot paste.
  void Watch(const TQorCustomEdit& cell);
  void Watch(const CellPanel& editor);
  /// @}

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  void SetRefusal(const QString& refusal);
  void Close();
  void ShowTexts();

  QLineEdit* shown_;
  QString refusal_;
  QString text_;
};

}  // namespace qorvex::gallery
