#include "qorvex/matrix/access.h"

#include <span>
#include <vector>

#include "qorvex/matrix/building.h"
#include "qorvex/matrix/sorting.h"
#include "support/test.h"

namespace qorvex {

TEST(MatrixAccess, RowsAndColumnsAreExtractedAndOverwritten) {
  TQorLIntMatrix m{{1, 2, 3}, {4, 5, 6}};
  EXPECT_EQ(ExtractMatrixRow(m, 1), (TQorLIntVector{4, 5, 6}));
  EXPECT_EQ(ExtractMatrixCol(m, 2), (TQorLIntVector{3, 6}));
  EXPECT_FALSE(ExtractMatrixRow(m, 1).SharesBufferWith(m[1]));
  const TQorLIntVector second_row = m[1];
  OverwriteMatrixRow(m, 1, {7, 8}, 9);
  EXPECT_EQ(second_row, (TQorLIntVector{7, 8, 9})) << "seen through every handle";
  OverwriteMatrixRow(m, 0, {10, 11, 12, 13}, 9);
  OverwriteMatrixCol(m, 0, {20}, -1);
  OverwriteMatrixCol(m, 2, {30, 31, 32}, -1);
  EXPECT_EQ(m, (TQorLIntMatrix{{20, 11, 30}, {-1, 8, 31}}));
  OverwriteMatrixRow(m, 0, m[1], 0);
  EXPECT_EQ(m[0], m[1]);
  const std::vector<std::int32_t> values{5, 6};
  OverwriteMatrixRow(m, 0, values, 7);
  OverwriteMatrixCol(m, 2, std::span(values).last(1), 3);
  EXPECT_EQ(m, (TQorLIntMatrix{{5, 6, 6}, {-1, 8, 3}}));
}

TEST(MatrixAccess, ASingleRowOrColumnIsLeftAloneWhateverTheIndex) {
  for (const TQorByteMatrix& before :
       {TQorByteMatrix{{3, 1, 2}}, TQorByteMatrix{{3}, {1}, {2}}, TQorByteMatrix{{3, 2}, {1}}}) {
    TQorByteMatrix m = CopyMatrix(before);
    for (const std::uint32_t index : {0U, 99U}) {
      EXPECT_TRUE(ExtractMatrixRow(m, index).empty());
      EXPECT_TRUE(ExtractMatrixCol(m, index).empty());
      OverwriteMatrixRow(m, index, {9, 9}, 9);
      OverwriteMatrixCol(m, index, {9, 9}, 9);
      QSortMatrixRowsOnCol(m, index, true);
      QSortMatrixColsOnRow(m, index, true);
    }
    EXPECT_EQ(m, before);
  }
}

}  // namespace qorvex
