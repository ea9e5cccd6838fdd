#include "qorvex/vector/moving_average.h"

#include <algorithm>
#include <cstddef>

#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexVector {

namespace {

template <FloatElement T>
Extended WindowSum(const T* window, std::size_t period) {
  Extended sum = 0;
  for (std::size_t i = 0; i < period; ++i) sum += static_cast<Extended>(window[i]);
  return sum;
}

struct FourSums {
  Extended sum0 = 0;
  Extended sum1 = 0;
  Extended sum2 = 0;
  Extended sum3 = 0;
};

// The sums of four windows that start at successive elements, for a period of at least 3. Each
// window is summed in ascending order, but every element is loaded only once, and four independent
// additions run at a time.
template <FloatElement T>
FourSums FourWindowSums(const T* first, std::size_t period) {
  FourSums s;
  s.sum0 += static_cast<Extended>(first[0]);
  s.sum0 += static_cast<Extended>(first[1]);
  s.sum1 += static_cast<Extended>(first[1]);
  s.sum0 += static_cast<Extended>(first[2]);
  s.sum1 += static_cast<Extended>(first[2]);
  s.sum2 += static_cast<Extended>(first[2]);
  for (std::size_t i = 3; i < period; ++i) {
    const Extended x = first[i];
    s.sum0 += x;
    s.sum1 += x;
    s.sum2 += x;
    s.sum3 += x;
  }
  const T* const last = first + period;
  s.sum1 += static_cast<Extended>(last[0]);
  s.sum2 += static_cast<Extended>(last[0]);
  s.sum3 += static_cast<Extended>(last[0]);
  s.sum2 += static_cast<Extended>(last[1]);
  s.sum3 += static_cast<Extended>(last[1]);
  s.sum3 += static_cast<Extended>(last[2]);
  return s;
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
  if (period >= 3) {
    for (; start + 4 <= windows; start += 4) {
      const FourSums s = FourWindowSums(first + start, period);
      averages[start] = static_cast<T>(s.sum0 / divisor);
      averages[start + 1] = static_cast<T>(s.sum1 / divisor);
      averages[start + 2] = static_cast<T>(s.sum2 / divisor);
      averages[start + 3] = static_cast<T>(s.sum3 / divisor);
    }
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
