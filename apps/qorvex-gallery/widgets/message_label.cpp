#include "apps/qorvex-gallery/widgets/message_label.h"

#include <QEvent>
#include <QPalette>

namespace qorvex::gallery {

MessageLabel::MessageLabel(QWidget* parent) : QLabel(parent) {
  setWordWrap(true);
  setTextFormat(Qt::PlainText);
  setTextInteractionFlags(Qt::TextSelectableByMouse);
  setAlignment(Qt::AlignLeft | Qt::AlignTop);
  ApplyColor();
  hide();
}

void MessageLabel::Say(const QString& text) {
  setText(text);
  setVisible(!text.isEmpty());
}

void MessageLabel::changeEvent(QEvent* event) {
  QLabel::changeEvent(event);
  if (event->type() == QEvent::PaletteChange) ApplyColor();
}

void MessageLabel::ApplyColor() {
  QPalette colors = palette();
  const bool dark = colors.color(QPalette::Window).lightness() < 128;
  const QColor warning = dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb0, 0x1c, 0x12);
  if (colors.color(QPalette::WindowText) == warning) return;
  colors.setColor(QPalette::WindowText, warning);
  setPalette(colors);
}

}  // namespace qorvex::gallery
