#include "qorvex/matrix/row_operations.h"

#include "support/test.h"

namespace qorvex {

TEST(RowOperations, ExchangesAreSeenThroughEveryHandle) {
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
  EXPECT_EQ(matrix[0], (TQorFloatVector{-22, -28}));
}

TEST(RowOperations, IntegersWrapAndDoublesRoundOnce) {
  TQorLIntMatrix ints{{INT32_MAX, 1}, {1, 1}};
  ScaleMatrixRow(ints, 0, 2);
  EXPECT_EQ(ints, (TQorLIntMatrix{{-2, 2}, {1, 1}}));
  AddMatrixCols(ints, 0, 1, INT32_MAX);
  EXPECT_EQ(ints, (TQorLIntMatrix{{-4, 2}, {INT32_MIN, 1}}));
  TQorInt64Matrix int64s{{INT64_MIN}, {-1}};
  AddMatrixRows(int64s, 0, 1, 1);
  EXPECT_EQ(int64s[0][0], INT64_MAX);
  // If the product were rounded before the addition, it would be 1.
  TQorDoubleMatrix doubles{{-1, 2}, {1, 1}};
  AddMatrixRows(doubles, 0, 1, 1 + 0x1p-60L);
  EXPECT_EQ(doubles[0], (TQorDoubleVector{0x1p-60, 3}));
  doubles = {{-1, 1}, {2, 1}};
  AddMatrixCols(doubles, 0, 1, 1 + 0x1p-60L);
  EXPECT_EQ(doubles, (TQorDoubleMatrix{{0x1p-60, 1}, {3, 1}}));
}

TEST(RowOperations, TheFactorOneIsNotChecked) {
  TQorFloatMatrix matrix{{1, 2}};
  ScaleMatrixRow(matrix, 99, 1);
  ScaleMatrixCol(matrix, 99, 1);
  EXPECT_EQ(matrix, (TQorFloatMatrix{{1, 2}}));
}

}  // namespace qorvex
