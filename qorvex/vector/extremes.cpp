#include "qorvex/vector/extremes.h"

#include <functional>

#include "qorvex/vector/detail/checks.h"
#include "qorvex/vector/detail/extreme_values.h"
#include "qorvex/vector/detail/registers.h"

namespace qorvex::inline QorvexVector {

namespace {

// The extreme that `better` prefers, in a short vector.
template <AnyElement T, class Better>
T BestOf(VectorView<T> vector, Better better) {
  T result = vector[0];
  for (const T& x : vector) result = better(x, result) ? x : result;
  return result;
}

}  // namespace

template <AnyElement T>
T MinVector(VectorView<T> vector) {
  detail::RequireElements(vector);
  if (vector.size() < detail::kLeastForExtremes) return BestOf(vector, std::less());
  return T(detail::ExtremesOf(detail::Numbers(vector)).smallest.value);
}

template <AnyElement T>
T MaxVector(VectorView<T> vector) {
  detail::RequireElements(vector);
  if (vector.size() < detail::kLeastForExtremes) return BestOf(vector, std::greater());
  return T(detail::ExtremesOf(detail::Numbers(vector)).largest.value);
}

template <AnyElement T>
void MinMaxVector(VectorView<T> vector, T& min_value, T& max_value, std::uint32_t& min_index,
                  std::uint32_t& max_index, bool& min_unique, bool& max_unique) {
  detail::RequireElements(vector);
  const auto [smallest, largest] = detail::ExtremesOf(detail::Numbers(vector));
  min_value = T(smallest.value);
  max_value = T(largest.value);
  min_index = static_cast<std::uint32_t>(smallest.index);
  max_index = static_cast<std::uint32_t>(largest.index);
  min_unique = smallest.once;
  max_unique = largest.once;
}

#define QORVEX_INSTANTIATE(T)          \
  template T MinVector(VectorView<T>); \
  template T MaxVector(VectorView<T>); \
  template void MinMaxVector(VectorView<T>, T&, T&, std::uint32_t&, std::uint32_t&, bool&, bool&);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
