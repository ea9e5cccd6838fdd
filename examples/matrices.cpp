#include <iostream>
#include <vector>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/matrix/QorvexMatrix.h"

using namespace qorvex;

void Print(const TQorFloatVector& vector) {
  for (const Extended x : vector) std::cout << Float2EStr(x, 2) << ' ';
  std::cout << '\n';
}

int main() {
  const TQorFloatMatrix springs = {{2, -1, 0}, {-1, 2, -1}, {0, -1, 1}};
  const std::vector<Extended> load = {0, 0, 9.81L};

  std::cout << "Determinant " << Float2EStr(Determinant(springs), 2) << '\n';
  if (const auto shift = Solve(springs, load)) {
    Print(*shift);
    Print(MultiplyMatrixByVector(springs, *shift));
  }
  if (const auto flexibility = Inverse(springs)) {
    for (const TQorFloatVector& row : *flexibility) Print(row);
  }

  // From nested ranges of another type, and as one array.
  const std::vector<std::vector<float>> table = {{1, 2.5F}, {3, 4}};
  Print(MatrixToRowMajor(ConvertMatrix<Extended>(table)));

  try {
    static_cast<void>(MultiplyMatrices(springs, {{1, 2, 3}}));
  } catch (const EMathError& error) {
    std::cout << error.what() << '\n';
  }
}
