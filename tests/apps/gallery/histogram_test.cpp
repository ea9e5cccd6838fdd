#include "apps/qorvex-gallery/plot/histogram.h"

#include "support/test.h"

namespace qorvex::gallery {
namespace {

TEST(Histogram, HasRoundEdgesAndCountsFromTheLowerOneOn) {
  // Quartiles 2.5 and 5.5: width 2 * 3 / 2, to which 2 is nearer than 5.
  const Histogram by_quartiles = HistogramOf({1, 2, 3, 4, 4.5L, 5, 6, 7});
  EXPECT_EQ(by_quartiles.edges, (std::vector<Extended>{0, 2, 4, 6, 8}));
  EXPECT_EQ(by_quartiles.counts, (std::vector<std::size_t>{1, 2, 3, 2}));
  // 1 + log2 of 8 classes over a range of 6: width 1.5, so 1.
  const Histogram by_count = HistogramOf({1, 2, 3, 4, 4.5L, 5, 6, 7}, ClassRule::kSturges);
  EXPECT_EQ(by_count.edges, (std::vector<Extended>{1, 2, 3, 4, 5, 6, 7, 8}));
  EXPECT_EQ(by_count.counts, (std::vector<std::size_t>{1, 1, 1, 2, 1, 1, 1}));
  EXPECT_EQ(by_count.Density(3), Extended{2} / 8);
}

TEST(Histogram, HoldsEveryFiniteValueOnce) {
  constexpr Extended kLargest = std::numeric_limits<Extended>::max();
  const TQorFloatVector samples[] = {
      {5},
      {1e4000L, 1e4000L},
      {0.1L, 0.2L, 0.3L, 0.4L, 0.5L, 0.6L, 0.7L},
      {-kLargest, 0, kLargest},
      {std::numeric_limits<Extended>::denorm_min(), 0},
      {1e18L, 1e18L + 1, 1e18L + 2, 1e18L + 3},
      {0, 0, 0, 0, 0, 0, 0, 1e9L},
      {1, kNaN, 2, kInfinity, 3, -kInfinity},
  };
  for (const TQorFloatVector& sample : samples) {
    const Histogram histogram = HistogramOf(sample);
    ASSERT_EQ(histogram.edges.size(), histogram.counts.size() + 1);
    EXPECT_LE(histogram.counts.size(), 1001U);
    std::size_t total = 0;
    for (std::size_t i = 0; i < histogram.counts.size(); ++i) {
      const Extended low = histogram.edges[i];
      const Extended high = histogram.edges[i + 1];
      EXPECT_LT(low, high);
      const auto inside = static_cast<std::size_t>(
          std::ranges::count_if(sample, [=](Extended x) { return low <= x && x < high; }));
      EXPECT_EQ(histogram.counts[i], inside) << low;
      total += inside;
    }
    const auto finite = static_cast<std::size_t>(
        std::ranges::count_if(sample, [](Extended x) { return std::isfinite(x); }));
    EXPECT_EQ(total, finite);
    EXPECT_EQ(histogram.total, finite);
  }
  EXPECT_TRUE(HistogramOf({kNaN, kInfinity}).edges.empty());
}

}  // namespace
}  // namespace qorvex::gallery
