#include "apps/qorvex-gallery/plot/plot_view.h"

#include <QPainter>
#include <utility>

#include "apps/qorvex-gallery/plot/plot_drawing.h"
#include "apps/qorvex-gallery/plot/plot_extent.h"

namespace qorvex::gallery {

namespace {

QString ShapeName(PlotShape shape) {
  switch (shape) {
    case PlotShape::kPoints:
      return PlotView::tr("points");
    case PlotShape::kLine:
      return PlotView::tr("line");
    case PlotShape::kArea:
      return PlotView::tr("area");
    case PlotShape::kBars:
      return PlotView::tr("bars");
    case PlotShape::kStems:
      return PlotView::tr("stems");
    case PlotShape::kBand:
      break;
  }
  return PlotView::tr("band");
}

QString Description(const std::vector<PlotLayer>& layers, const QString& x_title,
                    const QString& y_title, const QLocale& locale) {
  const PlotExtent extent(layers);
  if (extent.IsEmpty()) return {};
  const auto number = [&locale](double value) { return locale.toString(value, 'g', 6); };
  QString text = PlotView::tr("%1 from %2 to %3, %4 from %5 to %6.")
                     .arg(x_title.isEmpty() ? PlotView::tr("x") : x_title, number(extent.x.low),
                          number(extent.x.high), y_title.isEmpty() ? PlotView::tr("y") : y_title,
                          number(extent.y.low), number(extent.y.high));
  for (const PlotLayer& layer : layers) {
    if (layer.name.isEmpty()) continue;
    text +=
        ' ' +
        PlotView::tr("%1: %2.", "a layer's name and shape").arg(layer.name, ShapeName(layer.shape));
  }
  return text;
}

}  // namespace

PlotView::PlotView(QWidget* parent) : QWidget(parent) {
  setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding);
  setBackgroundRole(QPalette::Base);
  setAutoFillBackground(true);
}

PlotView::~PlotView() = default;

void PlotView::SetLayers(std::vector<PlotLayer> layers) {
  layers_ = std::move(layers);
  const QString description = Description(layers_, x_title_, y_title_, locale());
  setAccessibleDescription(description.isEmpty() ? placeholder_ : description);
  update();
}

void PlotView::SetAxisTitles(const QString& x, const QString& y) {
  x_title_ = x;
  y_title_ = y;
  SetLayers(std::move(layers_));
}

void PlotView::SetPlaceholder(const QString& text) {
  placeholder_ = text;
  SetLayers(std::move(layers_));
}

QSize PlotView::sizeHint() const {
  return {60 * fontMetrics().averageCharWidth(), 20 * fontMetrics().height()};
}

QSize PlotView::minimumSizeHint() const {
  return {30 * fontMetrics().averageCharWidth(), 9 * fontMetrics().height()};
}

void PlotView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  PlotDrawing drawing(painter, *this, layers_);
  if (!drawing.IsEmpty()) {
    drawing.Draw(x_title_, y_title_);
    return;
  }
  painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  painter.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, placeholder_);
}

}  // namespace qorvex::gallery
