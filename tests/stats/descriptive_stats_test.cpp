#include "qorvex/stats/descriptive_stats.h"

#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {

using Lines = std::vector<std::string>;

Lines ReportOf(TQorFloatVector values, bool population = false, int decimals = 2) {
  DescriptiveStats stats;
  stats.SetPopulation(population);
  stats.SetValues(std::move(values));
  return stats.Report(decimals);
}

TEST(DescriptiveReport, ListsEveryFigureInOrder) {
  EXPECT_EQ(ReportOf({4, 2, 4, 4, 5, 5, 7, 9}),
            (Lines{"Number of Values:\t8", "Maximum:\t9.00", "Minimum:\t2.00", "Range:\t7.00",
                   "Sum:\t40.00", "Sum of Squares:\t232.00", "Mean:\t5.00", "Mode:\t4.00",
                   "Median:\t4.50", "Variance:\t4.57", "Standard Deviation:\t2.14",
                   "Kurtosis:\t0.94", "Skew:\t0.82", "First Quartile:\t4.00",
                   "Third Quartile:\t6.00", "Inter-Quartile Range:\t2.00"}));
}

TEST(DescriptiveReport, NamesFiguresThatDoNotExist) {
  EXPECT_EQ(DescriptiveStats().Report(4), Lines{MessageText(rsVectorIsEmpty)});
  const std::string no_spread = "Standard Deviation needs to be > 0 for ";
  const std::string too_few = "Not enough Values for ";
  const struct {
    TQorFloatVector values;
    std::size_t line;
    std::string text;
  } cases[] = {
      {{1, 2, 3}, 7, "No Modal Value"},
      {{1, 2, 3}, 11, too_few + "Kurtosis"},
      {{1, 2, 3}, 12, "Skew:\t0.00"},
      {{5}, 9, too_few + "Variance"},
      {{5}, 10, too_few + "Standard Deviation"},
      {{5}, 12, too_few + "Skew"},
      {{3, 3, 3, 3}, 11, no_spread + "Kurtosis"},
      {{0, 1e-16L, 0, 2e-16L}, 11, no_spread + "Kurtosis"},
      {{0, 1e-16L, 0, 2e-16L}, 12, no_spread + "Skew"},
  };
  for (const auto& [values, line, text] : cases) EXPECT_EQ(ReportOf(values)[line], text);
  EXPECT_EQ(ReportOf({5}, true)[9], "Variance:\t0.00");
}

// By hand: the central moments of (0, 1, 1, 6) about the mean 2 are 5.5, 13.5 and 68.5.
TEST(DescriptiveStats, HasTheFiguresOfSampleAndPopulation) {
  DescriptiveStats stats;
  stats.SetValues({6, 1, 0, 1});
  const DescriptiveResults& r = stats.Results();
  const auto near = [](Extended value, Extended expected) {
    return std::fabs(value - expected) < 1e-18L;
  };
  EXPECT_EQ(r.variance, 22 / 3.0L);
  EXPECT_TRUE(near(r.skew, 4 * 54 / (6 * std::pow(22 / 3.0L, 1.5L))));
  EXPECT_TRUE(near(r.kurtosis, 4 * 5 * 274 / (std::pow(22 / 3.0L, 2.0L) * 6) - 27 / 2.0L));
  stats.SetPopulation(true);
  EXPECT_EQ(r.variance, 5.5L);
  EXPECT_EQ(r.std_dev, std::sqrt(5.5L));
  EXPECT_TRUE(near(r.skew, 13.5L / std::pow(5.5L, 1.5L)));
  EXPECT_TRUE(near(r.kurtosis, 68.5L / (5.5L * 5.5L) - 3));
  EXPECT_TRUE(r.mode_exists && r.mode == 1 && r.median == 1 && r.minimum == 0 && r.maximum == 6);
  EXPECT_TRUE(r.quartile_1st == 0.5L && r.inter_quartile_range == 3);

  stats.SetPopulation(false);
  stats.SetValues({2});
  EXPECT_EQ(r.variance, 0);
  stats.SetValues({1, 2});
  EXPECT_TRUE(!r.mode_exists && r.mode == -1.1E4932L);
  stats.AddValue(-kNaN);
  EXPECT_TRUE(std::isnan(r.maximum) && r.minimum == 1);

  DescriptiveStats zero;
  zero.AddValue(-0.0L);
  EXPECT_TRUE(std::signbit(zero.Results().sum)) << "the first value is not added to 0";
}

