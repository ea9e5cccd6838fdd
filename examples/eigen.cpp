#include <Eigen/LU>
#include <iostream>
#include <span>

#include "qorvex/matrix/QorvexMatrix.h"

using namespace qorvex;

// Rows are stored one after the other. Eigen's default is columns.
using RowMajor = Eigen::Matrix<double, Eigen::Dynamic, Eigen::Dynamic, Eigen::RowMajor>;

// A view of the elements, without a copy.
Eigen::Map<const RowMajor> View(const TQorDoubleVector& elements, std::size_t cols) {
  return {elements.data(), static_cast<Eigen::Index>(elements.size() / cols),
          static_cast<Eigen::Index>(cols)};
}

// Any matrix of Eigen: its elements are written row by row first.
TQorDoubleMatrix FromEigen(const RowMajor& matrix) {
  return MatrixFromRowMajor(std::span(matrix.data(), static_cast<std::size_t>(matrix.size())),
                            static_cast<std::size_t>(matrix.cols()));
}

int main() {
  // From Eigen: a system of equations that is solved with 64 bits.
  Eigen::Matrix3d springs;
  springs << 3, -1, 0, -1, 3, -1, 0, -1, 3;
  const Eigen::Vector3d forces(1, 0, 2);
  if (const auto shift = Solve(FromEigen(springs), std::span(forces.data(), 3))) {
    std::cout << "Shift   " << Eigen::Map<const Eigen::RowVector3d>(shift->data()) << '\n';
  }

  // And back: an inverse that Eigen multiplies.
  if (const auto inverse = Inverse(FromEigen(springs))) {
    const TQorDoubleVector elements = MatrixToRowMajor(*inverse);
    std::cout << "Shift   " << (View(elements, 3) * forces).transpose() << '\n';
  }

  // A vector of Qorvex, in place.
  TQorDoubleVector weights{1, 2, 5};
  Eigen::Map<Eigen::VectorXd> mapped(weights.data(), 3);
  mapped /= mapped.sum();
  std::cout << "Weights " << mapped.transpose() << '\n';
}
