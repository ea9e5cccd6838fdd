#include "apps/qorvex-gallery/pages/random_page.h"

#include <QComboBox>
#include <QFile>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <algorithm>
#include <cmath>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/model/variate_theory.h"
#include "apps/variate_of.h"
#include "qorvex/base/elementary.h"
#include "qorvex/base/random.h"
#include "qorvex/base/text.h"
#include "qorvex/random/QorvexRandom.h"

namespace qorvex::gallery {
namespace {

bool Proceeds(std::size_t, std::size_t) {
  return true;
}

using apps::VariateOf;

TEST(RandomSample, DependsOnItsSeed) {
  const SampleOrder order = {&VariateOf("normal"), {2, 3}, 10000, 7};
  const RandomSample sample = DrawSample(order, Proceeds);
  SetRandSeed(7);
  for (const Extended value : sample.values) ASSERT_EQ(value, Random_Normal(2, 3));
}

TEST(RandomSample, HasNoValuesWhenItIsStopped) {
  int calls = 0;
  const SampleOrder order = {&VariateOf("uniform"), {}, 10'000'000, 1};
  EXPECT_TRUE(
      DrawSample(order, [&](std::size_t, std::size_t) { return ++calls < 2; }).values.empty());
  EXPECT_EQ(calls, 2);
}

TEST(RandomSample, AgreesWithTheTheory) {
  const std::pair<const char*, std::vector<Extended>> cases[] = {
      {"uniform", {}},          {"normal", {5, 2}},        {"exponential", {3}},
      {"gamma", {2.5L, 3}},     {"chi-square", {4}},       {"weibull", {1.5L, 2}},
      {"weibull", {-6, 2}},     {"beta", {2, 5, -1, 3}},   {"student-t", {6}},
      {"cauchy", {1, 2}},       {"log-normal", {0, 0.5L}}, {"von-mises", {2}},
      {"binomial", {0.3L, 40}}, {"poisson", {6}},          {"negative-binomial", {0.4L, 3.5L}},
      {"poisson", {1e6L}},      {"student-t", {1}},        {"student-t", {1.5L}},
      {"von-mises", {50}},      {"weibull", {8, 1}},       {"inverse-gaussian", {2, 0.5L}},
  };
  for (const auto& [name, parameters] : cases) {
    SCOPED_TRACE(name);
    const apps::Variate& variate = VariateOf(name);
    const RandomSample sample = DrawSample({&variate, parameters, 40000, 1}, Proceeds);
    const VariateTheory theory = TheoryOf(variate, parameters);
    if (theory.mean) {
      const Extended error = std::sqrt(sample.variance / 40000);
      EXPECT_NEAR(static_cast<double>((sample.mean - *theory.mean) / error), 0, 4);
    }
    if (theory.variance) {
      EXPECT_NEAR(static_cast<double>(sample.variance / *theory.variance), 1, 0.1);
    }
    // The area between the bars and the density.
    ASSERT_TRUE(theory.density);
    double difference = 0;
    for (std::size_t i = 1; i < sample.bars.size(); ++i) {
      const double width = sample.bars[i].x() - sample.bars[i - 1].x();
      double middle = sample.bars[i].x() - width / 2;
      if (theory.is_count) middle = std::round(middle);
      const auto density = static_cast<double>(theory.density(middle));
      difference += width * std::abs(sample.bars[i].y() - density);
    }
    EXPECT_LT(difference, 0.08);
  }
  EXPECT_FALSE(TheoryOf(VariateOf("cauchy"), std::vector<Extended>{0, 1}).mean);
}

struct RandomPageTest : PageFixture<RandomPage> {
  // Waits for the sample that the page draws when it is shown.
  void SetUp() override {
    WaitUntilIdle();
    ASSERT_NE(page.Sample(), nullptr);
  }
  void WaitUntilIdle() {
    ASSERT_TRUE(QTest::qWaitFor([&] { return Find<QPushButton>("generate").isEnabled(); }));
  }
  void Generate(const char* variate, int size) {
    auto& box = Find<QComboBox>("variate");
    box.setCurrentIndex(box.findText(QLatin1String(variate)));
    Find<QSpinBox>("size").setValue(size);
    Click("generate");
  }
};

TEST_F(RandomPageTest, HasAsManyClassesAsAskedFor) {
  const std::size_t automatic = page.Sample()->bars.size();
  Find<QSpinBox>("classes").setValue(7);
  WaitUntilIdle();
  EXPECT_EQ(page.Sample()->bars.size(), 8U);
  Generate("Poisson", 500);
  // Chosen while the sample is being drawn.
  Find<QSpinBox>("classes").setValue(9);
  ASSERT_TRUE(QTest::qWaitFor([&] { return page.Sample()->bars.size() == 10; }));
  EXPECT_EQ(page.Sample()->values.size(), 500U);
  const QVariantMap state = page.State();
  RandomPage other;
  other.SetState(state);
  EXPECT_EQ(other.State(), state);
  Generate("Gamma", 10'000);
  Find<QSpinBox>("classes").setValue(0);
  ASSERT_TRUE(QTest::qWaitFor([&] { return page.Sample()->bars.size() == automatic; }));
}

TEST_F(RandomPageTest, DrawsTheSameValuesFromTheSameSeed) {
  Enter(Find<QLineEdit>("seed"), "12");
  Generate("Normal", 1000);
  WaitUntilIdle();
  const auto first = page.Sample();
  Click("generate");
  WaitUntilIdle();
  ASSERT_NE(page.Sample(), first);
  EXPECT_TRUE(std::ranges::equal(first->values, page.Sample()->values));
  EXPECT_EQ(Figure("moments", "Mean"), Float2Str(first->mean));
  EXPECT_EQ(Figure("moments", "Variance", 2), "1");

  const QTemporaryDir directory;
  page.Save(directory.filePath("none/values.txt"));
  WaitUntilIdle();
  EXPECT_NE(Message().find("none/values.txt: "), std::string::npos) << Message();
  const QString path = directory.filePath("values.txt");
  page.Save(path);
  WaitUntilIdle();
  EXPECT_EQ(Message(), "");
  QFile file(path);
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  const QList<QByteArray> lines = file.readAll().trimmed().split('\n');
  ASSERT_EQ(lines.size(), 1000);
  EXPECT_EQ(Str2Float(lines.back().toStdString()), first->values[999]);
}

TEST_F(RandomPageTest, KeepsTheSampleWhenTheNextIsCancelledOrRefused) {
  Generate("Gamma", 1000);
  WaitUntilIdle();
  const auto sample = page.Sample();
  Generate("Gamma", 10'000'000);
  EXPECT_FALSE(Find<QPushButton>("generate").isEnabled());
  Click("cancel");
  WaitUntilIdle();
  EXPECT_EQ(Message(), "Cancelled");
  Find<QComboBox>("variate").setCurrentText("Chi-square");
  Enter(Find<QLineEdit>("df"), "0");
  Generate("Chi-square", 1000);
  WaitUntilIdle();
  EXPECT_NE(Message().find("\"Degrees of freedom\" is at least 1"), std::string::npos) << Message();
  QApplication::processEvents();
  EXPECT_EQ(page.Sample(), sample);
}

}  // namespace
}  // namespace qorvex::gallery
