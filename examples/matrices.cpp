#include <iomanip>
#include <iostream>
#include <vector>

#include "qorvex/base/errors.h"
#include "qorvex/matrix/QorvexMatrix.h"

using namespace qorvex;

int main() {
  const TQorFloatMatrix springs = {{2, -1, 0}, {-1, 2, -1}, {0, -1, 1}};
  const std::vector<Extended> load = {0, 0, 9.75L};

  std::cout << std::fixed << std::setprecision(2);
  std::cout << "Determinant " << Determinant(springs) << '\n';
  if (const auto flexibility = Inverse(springs)) std::cout << *flexibility << '\n';
  if (const auto shift = Solve(springs, load)) {
    std::cout << *shift << '\n' << MultiplyMatrixByVector(springs, *shift) << '\n';
  }

  const std::vector<std::vector<float>> table = {{1, 2.5F}, {3, 4}};
  const TQorDoubleMatrix matrix = ConvertMatrix<double>(table);
  std::cout << matrix << '\n' << MatrixToRowMajor(matrix) << '\n';

  try {
    static_cast<void>(MultiplyMatrices(springs, {{1, 2, 3}}));
  } catch (const EMathError& error) {
    std::cout << error.what() << '\n';
  }
}
