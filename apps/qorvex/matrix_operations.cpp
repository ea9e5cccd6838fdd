#include "apps/qorvex/matrix_operations.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <span>

#include "apps/common/threads.h"
#include "qorvex/base/errors.h"
#include "qorvex/matrix/QorvexMatrix.h"

namespace qorvex::apps {

namespace {

TQorFloatMatrix SingleElement(Extended value) {
  return {TQorFloatVector{value}};
}

// In an elimination, zeros get meaningless signs from pivots and row exchanges.
TQorFloatMatrix WithUnsignedZeros(TQorFloatMatrix matrix) {
  for (TQorFloatVector& row : matrix) std::ranges::replace(row, 0.0L, 0.0L);
  return matrix;
}

TQorFloatMatrix Inverse(Matrices& operands, unsigned) {
  TQorFloatMatrix inverse;
  if (!MatrixInverse(operands[0], inverse)) RaiseMathError(rsNoInvert);
  return WithUnsignedZeros(inverse);
}

TQorFloatMatrix Determinant(Matrices& operands, unsigned) {
  return WithUnsignedZeros(SingleElement(MatrixDeterminant(operands[0])));
}

TQorFloatMatrix Rank(Matrices& operands, unsigned) {
  std::uint32_t rank = 0;
  RowEchelonFormRank(operands[0], rank);
  return SingleElement(rank);
}

TQorFloatMatrix Echelon(Matrices& operands, unsigned) {
  RowEchelonForm(operands[0]);
  return WithUnsignedZeros(operands[0]);
}

// The rows of a product do not depend on one another, so each thread computes a block of them.
TQorFloatMatrix Product(const TQorFloatMatrix& left, const TQorFloatMatrix& right,
                        unsigned threads) {
  auto product = TQorFloatMatrix::WithLength(left.size());
  ForEachBlock(left.size(), threads, [&](std::size_t, std::size_t begin, std::size_t end) {
    const TQorFloatMatrix rows(std::span(left.begin() + begin, left.begin() + end));
    std::ranges::copy(MultiplyMatrices(rows, right), product.begin() + begin);
  });
  return product;
}

TQorFloatMatrix Multiply(Matrices& operands, unsigned threads) {
  for (std::size_t i = 1; i < operands.size(); ++i)
    if (MatrixCols(operands[i - 1]) != MatrixRows(operands[i])) RaiseMathError(rsMatrixMult);
  TQorFloatMatrix product = operands[0];
  for (std::size_t i = 1; i < operands.size(); ++i)
    product = Product(product, operands[i], threads);
  return product;
}

TQorFloatMatrix SolveSystem(Matrices& operands, unsigned) {
  const auto solution = Solve(operands[0], operands[1]);
  if (!solution) RaiseMathError(rsNoInvert);
  return *solution;
}

TQorFloatMatrix Transpose(Matrices& operands, unsigned) {
  return TransposeMatrix(operands[0]);
}

constexpr auto kAnyNumber = std::numeric_limits<std::size_t>::max();

constexpr MatrixOperation kOperations[] = {
    {.name = "inverse",
     .summary = "The inverse of a square matrix",
     .result = "the inverse",
     .takes_tolerance = true,
     .compute = Inverse,
     .help = R"(A matrix without an inverse is refused.

Examples:
  qorvex matrix inverse system.csv
  qorvex matrix inverse system.csv --decimals 6)"},
    {.name = "determinant",
     .summary = "The determinant of a square matrix",
     .result = "the determinant",
     .takes_tolerance = true,
     .compute = Determinant,
     .help = R"(The determinant is the product of the pivots of an elimination, with the sign of
its row exchanges. It is 0 if the rank is less than the order, but rounding can
leave a tiny number instead.

Examples:
  qorvex matrix determinant system.csv
  qorvex matrix determinant system.csv --decimals 6)"},
    {.name = "rank",
     .summary = "The number of independent rows",
     .result = "the echelon form",
     .takes_tolerance = true,
     .compute = Rank,
     .help = R"(The rank is the number of rows that are not zero after an elimination.

Examples:
  qorvex matrix rank system.csv
  qorvex matrix rank measured.csv --tolerance 1e-6)"},
    {.name = "echelon",
     .summary = "The row echelon form",
     .result = "the echelon form",
     .takes_tolerance = true,
     .compute = Echelon,
     .help = R"(Each row starts with a one, further right than in the row above, and rows of
zeros come last. Elements above a leading one are not eliminated.

Example:
  qorvex matrix echelon system.csv --decimals 3)"},
    {.name = "solve",
     .summary = "The solution of a system of linear equations",
     .result = "the solution",
     .least_matrices = 2,
     .takes_tolerance = true,
     .compute = SolveSystem,
     .help = R"(LEFT is the square matrix of the coefficients. Each column of RIGHT is a
right-hand side, and the same column of the result is its solution, refined once.
That is quicker and more accurate than multiplying by the inverse.

Example:
  qorvex matrix solve system.csv right_side.csv)"},
    {.name = "multiply",
     .summary = "The product of two or more matrices",
     .result = "the product",
     .least_matrices = 2,
     .most_matrices = kAnyNumber,
     .compute = Multiply,
     .help = R"(Each matrix must have as many columns as the next has rows. They are multiplied
from left to right.

Examples:
  qorvex matrix multiply a.csv b.csv
  qorvex matrix multiply a.csv b.csv c.csv
  qorvex matrix transpose a.csv | qorvex matrix multiply - a.csv)"},
    {.name = "transpose",
     .summary = "The rows as columns",
     .result = "the transpose",
     .compute = Transpose,
     .help = R"(Example:
  qorvex matrix transpose a.csv)"},
};

}  // namespace

std::span<const MatrixOperation> MatrixOperations() {
  return kOperations;
}

}  // namespace qorvex::apps
