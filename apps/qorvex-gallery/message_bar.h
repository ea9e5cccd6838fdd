#pragma once

/// @file
/// MessageBar, where a page tells what went wrong.

#include <QFrame>
#include <QString>

class QLabel;

namespace qorvex::gallery {

/// A line of text that appears on the page it concerns, and stays until it is closed or cleared.
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
  QLabel* label_;
};

}  // namespace qorvex::gallery