// All results as bytes, so that figures agree only if all their bits do, including signs of zeros.
std::string Bits(const DescriptiveResults& r) {
  std::string bits;
  for (const Extended x :
       {r.sum, r.sum_sq, r.mean, r.variance, r.std_dev, r.median, r.mode, r.minimum, r.maximum,
        r.skew, r.kurtosis, r.quartile_1st, r.quartile_3rd, r.inter_quartile_range}) {
    // Sign and payload of NaN have no meaning.
    const Extended shown = std::isnan(x) ? kNaN : x;
    bits.append(reinterpret_cast<const char*>(&shown), 10);
  }
  return bits + (r.mode_exists ? "m" : "-");
}

TEST(DescriptiveStats, IncrementalUpdatesHaveTheBitsOfAFullComputation) {
  testing::Engine engine(123);
  const Extended specials[] = {0.0L, -0.0L, 1, 1 + 0.5e-15L, kInfinity, kNaN, -kNaN};
  for (int round = 0; round < 60; ++round) {
    DescriptiveStats stats;
    stats.SetPopulation(round % 2 == 1);
    // Later rounds include infinities and NaN.
    const std::size_t kinds = round < 40 ? 4 : std::size(specials);
    for (int step = 0; step < 60; ++step) {
      if (engine() % 4 == 0) {
        stats.DeleteValue(static_cast<std::int64_t>(engine() % (stats.NoOfValues() + 1)));
      } else if (engine() % 2 == 0) {
        stats.AddValue(specials[engine() % kinds]);
      } else {
        stats.AddValue(testing::RandomVector<Extended>(engine, 1)[0]);
      }
      if (engine() % 8 == 0) stats.SetPopulation(!stats.Population());
      DescriptiveStats fresh;
      fresh.SetPopulation(stats.Population());
      fresh.SetValues(stats.Values());
      ASSERT_EQ(Bits(stats.Results()), Bits(fresh.Results())) << round << ", step " << step;
    }
  }
}

TEST(DescriptiveStats, ResultsDoNotChangeDuringAnUpdate) {
  DescriptiveStats stats;
  stats.SetValues({1, 2});
  stats.BeginUpdate();
  stats.BeginUpdate();
  stats.AddValue(6);
  stats.SetPopulation(true);
  stats.DeleteValue(0);
  EXPECT_EQ(stats.Results().mean, 1.5L);
  stats.EndUpdate();
  EXPECT_FALSE(stats.Updating()) << "calls do not nest";
  EXPECT_EQ(stats.Results().mean, 4);
  EXPECT_EQ(stats.Results().variance, 4);

  stats.BeginUpdate();
  stats.SetValues({4, 6});
  EXPECT_EQ(stats.Results().mean, 4);
  stats.AddValue(8);
  EXPECT_EQ(stats.Report(0)[0], "Number of Values:\t3");
  EXPECT_FALSE(stats.Updating());
  stats.BeginUpdate();
  stats.Clear();
  EXPECT_FALSE(stats.Updating());
  EXPECT_EQ(Bits(stats.Results()), Bits(DescriptiveResults()));
}

TEST(DescriptiveStats, SharesNoValuesWithOtherVectors) {
  DescriptiveStats stats;
  TQorFloatVector given{1, 2, 3};
  stats.SetValues(given);
  given[0] = 100;
  stats.Values()[1] = 100;
  DescriptiveStats copy = stats;
  EXPECT_TRUE(copy.DeleteValue(0));
  EXPECT_EQ(stats.Values(), (TQorFloatVector{1, 2, 3}));
  const DescriptiveStats moved = std::move(copy);
  EXPECT_EQ(moved.Results().mean, 2.5L);
  EXPECT_EQ(copy.Results().mean, 0);  // NOLINT(bugprone-use-after-move): left empty
  EXPECT_FALSE(stats.DeleteValue(-1) || stats.DeleteValue(3));
  EXPECT_TRUE(stats.DeleteValue(2));
  EXPECT_EQ(stats.Results().maximum, 2);
}

}  // namespace qorvex
