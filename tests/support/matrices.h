#pragma once

#include "qorvex/matrix/shape.h"
#include "support/random_vectors.h"

namespace qorvex::testing {

/// QorMatrixRectangularCheck off while it lives.
class RectangularCheckOff {
 public:
  RectangularCheckOff() { QorMatrixRectangularCheck = false; }
  ~RectangularCheckOff() { QorMatrixRectangularCheck = true; }
  RectangularCheckOff(const RectangularCheckOff&) = delete;
  RectangularCheckOff& operator=(const RectangularCheckOff&) = delete;
};

/// A matrix of such rows as RandomVector makes.
template <NumericElement T>
TQorMatrix<T> RandomMatrix(Engine& engine, std::size_t rows, std::size_t cols) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (TQorVector<T>& row : matrix) row = RandomVector<T>(engine, cols);
  return matrix;
}

}  // namespace qorvex::testing
