#include "qorvex/stats/grouped.h"

#include <array>
#include <vector>

#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

// A table of classes, transcribed with vectors and loops.
struct PlainClasses {
  std::vector<std::uint32_t> freq;
  Extended lower_bound, width;

  [[nodiscard]] Extended Mid(std::size_t i) const {
    return static_cast<Extended>(i) * width + lower_bound + width / 2;
  }
  [[nodiscard]] std::int64_t Total() const {
    std::int64_t total = 0;
    for (const std::uint32_t f : freq) total += f;
    return total;
  }
  template <class Value>
  [[nodiscard]] Extended Sum(Value value) const {
    Extended sum = 0;
    for (std::size_t i = 0; i < freq.size(); ++i) sum += value(Mid(i), i);
    return sum;
  }
  template <class Value>
  [[nodiscard]] Extended Weighted(Value value) const {
    return Sum(
        [&](Extended mid, std::size_t i) { return static_cast<Extended>(freq[i]) * value(mid); });
  }
  // The cumulative frequencies, after a zero.
  [[nodiscard]] std::vector<std::uint32_t> Cumulative() const {
    std::vector<std::uint32_t> cumulative = {0};
    for (const std::uint32_t f : freq) cumulative.push_back(cumulative.back() + f);
    return cumulative;
  }
  // The first class that reaches the target, interpolated.
  [[nodiscard]] Extended Quantile(Extended target) const {
    const auto cumulative = Cumulative();
    std::size_t j = 0;
    while (target > cumulative[j + 1]) ++j;
    return lower_bound + static_cast<Extended>(j) * width +
           (target - cumulative[j]) * width / freq[j];
  }
  [[nodiscard]] Extended Decile(int i) const {
    const auto cumulative = Cumulative();
    const std::size_t n = freq.size();
    const Extended target = static_cast<Extended>(Total()) / 10 * i;
    std::size_t k = 0;
    while (k <= n && target > cumulative[k]) ++k;
    if (k >= n) return cumulative[n - 1];
    if (k == 0) return 0;
    return lower_bound + static_cast<Extended>(k - 1) * width +
           width * (target - cumulative[k - 1]) / freq[k - 1];
  }
};

TEST(Grouped, FollowsItsFormulasToTheBit) {
  testing::Engine engine(1);
  for (int round = 0; round < 300; ++round) {
    PlainClasses plain{.freq = {},
                       .lower_bound = static_cast<Extended>(engine() % 1000) / 7 - 60,
                       .width = static_cast<Extended>(engine() % 1000 + 1) / 9};
    plain.freq.resize(engine() % 20 + 4);
    for (auto& f : plain.freq) {
      f = static_cast<std::uint32_t>(round % 3 == 0 ? engine() % 3 : engine() % 100000);
    }
    plain.freq[engine() % 4] += 4;
    const TQorLWordVector freq(plain.freq);
    const Extended low = plain.lower_bound;
    const Extended width = plain.width;
    const auto total = static_cast<Extended>(plain.Total());

    const Extended mean = plain.Weighted([](Extended mid) { return mid; }) / total;
    EXPECT_EQ(GroupedMean(freq, low, width), mean);
    const Extended squares =
        plain.Weighted([mean](Extended mid) { return (mid - mean) * (mid - mean); });
    EXPECT_EQ(GroupedSampleVariance(freq, low, width), squares / (total - 1));
    EXPECT_EQ(GroupedPopulationVariance(freq, low, width), squares / total);
    EXPECT_EQ(GroupedSampleStdDev(freq, low, width), std::sqrt(squares / (total - 1)));
    EXPECT_EQ(GroupedPopulationStdDev(freq, low, width), std::sqrt(squares / total));
    EXPECT_EQ(GetGroupedMeanDev(freq, low, width, 12.5L),
              plain.Weighted([](Extended mid) { return std::fabs(mid - 12.5L); }) / total);
    Extended sum = kNaN;
    Extended sum_sq = kNaN;
    GroupedSums(freq, low, width, sum, sum_sq);
    EXPECT_EQ(sum, plain.Weighted([](Extended mid) { return mid; }));
    EXPECT_EQ(sum_sq, plain.Weighted([](Extended mid) { return mid * mid; }));

    EXPECT_EQ(GroupedMedian(freq, low, width), plain.Quantile(total / 2));
    Extended q1 = 0;
    Extended q3 = 0;
    GroupedQuartiles(freq, low, width, q1, q3);
    EXPECT_EQ(q1, plain.Quantile(total / 4));
    EXPECT_EQ(q3, plain.Quantile(3 * total / 4));
    std::array<Extended, 9> deciles;
    GetGroupedDeciles(freq, low, width, deciles);
    for (int i = 1; i <= 9; ++i)
      EXPECT_EQ(deciles[static_cast<std::size_t>(i) - 1], plain.Decile(i));

    const Extended sd = 3.25L;
    const Extended cubes = plain.Sum(
        [mean](Extended mid, auto) { return (mid - mean) * (mid - mean) * (mid - mean); });
    const Extended fourths = plain.Sum([mean](Extended mid, auto) {
      const Extended square = (mid - mean) * (mid - mean);
      return square * square;
    });
    const Extended sd_4 = (sd * sd) * (sd * sd);
    const std::int64_t t = plain.Total();
    EXPECT_EQ(GetGroupedSampleSkew(freq, low, width, mean, sd), cubes / (total * (sd * sd * sd)));
    EXPECT_EQ(GetGroupedPopulationSkew(freq, low, width, mean, sd),
              total * cubes / (static_cast<Extended>((t - 1) * (t - 2)) * (sd * sd * sd)));
    EXPECT_EQ(GetGroupedPopulationKurtosis(freq, low, width, mean, sd),
              fourths / (sd_4 * total) - 3);
    const auto narrow = static_cast<std::uint32_t>(t - 1);
    EXPECT_EQ(GetGroupedSampleKurtosis(freq, low, width, mean, sd),
              total * (total + 1) * fourths /
                      (sd_4 * static_cast<Extended>((t - 1) * (t - 2) * (t - 3))) -
                  static_cast<Extended>(static_cast<std::int32_t>(3 * narrow * narrow)) /
                      static_cast<Extended>((t - 2) * (t - 3)));
  }
}

