#pragma once

/// @file
/// MessageLabel, the place where a page says what is wrong.

#include <QLabel>

namespace qorvex::gallery {

/// A line or two in a warning colour that suits light and dark palettes. It keeps its place while
/// it is empty, so that nothing jumps.
class MessageLabel : public QLabel {
  Q_OBJECT

 public:
  explicit MessageLabel(QWidget* parent = nullptr);

 protected:
  void changeEvent(QEvent* event) override;

 private:
  void ApplyColor();
};

}  // namespace qorvex::gallery
