#include "apps/qorvex-gallery/plot/plot_readout.h"

#include <algorithm>
#include <cmath>

namespace qorvex::gallery {

namespace {

double SquareDistance(const QPointF& a, const QPointF& b) {
  return QPointF::dotProduct(a - b, a - b);
}

// How far from a to b the point of this segment is that is nearest to a place.
double NearestShare(const QPointF& a, const QPointF& b, const QPointF& place) {
  const double length = SquareDistance(a, b);
  return length > 0 ? std::clamp(QPointF::dotProduct(place - a, b - a) / length, 0.0, 1.0) : 0;
}

// A point that the user can ask for.
bool IsShown(const PlotLayer& layer, std::size_t point) {
  const bool is_edge = layer.shape == PlotShape::kBars && point == 0;
  return layer.shape != PlotShape::kBand && !is_edge && IsFinite(layer.points[point]);
}

}  // namespace

// The nearest so far of what is within reach.
struct PlotReader::Candidate {
  QPointF place;
  QRectF area;
  double square_distance = 12 * 12;
  bool is_found = false;
  std::size_t layer = 0;
  std::size_t point = 0;
  QPointF at = {};

  void Take(double square, std::size_t of_layer, std::size_t of_point, const QPointF& where) {
    if (square > square_distance) return;
    is_found = true;
    square_distance = square;
    layer = of_layer;
    point = of_point;
    at = where;
  }
};

std::optional<PlotReadout> PlotReader::Near(const QPointF& place, const QRectF& area) const {
  if (extent_.IsEmpty() || !area.adjusted(-4, -4, 4, 4).contains(place)) return std::nullopt;
  Candidate best{place, area};
  for (const auto search :
       {&PlotReader::SearchVertices, &PlotReader::SearchLine, &PlotReader::SearchFilled}) {
    // Of two that are equally near, the one on top.
    for (std::size_t layer = 0; layer < content_.layers.size(); ++layer)
      (this->*search)(layer, best);
    if (best.is_found) return ReadoutOf(best.layer, best.point, best.at);
  }
  return std::nullopt;
}

std::optional<PlotReadout> PlotReader::At(std::size_t layer, std::size_t point) const {
  const PlotLayer& of = content_.layers[layer];
  if (!IsShown(of, point)) return std::nullopt;
  QPointF at = of.points[point];
  if (of.shape == PlotShape::kBars)
    at.setX(of.points[point - 1].x() / 2 + of.points[point].x() / 2);
  if (of.shape == PlotShape::kMarks) at.setY(extent_.y.At(0.5));
  return ReadoutOf(layer, point, at);
}

void PlotReader::SearchVertices(std::size_t layer, Candidate& best) const {
  const PlotLayer& of = content_.layers[layer];
  if (of.shape != PlotShape::kPoints && of.shape != PlotShape::kStems &&
      of.shape != PlotShape::kBox) {
    return;
  }
  for (std::size_t i = 0; i < of.points.size(); ++i) {
    if (!IsFinite(of.points[i])) continue;
    const QPointF drawn = extent_.Place(of.points[i], best.area);
    best.Take(SquareDistance(drawn, best.place), layer, i, of.points[i]);
  }
}

void PlotReader::SearchLine(std::size_t layer, Candidate& best) const {
  const PlotLayer& of = content_.layers[layer];
  if (of.shape == PlotShape::kMarks) {
    for (std::size_t i = 0; i < of.points.size(); ++i) {
      const double apart = extent_.Place(of.points[i], best.area).x() - best.place.x();
      const double y = extent_.PointAt(best.place, best.area).y();
      best.Take(apart * apart, layer, i, {of.points[i].x(), y});
    }
  }
  if (of.shape != PlotShape::kLine && of.shape != PlotShape::kArea) return;
  for (std::size_t i = 1; i < of.points.size(); ++i) {
    const QPointF& from = of.points[i - 1];
    const QPointF& to = of.points[i];
    if (!IsFinite(from) || !IsFinite(to)) continue;
    const QPointF a = extent_.Place(from, best.area);
    const QPointF b = extent_.Place(to, best.area);
    const double share = NearestShare(a, b, best.place);
    best.Take(SquareDistance(a + share * (b - a), best.place), layer, i,
              from + share * (to - from));
  }
}

// What is filled is asked at its upper edge, whichever part of it the place is in.
void PlotReader::SearchFilled(std::size_t layer, Candidate& best) const {
  const PlotLayer& of = content_.layers[layer];
  if (of.shape != PlotShape::kBars && of.shape != PlotShape::kArea) return;
  const QPointF value = extent_.PointAt(best.place, best.area);
  for (std::size_t i = 1; i < of.points.size(); ++i) {
    const QPointF& from = of.points[i - 1];
    const QPointF& to = of.points[i];
    if (!(from.x() <= value.x() && value.x() < to.x()) || !IsFinite(to)) continue;
    if (of.shape == PlotShape::kBars) {
      best.Take(0, layer, i, {from.x() / 2 + to.x() / 2, to.y()});
      continue;
    }
    const double share = (value.x() - from.x()) / (to.x() - from.x());
    const double y = from.y() + share * (to.y() - from.y());
    if (IsFinite(from) && value.y() <= y) best.Take(0, layer, i, {value.x(), y});
  }
}

PlotReadout PlotReader::ReadoutOf(std::size_t layer, std::size_t point, const QPointF& at) const {
  const PlotLayer& of = content_.layers[layer];
  PlotReadout readout{layer, point, at, {}};
  QString name = of.name;
  const auto label = static_cast<qsizetype>(point);
  if (label < of.labels.size()) name = of.labels[label];
  if (!name.isEmpty()) readout.lines.append(name);
  QString x = Number(at.x(), extent_.x);
  if (of.shape == PlotShape::kBars) {
    x = tr("%1 to %2")
            .arg(Number(of.points[point - 1].x(), extent_.x),
                 Number(of.points[point].x(), extent_.x));
  }
  readout.lines.append(Named(content_.x, tr("x"), x));
  if (of.shape == PlotShape::kMarks) return readout;
  if (content_.y.categories.empty()) {
    readout.lines.append(Named(content_.y, tr("y"), Number(at.y(), extent_.y)));
  } else if (const QString category = CategoryAt(at.y()); !category.isEmpty()) {
    readout.lines.append(category);
  }
  return readout;
}

QString PlotReader::Named(const PlotAxis& axis, const QString& fallback,
                          const QString& value) const {
  constexpr qsizetype kMostCharacters = 30;
  QString title = axis.title.isEmpty() ? fallback : axis.title;
  if (title.size() > kMostCharacters) title = title.left(kMostCharacters) + QChar(0x2026);
  return QStringLiteral("%1: %2").arg(title, value);
}

QString PlotReader::CategoryAt(double y) const {
  return content_.y.categories.value(static_cast<qsizetype>(std::lround(y)));
}

// Four digits more than the ends of the range have in common.
QString PlotReader::Number(double value, const AxisRange& range) const {
  const double width = range.high / 2 - range.low / 2;
  const double largest = std::max(std::fabs(range.low), std::fabs(range.high)) / 2;
  const int digits = static_cast<int>(std::ceil(std::log10(largest / width))) + 5;
  QLocale plain = locale_;
  plain.setNumberOptions(QLocale::OmitGroupSeparator);
  return plain.toString(value, 'g', std::clamp(digits, 6, 17));
}

}  // namespace qorvex::gallery
