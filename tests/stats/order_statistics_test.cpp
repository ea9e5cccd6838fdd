#include "qorvex/stats/order_statistics.h"

#include "qorvex/stats/trimmed_means.h"
#include "support/test.h"

namespace qorvex {

TEST(Median, DoesNotSort) {
  EXPECT_EQ(GetMedian(TQorFloatVector{4, 1, 3, 2}), 2);
  EXPECT_EQ(GetMedian(TQorSingleVector{1, 2, 9}), 2);
  EXPECT_EQ(GetMedian(TQorSingleVector{1, 1 + 0x1p-23F}), 1 + 0x1p-24L)
      << "added in extended precision";
  EXPECT_EQ(GetMedian(TQorLIntVector{7}), 7);
  constexpr std::int32_t largest = std::numeric_limits<std::int32_t>::max();
  EXPECT_EQ(GetMedian(TQorLIntVector{largest, largest}), largest);
  EXPECT_EQ(GetMedian(TQorLWordVector{4294967295, 4294967295}), 4294967295.0L);
  const std::int64_t huge = std::int64_t{1} << 62;
  EXPECT_EQ(GetMedian(TQorInt64Vector{huge, huge}), -0x1p62L) << "the int64 sum wraps around";
  EXPECT_MATH_ERROR(GetMedian(TQorDoubleVector()), rsVectorIsEmpty);
}

TEST(TrimmedMeans, SumInExtendedPrecision) {
  EXPECT_EQ(TrimmedMean(TQorLIntVector{1, 2, 30}, 0.4L), 2);
  EXPECT_EQ(TrimmedMean(TQorLWordVector{4294967295, 4294967295}, 0.1L), 4294967295.0L);
  const std::int64_t huge = std::int64_t{1} << 62;
  EXPECT_EQ(TrimmedMean(TQorInt64Vector{huge, huge, huge, huge}, 0.25L), 0x1p62L)
      << "no wrap-around";
  const TQorFloatVector skewed{0, 1, 2, 3, 4, 5, 6, 70, 80, 90};
  EXPECT_EQ(TrimmedMean(skewed, 0.3), 90 / 6.0L) << "the double is less than the decimal";
}

}  // namespace qorvex
