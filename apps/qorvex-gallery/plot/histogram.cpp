#include "apps/qorvex-gallery/plot/histogram.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <utility>

#include "apps/common/round_step.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/stats/order_statistics.h"
#include "qorvex/vector/sorting.h"

namespace qorvex::gallery {

namespace {

constexpr Extended kMostClasses = 1000;

// Halves are subtracted, because the whole difference may be beyond the range.
Extended ClassesByRule(const TQorFloatVector& sorted, ClassRule rule) {
  const auto count = static_cast<Extended>(sorted.size());
  const Extended half_range = sorted[sorted.size() - 1] / 2 - sorted[0] / 2;
  if (rule == ClassRule::kFreedmanDiaconis) {
    Extended q1, q3;
    GetQuartiles(sorted, q1, q3);
    const Extended half_width = 2 * (q3 / 2 - q1 / 2) / Cbrt(count);
    if (half_width > 0) return std::clamp<Extended>(half_range / half_width, 1, kMostClasses / 3);
  }
  return 1 + Log2(count);
}

std::vector<Extended> RoundEdges(Extended low, Extended high, Extended width) {
  // Rounds to the smaller step if that is nearer.
  constexpr Extended towards_smaller = 1.5L;
  const apps::RoundStep step = apps::RoundStep::AtLeast(width / towards_smaller);
  const Extended first = std::floor(low / step.Times(1));
  std::vector<Extended> edges;
  for (Extended i = first; edges.empty() || edges.back() <= high; ++i)
    edges.push_back(step.Times(i));
  // The quotient may have been rounded up to a whole number.
  if (edges.front() > low) edges.insert(edges.begin(), step.Times(first - 1));
  return edges;
}

std::vector<Extended> PlainEdges(Extended low, Extended high, Extended classes) {
  std::vector<Extended> edges;
  const Extended width = high / classes - low / classes;
  for (Extended i = 0; i < classes; ++i) edges.push_back(low + i * width);
  edges.push_back(std::nextafter(high, std::numeric_limits<Extended>::infinity()));
  // Adjacent floating-point numbers leave space for fewer classes.
  edges.erase(std::unique(edges.begin(), edges.end()), edges.end());
  return edges;
}

std::vector<Extended> EdgesAround(Extended value) {
  const Extended half = std::max(Extended{0.5}, std::fabs(value) * 0x1p-10L);
  return {value - half, value + half};
}

std::vector<Extended> EdgesOf(const TQorFloatVector& sorted, ClassRule rule) {
  const Extended low = sorted[0];
  const Extended high = sorted[sorted.size() - 1];
  if (low == high) return EdgesAround(low);
  const Extended classes = std::ceil(ClassesByRule(sorted, rule));
  const Extended width = high / classes - low / classes;
  constexpr Extended least_width = 1e-4900L;
  constexpr Extended most_width = 1e4900L;
  constexpr Extended most_steps = 0x1p50L;
  const Extended largest = std::max(std::fabs(low), std::fabs(high));
  const bool can_be_round =
      width > least_width && width < most_width && largest / width < most_steps;
  return can_be_round ? RoundEdges(low, high, width)
                      // The width of one class may be beyond the range.
                      : PlainEdges(low, high, std::max<Extended>(2, classes));
}

Histogram Counted(const TQorFloatVector& sorted, std::vector<Extended> edges) {
  Histogram histogram{.edges = std::move(edges), .counts = {}, .total = sorted.size()};
  histogram.counts.reserve(histogram.edges.size() - 1);
  const Extended* begin = sorted.begin();
  for (std::size_t i = 1; i < histogram.edges.size(); ++i) {
    const Extended* const end = std::lower_bound(begin, sorted.end(), histogram.edges[i]);
    histogram.counts.push_back(static_cast<std::size_t>(end - begin));
    begin = end;
  }
  return histogram;
}

}  // namespace

TQorFloatVector SortedFinite(const TQorFloatVector& values) {
  auto finite = TQorFloatVector::ForOverwrite(values.size());
  std::size_t count = 0;
  for (const Extended value : values)
    if (std::isfinite(value)) finite[count++] = value;
  finite.SetLength(count);
  QSortVector(finite, true);
  return finite;
}
Extended Histogram::Density(std::size_t index) const {
  const Extended share = static_cast<Extended>(counts[index]) / static_cast<Extended>(total);
  return share / (edges[index + 1] - edges[index]);
}

Histogram HistogramOf(const TQorFloatVector& values, ClassRule rule) {
  const TQorFloatVector sorted = SortedFinite(values);
  return sorted.empty() ? Histogram() : Counted(sorted, EdgesOf(sorted, rule));
}

Histogram HistogramOf(const TQorFloatVector& values, std::size_t classes) {
  const TQorFloatVector sorted = SortedFinite(values);
  if (sorted.empty()) return {};
  const Extended low = sorted[0];
  const Extended high = sorted[sorted.size() - 1];
  return Counted(sorted, low == high ? EdgesAround(low)
                                     : PlainEdges(low, high, static_cast<Extended>(classes)));
}

}  // namespace qorvex::gallery
