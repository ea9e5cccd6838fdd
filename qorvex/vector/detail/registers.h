#pragma once

// Registers of several elements, for kernels that are one template over their width. Arithmetic and
// comparisons of the compilers' vector extension work on all elements at once.

#include <cstddef>
#include <span>

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector::detail {

template <class Element, std::size_t kBytes>
struct RegisterType {
  using Type __attribute__((vector_size(kBytes))) = Element;
};

// Functions take registers by reference: the baseline cannot pass wider ones by value.
template <class Element, std::size_t kBytes>
using Register = typename RegisterType<Element, kBytes>::Type;

// The elements as numbers: the stored integers of amounts.
template <NumericElement T>
[[nodiscard]] inline std::span<const T> Numbers(VectorView<T> vector) noexcept {
  return vector;
}
template <CurrencyElement T>
[[nodiscard]] inline auto Numbers(VectorView<T> vector) noexcept {
  using Stored = typename T::StoredType;
  static_assert(sizeof(T) == sizeof(Stored));
  return std::span(reinterpret_cast<const Stored*>(vector.data()), vector.size());
}

}  // namespace qorvex::inline QorvexVector::detail
