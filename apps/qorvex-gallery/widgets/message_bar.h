#pragma once

/// @file
/// MessageBar, the place on a page for error messages.

#include <QFrame>
#include <QString>

class QLineEdit;

namespace qorvex::gallery {

/// One line of text that stays on its page until it is closed, replaced or cleared. The bar keeps
/// its space while it is hidden, so nothing moves when it appears. A text that is too long for the
/// bar can be scrolled and selected, and its tool tip shows more of it.
class MessageBar : public QFrame {
  Q_OBJECT

 public:
  /// Hidden until it has a text.
  explicit MessageBar(QWidget* parent = nullptr);
  ~MessageBar() override;

  /// Shows the text; an empty one hides the bar.
  void SetText(const QString& text);
  [[nodiscard]] QString Text() const;

 protected:
  void paintEvent(QPaintEvent* event) override;

 private:
  QLineEdit* text_;
};

}  // namespace qorvex::gallery
