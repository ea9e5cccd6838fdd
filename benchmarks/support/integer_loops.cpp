#include "support/integer_loops.h"

#include <cstddef>

namespace qorvex::benchmarks {

template <IntegerElement T>
std::uint64_t LoopSum(VectorView<T> vector) {
  std::uint64_t sum = 0;
  for (const T x : vector) sum += static_cast<std::uint64_t>(x);
  return sum;
}

template <IntegerElement T>
std::uint64_t LoopDotProduct(VectorView<T> a, VectorView<T> b) {
  std::uint64_t sum = 0;
  for (std::size_t i = 0; i < a.size(); ++i)
    sum += static_cast<std::uint64_t>(a[i]) * static_cast<std::uint64_t>(b[i]);
  return sum;
}

#define QORVEX_LOOPS(T)                             \
  template std::uint64_t LoopSum<T>(VectorView<T>); \
  template std::uint64_t LoopDotProduct<T>(VectorView<T>, VectorView<T>);

QORVEX_LOOPS(std::int64_t)
QORVEX_LOOPS(std::uint32_t)
QORVEX_LOOPS(std::int32_t)
QORVEX_LOOPS(std::uint16_t)
QORVEX_LOOPS(std::int16_t)
QORVEX_LOOPS(std::uint8_t)
QORVEX_LOOPS(std::int8_t)

}  // namespace qorvex::benchmarks
