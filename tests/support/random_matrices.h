#pragma once

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <functional>
#include <limits>
#include <utility>
#include <vector>

#include "qorvex/base/vector_types.h"
#include "support/random_vectors.h"

namespace qorvex::testing {

template <NumericElement T>
using ElementFunction = std::function<T(std::size_t row, std::size_t col)>;

/// A matrix of rows x cols elements from the given function.
template <NumericElement T>
TQorMatrix<T> MatrixOf(std::size_t rows, std::size_t cols, const ElementFunction<T>& element) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (std::size_t i = 0; i < rows; ++i) {
    matrix[i].SetLength(cols);
    for (std::size_t j = 0; j < cols; ++j) matrix[i][j] = element(i, j);
  }
  return matrix;
}

/// A matrix of rows x cols elements like those of RandomVector.
template <AnyElement T>
TQorMatrix<T> RandomMatrix(Engine& engine, std::size_t rows, std::size_t cols) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (TQorVector<T>& row : matrix) row = RandomVector<T>(engine, cols);
  return matrix;
}

/// Functions for elements that reveal faults of optimised floating-point loops, with their names.
/// In "far away" one of so_many elements, on average, differs from the others by orders of
/// magnitude.
template <FloatElement T>
std::vector<std::pair<const char*, ElementFunction<T>>> ElementFunctions(Engine& engine,
                                                                         unsigned so_many) {
  using Limits = std::numeric_limits<T>;
  const auto real = [&](auto...) {
    return static_cast<T>(static_cast<Extended>(static_cast<std::int64_t>(engine())) * 0x1p-64L);
  };
  const auto small = [&](auto...) { return static_cast<T>(static_cast<int>(engine() % 5) - 2); };
  const auto signed_zeros = [&, real](auto...) { return engine() % 3 == 0 ? real() : T(-0.0); };
  // Extended elements exceed the range of double in both directions.
  const auto far_away = [&, real, so_many](auto...) {
    constexpr int range = std::min(Limits::max_exponent - 1, 1100);
    const int exponent = static_cast<int>(engine() % (2 * range)) - range;
    return std::ldexp(real(), engine() % so_many == 0 ? exponent : 0);
  };
  const auto special = [&, real](auto...) {
    constexpr T values[] = {Limits::infinity(), Limits::quiet_NaN()};
    return engine() % 40 == 0 ? values[engine() % 2] : real();
  };
  return {{"real", real},
          {"small", small},
          {"signed zeros", signed_zeros},
          {"far away", far_away},
          {"special", special}};
}

}  // namespace qorvex::testing
