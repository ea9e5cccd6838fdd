#pragma once

// The elementary operations on rows, as loops over their elements.

#include <algorithm>
#include <cstddef>

#include "qorvex/base/swap.h"
#include "qorvex/matrix/factor_type.h"
#include "qorvex/vector/detail/integer_arithmetic.h"

namespace qorvex::inline QorvexMatrix::detail {

template <NumericElement T>
void SwapElements(T* a, T* b, std::size_t count) noexcept {
  for (std::size_t i = 0; i < count; ++i) SwapXY(a[i], b[i]);
}

template <class T>
[[nodiscard]] T Scaled(T x, FactorOf<T> factor) noexcept {
  if constexpr (FloatElement<T>) {
    return static_cast<T>(static_cast<Extended>(x) * factor);
  } else {
    return QorvexVector::detail::WrappingMultiply(x, factor);
  }
}

// x times the factor plus y: two roundings to extended precision and one to the element type.
template <class T>
[[nodiscard]] T ScaledSum(T x, FactorOf<T> factor, T y) noexcept {
  if constexpr (FloatElement<T>) {
    return static_cast<T>(static_cast<Extended>(x) * factor + static_cast<Extended>(y));
  } else {
    return QorvexVector::detail::WrappingAdd(QorvexVector::detail::WrappingMultiply(x, factor), y);
  }
}

template <class T>
void ScaleElements(T* row, std::size_t count, FactorOf<T> factor) noexcept {
  for (std::size_t i = 0; i < count; ++i) row[i] = Scaled(row[i], factor);
}

// The source may be the target.
template <class T>
void AddElements(T* target, const T* source, std::size_t count, FactorOf<T> factor) noexcept {
  for (std::size_t i = 0; i < count; ++i) target[i] = ScaledSum(source[i], factor, target[i]);
}

}  // namespace qorvex::inline QorvexMatrix::detail
