#include "qorvex/matrix/sums.h"

#include "support/test.h"

namespace qorvex {

TEST(MatrixSums, GrandMeanCountsRaggedRows) {
  std::uint32_t count = 7;
  EXPECT_EQ(GrandMean(TQorFloatMatrix{{1, 2}, {}, {3}}, count), 2);
  EXPECT_EQ(count, 3U);
  EXPECT_EQ(GrandMean(TQorFloatMatrix{{0x1p64L, 1}, {1, 0}}, count), 0x1p62L) << "each 1 is lost";
  EXPECT_EQ(GrandMean(TQorSingleMatrix{{1}, {0x1p-60F}}, count), 0.5L + 0x1p-61L);
  EXPECT_EQ(GrandMean(TQorInt64Matrix{{INT64_MAX, INT64_MAX}, {INT64_MAX, INT64_MAX}}, count),
            0x1p63L - 1)
      << "does not wrap";
  EXPECT_EQ(GrandMean(TQorLIntMatrix{{INT32_MIN, INT32_MIN}, {INT32_MIN}, {1}}, count),
            (3 * -0x1p31L + 1) / 4);

  EXPECT_MATH_ERROR(GrandMean(TQorFloatMatrix(), count), rsMatrixIsEmpty);
  EXPECT_EQ(count, 4U) << "unchanged";
  EXPECT_MATH_ERROR(GrandMean(TQorLIntMatrix{{}, {}}, count), rsMatrixIsEmpty);
  EXPECT_EQ(count, 0U);
}

TEST(MatrixSums, RowsAndColumnsWidenAndWrap) {
  const TQorLWordMatrix words{{4294967295, 4294967295}, {1, 2}};
  EXPECT_EQ(SumMatrixRow(words, 0), 8589934590);
  EXPECT_EQ(SumMatrixCol(words, 1), 4294967297);
  const TQorInt64Matrix longs{{INT64_MAX, 1}, {2, 0}};
  EXPECT_EQ(SumMatrixRow(longs, 0), INT64_MIN);
  EXPECT_EQ(SumMatrixCol(longs, 0), -INT64_MAX);
  const TQorSingleMatrix singles{{1, 0x1p-60F}, {0x1p64F, 1}, {1, 5}};
  EXPECT_EQ(SumMatrixRow(singles, 0), 1 + 0x1p-60L);
  EXPECT_EQ(SumMatrixCol(singles, 0), 0x1p64L) << "in ascending order each 1 is lost";
  EXPECT_TRUE(std::signbit(SumMatrixRow(TQorDoubleMatrix{{-0.0}}, 0))) << "as in SumVector";
}

}  // namespace qorvex
