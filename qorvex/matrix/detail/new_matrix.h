#pragma once

// Matrices for routines that compute their elements.

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

// For a caller that writes every element before reading any.
template <class T>
[[nodiscard]] TQorMatrix<T> NewMatrixForOverwrite(std::size_t rows, std::size_t cols) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (TQorVector<T>& row : matrix) row = TQorVector<T>::ForOverwrite(cols);
  return matrix;
}

template <class T>
[[nodiscard]] TQorMatrix<T> NewIdentityMatrix(std::size_t order) {
  auto matrix = NewMatrix<T>(order, order);
  for (std::size_t i = 0; i < order; ++i) matrix[i][i] = 1;
  return matrix;
}

}  // namespace qorvex::inline QorvexMatrix::detail
