#include "qorvex/stats/order_statistics.h"

#include <cmath>
#include <concepts>
#include <cstddef>

#include "qorvex/base/comparisons.h"
#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/integer_arithmetic.h"

namespace qorvex::inline QorvexStatistics {

using QorvexVector::detail::RequireElements;

namespace {

constexpr Extended kNoMode = -1.1E4932L;

// Calls visit(last element, length) for each run of neighbours that SameFloat finds the same.
template <class Visit>
void ForEachRun(VectorView<Extended> sorted, Visit visit) {
  std::size_t length = 1;
  Extended previous = sorted[0];
  for (const Extended x : sorted.subspan(1)) {
    if (SameFloat(x, previous)) {
      ++length;
    } else {
      visit(previous, length);
      length = 1;
    }
    previous = x;
  }
  visit(previous, length);
}

// Interpolates between elements at a one-based position.
Extended Interpolate(VectorView<Extended> sorted, Extended exact_position) {
  const auto position = static_cast<float>(exact_position);
  const float whole = std::trunc(position);
  const auto k = static_cast<std::size_t>(whole);
  const Extended fraction = position - whole;
  if (k < 1) return sorted[0];
  if (k >= sorted.size()) return sorted[sorted.size() - 1];
  return sorted[k - 1] + fraction * (sorted[k] - sorted[k - 1]);
}

}  // namespace

template <WideNumericElement T>
Extended GetMedian(VectorView<T> sorted) {
  RequireElements(sorted);
  const std::size_t middle = sorted.size() / 2;
  if (sorted.size() % 2 == 1) return static_cast<Extended>(sorted[middle]);
  if constexpr (std::same_as<T, std::int64_t>) {
    return static_cast<Extended>(
               QorvexVector::detail::WrappingAdd(sorted[middle - 1], sorted[middle])) /
           2;
  } else {
    return (static_cast<Extended>(sorted[middle - 1]) + static_cast<Extended>(sorted[middle])) / 2;
  }
}

bool GetMode(VectorView<Extended> sorted, Extended& mode) {
  RequireElements(sorted);
  if (sorted.size() == 1) {
    mode = sorted[0];
    return true;
  }
  mode = kNoMode;
  std::size_t longest = 1;
  bool tie = true;
  ForEachRun(sorted, [&](Extended value, std::size_t length) {
    if (length > longest) {
      mode = value;
      longest = length;
      tie = false;
    } else if (length == longest) {
      tie = true;
    }
  });
  return !tie;
}

TQorFloatVector GetMostFrequent(VectorView<Extended> sorted) {
  RequireElements(sorted);
  TQorFloatVector result;
  if (sorted.size() == 1) {
    result.Append(sorted[0]);
    return result;
  }
  std::size_t longest = 1;
  ForEachRun(sorted, [&](Extended value, std::size_t length) {
    if (length < longest || length == 1) return;
    if (length > longest) result.SetLength(0);
    longest = length;
    result.Append(length == sorted.size() ? sorted[0] : value);
  });
  return result;
}

void GetQuartiles(VectorView<Extended> sorted, Extended& q1, Extended& q3) {
  RequireElements(sorted);
  const auto count = static_cast<Extended>(sorted.size());
  q1 = Interpolate(sorted, count / 4 + 0.5L);
  q3 = Interpolate(sorted, 3 * count / 4 + 0.5L);
}

void GetDeciles(VectorView<Extended> sorted, std::span<Extended, 9> deciles) {
  RequireElements(sorted);
  const auto count = static_cast<Extended>(sorted.size());
  for (std::size_t i = 1; i <= 9; ++i) {
    deciles[i - 1] = Interpolate(sorted, count * static_cast<Extended>(i) / 10 + 0.5L);
  }
}

#define QORVEX_INSTANTIATE(T) template Extended GetMedian(VectorView<T>);
QORVEX_FOR_WIDE_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexStatistics
