#include "apps/qorvex/matrix_operations.h"

#include <algorithm>
#include <cstdint>
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
TQorFloatMatrix Multiply(Matrices& operands, unsigned threads) {
  const TQorFloatMatrix& left = operands[0];
  auto product = TQorFloatMatrix::WithLength(left.size());
  ForEachBlock(left.size(), threads, [&](std::size_t, std::size_t begin, std::size_t end) {
    const TQorFloatMatrix rows(std::span(left.begin() + begin, left.begin() + end));
    std::ranges::copy(MultiplyMatrices(rows, operands[1]), product.begin() + begin);
  });
  return product;
}

TQorFloatMatrix Transpose(Matrices& operands, unsigned) {
  return TransposeMatrix(operands[0]);
}

constexpr MatrixOperation kOperations[] = {
    {.name = "inverse",
     .summary = "The inverse of a square matrix",
     .result = "the inverse",
     .takes_tolerance = true,
     .compute = Inverse,
     .help = R"(A matrix without an inverse is refused.

Examples:
  qorvex matrix inverse system.csv
  qorvex matrix inverse system.csv | qorvex matrix multiply - right_side.csv)"},
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
    {.name = "multiply",
     .summary = "The product of two matrices",
     .result = "the product",
     .takes_two_files = true,
     .compute = Multiply,
     .help = R"(LEFT must have as many columns as RIGHT has rows.

Examples:
  qorvex matrix multiply a.csv b.csv
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
