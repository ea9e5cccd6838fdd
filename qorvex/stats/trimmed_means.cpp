#include "qorvex/stats/trimmed_means.h"

#include <cmath>
#include <cstddef>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/errors.h"
#include "qorvex/stats/location.h"
#include "qorvex/stats/order_statistics.h"
#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/ordered_sum.h"

namespace qorvex::inline QorvexStatistics {

namespace {

// The two trimmed means differ in the largest fraction, which gives the median, and in
// per_tail(count): how many elements are cut from each end for a total of trunc(n * fraction).
template <WideNumericElement T, class PerTail>
Extended Trimmed(VectorView<T> sorted, Extended fraction, Extended largest_fraction,
                 PerTail per_tail) {
  if (FloatIsZero(fraction)) return QorMean(sorted);
  if (SameFloat(fraction, largest_fraction)) return GetMedian(sorted);
  if (!(fraction >= 0 && fraction <= largest_fraction)) RaiseMathError(rsInvalidValue);
  QorvexVector::detail::RequireElements(sorted);
  const std::size_t count = sorted.size();
  if (count == 1) return static_cast<Extended>(sorted[0]);

  const std::size_t cut =
      per_tail(static_cast<std::size_t>(static_cast<Extended>(count) * fraction));
  if (count <= 2 * cut) return 0;
  const VectorView<T> middle = sorted.subspan(cut, count - 2 * cut);
  Extended sum = 0;
  if constexpr (FloatElement<T>) {
    sum = QorvexVector::detail::AddValues(sum, middle);
  } else {
    for (const T x : middle) sum += static_cast<Extended>(x);
  }
  return sum / static_cast<Extended>(middle.size());
}

}  // namespace

template <WideNumericElement T>
Extended TrimmedMean(VectorView<T> sorted, Extended fraction) {
  return Trimmed(sorted, fraction, 0.5L, [](std::size_t cut) { return cut; });
}

template <WideNumericElement T>
Extended ExcelTrimmedMean(VectorView<T> sorted, Extended fraction) {
  return Trimmed(sorted, fraction, 1.0L, [](std::size_t cut) { return cut / 2; });
}

#define QORVEX_INSTANTIATE(T)                             \
  template Extended TrimmedMean(VectorView<T>, Extended); \
  template Extended ExcelTrimmedMean(VectorView<T>, Extended);
QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexStatistics
