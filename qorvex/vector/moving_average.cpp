#include "qorvex/vector/moving_average.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexVector {

namespace {

// Six windows at a time keep the processor busy. Shorter windows are faster four at a time: a
// larger share of their elements belongs to only some of the windows.
constexpr std::size_t kLeastForSix = 24;

template <FloatElement T>
Extended WindowSum(const T* window, std::size_t period) {
  Extended sum = 0;
  for (std::size_t i = 0; i < period; ++i) sum += static_cast<Extended>(window[i]);
  return sum;
}

// The sums of kCount windows that start at successive elements.
template <std::size_t kCount>
class WindowSums {
 public:
  // Adds x to the windows from kFirst to before kEnd.
  template <std::size_t kFirst, std::size_t kEnd>
  [[gnu::always_inline]] void Add(Extended x) {
    AddTo<kFirst>(x, std::make_index_sequence<kEnd - kFirst>());
  }
  template <FloatElement T>
  [[gnu::always_inline]] void StoreMeans(Extended divisor, T* means) const {
    StoreMeans(divisor, means, std::make_index_sequence<kCount>());
  }

 private:
  // Constant indices, so that the sums stay in registers.
  template <std::size_t kFirst, std::size_t... kIndex>
  [[gnu::always_inline]] void AddTo(Extended x, std::index_sequence<kIndex...>) {
    ((sums_[kFirst + kIndex] += x), ...);
  }
  template <FloatElement T, std::size_t... kIndex>
  [[gnu::always_inline]] void StoreMeans(Extended divisor, T* means,
                                         std::index_sequence<kIndex...>) const {
    ((means[kIndex] = static_cast<T>(sums_[kIndex] / divisor)), ...);
  }

  Extended sums_[kCount] = {};
};

// The means of sizeof...(kIndex) + 1 windows, which is at most the period + 1. Each window is
// summed in ascending order, but every element is loaded only once, and the additions to several
// windows run at a time.
template <FloatElement T, std::size_t... kIndex>
[[gnu::always_inline]] inline void StoreMeansTogether(const T* first, std::size_t period,
                                                      Extended divisor, T* means,
                                                      std::index_sequence<kIndex...>) {
  constexpr std::size_t kCount = sizeof...(kIndex) + 1;
  WindowSums<kCount> sums;
  (sums.template Add<0, kIndex + 1>(first[kIndex]), ...);
  for (std::size_t i = kCount - 1; i < period; ++i) sums.template Add<0, kCount>(first[i]);
  (sums.template Add<kIndex + 1, kCount>(first[period + kIndex]), ...);
  sums.StoreMeans(divisor, means);
}

// The means of the first windows, kCount at a time. Returns the start of the first window that is
// left.
template <std::size_t kCount, FloatElement T>
std::size_t StoreMeans(const T* first, std::size_t windows, std::size_t period, Extended divisor,
                       T* means) {
  std::size_t start = 0;
  for (; start + kCount <= windows; start += kCount) {
    StoreMeansTogether(first + start, period, divisor, means + start,
                       std::make_index_sequence<kCount - 1>());
  }
  return start;
}

}  // namespace

template <FloatElement T>
TQorVector<T> MovingAverage(VectorView<T> vector, std::uint32_t period, std::uint32_t offset) {
  detail::RequireElements(vector);
  if (period == 0) RaiseMathError(rsValueNotZero);
  auto result = TQorVector<T>::WithLength(vector.size());
  if (period > vector.size()) return result;

  const Extended divisor = period;
  const std::size_t windows = vector.size() - period + 1;
  const T* const first = vector.data();
  T* const averages = result.data() + std::min(offset, period - 1);
  std::size_t start = 0;
  if (period >= kLeastForSix) {
    start = StoreMeans<6>(first, windows, period, divisor, averages);
  } else if (period >= 3) {
    start = StoreMeans<4>(first, windows, period, divisor, averages);
  }
  for (; start < windows; ++start) {
    averages[start] = static_cast<T>(WindowSum(first + start, period) / divisor);
  }
  return result;
}

#define QORVEX_INSTANTIATE(T) \
  template TQorVector<T> MovingAverage(VectorView<T>, std::uint32_t, std::uint32_t);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
