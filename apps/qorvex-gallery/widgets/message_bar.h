#pragma once

/// @file
/// MessageBar, where a page tells what went wrong.

#include <QFrame>
#include <QString>

class QLineEdit;

namespace qorvex::gallery {

/// A line of text on the page that it concerns, which stays until it is closed, replaced or
/// cleared. It keeps its room while it is hidden, so that nothing moves when it comes and goes; a
/// text that is too long for it can be scrolled, selected, and read in the tool tip.
class MessageBar : public QFrame {
  Q_OBJECT

 public:
  /// Hidden.
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
