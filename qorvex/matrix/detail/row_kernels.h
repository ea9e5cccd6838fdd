#pragma once

// The elementary operations on rows, as loops over their elements.

#include <algorithm>
#include <cstddef>

#include "qorvex/base/swap.h"
#include "qorvex/matrix/factor_type.h"
#include "qorvex/vector/detail/element_arithmetic.h"

namespace qorvex::inline QorvexMatrix::detail {

template <NumericElement T>
void SwapElements(T* a, T* b, std::size_t count) noexcept {
  for (std::size_t i = 0; i < count; ++i) SwapXY(a[i], b[i]);
}

template <class T>
void ScaleElements(T* row, std::size_t count, FactorOf<T> factor) noexcept {
  for (std::size_t i = 0; i < count; ++i) row[i] = QorvexVector::detail::Product(row[i], factor);
}

// The source may be the target.
template <class T>
void AddElements(T* target, const T* source, std::size_t count, FactorOf<T> factor) noexcept {
  for (std::size_t i = 0; i < count; ++i)
    target[i] = QorvexVector::detail::ProductPlus(source[i], factor, target[i]);
}

}  // namespace qorvex::inline QorvexMatrix::detail
