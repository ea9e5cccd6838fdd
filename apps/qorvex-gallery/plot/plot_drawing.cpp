#include "apps/qorvex-gallery/plot/plot_drawing.h"

#include <algorithm>
#include <cstddef>

namespace qorvex::gallery {

namespace {

constexpr int kTickLength = 4;

}  // namespace

PlotDrawing::PlotDrawing(QPainter& painter, const PlotLook& look, const PlotContent& content,
                         const PlotExtent& extent)
    : painter_(painter),
      look_(look),
      metrics_(look.font),
      content_(content),
      extent_(extent),
      layer_painter_(painter_, look_.palette, extent_) {}

QRectF PlotDrawing::Draw(const QRectF& rect) {
  painter_.setFont(look_.font);
  area_ = rect;
  const int gap = metrics_.height() / 2;
  area_.adjust(gap, gap, -gap, -gap);
  if (const int height = DrawLegend(); height > 0) area_.setTop(area_.top() + height + gap);
  if (!content_.x.title.isEmpty()) area_.setBottom(area_.bottom() - metrics_.height() - gap);
  if (!content_.y.title.isEmpty()) area_.setLeft(area_.left() + metrics_.height() + gap);
  area_.setBottom(area_.bottom() - metrics_.height() - kTickLength - 2);
  // Half of the last label extends beyond the axis.
  const AxisTicks y_ticks = YTicks();
  int label_width = 0;
  for (const QString& label : y_ticks.labels)
    label_width = std::max(label_width, metrics_.horizontalAdvance(label));
  area_.setLeft(area_.left() + label_width + kTickLength + 3);
  area_.setTop(area_.top() + metrics_.height() / 2);
  const AxisTicks x_ticks = XTicks();
  if (!x_ticks.labels.empty())
    area_.setRight(area_.right() - metrics_.horizontalAdvance(x_ticks.labels.back()) / 2);
  if (area_.width() < 10 || area_.height() < 10) return {};

  DrawGrid(x_ticks, y_ticks);
  painter_.save();
  painter_.setClipRect(area_.adjusted(-4, -4, 4, 4));
  for (const PlotLayer& layer : content_.layers) layer_painter_.Draw(layer, area_);
  painter_.restore();
  DrawAxes(x_ticks, y_ticks);
  DrawTitles(rect);
  return area_;
}

QColor PlotDrawing::Faded(double share) const {
  return Mixed(look_.palette.color(QPalette::Base), look_.palette.color(QPalette::Text), share);
}

AxisTicks PlotDrawing::Ticks(const PlotAxis& axis, const AxisRange& range, int most) const {
  if (axis.categories.empty()) return TicksBetween(range.low, range.high, most, look_.locale);
  AxisTicks ticks;
  const qsizetype count = axis.categories.size();
  const qsizetype step = (count - 1) / std::max(most, 1) + 1;
  const int room = 20 * metrics_.averageCharWidth();
  for (qsizetype i = 0; i < count; i += step) {
    if (!range.Contains(static_cast<double>(i))) continue;
    ticks.values.push_back(static_cast<double>(i));
    ticks.labels.append(metrics_.elidedText(axis.categories[i], Qt::ElideRight, room));
  }
  return ticks;
}

AxisTicks PlotDrawing::YTicks() const {
  const bool has_categories = !content_.y.categories.empty();
  const int most =
      static_cast<int>(area_.height() / ((has_categories ? 1.2 : 2.2) * metrics_.height()));
  return Ticks(content_.y, extent_.y, has_categories ? most : std::clamp(most, 2, 8));
}

// As many ticks as there is room for between their labels.
AxisTicks PlotDrawing::XTicks() const {
  for (int most = 10;; --most) {
    AxisTicks ticks = Ticks(content_.x, extent_.x, most);
    double width = 0;
    for (const QString& label : ticks.labels)
      width = std::max<double>(width, metrics_.horizontalAdvance(label));
    width += 2 * metrics_.averageCharWidth();
    if (most == 2 || ticks.values.size() < 2) return ticks;
    const double apart = (extent_.x.Share(ticks.values[1]) - extent_.x.Share(ticks.values[0]));
    if (apart * area_.width() >= width) return ticks;
  }
}

// Returns the height of the legend, 0 without one.
int PlotDrawing::DrawLegend() {
  constexpr int sample = 22;
  const int space = metrics_.averageCharWidth();
  int entries = 0;
  double left = area_.left();
  double top = area_.top();
  for (const PlotLayer& layer : content_.layers) {
    if (layer.name.isEmpty()) continue;
    const int width = sample + space + metrics_.horizontalAdvance(layer.name);
    if (entries++ > 0 && left + width > area_.right()) {
      left = area_.left();
      top += 1.3 * metrics_.height();
    }
    layer_painter_.DrawSample(layer, QRectF(left, top, sample, metrics_.height()));
    painter_.setPen(look_.palette.color(QPalette::Text));
    painter_.drawText(QPointF(left + sample + space, top + metrics_.ascent()), layer.name);
    left += width + 3 * space;
  }
  if (entries == 0) return 0;
  return static_cast<int>(top - area_.top()) + metrics_.height();
}

void PlotDrawing::DrawGrid(const AxisTicks& x_ticks, const AxisTicks& y_ticks) {
  painter_.setPen(QPen(Faded(0.1), 1));
  for (const double value : x_ticks.values) {
    const double x = Place({value, extent_.y.low}).x();
    painter_.drawLine(QPointF(x, area_.top()), QPointF(x, area_.bottom()));
  }
  for (const double value : y_ticks.values) {
    const double y = Place({extent_.x.low, value}).y();
    painter_.drawLine(QPointF(area_.left(), y), QPointF(area_.right(), y));
  }
}

void PlotDrawing::DrawAxes(const AxisTicks& x_ticks, const AxisTicks& y_ticks) {
  const QPen axis(Faded(0.55), 1);
  const QColor text = Faded(0.8);
  painter_.setPen(axis);
  painter_.drawLine(area_.bottomLeft(), area_.bottomRight());
  painter_.drawLine(area_.bottomLeft(), area_.topLeft());
  for (std::size_t i = 0; i < x_ticks.values.size(); ++i) {
    const QPointF at(Place({x_ticks.values[i], extent_.y.low}).x(), area_.bottom());
    painter_.setPen(axis);
    painter_.drawLine(at, at + QPointF(0, kTickLength));
    painter_.setPen(text);
    const QString& label = x_ticks.labels[static_cast<qsizetype>(i)];
    const double half = metrics_.horizontalAdvance(label) / 2.0;
    painter_.drawText(at + QPointF(-half, kTickLength + 2 + metrics_.ascent()), label);
  }
  for (std::size_t i = 0; i < y_ticks.values.size(); ++i) {
    const QPointF at(area_.left(), Place({extent_.x.low, y_ticks.values[i]}).y());
    painter_.setPen(axis);
    painter_.drawLine(at, at - QPointF(kTickLength, 0));
    painter_.setPen(text);
    const QString& label = y_ticks.labels[static_cast<qsizetype>(i)];
    const double width = metrics_.horizontalAdvance(label);
    const double baseline = (metrics_.ascent() - metrics_.descent()) / 2.0;
    painter_.drawText(at + QPointF(-kTickLength - 3 - width, baseline), label);
  }
}

void PlotDrawing::DrawTitles(const QRectF& rect) {
  const auto fitted = [this](const QString& title, double room) {
    return metrics_.elidedText(title, Qt::ElideMiddle, static_cast<int>(room));
  };
  const QString x_title = fitted(content_.x.title, area_.width());
  const QString y_title = fitted(content_.y.title, area_.height());
  painter_.setPen(look_.palette.color(QPalette::Text));
  const int gap = metrics_.height() / 2;
  const double x_baseline = rect.bottom() - gap - metrics_.descent();
  painter_.drawText(
      QPointF(area_.center().x() - metrics_.horizontalAdvance(x_title) / 2.0, x_baseline), x_title);
  painter_.save();
  painter_.translate(rect.left() + gap + metrics_.ascent(),
                     area_.center().y() + metrics_.horizontalAdvance(y_title) / 2.0);
  painter_.rotate(-90);
  painter_.drawText(QPointF(0, 0), y_title);
  painter_.restore();
}

}  // namespace qorvex::gallery
