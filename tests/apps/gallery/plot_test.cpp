#include <cmath>

#include "apps/qorvex-gallery/plot/axis_ticks.h"
#include "apps/qorvex-gallery/plot/histogram.h"
#include "qorvex/base/text.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

TEST(RoundStep, IsTheNextOfOneTwoAndFive) {
  const std::tuple<Extended, int, int> cases[] = {
      {1, 1, 0},          {1.01L, 2, 0},        {2.5L, 5, 0},
      {5.01L, 1, 1},      {0.001L, 1, -3},      {0.0011L, 2, -3},
      {1e4000L, 1, 4000}, {3e-4000L, 5, -4000}, {0.1000001L, 2, -1}};
  for (const auto& [width, digit, exponent] : cases) {
    const RoundStep step = RoundStep::AtLeast(width);
    EXPECT_EQ(step.digit, digit) << width;
    EXPECT_EQ(step.exponent, exponent) << width;
  }
  EXPECT_EQ((RoundStep{1, -1}.Times(3)), Str2Float("0.3"));
}

TEST(AxisTicks, AreRoundAndLabelledInTheNumbersOfTheLocale) {
  const QLocale english(QLocale::English), german(QLocale::German);
  const struct {
    double low, high;
    int most;
    QLocale locale;
    const char* labels;
  } cases[] = {
      {0, 0.3, 3, english, "0.0 0.1 0.2 0.3"},
      {0, 1, 5, english, "0.0 0.2 0.4 0.6 0.8 1.0"},
      {-0.31, 0.32, 4, german, "-0,2 0,0 0,2"},
      {1947, 1962, 4, english, "1950 1955 1960"},
      {0, 250000, 3, english, "0 100,000 200,000"},
      {-2e-9, 3e-9, 3, english, "-2e-09 0 2e-09"},
      {1e300, 4e300, 4, english, "1e+300 2e+300 3e+300 4e+300"},
      {-1.7e308, 1.7e308, 4, english, "-1e+308 0 1e+308"},
  };
  for (const auto& of : cases) {
    const AxisTicks ticks = TicksBetween(of.low, of.high, of.most, of.locale);
    QString labels = ticks.labels.join(' ');
    EXPECT_EQ(labels.replace(QChar(0x2212), '-').toLower().toStdString(), of.labels);
    ASSERT_EQ(static_cast<qsizetype>(ticks.values.size()), ticks.labels.size());
    for (const double value : ticks.values) EXPECT_TRUE(of.low <= value && value <= of.high);
  }
}

TEST(AxisTicks, AreMissingWhereThereIsNothingToTellApart) {
  const std::pair<double, double> ranges[] = {
      {1, 1}, {2, 1}, {NAN, 1}, {0, INFINITY}, {1e15, std::nextafter(1e15, 2e15)}};
  for (const auto& [low, high] : ranges)
    EXPECT_TRUE(TicksBetween(low, high, 5, QLocale::c()).values.empty()) << low;
}

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
