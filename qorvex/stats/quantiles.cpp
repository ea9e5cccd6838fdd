#include "qorvex/stats/quantiles.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <limits>
#include <numeric>

#include "qorvex/stats/detail/quantile_rule.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexStatistics {

using QorvexVector::detail::RequireElements;

template <NumericElement T>
Extended GetQuantile(VectorView<T> sorted, Extended p, QuantileType type) {
  RequireElements(sorted);
  detail::RequireQuantile(p, type);
  return detail::QuantileOf(sorted.size(), p, type, [sorted](std::uint64_t k) {
    return static_cast<Extended>(sorted[k - 1]);
  });
}

template <NumericElement T>
Extended MedianAbsoluteDeviation(VectorView<T> sorted) {
  RequireElements(sorted);
  const std::size_t n = sorted.size();
  const auto element = [sorted](std::size_t i) { return static_cast<Extended>(sorted[i]); };
  if (std::isnan(element(n - 1))) return element(n - 1);
  const Extended median = std::midpoint(element((n - 1) / 2), element(n / 2));
  if (!std::isfinite(median)) return std::numeric_limits<Extended>::quiet_NaN();

  // The k nearest elements are neighbours. Those that begin at `first` are too far left if the next
  // element is nearer than the first.
  const auto distance_of_nearest = [&](std::size_t k) {
    std::size_t first = 0;
    std::size_t end = n - k;
    while (first < end) {
      const std::size_t middle = first + (end - first) / 2;
      if (median - element(middle) > element(middle + k) - median) {
        first = middle + 1;
      } else {
        end = middle;
      }
    }
    return std::max(median - element(first), element(first + k - 1) - median);
  };
  const Extended upper = distance_of_nearest(n / 2 + 1);
  return n % 2 == 1 ? upper : std::midpoint(distance_of_nearest(n / 2), upper);
}

#define QORVEX_INSTANTIATE(T)                                           \
  template Extended GetQuantile(VectorView<T>, Extended, QuantileType); \
  template Extended MedianAbsoluteDeviation(VectorView<T>);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexStatistics
