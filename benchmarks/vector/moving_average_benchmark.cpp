// Moving averages over 8 and 64 elements, compared with the plain double loop.

#include "qorvex/vector/moving_average.h"
#include "support/compare.h"

namespace qorvex::benchmarks {
namespace {

// Registers a window under the name of the routine and its length, which is not a constant to the
// compiler.
template <FloatElement T>
void RegisterWindow(const std::string& routine, std::uint32_t period) {
  Compare<T>(routine, "ours",
             [period](const TQorVector<T>& v) { return MovingAverage(v, period, 0); });
  Compare<T>(routine, "loop", [period](const TQorVector<T>& v) {
    auto result = TQorVector<T>::WithLength(v.size());
    for (std::size_t start = 0; start + period <= v.size(); ++start) {
      Extended sum = 0;
      for (std::size_t i = 0; i < period; ++i) sum += static_cast<Extended>(v[start + i]);
      result[start] = static_cast<T>(sum / period);
    }
    return result;
  });
}

template <FloatElement T>
void RegisterType() {
  RegisterWindow<T>("MovingAverage", 8);
  RegisterWindow<T>("MovingAverage, window 64", 64);
}

[[maybe_unused]] const bool registered = [] {
  RegisterType<Extended>();
  RegisterType<double>();
  RegisterType<float>();
  return true;
}();

}  // namespace
}  // namespace qorvex::benchmarks
