#pragma once

// Sums in extended precision, in ascending order: the same bits as the plain loop, but several
// times as fast where the sum grows large compared to its terms.

#include "qorvex/base/vector_types.h"
#include "qorvex/vector/detail/ordered_terms.h"

namespace qorvex::inline QorvexVector::detail {

/// Adds terms one after the other.
template <class Terms>
[[nodiscard]] Extended AddInTurn(Extended sum, const Terms& terms, std::size_t first,
                                 std::size_t end) noexcept {
  for (std::size_t i = first; i < end; ++i) sum += terms[i];
  return sum;
}

/// The same for at least 2 * kFirstTerms of them, and faster if the processor can.
template <class Terms>
[[nodiscard]] Extended AddMany(Extended sum, const Terms& terms, std::size_t count) noexcept;

/// sum + terms[0] + ... + terms[count - 1]. Each term, and the sum after each addition, is rounded
/// to extended precision.
template <class Terms>
[[nodiscard]] Extended AddInOrder(Extended sum, const Terms& terms, std::size_t count) noexcept {
  if constexpr (kHasKernel<Terms>) {
    if (count >= 2 * kFirstTerms<Terms>) return AddMany(sum, terms, count);
  }
  return AddInTurn(sum, terms, 0, count);
}

template <FloatElement T>
[[nodiscard]] Extended AddValues(Extended sum, VectorView<T> x) noexcept {
  return AddInOrder(sum, Values<T>{x.data()}, x.size());
}

template <FloatElement T>
[[nodiscard]] Extended AddSquares(Extended sum, VectorView<T> x) noexcept {
  return AddInOrder(sum, Squares<T>{x.data()}, x.size());
}

/// For views of the same length.
template <FloatElement T>
[[nodiscard]] Extended AddProducts(Extended sum, VectorView<T> x, VectorView<T> y) noexcept {
  return AddInOrder(sum, Products<T>{x.data(), y.data()}, x.size());
}

/// Of (x - y)^2, for views of the same length.
template <FloatElement T>
[[nodiscard]] Extended AddSquaredDifferences(Extended sum, VectorView<T> x,
                                             VectorView<T> y) noexcept {
  return AddInOrder(sum, SquaredDifferences<T>{x.data(), y.data()}, x.size());
}

/// Of (x - mean)^2.
template <FloatElement T>
[[nodiscard]] Extended AddSquaredDifferences(Extended sum, VectorView<T> x,
                                             Extended mean) noexcept {
  return AddInOrder(sum, SquaredDeviations<T>{x.data(), mean}, x.size());
}

}  // namespace qorvex::inline QorvexVector::detail
