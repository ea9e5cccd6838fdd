#include "apps/qorvex-gallery/plot/axis_ticks.h"

#include <cmath>
#include <gtest/gtest.h>

#include "qorvex/base/text.h"

namespace qorvex::gallery {
namespace {

TEST(RoundStep, IsTheNextOfOneTwoAndFive) {
  const struct {
    Extended width;
    int digit, exponent;
  } cases[] = {{1, 1, 0},          {1.01L, 2, 0},        {2.5L, 5, 0},
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

}  // namespace
}  // namespace qorvex::gallery
