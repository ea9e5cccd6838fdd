#pragma once

/// @file
/// MessageLabel, the place where a page says what is wrong.

#include <QLabel>

namespace qorvex::gallery {

/// A line or two in a warning colour that suits light and dark palettes. Hidden while there is
/// nothing to say.
class MessageLabel : public QLabel {
  Q_OBJECT

 public:
  explicit MessageLabel(QWidget* parent = nullptr);

  /// Shows the text; an empty one hides the label.
  void Say(const QString& text);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void ApplyColor();
};

}  // namespace qorvex::gallery
