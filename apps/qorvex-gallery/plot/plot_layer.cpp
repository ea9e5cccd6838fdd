#include "apps/qorvex-gallery/plot/plot_layer.h"

#include <cmath>

namespace qorvex::gallery {

namespace {

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

}  // namespace

QColor Mixed(const QColor& a, const QColor& b, double share_of_b) {
  const auto mix = [share_of_b](int from, int to) {
    return static_cast<int>(std::lround(from + share_of_b * (to - from)));
  };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

// Colours that people with any kind of colour blindness can tell apart: M. Okabe and K. Ito, Color
// Universal Design, 2008.
QColor RoleColor(PlotRole role, const QPalette& palette) {
  const bool dark = IsDark(palette);
  switch (role) {
    case PlotRole::kData:
      return dark ? QColor(0x56, 0xB4, 0xE9) : QColor(0x00, 0x72, 0xB2);
    case PlotRole::kModel:
      return dark ? QColor(0xE6, 0x9F, 0x00) : QColor(0xD5, 0x5E, 0x00);
    case PlotRole::kSecondModel:
      return dark ? QColor(0x2F, 0xC8, 0x9A) : QColor(0x00, 0x9E, 0x73);
    case PlotRole::kTail:
      return QColor(0xCC, 0x79, 0xA7);
    case PlotRole::kGuide:
      break;
  }
  return Mixed(palette.color(QPalette::Base), palette.color(QPalette::Text), 0.5);
}

QPen LinePen(PlotRole role, const QPalette& palette) {
  QPen pen(RoleColor(role, palette), role == PlotRole::kGuide ? 1.0 : 2.0);
  pen.setJoinStyle(Qt::RoundJoin);
  pen.setCapStyle(Qt::FlatCap);
  // Lines also differ in their pattern.
  if (role == PlotRole::kSecondModel) pen.setDashPattern({5, 2.5});
  if (role == PlotRole::kGuide) pen.setDashPattern({4, 4});
  return pen;
}

QColor FillColor(PlotRole role, const QPalette& palette) {
  QColor color = RoleColor(role, palette);
  color.setAlpha(110);
  return color;
}

}  // namespace qorvex::gallery
