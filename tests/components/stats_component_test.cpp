#include <QMetaProperty>
#include <QPointer>
#include <QVariant>
#include <algorithm>
#include <cmath>
#include <cstdint>
#include <gtest/gtest.h>
#include <limits>
#include <memory>
#include <utility>
#include <vector>

#include "qorvex/base/errors.h"
#include "qorvex/base/text.h"
#include "qorvex/base/version.h"
#include "qorvex/stats/QorvexDescStats.h"

namespace qorvex {
namespace {

const QStringList kStored = {"DecimalPlaces", "Items", "Population"};

// The properties that the component itself publishes, in their order.
std::vector<QMetaProperty> Published() {
  const QMetaObject& meta = TQorDescStats::staticMetaObject;
  std::vector<QMetaProperty> properties;
  for (int i = meta.propertyOffset(); i < meta.propertyCount(); ++i) {
    properties.push_back(meta.property(i));
  }
  return properties;
}

// Some other value of the property's type.
QVariant OtherValue(const QVariant& value) {
  switch (value.typeId()) {
    case QMetaType::Bool:
      return !value.toBool();
    case QMetaType::UInt:
      return value.toUInt() + 1;
    case QMetaType::Int:
      return value.toInt() + 1;
    case QMetaType::QStringList:
      return value.toStringList() << "17";
    default:
      return value.toString() + "1";
  }
}

struct UpdateCount {
  explicit UpdateCount(TQorDescStats& stats) {
    QObject::connect(&stats, &TQorDescStats::StatsUpdated, &stats, [this] { ++count; });
  }
  int count = 0;
};

TEST(StatsComponent, PublishesItsPropertiesInOrderForADesigner) {
  QStringList names;
  for (const QMetaProperty& property : Published()) {
    SCOPED_TRACE(property.name());
    names << property.name();
    const bool stored = kStored.contains(property.name());
    EXPECT_EQ(property.isStored(), stored);
    EXPECT_EQ(property.hasStdCppSet(), stored);
    EXPECT_TRUE(property.isWritable() && property.isResettable() && property.isDesignable());
  }
  EXPECT_EQ(names,
            QStringList({"DecimalPlaces", "Items", "Maximum", "Mean", "Median", "Minimum", "Mode",
                         "ModeExists", "NoOfValues", "Population", "StdDev", "Sum", "SumSq",
                         "Variance", "Version", "Kurtosis", "Skew", "Quartile1st", "Quartile3rd"}));
}

TEST(StatsComponent, DefaultsComeBackOnReset) {
  TQorDescStats fresh;
  EXPECT_EQ(fresh.DecimalPlaces(), 4);
  EXPECT_TRUE(fresh.Items().isEmpty());
  EXPECT_FALSE(fresh.Population());
  EXPECT_EQ(fresh.property("Version"), QVariant(QORVEX_VERSION));

  TQorDescStats changed;
  for (const QMetaProperty& property : Published()) {
    SCOPED_TRACE(property.name());
    const QVariant initial = property.read(&fresh);
    if (property.isStored()) {
      ASSERT_TRUE(property.write(&changed, OtherValue(initial)));
      EXPECT_NE(property.read(&changed), initial);
      EXPECT_TRUE(property.reset(&changed));
    } else if (property.name() != QByteArray("Version")) {
      EXPECT_TRUE(initial == QVariant("0") || initial == QVariant(0U) ||
                  initial == QVariant(false));
    }
    EXPECT_EQ(property.read(&changed), initial);
  }
}

TEST(StatsComponent, ResultsIgnoreWritesAndResets) {
  TQorDescStats stats;
  stats.setItems({"1", "1", "2", "4", "9"});
  for (const QMetaProperty& property : Published()) {
    if (property.isStored()) continue;
    SCOPED_TRACE(property.name());
    const QVariant result = property.read(&stats);
    EXPECT_TRUE(property.write(&stats, OtherValue(result)));
    EXPECT_EQ(property.read(&stats), result);
    EXPECT_TRUE(property.reset(&stats));
    EXPECT_EQ(property.read(&stats), result);
  }
}

TEST(StatsComponent, EachPropertyShowsItsOwnResultExactly) {
  TQorDescStats stats;
  stats.setItems({"0.1", "0.1", "0.35", "4", "9.25"});
  const std::vector<std::pair<const char*, Extended>> results = {
      {"Maximum", 9.25L},
      {"Mean", stats.Mean()},
      {"Median", 0.35L},
      {"Minimum", 0.1L},
      {"Mode", 0.1L},
      {"StdDev", stats.StdDev()},
      {"Sum", stats.Sum()},
      {"SumSq", stats.SumSq()},
      {"Variance", stats.Variance()},
      {"Kurtosis", stats.Kurtosis()},
      {"Skew", stats.Skew()},
      {"Quartile1st", stats.Quartile1st()},
      {"Quartile3rd", stats.Quartile3rd()}};
  for (const auto& [name, value] : results) {
    EXPECT_EQ(Str2Float(stats.property(name).toString().toStdString()), value) << name;
  }
  EXPECT_EQ(stats.property("NoOfValues"), QVariant(5U));
  EXPECT_EQ(stats.property("ModeExists"), QVariant(true));

  // Computed by hand: the sum is 13.8, the sum of squares 101.705.
  EXPECT_NEAR(static_cast<double>(stats.Mean()), 2.76, 1e-15);
  EXPECT_NEAR(static_cast<double>(stats.Sum()), 13.8, 1e-14);
  EXPECT_NEAR(static_cast<double>(stats.SumSq()), 101.705, 1e-13);
  EXPECT_NEAR(static_cast<double>(stats.Variance()), (101.705 - 13.8 * 13.8 / 5) / 4, 1e-13);
  EXPECT_EQ(stats.StdDev(), std::sqrt(stats.Variance()));
  EXPECT_EQ(stats.InterQuartileRange(), stats.Quartile3rd() - stats.Quartile1st());
}

TEST(StatsComponent, DecimalPlacesAreClampedAndShapeTheReport) {
  TQorDescStats stats;
  stats.setValues({1, 2});
  stats.setDecimalPlaces(-1);
  EXPECT_EQ(stats.DecimalPlaces(), 0);
  EXPECT_TRUE(stats.DescStats().contains("Sum:\t3"));
  stats.setDecimalPlaces(256);
  EXPECT_EQ(stats.DecimalPlaces(), 255);
  EXPECT_TRUE(stats.DescStats().contains("Sum:\t3." + QString(255, '0')));
}

TEST(StatsComponent, ABadLineLeavesTheLinesAndTheOldValues) {
  TQorDescStats stats;
  stats.setItems({"1", " 2.5 ", "-1e2"});
  EXPECT_EQ(stats.Values(), TQorFloatVector({1, 2.5L, -100}));

  const UpdateCount updates(stats);
  const QStringList lines = {"7", "seven"};
  EXPECT_THROW(stats.setItems(lines), EConvertError);
  EXPECT_EQ(stats.Items(), lines);
  EXPECT_EQ(stats.Values(), TQorFloatVector({1, 2.5L, -100}));
  EXPECT_EQ(stats.Minimum(), -100);
  EXPECT_THROW(stats.Loaded(), EConvertError);
  EXPECT_EQ(updates.count, 0);
}

TEST(StatsComponent, AddValueWritesUpToTwentyDecimals) {
  TQorDescStats stats;
  for (const Extended value : {2.5L, 300.0L, -0.1L, 1e-25L}) stats.AddValue(value);
  EXPECT_EQ(stats.Items(), QStringList({"2.5", "300", "-0.1", "0"}));
  EXPECT_EQ(stats.Values(), TQorFloatVector({2.5L, 300, -0.1L, 1e-25L}));
}

TEST(StatsComponent, DeleteValueTakesTheLineWithIt) {
  TQorDescStats stats;
  stats.DeleteLast();
  stats.setItems({"1", "2", "3"});
  const UpdateCount updates(stats);
  stats.DeleteValue(-1);
  stats.DeleteValue(3);
  EXPECT_EQ(updates.count, 0);
  EXPECT_EQ(stats.NoOfValues(), 3U);

  stats.DeleteValue(1);
  EXPECT_EQ(stats.Items(), QStringList({"1", "3"}));
  EXPECT_EQ(stats.Values(), TQorFloatVector({1, 3}));
  stats.DeleteLast();
  EXPECT_EQ(stats.Items(), QStringList({"1"}));
  EXPECT_EQ(updates.count, 2);

  // Values that were set have no lines.
  stats.setValues({5, 6, 7});
  stats.DeleteValue(2);
  EXPECT_EQ(stats.Items(), QStringList({"1"}));
  stats.DeleteValue(0);
  EXPECT_TRUE(stats.Items().isEmpty());
  EXPECT_EQ(stats.Values(), TQorFloatVector({6}));
}

TEST(StatsComponent, ValuesAreCopiedInAndOut) {
  TQorDescStats stats;
  TQorFloatVector values = {1, 2, 3};
  stats.setItems({"8"});
  stats.setValues(values);
  values[0] = 99;
  stats.Values()[1] = 99;
  EXPECT_EQ(stats.Values(), TQorFloatVector({1, 2, 3}));

  EXPECT_EQ(stats.Items(), QStringList({"8"}));
  stats.Loaded();
  EXPECT_EQ(stats.Values(), TQorFloatVector({8}));
}

TEST(StatsComponent, IntegerVectorsRoundToEvenAndConvertExactly) {
  constexpr auto smallest32 = std::numeric_limits<std::int32_t>::min();
  constexpr auto smallest64 = std::numeric_limits<std::int64_t>::min();
  constexpr auto largest64 = std::numeric_limits<std::int64_t>::max();
  TQorDescStats stats;
  stats.setValues({0.5L, 1.5L, -2.5L, 2.75L, 3e9L, 0x1p64L, std::nanl("")});
  EXPECT_EQ(stats.LIntValues(), TQorLIntVector({0, 2, -2, 3, smallest32, smallest32, smallest32}));
  EXPECT_EQ(stats.LWordValues(), TQorLWordVector({0, 2, 0, 3, 3000000000U, 0, 0}));
  EXPECT_EQ(stats.Int64Values(),
            TQorInt64Vector({0, 2, -2, 3, 3000000000, smallest64, smallest64}));

  stats.setInt64Values({largest64, smallest64});
  EXPECT_EQ(stats.Int64Values(), TQorInt64Vector({largest64, smallest64}));
  EXPECT_EQ(stats.Sum(), -1);
  stats.setLIntValues({-7, 5});
  EXPECT_EQ(stats.Values(), TQorFloatVector({-7, 5}));
  stats.setLWordValues({4294967295U});
  EXPECT_EQ(stats.Values(), TQorFloatVector({4294967295.0L}));
}

TEST(StatsComponent, AnUpdateHoldsTheResultsBackUntilItsFirstEnd) {
  TQorDescStats stats;
  const UpdateCount updates(stats);
  stats.BeginUpdate();
  stats.BeginUpdate();
  stats.setItems({"1", "2", "6"});
  stats.AddValue(7);
  stats.setPopulation(true);
  EXPECT_EQ(stats.NoOfValues(), 4U);
  EXPECT_EQ(stats.Mean(), 0);
  EXPECT_EQ(updates.count, 0);
  stats.EndUpdate();
  EXPECT_EQ(stats.Mean(), 4);
  EXPECT_EQ(updates.count, 1);
  stats.AddValue(4);
  EXPECT_EQ(stats.Median(), 4);
  EXPECT_EQ(updates.count, 2);

  stats.BeginUpdate();
  stats.setValues({10});
  EXPECT_TRUE(stats.DescStats().contains("Mean:\t10.0000"));
  EXPECT_EQ(updates.count, 3);

  stats.BeginUpdate();
  stats.Clear();
  EXPECT_TRUE(stats.Items().isEmpty());
  stats.AddValue(3);
  EXPECT_EQ(stats.Sum(), 3);
}

TEST(StatsComponent, PopulationRecomputesOnlyWhenItChanges) {
  TQorDescStats stats;
  stats.setValues({1, 3});
  const UpdateCount updates(stats);
  EXPECT_EQ(stats.Variance(), 2);
  stats.setPopulation(false);
  EXPECT_EQ(updates.count, 0);
  stats.setPopulation(true);
  EXPECT_EQ(stats.Variance(), 1);
  EXPECT_EQ(updates.count, 1);
}

TEST(StatsComponent, ReportsAnEmptyAndASmallSample) {
  TQorDescStats stats;
  EXPECT_EQ(stats.DescStats().join('|').toStdString(), MessageText(rsVectorIsEmpty));
  stats.setItems({"1", "2", "3"});
  stats.setDecimalPlaces(2);
  EXPECT_EQ(stats.DescStats().join('|').toStdString(),
            "Number of Values:\t3|Maximum:\t3.00|Minimum:\t1.00|Range:\t2.00|Sum:\t6.00|"
            "Sum of Squares:\t14.00|Mean:\t2.00|No Modal Value|Median:\t2.00|Variance:\t1.00|"
            "Standard Deviation:\t1.00|Not enough Values for Kurtosis|Skew:\t0.00|"
            "First Quartile:\t1.25|Third Quartile:\t2.75|Inter-Quartile Range:\t1.50");
}

TEST(StatsComponent, StreamsThroughItsStoredProperties) {
  TQorDescStats saved;
  saved.setDecimalPlaces(9);
  saved.setPopulation(true);
  saved.setItems({"1", "2.25", "1e-4000"});

  // In the opposite order too: forms set properties in the order of their file.
  std::vector<QMetaProperty> properties = Published();
  for (int pass = 0; pass < 2; ++pass) {
    TQorDescStats loaded;
    for (const QMetaProperty& property : properties) {
      if (property.isStored()) property.write(&loaded, property.read(&saved));
    }
    loaded.Loaded();
    loaded.Loaded();
    EXPECT_EQ(loaded.Values(), saved.Values());
    EXPECT_EQ(loaded.Variance(), saved.Variance());
    EXPECT_EQ(loaded.DescStats(), saved.DescStats());
    std::ranges::reverse(properties);
  }
}

TEST(StatsComponent, BelongsToItsOwner) {
  auto owner = std::make_unique<QObject>();
  const QPointer<TQorDescStats> stats = new TQorDescStats(owner.get());
  EXPECT_EQ(stats->parent(), owner.get());
  owner.reset();
  EXPECT_TRUE(stats.isNull());
}

}  // namespace
}  // namespace qorvex
