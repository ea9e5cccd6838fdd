// Moving averages, compared with the plain double loop.

#include "qorvex/vector/moving_average.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

// Volatile, because callers do not know the period at compile time.
volatile std::uint32_t eight = 8;
volatile std::uint32_t sixty_four = 64;

template <FloatElement T, volatile std::uint32_t& kPeriod>
void RegisterWindow(const std::string& routine, std::initializer_list<std::size_t> sizes) {
  Compare<T>(
      routine, "ours", [](const TQorVector<T>& v) { return MovingAverage(v, kPeriod, 0); },
      Sample<T>, sizes);
  const auto loop = [](const TQorVector<T>& v) {
    const std::uint32_t period = kPeriod;
    auto result = TQorVector<T>::WithLength(v.size());
    for (std::size_t start = 0; start + period <= v.size(); ++start) {
      Extended sum = 0;
      for (std::size_t i = 0; i < period; ++i) sum += static_cast<Extended>(v[start + i]);
      result[start] = static_cast<T>(sum / period);
    }
    return result;
  };
  Compare<T>(routine, "loop", loop, Sample<T>, sizes);
}

template <FloatElement T>
void RegisterType() {
  RegisterWindow<T, eight>("MovingAverage, window 8", kSizes);
  RegisterWindow<T, sixty_four>("MovingAverage, window 64", {100'000});
}

[[maybe_unused]] const bool registered = [] {
  RegisterType<Extended>();
  RegisterType<double>();
  RegisterType<float>();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
