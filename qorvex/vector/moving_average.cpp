#include "qorvex/vector/moving_average.h"

#include <algorithm>
#include <cstddef>

#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexVector {

template <FloatElement T>
TQorVector<T> MovingAverage(const TQorVector<T>& vector, std::uint32_t period,
                            std::uint32_t offset) {
  detail::RequireElements(vector);
  if (period == 0) RaiseMathError(rsValueNotZero);
  auto result = TQorVector<T>::WithLength(vector.size());
  if (period > vector.size()) return result;

  const Extended divisor = period;
  const std::size_t windows = vector.size() - period + 1;
  T* const averages = result.data() + std::min(offset, period - 1);
  std::size_t start = 0;
  // Four windows at a time keep four independent additions in flight; each is summed in its own
  // order all the same.
  for (; start + 4 <= windows; start += 4) {
    const T* const window = vector.data() + start;
    Extended sum0 = 0;
    Extended sum1 = 0;
    Extended sum2 = 0;
    Extended sum3 = 0;
    for (std::size_t i = 0; i < period; ++i) {
      sum0 += static_cast<Extended>(window[i]);
      sum1 += static_cast<Extended>(window[i + 1]);
      sum2 += static_cast<Extended>(window[i + 2]);
      sum3 += static_cast<Extended>(window[i + 3]);
    }
    averages[start] = static_cast<T>(sum0 / divisor);
    averages[start + 1] = static_cast<T>(sum1 / divisor);
    averages[start + 2] = static_cast<T>(sum2 / divisor);
    averages[start + 3] = static_cast<T>(sum3 / divisor);
  }
  for (; start < windows; ++start) {
    Extended sum = 0;
    for (std::size_t i = 0; i < period; ++i) sum += static_cast<Extended>(vector[start + i]);
    averages[start] = static_cast<T>(sum / divisor);
  }
  return result;
}

#define QORVEX_INSTANTIATE(T) \
  template TQorVector<T> MovingAverage(const TQorVector<T>&, std::uint32_t, std::uint32_t);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
