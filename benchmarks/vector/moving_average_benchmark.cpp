// The moving average over 8 elements, compared with the plain double loop.

#include "qorvex/vector/moving_average.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

// Volatile, because callers do not know the period at compile time.
volatile std::uint32_t eight = 8;

template <FloatElement T>
void RegisterType() {
  Compare<T>("MovingAverage", "ours",
             [](const TQorVector<T>& v) { return MovingAverage(v, eight, 0); });
  Compare<T>("MovingAverage", "loop", [](const TQorVector<T>& v) {
    const std::uint32_t period = eight;
    auto result = TQorVector<T>::WithLength(v.size());
    for (std::size_t start = 0; start + period <= v.size(); ++start) {
      Extended sum = 0;
      for (std::size_t i = 0; i < period; ++i) sum += static_cast<Extended>(v[start + i]);
      result[start] = static_cast<T>(sum / period);
    }
    return result;
  });
}

[[maybe_unused]] const bool registered = [] {
  RegisterType<Extended>();
  RegisterType<double>();
  RegisterType<float>();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
