#include <iostream>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/matrix/QorvexMatrix.h"

using namespace qorvex;

void Print(const TQorFloatMatrix& matrix) {
  for (const TQorFloatVector& row : matrix) {
    for (const Extended x : row) std::cout << Float2EStr(x, 2) << ' ';
    std::cout << '\n';
  }
}

int main() {
  const TQorFloatMatrix springs = {{2, -1, 0}, {-1, 2, -1}, {0, -1, 1}};

  auto work = CopyMatrix(springs);  // the reductions change their argument
  TQorFloatMatrix flexibility;
  if (MatrixInverse(work, flexibility)) Print(flexibility);

  work = CopyMatrix(springs);
  std::cout << "Determinant " << Float2EStr(MatrixDeterminant(work), 3) << '\n';

  const TQorFloatMatrix load = {{0}, {0}, {9.81L}};
  Print(TransposeMatrix(MultiplyMatrices(flexibility, load)));

  try {
    static_cast<void>(MultiplyMatrices(load, springs));
  } catch (const EMathError& error) {
    std::cout << error.what() << '\n';
  }
}
