#include <Eigen/LU>
#include <iostream>
#include <span>

#include "qorvex/matrix/QorvexMatrix.h"

using namespace qorvex;

// Stored row by row. Eigen's default is column by column.
using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

// Takes any matrix of doubles: one that is stored by columns is converted to rows for the call.
TQorDoubleMatrix FromEigen(const RowMajor& matrix) {
  return MatrixFromRowMajor(std::span(matrix.data(), static_cast<std::size_t>(matrix.size())),
                            static_cast<std::size_t>(matrix.cols()));
}

RowMajor ToEigen(const TQorDoubleMatrix& matrix) {
  const TQorDoubleVector elements = MatrixToRowMajor(matrix);
  return Eigen::Map<const RowMajor>(elements.data(), MatrixRows(matrix), MatrixCols(matrix));
}

int main() {
  Eigen::Matrix3d matrix;
  matrix << 4, 2, 0, 0, 2, 1, 0, 0, 0.5;
  const Eigen::Vector3d right_side(1, 0, 3);

  const TQorDoubleMatrix ours = FromEigen(matrix);
  std::cout << ours << '\n';
  if (const auto inverse = Inverse(ours)) {
    std::cout << ToEigen(*inverse) * matrix << '\n';
  }
  if (const auto solution = Solve(ours, std::span(right_side.data(), 3))) {
    // Eigen uses the elements of a vector in place.
    const Eigen::Map<const Eigen::VectorXd> mapped(solution->data(), 3);
    std::cout << *solution << "; " << (matrix * mapped).transpose() << '\n';
  }
}