TEST(Grouped, AgreesWithHandComputation) {
  const TQorLWordVector freq = {2, 3, 5};
  EXPECT_EQ(GroupedMean(freq, 0, 10), 18);
  EXPECT_EQ(GroupedMedian(freq, 0, 10), 20);
  EXPECT_EQ(GroupedPopulationVariance(freq, 0, 10), 61);
  // Deciles in the last class are the frequency before it.
  std::array<Extended, 9> deciles;
  GetGroupedDeciles(freq, 0, 10, deciles);
  EXPECT_EQ(deciles[0], 5);
  EXPECT_EQ(deciles[1], 10);
  for (std::size_t i = 5; i < 9; ++i) EXPECT_EQ(deciles[i], 5);
}

TEST(Grouped, FindsTheModeUnlessTheLargestFrequencyIsTied) {
  struct Case {
    TQorLWordVector freq;
    bool exists;
    Extended mode;
  };
  for (const auto& [freq, exists, expected] : {Case{{1, 4, 2}, true, 16},
                                               {{1, 4, 4}, false, -1},
                                               {{4, 4, 9}, true, 20 + 50 / 14.0L},
                                               {{4, 5, 4, 4}, true, 15},
                                               {{6, 2}, true, 6},
                                               {{2, 6}, true, 14},
                                               {{7}, true, 5},
                                               {{0, 0}, false, -1},
                                               {{0xFFFFFFFF, 0}, true, 5}}) {
    Extended mode = -1;
    EXPECT_EQ(GroupedMode(freq, 0, 10, mode), exists);
    EXPECT_EQ(mode, expected);
  }
}

TEST(Grouped, GivesZeroWithoutValuesButNoOrderStatistics) {
  const TQorLWordVector none = {0, 0};
  EXPECT_EQ(GroupedMean(none, 0, 1), 0);
  EXPECT_EQ(GroupedPopulationVariance(none, 0, 1), 0);
  EXPECT_EQ(GroupedSampleVariance({0, 1}, 0, 1), 0);
  EXPECT_EQ(GetGroupedMeanDev(none, 0, 1, 7), 0);
  std::array<Extended, 9> deciles;
  deciles.fill(-1);
  GetGroupedDeciles(none, 3, 1, deciles);
  for (const Extended decile : deciles) EXPECT_EQ(decile, 0);

  Extended x = -1;
  Extended y = -1;
  EXPECT_ERROR(GroupedMedian(none, 0, 1), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(GroupedQuartiles(none, 0, 1, x, y), EInvalidOp, rsInvalidOp);
  EXPECT_ERROR(GroupedMode({0}, 0, 1, x), EInvalidOp, rsInvalidOp);
  EXPECT_EQ(x, -1);
  EXPECT_EQ(y, -1);
}

TEST(Grouped, WrapsCumulativeFrequenciesAround) {
  const TQorLWordVector freq = {0x80000000, 0x80000000, 0x80000000, 0x80000000};
  EXPECT_MATH_ERROR(GroupedMedian(freq, 0, 1), rsMedianNotFound);
  Extended q1 = -1;
  Extended q3 = -1;
  EXPECT_MATH_ERROR(GroupedQuartiles(freq, 0, 1, q1, q3), rsQuartilesNotFound);
  EXPECT_EQ(q1, -1);
  std::array<Extended, 9> deciles;
  GetGroupedDeciles(freq, 0, 1, deciles);
  EXPECT_EQ(deciles[0], 0.4L);
  EXPECT_EQ(deciles[8], 0x80000000);
}

TEST(Grouped, ChecksInOrder) {
  Extended x = -1;
  Extended y = -1;
  std::array<Extended, 9> deciles;
  EXPECT_MATH_ERROR(GroupedMean({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedMedian({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedMode({}, 0, 1, x), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedQuartiles({}, 0, 1, x, y), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GetGroupedDeciles({}, 0, 1, deciles), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedSampleStdDev({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedPopulationStdDev({}, 0, 1), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GroupedSums({}, 0, 1, x, y), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(GetGroupedMeanDev({}, 0, 1, 0), rsVectorIsEmpty);
  for (const auto& [routine, least, too_few] : {std::tuple(&GetGroupedSampleSkew, 3U, rsVectorG2),
                                                {&GetGroupedPopulationSkew, 3U, rsVectorG2},
                                                {&GetGroupedSampleKurtosis, 4U, rsVectorG3},
                                                {&GetGroupedPopulationKurtosis, 4U, rsVectorG3}}) {
    EXPECT_MATH_ERROR(routine({}, 0, 1, 0, 0), rsVectorIsEmpty);
    EXPECT_MATH_ERROR(routine({least - 1, 0}, 0, 1, 0, 0), too_few);
    EXPECT_MATH_ERROR(routine({least - 1, 1}, 0, 1, 0, 0), rsStdDev);
  }
}

}  // namespace qorvex
