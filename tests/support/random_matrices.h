#pragma once

#include <cmath>
#include <cstddef>
#include <functional>

#include "qorvex/base/vector_types.h"
#include "support/random_vectors.h"

namespace qorvex::testing {

/// A matrix of rows x cols elements of the given making.
template <NumericElement T>
TQorMatrix<T> MatrixOf(std::size_t rows, std::size_t cols,
                       const std::function<T(std::size_t row, std::size_t col)>& element) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (std::size_t i = 0; i < rows; ++i) {
    matrix[i].SetLength(cols);
    for (std::size_t j = 0; j < cols; ++j) matrix[i][j] = element(i, j);
  }
  return matrix;
}

/// A matrix of rows x cols elements like those of RandomVector.
template <NumericElement T>
TQorMatrix<T> RandomMatrix(Engine& engine, std::size_t rows, std::size_t cols) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (TQorVector<T>& row : matrix) row = RandomVector<T>(engine, cols);
  return matrix;
}

/// Equal with the sign of zeros; any two NaNs are the same.
template <FloatElement T>
bool SameBits(T a, T b) {
  return (a == b && std::signbit(a) == std::signbit(b)) || (a != a && b != b);
}

template <class Element>
bool SameBits(const DynArray<Element>& a, const DynArray<Element>& b) {
  return std::ranges::equal(a, b,
                            [](const Element& x, const Element& y) { return SameBits(x, y); });
}

}  // namespace qorvex::testing
