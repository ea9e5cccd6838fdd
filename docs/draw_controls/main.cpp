// draw_controls <directory>: draws every widget of pictures.h in a light and in a dark palette to
// <directory>/<name>_light.png and _dark.png, or with QT_SCALE_FACTOR=2 in the light one to
// <name>_2x.png. The same Qt and the same fonts draw the same files again.

#include <QApplication>
#include <QDir>
#include <QFont>
#include <QImage>
#include <QList>
#include <QPalette>
#include <QPixmap>
#include <QStyle>
#include <algorithm>
#include <cstddef>
#include <cstdio>
#include <functional>
#include <map>
#include <memory>
#include <utility>
#include <vector>

#include "apps/qorvex-gallery/appearance.h"
#include "pictures.h"

namespace {

const struct {
  const char* name;
  std::unique_ptr<QWidget> (*make)();
} kPictures[] = {
    {"accessible_edit", AccessibleEdits},
    {"cells", Cells},
    {"editing", Editing},
    {"form", WeighingForm},
    {"growing", Growing},
    {"math_label", MathLabels},
    {"math_symbols", MathSymbols},
    {"matrix_edit", MatrixEdits},
    {"matrix_layout", MatrixLayouts},
    {"models", Models},
    {"vector_edit", VectorEdits},
};

// A picture of at most 256 colours, the most frequent ones, which is a fraction of the size.
QImage WithColorTable(const QImage& picture) {
  const QImage opaque = picture.convertToFormat(QImage::Format_RGB32);
  std::map<QRgb, int> counts;
  for (int y = 0; y < opaque.height(); ++y) {
    for (int x = 0; x < opaque.width(); ++x) ++counts[opaque.pixel(x, y)];
  }
  std::vector<std::pair<int, QRgb>> colors;
  for (const auto& [color, count] : counts) colors.emplace_back(count, color);
  std::ranges::sort(colors, std::greater());
  colors.resize(std::min(colors.size(), std::size_t{256}));
  QList<QRgb> table;
  for (const auto& [count, color] : colors) table.append(color);
  return opaque.convertToFormat(QImage::Format_Indexed8, table, Qt::AvoidDither);
}

bool Draw(const QPalette& palette, const QDir& directory, const QString& suffix) {
  QApplication::setPalette(palette);
  for (const auto& [name, make] : kPictures) {
    const std::unique_ptr<QWidget> widget = make();
    widget->show();
    QApplication::processEvents();
    const QImage picture = WithColorTable(widget->grab().toImage());
    const QString file = directory.filePath(QString(name) + suffix + ".png");
    constexpr int smallest = 0;
    if (!picture.save(file, "PNG", smallest)) {
      std::fprintf(stderr, "Cannot write %s\n", qPrintable(file));
      return false;
    }
  }
  return true;
}

}  // namespace

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  if (argc != 2) {
    std::fputs("Usage: draw_controls <directory>\n", stderr);
    return 2;
  }
  QApplication::setStyle("Fusion");
  QApplication::setFont(QFont("DejaVu Sans", 9));
  QApplication::setCursorFlashTime(0);
  const QPalette light = QApplication::style()->standardPalette();
  const QDir directory(argv[1]);
  const bool drawn = application.devicePixelRatio() > 1
                         ? Draw(light, directory, "_2x")
                         : Draw(light, directory, "_light") &&
                               Draw(qorvex::gallery::DarkPalette(), directory, "_dark");
  return drawn ? 0 : 1;
}
