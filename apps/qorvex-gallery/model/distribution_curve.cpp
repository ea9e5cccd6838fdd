#include "apps/qorvex-gallery/model/distribution_curve.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>
#include <iterator>
#include <utility>

namespace qorvex::gallery {

namespace {

// With more counts, the stems would merge into an area.
constexpr std::size_t kMostStems = 150;

using Points = std::vector<QPointF>;

struct DistributionCurve {
  Q_DECLARE_TR_FUNCTIONS(DistributionCurve)
};

Extended WidthOf(const Interval<Extended>& interval) {
  return interval.greatest - interval.least;
}

// All but a thousandth at each side, or but a fortieth if tails would take up the whole diagram.
Interval<Extended> MiddleOf(const apps::AnyDistribution& distribution) {
  const auto without = [&](Extended tail) -> Interval<Extended> {
    return {distribution.Quantile(Tail::kLower, tail), distribution.Quantile(Tail::kUpper, tail)};
  };
  constexpr Extended most_halves = 50;
  const Interval<Extended> most = without(1e-3L);
  return WidthOf(most) <= most_halves * WidthOf(without(0.25L)) ? most : without(0.025L);
}

Interval<Extended> RangeOf(const apps::AnyDistribution& distribution,
                           const DistributionQuestion& question) {
  Interval<Extended> range = MiddleOf(distribution);
  const Extended width = WidthOf(range);
  const Interval<Extended> support = distribution.Support();
  if (range.least - support.least < width / 2) range.least = support.least;
  if (support.greatest - range.greatest < width / 2) range.greatest = support.greatest;
  std::vector<Extended> points = question.points;
  if (question.quantile) points.push_back(*question.quantile);
  // Further out, the curve is flat.
  const auto [least, greatest] = std::ranges::minmax(points);
  if (least < range.least && least >= range.least - width) range.least = least;
  if (greatest > range.greatest && greatest <= range.greatest + width) range.greatest = greatest;
  return range;
}

// The points whose x is in the range.
Points Within(const Points& curve, Extended from, Extended to) {
  Points part;
  std::ranges::copy_if(curve, std::back_inserter(part),
                       [&](const QPointF& point) { return point.x() >= from && point.x() <= to; });
  return part;
}

// Both sides of the point or the interval.
std::vector<PlotLayer> Sides(const DistributionQuestion& question, PlotShape shape,
                             const Points& curve) {
  const Extended infinity = HUGE_VALL;
  const bool is_count = question.is_discrete;
  // A count belongs to the side that includes it; for areas, the end makes no difference.
  const double gap = is_count ? 0.5 : 0;
  const auto a = static_cast<double>(question.points.front());
  const auto b = static_cast<double>(question.points.back());
  if (question.points.size() == 2) {
    return {{shape, PlotRole::kData, DistributionCurve::tr("P(a < X < b)"),
             Within(curve, a + gap, b - gap)},
            {shape, PlotRole::kTail, DistributionCurve::tr("Outside"), Within(curve, -infinity, a)},
            {shape, PlotRole::kTail, {}, Within(curve, b, infinity)}};
  }
  return {{shape, PlotRole::kTail,
           is_count ? DistributionCurve::tr("P(X ≤ k)") : DistributionCurve::tr("P(X ≤ x)"),
           Within(curve, -infinity, a)},
          {shape, PlotRole::kData,
           is_count ? DistributionCurve::tr("P(X > k)") : DistributionCurve::tr("P(X > x)"),
           Within(curve, a + gap, infinity)}};
}

// Marks where the range has them.
std::vector<PlotLayer> Marks(const DistributionQuestion& question,
                             const Interval<Extended>& range) {
  std::vector<PlotLayer> marks;
  const auto add = [&](PlotRole role, const QString& name, Extended at) {
    if (at < range.least || at > range.greatest) return;
    const auto x = static_cast<double>(at);
    marks.push_back({PlotShape::kMarks,
                     role,
                     DistributionCurve::tr("%1 = %2").arg(name, QLocale().toString(x, 'g', 6)),
                     {QPointF(x, 0)}});
  };
  if (question.points.size() == 2) {
    add(PlotRole::kGuide, QStringLiteral("a"), question.points.front());
    add(PlotRole::kGuide, QStringLiteral("b"), question.points.back());
  } else {
    add(PlotRole::kGuide, question.is_discrete ? QStringLiteral("k") : QStringLiteral("x"),
        question.points.front());
  }
  if (question.quantile)
    add(PlotRole::kSecondModel, DistributionCurve::tr("Quantile"), *question.quantile);
  return marks;
}

}  // namespace

std::vector<Extended> PlottedPoints(const Interval<Extended>& range, bool counts) {
  constexpr Extended most_steps = 400;
  const Extended width = WidthOf(range);
  Extended step = width / most_steps;
  if (counts) step = std::max<Extended>(1, std::ceil(step));
  std::vector<Extended> points;
  if (!(step > 0) || !std::isfinite(step)) return {range.least};
  const auto steps = static_cast<int>(width / step);
  for (int i = 0; i < steps; ++i) points.push_back(range.least + step * i);
  points.push_back(range.greatest);
  return points;
}

std::vector<QPointF> DensityAt(const std::function<Extended(Extended)>& density,
                               std::span<const Extended> points) {
  std::vector<QPointF> curve;
  curve.reserve(points.size());
  for (const Extended point : points)
    curve.emplace_back(static_cast<double>(point), static_cast<double>(density(point)));
  return curve;
}

PlotContent DistributionPlot(const apps::AnyDistribution& distribution,
                             const DistributionQuestion& question) {
  const Interval<Extended> range = RangeOf(distribution, question);
  std::vector<Extended> places = PlottedPoints(range, question.is_discrete);
  // The areas end exactly at these points.
  for (const Extended point : question.points) {
    if (question.is_discrete || !(point > range.least) || !(point < range.greatest)) continue;
    places.insert(std::ranges::upper_bound(places, point), point);
  }
  const Points curve = DensityAt([&](Extended x) { return distribution.Pdf(x); }, places);
  const bool stems = question.is_discrete && curve.size() <= kMostStems;
  PlotContent plot;
  plot.layers = Sides(question, stems ? PlotShape::kStems : PlotShape::kArea, curve);
  if (!stems) plot.layers.push_back({PlotShape::kLine, PlotRole::kModel, {}, curve});
  std::ranges::move(Marks(question, range), std::back_inserter(plot.layers));
  plot.x.title = question.is_discrete ? DistributionCurve::tr("k") : DistributionCurve::tr("x");
  plot.y.title = question.is_discrete ? DistributionCurve::tr("Probability")
                                      : DistributionCurve::tr("Density");
  if (stems) {
    // Room for half of the first and the last stem, but none for counts that do not exist.
    plot.x.least = static_cast<double>(range.least) - 0.5;
    plot.x.greatest = static_cast<double>(range.greatest) + 0.5;
  }
  return plot;
}

}  // namespace qorvex::gallery
