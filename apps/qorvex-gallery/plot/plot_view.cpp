#include "apps/qorvex-gallery/plot/plot_view.h"

#include <QEvent>
#include <QPainter>
#include <QPainterPath>
#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "apps/qorvex-gallery/plot/axis_ticks.h"

namespace qorvex::gallery {

namespace {

bool IsFinite(const QPointF& point) {
  return std::isfinite(point.x()) && std::isfinite(point.y());
}

bool IsDark(const QPalette& palette) {
  return palette.color(QPalette::Base).lightness() < palette.color(QPalette::Text).lightness();
}

QColor Mixed(const QColor& a, const QColor& b, double share_of_b) {
  const auto mix = [share_of_b](int from, int to) {
    return static_cast<int>(std::lround(from + share_of_b * (to - from)));
  };
  return {mix(a.red(), b.red()), mix(a.green(), b.green()), mix(a.blue(), b.blue())};
}

// Colours that people with any kind of colour blindness tell apart: M. Okabe and K. Ito, Color
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
  // Lines differ without their colour, too.
  if (role == PlotRole::kSecondModel) pen.setDashPattern({5, 2.5});
  if (role == PlotRole::kGuide) pen.setDashPattern({4, 4});
  return pen;
}

QColor FillColor(PlotRole role, const QPalette& palette) {
  QColor color = RoleColor(role, palette);
  color.setAlpha(110);
  return color;
}

// The values that an axis covers.
struct Range {
  double low = std::numeric_limits<double>::infinity();
  double high = -std::numeric_limits<double>::infinity();

  void Include(double value) {
    low = std::min(low, value);
    high = std::max(high, value);
  }
  [[nodiscard]] bool IsEmpty() const { return low > high; }

  // Halves, because the whole difference may be beyond the range of a double.
  [[nodiscard]] double Share(double value) const {
    return (value / 2 - low / 2) / (high / 2 - low / 2);
  }

  // With some room at both ends, but none beyond a zero that the points stand on.
  void Pad(double share, bool stands_on_zero) {
    constexpr double largest = std::numeric_limits<double>::max();
    if (low == high) {
      const double half = low == 0 ? 0.5 : std::fabs(low) * 0.05;
      low -= half;
      high += half;
      return;
    }
    const double room = 2 * share * (high / 2 - low / 2);
    if (!(stands_on_zero && low == 0)) low = std::max(low - room, -largest);
    if (!(stands_on_zero && high == 0)) high = std::min(high + room, largest);
  }
};

bool StandsOnZero(PlotShape shape) {
  return shape == PlotShape::kArea || shape == PlotShape::kBars || shape == PlotShape::kStems;
}

// The ranges of both axes.
struct Extent {
  Range x, y;

  explicit Extent(const std::vector<PlotLayer>& layers) {
    bool on_zero = false;
    bool bars_only = true;
    for (const PlotLayer& layer : layers) {
      bool first = true;
      for (const QPointF& point : layer.points) {
        const bool only_left_edge = std::exchange(first, false) && layer.shape == PlotShape::kBars;
        if (!IsFinite(point)) continue;
        x.Include(point.x());
        if (!only_left_edge) y.Include(point.y());
      }
      if (StandsOnZero(layer.shape) && !layer.points.empty()) on_zero = true;
      if (layer.shape == PlotShape::kPoints || layer.shape == PlotShape::kStems) bars_only = false;
    }
    if (IsEmpty()) return;
    if (on_zero) y.Include(0);
    x.Pad(bars_only ? 0 : 0.03, false);
    y.Pad(0.06, on_zero);
  }

  [[nodiscard]] bool IsEmpty() const { return x.IsEmpty() || y.IsEmpty(); }
};

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
      break;
  }
  return PlotView::tr("stems");
}

