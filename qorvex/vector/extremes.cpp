#include "qorvex/vector/extremes.h"

#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexVector {

template <AnyElement T>
T MinVector(VectorView<T> vector) {
  detail::RequireElements(vector);
  T result = vector[0];
  for (const T& x : vector) result = x < result ? x : result;
  return result;
}

template <AnyElement T>
T MaxVector(VectorView<T> vector) {
  detail::RequireElements(vector);
  T result = vector[0];
  for (const T& x : vector) result = x > result ? x : result;
  return result;
}

template <AnyElement T>
void MinMaxVector(VectorView<T> vector, T& min_value, T& max_value, std::uint32_t& min_index,
                  std::uint32_t& max_index, bool& min_unique, bool& max_unique) {
  detail::RequireElements(vector);
  T smallest = vector[0];
  T largest = vector[0];
  std::size_t smallest_at = 0;
  std::size_t largest_at = 0;
  bool smallest_once = true;
  bool largest_once = true;
  for (std::size_t i = 1; i < vector.size(); ++i) {
    const T x = vector[i];
    if (smallest < x && x < largest) continue;
    if (smallest > x) {
      smallest = x;
      smallest_at = i;
      smallest_once = true;
    } else if (x == smallest) {
      smallest_once = false;
    }
    if (x > largest) {
      largest = x;
      largest_at = i;
      largest_once = true;
    } else if (x == largest) {
      largest_once = false;
    }
  }
  min_value = smallest;
  max_value = largest;
  min_index = static_cast<std::uint32_t>(smallest_at);
  max_index = static_cast<std::uint32_t>(largest_at);
  min_unique = smallest_once;
  max_unique = largest_once;
}

#define QORVEX_INSTANTIATE(T)          \
  template T MinVector(VectorView<T>); \
  template T MaxVector(VectorView<T>); \
  template void MinMaxVector(VectorView<T>, T&, T&, std::uint32_t&, std::uint32_t&, bool&, bool&);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
