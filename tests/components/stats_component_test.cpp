#include <cstdint>

#include "qorvex/base/version.h"
#include "qorvex/components/QorvexDescStats.h"
#include "support/properties.h"
#include "support/test.h"

namespace qorvex {

struct StatsComponent : testing::Test {
  TQorDescStats stats;
  int updates = 0;
  QMetaObject::Connection counter =
      QObject::connect(&stats, &TQorDescStats::StatsUpdated, [this] { ++updates; });
};

TEST_F(StatsComponent, PublishesItsResultsToADesigner) {
  TQorDescStats fresh(&stats);
  EXPECT_EQ(fresh.parent(), &stats);
  const std::string initial = PropertyTable(fresh);
  EXPECT_EQ(initial,
            "DecimalPlaces=4 Items= Maximum=0(shown) Mean=0(shown) Median=0(shown)"
            " Minimum=0(shown) Mode=0(shown) ModeExists=false(shown) NoOfValues=0(shown)"
            " Population=false StdDev=0(shown) Sum=0(shown) SumSq=0(shown) Variance=0(shown)"
            " Version=" QORVEX_VERSION
            "(shown) Kurtosis=0(shown) Skew=0(shown) Quartile1st=0(shown) Quartile3rd=0(shown)");
  for (const QMetaProperty& property : Published(&fresh)) {
    SCOPED_TRACE(property.name());
    const QVariant before = property.read(&fresh);
    EXPECT_TRUE(property.write(&fresh, ChangedValue(property, before)));
    EXPECT_EQ(property.read(&fresh) != before, property.isStored());
    EXPECT_TRUE(property.reset(&fresh));
    EXPECT_EQ(PropertyTable(fresh), initial);
  }
  // About their mean of 20 the values sum to 0, 128, 174 and 4148 in the first four powers.
  stats.setItems({"18", "14", "27", "17", "24", "18", "23", "19"});
  stats.setPopulation(true);
  EXPECT_EQ(PropertyTable(stats),
            "DecimalPlaces=4 Items=1814271724182319 Maximum=27(shown) Mean=20(shown)"
            " Median=18.5(shown) Minimum=14(shown) Mode=18(shown) ModeExists=true(shown)"
            " NoOfValues=8(shown) Population=true StdDev=4(shown) Sum=160(shown)"
            " SumSq=3328(shown) Variance=16(shown) Version=" QORVEX_VERSION
            "(shown) Kurtosis=-0.974609375(shown) Skew=0.33984375(shown) Quartile1st=17.5(shown)"
            " Quartile3rd=23.5(shown)");
  EXPECT_EQ(stats.InterQuartileRange(), 6);
  stats.setValues({0.1L});
  EXPECT_EQ(stats.property("Mean"), QVariant("0.1")) << "the shortest text of 80 bits";
}

TEST_F(StatsComponent, ABadLineLeavesTheValuesUnchanged) {
  TQorFloatVector values = {1, 2.5L, -1e-4000L};
  stats.setItems({"1", " 2.5 ", "-1e-4000"});
  const QStringList lines = {"7", "seven"};
  EXPECT_THROW(stats.setItems(lines), EConvertError);
  EXPECT_THROW(stats.Loaded(), EConvertError);
  EXPECT_EQ(stats.Items(), lines);
  EXPECT_EQ(stats.Values(), values);
  EXPECT_EQ(stats.Maximum(), 2.5L);
  EXPECT_EQ(updates, 1);

  stats.setItems({"8"});
  stats.setValues(values);
  values[0] = 99;
  EXPECT_EQ(stats.Values(), TQorFloatVector({1, 2.5L, -1e-4000L})) << "the values are a copy";
  EXPECT_EQ(stats.Items(), QStringList("8")) << "vectors leave the lines";
  stats.Loaded();
  EXPECT_EQ(stats.Values(), TQorFloatVector{8});
}

TEST_F(StatsComponent, IntegerVectorsRoundToEvenAndConvertExactly) {
  stats.setValues({0.5L, 1.5L, -2.5L, 2.75L, 3e9L, 0x1p64L, kNaN});
  EXPECT_EQ(stats.LIntValues(), TQorLIntVector({0, 2, -2, 3, INT32_MIN, INT32_MIN, INT32_MIN}));
  EXPECT_EQ(stats.LWordValues(), TQorLWordVector({0, 2, 0, 3, 3000000000U, 0, 0}));
  EXPECT_EQ(stats.Int64Values(), TQorInt64Vector({0, 2, -2, 3, 3000000000, INT64_MIN, INT64_MIN}));

  stats.setInt64Values({INT64_MAX, INT64_MIN});
  EXPECT_EQ(stats.Values(), TQorFloatVector({0x1p63L - 1, -0x1p63L}));
  stats.setLIntValues({-7});
  EXPECT_EQ(stats.Sum(), -7);
  stats.setLWordValues({UINT32_MAX});
  EXPECT_EQ(stats.Sum(), 4294967295.0L);
}

TEST_F(StatsComponent, SingleValuesAreAddedAndDeletedWithTheirLines) {
  stats.DeleteLast();
  for (const Extended value : {0.1L, 300.0L, -0x1p-20L, 1e-25L}) stats.AddValue(value);
  EXPECT_EQ(stats.Items(), QStringList({"0.1", "300", "-0.00000095367431640625", "0"}));
  stats.DeleteValue(-1);
  stats.DeleteValue(4);
  EXPECT_EQ(updates, 4);
  stats.DeleteValue(2);
  EXPECT_EQ(stats.Items(), QStringList({"0.1", "300", "0"}));
  EXPECT_EQ(stats.Values(), TQorFloatVector({0.1L, 300, 1e-25L}));
  EXPECT_EQ(updates, 5);

  stats.setValues({4, 5, 6, 7});
  stats.DeleteLast();
  EXPECT_EQ(stats.Items().size(), 3) << "a value that was set has no line";
  stats.DeleteLast();
  EXPECT_EQ(stats.Items(), QStringList({"0.1", "300"}));
  EXPECT_EQ(stats.Values(), TQorFloatVector({4, 5}));
}

TEST_F(StatsComponent, TheFirstEndUpdateComputesTheResults) {
  stats.BeginUpdate();
  stats.BeginUpdate();
  stats.setItems({"1"});
  stats.setPopulation(true);
  stats.AddValue(3);
  EXPECT_EQ(stats.NoOfValues(), 2U);
  EXPECT_EQ(stats.Mean(), 0);
  EXPECT_EQ(updates, 0);
  stats.EndUpdate();
  EXPECT_EQ(stats.Variance(), 1);
  stats.setPopulation(true);
  EXPECT_EQ(updates, 1);
  stats.setPopulation(false);
  EXPECT_EQ(stats.Variance(), 2);
  EXPECT_EQ(updates, 2);

  stats.setDecimalPlaces(-1);
  EXPECT_EQ(stats.DecimalPlaces(), 0);
  stats.setDecimalPlaces(256);
  stats.BeginUpdate();
  EXPECT_TRUE(stats.DescStats().contains("Mean:\t2." + QString(255, '0')));
  EXPECT_EQ(updates, 3);

  stats.BeginUpdate();
  stats.Clear();
  EXPECT_EQ(updates, 4);
  EXPECT_TRUE(stats.Items().isEmpty());
  stats.AddValue(3);
  EXPECT_EQ(stats.Sum(), 3);
}

}  // namespace qorvex
