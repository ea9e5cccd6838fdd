#include <QMetaProperty>
#include <QVariant>
#include <cstdint>

#include "qorvex/base/version.h"
#include "qorvex/components/QorvexDescStats.h"
#include "support/test.h"

namespace qorvex {

struct StatsComponent : testing::Test {
  TQorDescStats stats;
  int updates = 0;
  QMetaObject::Connection counter =
      QObject::connect(&stats, &TQorDescStats::StatsUpdated, [this] { ++updates; });
};

// Every published property in its order, as it is at first and for the stored ones in this table.
// About their mean of 20 the values sum to 0, 128, 174 and 4148 in the first four powers.
const struct {
  const char* name;
  QVariant initial;
  QVariant shown;
  bool stored = false;
} kProperties[] = {
    {"DecimalPlaces", 4, 3, true},
    {"Items", QStringList(), QStringList{"18", "14", "27", "17", "24", "18", "23", "19"}, true},
    {"Maximum", "0", "27"},
    {"Mean", "0", "20"},
    {"Median", "0", "18.5"},
    {"Minimum", "0", "14"},
    {"Mode", "0", "18"},
    {"ModeExists", false, true},
    {"NoOfValues", 0U, 8U},
    {"Population", false, true, true},
    {"StdDev", "0", "4"},
    {"Sum", "0", "160"},
    {"SumSq", "0", "3328"},
    {"Variance", "0", "16"},
    {"Version", QORVEX_VERSION, QORVEX_VERSION},
    {"Kurtosis", "0", "-0.974609375"},
    {"Skew", "0", "0.33984375"},
    {"Quartile1st", "0", "17.5"},
    {"Quartile3rd", "0", "23.5"},
};

TEST_F(StatsComponent, ServesADesigner) {
  for (const auto& [name, initial, shown, stored] : kProperties) {
    if (stored) stats.setProperty(name, shown);
  }
  TQorDescStats fresh(&stats);
  EXPECT_EQ(fresh.parent(), &stats);
  const QMetaObject& meta = TQorDescStats::staticMetaObject;
  int index = meta.propertyOffset();
  for (const auto& [name, initial, shown, stored] : kProperties) {
    SCOPED_TRACE(name);
    const QMetaProperty property = meta.property(index++);
    EXPECT_STREQ(property.name(), name);
    EXPECT_EQ(property.isStored(), stored);
    EXPECT_EQ(property.hasStdCppSet(), stored);
    EXPECT_EQ(property.read(&stats), shown);
    EXPECT_EQ(property.read(&fresh), initial);
    EXPECT_TRUE(property.write(&fresh, shown));
    EXPECT_EQ(property.read(&fresh), stored ? shown : initial) << "results ignore what is written";
    EXPECT_TRUE(property.reset(&fresh));
    EXPECT_EQ(property.read(&fresh), initial);
  }
  EXPECT_EQ(index, meta.propertyCount());
  EXPECT_EQ(stats.InterQuartileRange(), 6);
  stats.setValues({0.1L});
  EXPECT_EQ(stats.property("Mean"), QVariant("0.1")) << "the shortest text of 80 bits";
}

TEST_F(StatsComponent, ABadLineLeavesTheLinesAndTheOldValues) {
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

TEST_F(StatsComponent, SingleValuesComeAndGoWithTheirLines) {
  stats.DeleteLast();
  for (const Extended value : {2.5L, 300.0L, -0x1p-20L, 1e-25L}) stats.AddValue(value);
  EXPECT_EQ(stats.Items(), QStringList({"2.5", "300", "-0.00000095367431640625", "0"}));
  stats.DeleteValue(-1);
  stats.DeleteValue(4);
  EXPECT_EQ(updates, 4);
  stats.DeleteValue(2);
  EXPECT_EQ(stats.Items(), QStringList({"2.5", "300", "0"}));
  EXPECT_EQ(stats.Values(), TQorFloatVector({2.5L, 300, 1e-25L}));
  EXPECT_EQ(updates, 5);

  stats.setValues({4, 5, 6, 7});
  stats.DeleteLast();
  EXPECT_EQ(stats.Items().size(), 3) << "a value that was set has no line";
  stats.DeleteLast();
  EXPECT_EQ(stats.Items(), QStringList({"2.5", "300"}));
  EXPECT_EQ(stats.Values(), TQorFloatVector({4, 5}));
}

TEST_F(StatsComponent, AnUpdateHoldsTheResultsBackUntilItsFirstEnd) {
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
