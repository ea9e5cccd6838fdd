#pragma once

// Creates matrices.

#include <cstddef>

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix::detail {

// All elements zero.
template <class T>
[[nodiscard]] TQorMatrix<T> NewMatrix(std::size_t rows, std::size_t cols) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (TQorVector<T>& row : matrix) row = TQorVector<T>::WithLength(cols);
  return matrix;
}

// Uninitialised: every element must be written before it is read.
template <class T>
[[nodiscard]] TQorMatrix<T> NewMatrixForOverwrite(std::size_t rows, std::size_t cols) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (TQorVector<T>& row : matrix) row = TQorVector<T>::ForOverwrite(cols);
  return matrix;
}

// One, or one currency unit.
template <class T>
[[nodiscard]] constexpr T One() noexcept {
  if constexpr (CurrencyElement<T>) {
    return T(static_cast<typename T::StoredType>(T::kScale));
  } else {
    return 1;
  }
}

template <class T>
[[nodiscard]] TQorMatrix<T> NewIdentityMatrix(std::size_t order) {
  auto matrix = NewMatrix<T>(order, order);
  for (std::size_t i = 0; i < order; ++i) matrix[i][i] = One<T>();
  return matrix;
}

}  // namespace qorvex::inline QorvexMatrix::detail
