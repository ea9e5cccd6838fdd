#include "qorvex/stats/order_statistics.h"

#include <array>

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

// The mode and the list of the most frequent values, from the same runs.
TEST(Mode, IsTheLongestRunUnlessTied) {
  constexpr Extended none = -1.1E4932L;
  constexpr Extended near = 0.5e-15L;
  const struct {
    TQorFloatVector values;
    bool exists;
    Extended mode;
    TQorFloatVector most_frequent;
  } cases[] = {
      {{5}, true, 5, {5}},
      {{4, 4}, true, 4, {4}},
      {{1, 2, 3}, false, none, {}},
      {{1, 1, 2}, true, 1, {1}},
      {{1, 2, 2}, true, 2, {2}},
      {{1, 1, 2, 2, 3}, false, 1, {1, 2}},
      {{1, 1, 2, 2, 3, 3, 3}, true, 3, {3}},
      {{1, 1, 1, 2, 2, 3, 3, 3}, false, 1, {1, 3}},
      // Neighbours within the tolerance are one run. Its value is the last element, except in the
      // list if the run is the whole vector.
      {{1, 1 + near, 3}, true, 1 + near, {1 + near}},
      {{5, 5 + 2 * near, 5 + 4 * near}, true, 5 + 4 * near, {5}},
      // The tolerance is relative to the values.
      {{1e-19L, 2e-19L, 2e-19L, 4e-19L}, true, 2e-19L, {2e-19L}},
      {{-3e-4940L, 0, 1e-4940L}, false, none, {}},
  };
  Extended mode = 42;
  EXPECT_MATH_ERROR(GetMode({}, mode), rsVectorIsEmpty);
  EXPECT_EQ(mode, 42);
  EXPECT_MATH_ERROR(GetMostFrequent({}), rsVectorIsEmpty);
  for (const auto& [values, exists, expected_mode, most_frequent] : cases) {
    EXPECT_EQ(GetMode(values, mode), exists) << ::testing::PrintToString(values);
    EXPECT_EQ(mode, expected_mode) << ::testing::PrintToString(values);
    EXPECT_EQ(GetMostFrequent(values), most_frequent);
  }
}

TEST(Quartiles, InterpolateBetweenElements) {
  const struct {
    TQorFloatVector values;
    Extended q1, q3;
  } cases[] = {
      {{9}, 9, 9},
      {{1, 2}, 1, 2},
      {{1, 2, 3}, 1.25L, 2.75L},
      {{1, 2, 3, 4}, 1.5L, 3.5L},
      {{10, 20, 30, 40, 50}, 17.5L, 42.5L},
      {{1, 2, 4, 8, 16, 32, 64}, 2.5L, 28},
  };
  Extended q1 = 7;
  Extended q3 = 8;
  EXPECT_MATH_ERROR(GetQuartiles({}, q1, q3), rsVectorIsEmpty);
  EXPECT_TRUE(q1 == 7 && q3 == 8);
  for (const auto& [values, expected_q1, expected_q3] : cases) {
    GetQuartiles(values, q1, q3);
    EXPECT_EQ(q1, expected_q1) << values.size();
    EXPECT_EQ(q3, expected_q3) << values.size();
  }
}

TEST(Deciles, RoundPositionsToSinglePrecision) {
  using Deciles = std::array<Extended, 9>;
  Deciles deciles{};
  GetDeciles({10, 20, 30, 40, 50, 60, 70, 80, 90, 100}, deciles);
  EXPECT_EQ(deciles, (Deciles{15, 25, 35, 45, 55, 65, 75, 85, 95}));

  GetDeciles({0, 1, 2}, deciles);
  // The position 3 * 4/10 + 1/2 = 1.7, rounded to a single.
  EXPECT_EQ(deciles[3], static_cast<Extended>(1.7F) - 1);
  EXPECT_EQ(deciles[0], 0) << "position 0.8 is before the first element";
  EXPECT_EQ(deciles[8], 2) << "position 3.2 is beyond the last";

  GetDeciles({4}, deciles);
  EXPECT_MATH_ERROR(GetDeciles({}, deciles), rsVectorIsEmpty);
  EXPECT_EQ(deciles, (Deciles{4, 4, 4, 4, 4, 4, 4, 4, 4}));
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