QString Description(const std::vector<PlotLayer>& layers, const QString& x_title,
                    const QString& y_title, const QLocale& locale) {
  const Extent extent(layers);
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

// One drawing of the diagram.
class Drawing {
 public:
  Drawing(QPainter& painter, const QWidget& widget, const std::vector<PlotLayer>& layers)
      : painter_(painter),
        palette_(widget.palette()),
        metrics_(widget.fontMetrics()),
        locale_(widget.locale()),
        layers_(layers),
        extent_(layers),
        area_(widget.rect()) {}

  [[nodiscard]] bool IsEmpty() const { return extent_.IsEmpty(); }

  void Draw(const QString& x_title, const QString& y_title) {
    const int gap = metrics_.height() / 2;
    area_.adjust(gap, gap, -gap, -gap);
    if (const int height = DrawLegend(); height > 0) area_.setTop(area_.top() + height + gap);
    if (!x_title.isEmpty()) area_.setBottom(area_.bottom() - metrics_.height() - gap);
    if (!y_title.isEmpty()) area_.setLeft(area_.left() + metrics_.height() + gap);
    area_.setBottom(area_.bottom() - metrics_.height() - kTickLength - 2);
    // Half of the last label stands beyond the axis.
    const AxisTicks y_ticks = YTicks();
    int label_width = 0;
    for (const QString& label : y_ticks.labels)
      label_width = std::max(label_width, metrics_.horizontalAdvance(label));
    area_.setLeft(area_.left() + label_width + kTickLength + 3);
    area_.setTop(area_.top() + metrics_.height() / 2);
    const AxisTicks x_ticks = XTicks();
    if (!x_ticks.labels.empty())
      area_.setRight(area_.right() - metrics_.horizontalAdvance(x_ticks.labels.back()) / 2);
    if (area_.width() < 10 || area_.height() < 10) return;

    DrawGrid(x_ticks, y_ticks);
    painter_.save();
    painter_.setClipRect(area_.adjusted(-4, -4, 4, 4));
    for (const PlotLayer& layer : layers_) DrawLayer(layer);
    painter_.restore();
    DrawAxes(x_ticks, y_ticks);
    DrawTitles(x_title, y_title);
  }

 private:
  static constexpr int kTickLength = 4;

  [[nodiscard]] QColor Faded(double share) const {
    return Mixed(palette_.color(QPalette::Base), palette_.color(QPalette::Text), share);
  }

  [[nodiscard]] AxisTicks YTicks() const {
    const int most = static_cast<int>(area_.height() / (2.2 * metrics_.height()));
    return TicksBetween(extent_.y.low, extent_.y.high, std::clamp(most, 2, 8), locale_);
  }

  // As many as leave room between their labels.
  [[nodiscard]] AxisTicks XTicks() const {
    for (int most = 10;; --most) {
      AxisTicks ticks = TicksBetween(extent_.x.low, extent_.x.high, most, locale_);
      double width = 0;
      for (const QString& label : ticks.labels)
        width = std::max<double>(width, metrics_.horizontalAdvance(label));
      width += 2 * metrics_.averageCharWidth();
      if (most == 2 || ticks.values.size() < 2) return ticks;
      const double apart = (extent_.x.Share(ticks.values[1]) - extent_.x.Share(ticks.values[0]));
      if (apart * area_.width() >= width) return ticks;
    }
  }

  [[nodiscard]] QPointF Place(const QPointF& point) const {
    return {area_.left() + extent_.x.Share(point.x()) * area_.width(),
            area_.bottom() - extent_.y.Share(point.y()) * area_.height()};
  }

  // Gives its height.
  int DrawLegend() {
    constexpr int sample = 22;
    const int space = metrics_.averageCharWidth();
    int entries = 0;
    double left = area_.left();
    double top = area_.top();
    for (const PlotLayer& layer : layers_) {
      if (layer.name.isEmpty()) continue;
      const int width = sample + space + metrics_.horizontalAdvance(layer.name);
      if (entries++ > 0 && left + width > area_.right()) {
        left = area_.left();
        top += 1.3 * metrics_.height();
      }
      DrawSample(layer, QRectF(left, top, sample, metrics_.height()));
      painter_.setPen(palette_.color(QPalette::Text));
      painter_.drawText(QPointF(left + sample + space, top + metrics_.ascent()), layer.name);
      left += width + 3 * space;
    }
    if (entries == 0) return 0;
    return static_cast<int>(top - area_.top()) + metrics_.height();
  }

  void DrawSample(const PlotLayer& layer, const QRectF& box) {
    const QColor color = RoleColor(layer.role, palette_);
    switch (layer.shape) {
      case PlotShape::kPoints:
      case PlotShape::kStems:
        DrawDot(box.center(), layer.role, kDotRadius + 0.5);
        break;
      case PlotShape::kLine:
        painter_.setPen(LinePen(layer.role, palette_));
        painter_.drawLine(QPointF(box.left(), box.center().y()),
                          QPointF(box.right(), box.center().y()));
        break;
      case PlotShape::kArea:
      case PlotShape::kBars: {
        const double side = 0.7 * box.height();
        painter_.setPen(QPen(color, 1));
        painter_.setBrush(FillColor(layer.role, palette_));
        painter_.drawRect(QRectF(box.right() - side - 2, box.center().y() - side / 2, side, side));
        painter_.setBrush(Qt::NoBrush);
        break;
      }
    }
  }

  void DrawGrid(const AxisTicks& x_ticks, const AxisTicks& y_ticks) {
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

  void DrawAxes(const AxisTicks& x_ticks, const AxisTicks& y_ticks) {
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

  void DrawTitles(const QString& whole_x_title, const QString& whole_y_title) {
    const auto fitted = [this](const QString& title, double room) {
      return metrics_.elidedText(title, Qt::ElideMiddle, static_cast<int>(room));
    };
    const QString x_title = fitted(whole_x_title, area_.width());
    const QString y_title = fitted(whole_y_title, area_.height());
    painter_.setPen(palette_.color(QPalette::Text));
    const QRect window = painter_.window();
    const int gap = metrics_.height() / 2;
    const double x_baseline = window.bottom() - gap - metrics_.descent();
    painter_.drawText(
        QPointF(area_.center().x() - metrics_.horizontalAdvance(x_title) / 2.0, x_baseline),
        x_title);
    painter_.save();
    painter_.translate(gap + metrics_.ascent(),
                       area_.center().y() + metrics_.horizontalAdvance(y_title) / 2.0);
    painter_.rotate(-90);
    painter_.drawText(QPointF(0, 0), y_title);
    painter_.restore();
  }

  void DrawDot(const QPointF& at, PlotRole role, double radius) {
    painter_.setPen(Qt::NoPen);
    QColor color = RoleColor(role, palette_);
    color.setAlpha(225);
    painter_.setBrush(color);
    painter_.drawEllipse(at, radius, radius);
    painter_.setBrush(Qt::NoBrush);
  }

  void DrawLayer(const PlotLayer& layer) {
    switch (layer.shape) {
      case PlotShape::kPoints: {
        constexpr std::size_t many = 1000;
        const double radius = layer.points.size() > many ? kDotRadius / 2 : kDotRadius;
        for (const QPointF& point : layer.points)
          if (IsFinite(point)) DrawDot(Place(point), layer.role, radius);
        break;
      }
      case PlotShape::kLine:
        painter_.setPen(LinePen(layer.role, palette_));
        for (const QPolygonF& run : Runs(layer)) painter_.drawPolyline(run);
        break;
      case PlotShape::kArea:
        DrawArea(layer);
        break;
      case PlotShape::kBars:
        DrawBars(layer);
        break;
      case PlotShape::kStems:
        for (const QPointF& point : layer.points) {
          if (!IsFinite(point)) continue;
          painter_.setPen(QPen(RoleColor(layer.role, palette_), 1.5));
          painter_.drawLine(Place({point.x(), 0}), Place(point));
          DrawDot(Place(point), layer.role, kDotRadius);
        }
        break;
    }
  }

  // What lies between points that are not finite.
  [[nodiscard]] std::vector<QPolygonF> Runs(const PlotLayer& layer) const {
    std::vector<QPolygonF> runs(1);
    for (const QPointF& point : layer.points) {
      if (IsFinite(point)) {
        runs.back().append(Place(point));
      } else if (!runs.back().empty()) {
        runs.emplace_back();
      }
    }
    return runs;
  }

  void DrawArea(const PlotLayer& layer) {
    const double zero = Place({extent_.x.low, 0}).y();
    painter_.setPen(Qt::NoPen);
    painter_.setBrush(FillColor(layer.role, palette_));
    for (QPolygonF run : Runs(layer)) {
      if (run.empty()) continue;
      run.append(QPointF(run.back().x(), zero));
      run.append(QPointF(run.front().x(), zero));
      painter_.drawPolygon(run);
    }
    painter_.setBrush(Qt::NoBrush);
  }

  void DrawBars(const PlotLayer& layer) {
    painter_.setPen(QPen(palette_.color(QPalette::Base), 1));
    painter_.setBrush(FillColor(layer.role, palette_));
    for (std::size_t i = 1; i < layer.points.size(); ++i) {
      const double left = layer.points[i - 1].x();
      const QPointF& corner = layer.points[i];
      if (!std::isfinite(left) || !IsFinite(corner) || corner.y() == 0) continue;
      painter_.drawRect(QRectF(Place({left, 0}), Place(corner)).normalized());
    }
    painter_.setBrush(Qt::NoBrush);
  }

  static constexpr double kDotRadius = 3;

  QPainter& painter_;
  QPalette palette_;
  QFontMetrics metrics_;
  QLocale locale_;
  const std::vector<PlotLayer>& layers_;
  Extent extent_;
  QRectF area_;
};

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
  Drawing drawing(painter, *this, layers_);
  if (!drawing.IsEmpty()) {
    drawing.Draw(x_title_, y_title_);
    return;
  }
  painter.setPen(palette().color(QPalette::Disabled, QPalette::Text));
  painter.drawText(rect().adjusted(8, 8, -8, -8), Qt::AlignCenter | Qt::TextWordWrap, placeholder_);
}

}  // namespace qorvex::gallery
