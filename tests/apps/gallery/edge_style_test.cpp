#include "apps/qorvex-gallery/edge_style.h"

#include <QCheckBox>
#include <QSpinBox>

#include "apps/qorvex-gallery/appearance.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

// The lightest pixel of a picture.
int Lightest(const QImage& picture) {
  int lightest = 0;
  for (int y = 0; y < picture.height(); ++y)
    for (int x = 0; x < picture.width(); ++x)
      lightest = std::max(lightest, picture.pixelColor(x, y).lightness());
  return lightest;
}

TEST(EdgeStyle, ShowsTheEdgesOfFieldsInTheDark) {
  EdgeStyle style(QStringLiteral("Fusion"));
  QCheckBox check;
  QSpinBox spin;
  spin.setSpecialValueText(QStringLiteral(" "));
  for (QWidget* const field : std::initializer_list<QWidget*>{&check, &spin}) {
    field->setPalette(DarkPalette());
    // The buttons of the spin box are at the right.
    const QRect part(0, 0, 14, field->sizeHint().height());
    const int before = Lightest(field->grab(part).toImage());
    field->setStyle(&style);
    EXPECT_GT(Lightest(field->grab(part).toImage()), before + 20);
  }
}

}  // namespace
}  // namespace qorvex::gallery
