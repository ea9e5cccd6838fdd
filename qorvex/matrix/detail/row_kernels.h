#pragma once

// The elementary row operations as loops over elements. The loops advance pointers because with an
// index GCC 12 generates a second counter, which delays the floating-point operations.

#include <algorithm>
#include <cstddef>

#include "qorvex/base/swap.h"
#include "qorvex/matrix/factor_type.h"
#include "qorvex/vector/detail/element_arithmetic.h"

namespace qorvex::inline QorvexMatrix::detail {

template <AnyElement T>
void SwapElements(T* a, T* b, std::size_t count) noexcept {
  for (std::size_t i = 0; i < count; ++i) SwapXY(a[i], b[i]);
}

template <class T>
void ScaleElements(T* row, std::size_t count, FactorOf<T> factor) noexcept {
  for (T* const end = row + count; row != end; ++row) {
    *row = QorvexVector::detail::Product(*row, factor);
  }
}

// The source may be the target.
template <class T>
void AddElements(T* target, const T* source, std::size_t count, FactorOf<T> factor) noexcept {
  for (const T* const end = source + count; source != end; ++source, ++target) {
    *target = QorvexVector::detail::ProductPlus(*source, factor, *target);
  }
}

}  // namespace qorvex::inline QorvexMatrix::detail
