#include "apps/qorvex-gallery/plot/plot_view.h"

#include <QEvent>
#include <QPainter>
#include <algorithm>
#include <utility>

#include "apps/qorvex-gallery/appearance.h"
#include "apps/qorvex-gallery/plot/plot_drawing.h"

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
    case PlotShape::kMarks:
      return PlotView::tr("mark");
    case PlotShape::kBox:
      return PlotView::tr("box");
    case PlotShape::kBand:
      break;
  }
  return PlotView::tr("band");
}

QString Description(const PlotContent& content, const PlotExtent& extent, const QLocale& locale) {
  if (extent.IsEmpty()) return {};
  const auto number = [&locale](double value) { return locale.toString(value, 'g', 6); };
  const auto title = [](const PlotAxis& axis, const QString& fallback) {
    return axis.title.isEmpty() ? fallback : axis.title;
  };
  QString text =
      PlotView::tr("%1 from %2 to %3")
          .arg(title(content.x, PlotView::tr("x")), number(extent.x.low), number(extent.x.high));
  if (content.y.categories.isEmpty()) {
    text = PlotView::tr("%1, %2 from %3 to %4")
               .arg(text, title(content.y, PlotView::tr("y")), number(extent.y.low),
                    number(extent.y.high));
  }
  text += u'.';
  for (const PlotLayer& layer : content.layers) {
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
  setFocusPolicy(Qt::StrongFocus);
  setMouseTracking(true);
}

PlotView::~PlotView() = default;

void PlotView::SetContent(PlotContent content) {
  content_ = std::move(content);
  const PlotExtent all(content_);
  if (!(all == std::exchange(all_, all))) shown_ = all;
  readout_.reset();
  Describe();
  Redraw();
}

void PlotView::SetLayers(std::vector<PlotLayer> layers) {
  SetContent({std::move(layers), std::move(content_.x), std::move(content_.y)});
}

void PlotView::SetAxisTitles(const QString& x, const QString& y) {
  content_.x.title = x;
  content_.y.title = y;
  SetContent(std::move(content_));
}

void PlotView::SetPlaceholder(const QString& text) {
  placeholder_ = text;
  Describe();
  Redraw();
}

void PlotView::ShowAll() {
  shown_ = all_;
  Redraw();
}

void PlotView::Zoom(double x_factor, double y_factor, const QPointF& about) {
  const auto zoomed = [](const AxisRange& shown, const AxisRange& all, double factor, double at) {
    constexpr double most_detail = 1e6;
    const double place = shown.Share(at);
    const AxisRange part = shown.Part(place - place / factor, place + (1 - place) / factor);
    const bool too_small =
        factor > 1 && all.Share(part.high) - all.Share(part.low) < 1 / most_detail;
    return too_small ? shown : part;
  };
  if (IsEmpty()) return;
  shown_.x = zoomed(shown_.x, all_.x, x_factor, about.x());
  shown_.y = zoomed(shown_.y, all_.y, y_factor, about.y());
  Redraw();
}

void PlotView::Move(double x_share, double y_share) {
  if (IsEmpty()) return;
  shown_.x = shown_.x.Part(x_share, 1 + x_share);
  shown_.y = shown_.y.Part(y_share, 1 + y_share);
  Redraw();
}

QStringList PlotView::ReadoutLines() const {
  return readout_ ? readout_->lines : QStringList();
}

void PlotView::Draw(QPainter& painter, const QRectF& rect) const {
  // In pixels, because the resolution of a printer would change the size of points.
  QFont in_pixels = font();
  in_pixels.setPixelSize(QFontInfo(font()).pixelSize());
  const PlotLook look = {LightPalette(), in_pixels, locale()};
  painter.setRenderHint(QPainter::Antialiasing);
  painter.fillRect(rect, look.palette.color(QPalette::Base));
  if (!IsEmpty()) PlotDrawing(painter, look, content_, shown_).Draw(rect);
}

QSize PlotView::sizeHint() const {
  return {60 * fontMetrics().averageCharWidth(), 20 * fontMetrics().height()};
}

QSize PlotView::minimumSizeHint() const {
  return {30 * fontMetrics().averageCharWidth(), 9 * fontMetrics().height()};
}

void PlotView::Redraw() {
  picture_ = {};
  update();
}

void PlotView::Describe() {
  const QString description = Description(content_, all_, locale());
  QStringList texts = {description.isEmpty() ? placeholder_ : description};
  if (readout_) texts.prepend(readout_->lines.join(QStringLiteral("; ")));
  setAccessibleDescription(texts.join(QStringLiteral(". ")));
}

void PlotView::SetReadout(std::optional<PlotReadout> readout) {
  const QStringList before = ReadoutLines();
  readout_ = std::move(readout);
  if (before == ReadoutLines()) return;
  Describe();
  update();
}

void PlotView::paintEvent(QPaintEvent*) {
  if (picture_.isNull() || picture_.devicePixelRatio() != devicePixelRatioF()) DrawPicture();
  QPainter painter(this);
  painter.setRenderHint(QPainter::Antialiasing);
  painter.drawPixmap(0, 0, picture_);
  if (readout_) DrawReadout(painter);
  if (!hasFocus()) return;
  painter.setPen(QPen(palette().color(QPalette::Highlight), 1));
  painter.setBrush(Qt::NoBrush);
  painter.drawRect(QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5));
}

// Drawn once, because the pointer often asks for values of the same picture.
void PlotView::DrawPicture() {
  picture_ = QPixmap(size() * devicePixelRatioF());
  picture_.setDevicePixelRatio(devicePixelRatioF());
  picture_.fill(palette().color(QPalette::Base));
  QPainter painter(&picture_);
  painter.setRenderHint(QPainter::Antialiasing);
  if (!IsEmpty()) {
    const PlotLook look = {palette(), font(), locale()};
    area_ = PlotDrawing(painter, look, content_, shown_).Draw(rect());
    return;
  }
  painter.setFont(font());
  painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  painter.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, placeholder_);
}

// The box with the values is inside the widget and leaves the point free.
void PlotView::DrawReadout(QPainter& painter) const {
  const QPointF at = shown_.Place(readout_->at, area_);
  if (!area_.adjusted(-4, -4, 4, 4).contains(at)) return;
  const QColor text = palette().color(QPalette::Text);
  const QColor base = palette().color(QPalette::Base);
  painter.setPen(QPen(text, 1.5));
  painter.setBrush(Qt::NoBrush);
  painter.drawEllipse(at, 5, 5);
  const QFontMetrics metrics = fontMetrics();
  const int padding = metrics.height() / 3;
  int width = 0;
  for (const QString& line : readout_->lines)
    width = std::max(width, metrics.horizontalAdvance(line));
  const auto lines = static_cast<int>(readout_->lines.size());
  QRectF box(at.x() + 12, at.y() - 12, width + 2 * padding, lines * metrics.height() + 2 * padding);
  if (box.right() > rect().right() - 2) box.moveRight(at.x() - 12);
  box.moveBottom(std::max(box.height() + 2, at.y() - 12));
  box.moveLeft(std::max(2.0, box.left()));
  painter.setPen(QPen(Mixed(base, text, 0.4), 1));
  painter.setBrush(Mixed(base, text, 0.06));
  painter.drawRoundedRect(box, 3, 3);
  painter.setPen(text);
  for (int i = 0; i < lines; ++i) {
    painter.drawText(QPointF(box.left() + padding,
                             box.top() + padding + metrics.ascent() + i * metrics.height()),
                     readout_->lines[i]);
  }
}

}  // namespace qorvex::gallery
