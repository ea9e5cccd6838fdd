#include "qorvex/matrix/row_operations.h"

#include "support/rectangular_check_off.h"
#include "support/test.h"

namespace qorvex {

TEST(RowOperations, ExchangeContentsSeenThroughEveryHandle) {
  TQorByteMatrix matrix{{1, 2, 3}, {4, 5, 6}};
  const TQorByteVector row = matrix[0];
  SwapMatrixRows(matrix, 0, 1);
  EXPECT_EQ(row, (TQorByteVector{4, 5, 6}));
  SwapMatrixCols(matrix, 0, 2);
  SwapMatrixRows(matrix, 1, 1);
  SwapMatrixCols(matrix, 1, 1);
  EXPECT_EQ(matrix, (TQorByteMatrix{{6, 5, 4}, {3, 2, 1}}));
}

TEST(RowOperations, ScaleAndAdd) {
  TQorFloatMatrix matrix{{1, 2}, {3, 4}};
  ScaleMatrixRow(matrix, 1, matrix[1][0]);  // the factor is the element's value before the change
  EXPECT_EQ(matrix, (TQorFloatMatrix{{1, 2}, {9, 12}}));
  ScaleMatrixCol(matrix, 0, -2);
  EXPECT_EQ(matrix, (TQorFloatMatrix{{-2, 2}, {-18, 12}}));
  AddMatrixRows(matrix, 0, 1, 0.5L);
  EXPECT_EQ(matrix, (TQorFloatMatrix{{-11, 8}, {-18, 12}}));
  AddMatrixCols(matrix, 1, 0, 2);
  EXPECT_EQ(matrix, (TQorFloatMatrix{{-11, -14}, {-18, -24}}));
  AddMatrixRows(matrix, 0, 0, 1);
  AddMatrixCols(matrix, 1, 1, -1);
  EXPECT_EQ(matrix, (TQorFloatMatrix{{-22, 0}, {-18, 0}}));
  matrix[1] = matrix[0];
  ScaleMatrixCol(matrix, 0, 3);
  EXPECT_EQ(matrix[0][0], -22 * 9) << "a shared buffer is scaled for each of its rows";
}

TEST(RowOperations, IntegersWrapAndDoublesRoundOnce) {
  constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
  constexpr std::int64_t smallest = std::numeric_limits<std::int64_t>::min();
  TQorLIntMatrix ints{{largest, 1}, {1, 1}};
  ScaleMatrixRow(ints, 0, 2);
  EXPECT_EQ(ints, (TQorLIntMatrix{{-2, 2}, {1, 1}}));
  AddMatrixCols(ints, 0, 1, largest);
  EXPECT_EQ(ints, (TQorLIntMatrix{{-4, 2}, {-largest - 1, 1}}));
  TQorInt64Matrix int64s{{smallest}, {-1}};
  AddMatrixRows(int64s, 0, 1, 1);
  EXPECT_EQ(int64s[0][0], std::numeric_limits<std::int64_t>::max());
  // A product that were rounded before it is added would be 1.
  TQorDoubleMatrix doubles{{-1, 2}, {1, 1}};
  AddMatrixRows(doubles, 0, 1, 1 + 0x1p-60L);
  EXPECT_EQ(doubles[0], (TQorDoubleVector{0x1p-60, 3}));
  doubles = {{-1, 1}, {2, 1}};
  AddMatrixCols(doubles, 0, 1, 1 + 0x1p-60L);
  EXPECT_EQ(doubles, (TQorDoubleMatrix{{0x1p-60, 1}, {3, 1}}));
}

TEST(RowOperations, ChecksComeInOrderAndTheFactorOneBeforeThem) {
  TQorFloatMatrix empty;
  TQorFloatMatrix ragged{{1, 2}, {3}};
  TQorFloatMatrix matrix{{1, 2}, {3, 4}, {5, 6}};
  ScaleMatrixRow(empty, 99, 1);
  ScaleMatrixCol(matrix, 99, 1);
  const auto expect_row_errors = [](TQorFloatMatrix& m, std::uint32_t bad, MessageId id) {
    EXPECT_MATH_ERROR(SwapMatrixRows(m, bad, 0), id);
    EXPECT_MATH_ERROR(SwapMatrixRows(m, 0, bad), id);
    EXPECT_MATH_ERROR(ScaleMatrixRow(m, bad, 2), id);
    EXPECT_MATH_ERROR(AddMatrixRows(m, bad, 0, 2), id);
    EXPECT_MATH_ERROR(AddMatrixRows(m, 0, bad, 2), id);
  };
  const auto expect_col_errors = [](TQorFloatMatrix& m, std::uint32_t bad, MessageId id) {
    EXPECT_MATH_ERROR(SwapMatrixCols(m, bad, 0), id);
    EXPECT_MATH_ERROR(SwapMatrixCols(m, 0, bad), id);
    EXPECT_MATH_ERROR(ScaleMatrixCol(m, bad, 2), id);
    EXPECT_MATH_ERROR(AddMatrixCols(m, bad, 0, 2), id);
    EXPECT_MATH_ERROR(AddMatrixCols(m, 0, bad, 2), id);
  };
  for (TQorFloatMatrix* none : {&empty, &ragged}) {
    expect_row_errors(*none, 9, rsMatrixIsEmpty);
    expect_col_errors(*none, 9, rsMatrixIsEmpty);
  }
  expect_row_errors(matrix, 3, rsInvalidRow);
  expect_col_errors(matrix, 2, rsInvalidCol);
  EXPECT_EQ(matrix, (TQorFloatMatrix{{1, 2}, {3, 4}, {5, 6}}));

  // Without the shape switch only the rows in reach count.
  const testing::RectangularCheckOff off;
  ragged = {{1, 2}, {3, 4}, {5}};
  AddMatrixRows(ragged, 0, 1, 1);
  expect_row_errors(ragged, 2, rsMatrixRect);
  expect_col_errors(ragged, 1, rsMatrixRect);
  EXPECT_MATH_ERROR(SwapMatrixRows(ragged, 2, 9), rsInvalidRow);
  EXPECT_EQ(ragged, (TQorFloatMatrix{{4, 6}, {3, 4}, {5}}));
}

}  // namespace qorvex
