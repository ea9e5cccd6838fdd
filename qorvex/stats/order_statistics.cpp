#include "qorvex/stats/order_statistics.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <concepts>
#include <cstddef>
#include <cstdint>

#include "qorvex/stats/detail/same_neighbours.h"
#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/integer_arithmetic.h"

namespace qorvex::inline QorvexStatistics {

using detail::SameNeighbours;
using QorvexVector::detail::RequireElements;

namespace {

constexpr Extended kNoMode = -1.1E4932L;

// Whether a word holds this many ones in a row.
bool HoldsOnes(std::uint64_t word, std::size_t wanted) {
  if (wanted > SameNeighbours::kMostElements) return false;
  // Bit i stays if bits i to i + found - 1 of the original word are set.
  for (std::size_t found = 1; found < wanted && word != 0;) {
    const std::size_t shift = std::min(found, wanted - found);
    word &= word >> shift;
    found += shift;
  }
  return word != 0;
}

// Neighbours that SameFloat finds the same form a run. Calls visit(index of the last element,
// length) for each run of at least two elements that is not shorter than all runs before it. Most
// runs are shorter, so that most words of 64 comparisons are skipped.
template <class Visit>
void ForEachLongestRun(VectorView<Extended> sorted, Visit visit) {
  const SameNeighbours same;
  std::size_t longest = 2;
  std::size_t run = 1;
  const auto close = [&](std::size_t last) {
    // A NaN is not the same as an equal NaN.
    if (run >= longest && !std::isnan(sorted[last])) {
      longest = run;
      visit(last, run);
    }
    run = 1;
  };
  for (std::size_t i = 1; i < sorted.size(); i += SameNeighbours::kMostElements) {
    const std::size_t count = std::min(SameNeighbours::kMostElements, sorted.size() - i);
    const std::uint64_t word = same(&sorted[i], count);
    const auto first_ones = static_cast<std::size_t>(std::countr_one(word));
    if (first_ones < count && run + first_ones < longest && !HoldsOnes(word, longest - 1)) {
      run = 1 + static_cast<std::size_t>(
                    std::countl_one(word << (SameNeighbours::kMostElements - count)));
      continue;
    }
    for (std::size_t at = 0; at < count; ++at) {
      const auto ones = static_cast<std::size_t>(std::countr_one(word >> at));
      run += ones;
      at += ones;
      if (at < count) close(i + at - 1);
    }
  }
  close(sorted.size() - 1);
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
  ForEachLongestRun(sorted, [&](std::size_t last, std::size_t length) {
    tie = length == longest;
    if (!tie) mode = sorted[last];
    longest = length;
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
  ForEachLongestRun(sorted, [&](std::size_t last, std::size_t length) {
    if (length > longest) result.SetLength(0);
    longest = length;
    result.Append(length == sorted.size() ? sorted[0] : sorted[last]);
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
