#include "apps/qorvex-gallery/appearance.h"

#include <QApplication>

namespace qorvex::gallery {

QPalette LightPalette() {
  QPalette palette(QColor(0xf0, 0xf1, 0xf3), QColor(0xf7, 0xf8, 0xfa));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText})
    palette.setColor(QPalette::Disabled, role, QColor(0xa0, 0xa3, 0xa8));
  palette.setColor(QPalette::PlaceholderText, QColor(0x80, 0x83, 0x88));
  palette.setColor(QPalette::Base, Qt::white);
  palette.setColor(QPalette::AlternateBase, QColor(0xf3, 0xf4, 0xf6));
  palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

QPalette DarkPalette() {
  const QColor text(0xdf, 0xe1, 0xe5);
  const QColor grey(0x80, 0x83, 0x88);
  QPalette palette(QColor(0x3a, 0x3d, 0x41), QColor(0x2b, 0x2d, 0x30));
  for (const auto role : {QPalette::WindowText, QPalette::Text, QPalette::ButtonText}) {
    palette.setColor(role, text);
    palette.setColor(QPalette::Disabled, role, grey);
  }
  palette.setColor(QPalette::PlaceholderText, grey);
  palette.setColor(QPalette::Base, QColor(0x1e, 0x1f, 0x22));
  palette.setColor(QPalette::AlternateBase, QColor(0x26, 0x28, 0x2b));
  palette.setColor(QPalette::Highlight, QColor(0x2f, 0x65, 0xca));
  palette.setColor(QPalette::HighlightedText, Qt::white);
  return palette;
}

void SetAppearance(Appearance appearance) {
  static const QPalette system = QApplication::palette();
  switch (appearance) {
    case Appearance::kSystem:
      QApplication::setPalette(system);
      break;
    case Appearance::kLight:
      QApplication::setPalette(LightPalette());
      break;
    case Appearance::kDark:
      QApplication::setPalette(DarkPalette());
      break;
  }
}

}  // namespace qorvex::gallery
