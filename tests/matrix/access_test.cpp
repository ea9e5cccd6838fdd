#include "qorvex/matrix/access.h"

#include "qorvex/matrix/building.h"
#include "support/rectangular_check_off.h"
#include "support/test.h"

namespace qorvex {

using testing::RectangularCheckOff;

TEST(MatrixAccess, RowsAndColumnsComeOutAndGoIn) {
  TQorLIntMatrix m{{1, 2, 3}, {4, 5, 6}};
  EXPECT_EQ(ExtractMatrixRow(m, 1), (TQorLIntVector{4, 5, 6}));
  EXPECT_EQ(ExtractMatrixCol(m, 2), (TQorLIntVector{3, 6}));
  EXPECT_FALSE(ExtractMatrixRow(m, 1).SharesBufferWith(m[1]));
  const TQorLIntVector second_row = m[1];
  OverwriteMatrixRow(m, 1, {7, 8}, 9);
  EXPECT_EQ(second_row, (TQorLIntVector{7, 8, 9})) << "seen through every handle";
  OverwriteMatrixRow(m, 0, {10, 11, 12, 13}, 9);
  EXPECT_EQ(m, (TQorLIntMatrix{{10, 11, 12}, {7, 8, 9}}));
  OverwriteMatrixCol(m, 0, {20}, -1);
  OverwriteMatrixCol(m, 2, {30, 31, 32}, -1);
  EXPECT_EQ(m, (TQorLIntMatrix{{20, 11, 30}, {-1, 8, 31}}));
  OverwriteMatrixRow(m, 0, {}, 5);
  OverwriteMatrixCol(m, 1, {}, 6);
  EXPECT_EQ(m, (TQorLIntMatrix{{5, 6, 5}, {-1, 6, 31}}));
}

TEST(MatrixAccess, RowsOfTheMatrixServeAsVectors) {
  TQorFloatMatrix m{{1, 2}, {3, 4}};
  OverwriteMatrixRow(m, 1, m[1], 0);
  OverwriteMatrixRow(m, 0, m[1], 0);
  EXPECT_EQ(m, (TQorFloatMatrix{{3, 4}, {3, 4}}));
  OverwriteMatrixCol(m, 1, m[0], 0);
  EXPECT_EQ(m, (TQorFloatMatrix{{3, 3}, {3, 3}})) << "the new m[0][1] is read for m[1][1]";
}

TEST(MatrixAccess, OneLineIsLeftAloneWhateverTheIndex) {
  const TQorByteMatrix cases[] = {{}, {{}, {}}, {{1, 2, 3}}, {{1}, {2}, {3}}, {{1, 2}, {3}}};
  for (const TQorByteMatrix& before : cases) {
    TQorByteMatrix m = CopyMatrix(before);
    for (const std::uint32_t index : {0U, 99U}) {
      EXPECT_TRUE(ExtractMatrixRow(m, index).empty());
      EXPECT_TRUE(ExtractMatrixCol(m, index).empty());
      OverwriteMatrixRow(m, index, {9, 9}, 9);
      OverwriteMatrixCol(m, index, {9, 9}, 9);
    }
    EXPECT_EQ(m, before);
  }
}

TEST(MatrixAccess, IndicesAndRaggedRowsAreChecked) {
  const auto expect_errors = [](TQorFloatMatrix& m, std::uint32_t row, MessageId row_error,
                                std::uint32_t col, MessageId col_error) {
    EXPECT_MATH_ERROR(ExtractMatrixRow(m, row), row_error);
    EXPECT_MATH_ERROR(OverwriteMatrixRow(m, row, {}, 0), row_error);
    EXPECT_MATH_ERROR(ExtractMatrixCol(m, col), col_error);
    EXPECT_MATH_ERROR(OverwriteMatrixCol(m, col, {}, 0), col_error);
  };
  TQorFloatMatrix wide{{1, 2, 3}, {4, 5, 6}};
  expect_errors(wide, 2, rsInvalidRow, 3, rsInvalidCol);
  const RectangularCheckOff off;
  TQorFloatMatrix ragged{{1, 2}, {3, 4, 5}, {6}};
  EXPECT_EQ(ExtractMatrixRow(ragged, 1), (TQorFloatVector{3, 4}));
  expect_errors(ragged, 2, rsMatrixRect, 0, rsMatrixRect);
  OverwriteMatrixRow(ragged, 1, {8, 8, 8}, 0);
  EXPECT_EQ(ragged, (TQorFloatMatrix{{1, 2}, {8, 8, 5}, {6}})) << "row 0 has two columns";
}

}  // namespace qorvex
