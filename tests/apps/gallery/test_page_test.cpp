#include "apps/qorvex-gallery/pages/test_page.h"

#include <QCheckBox>
#include <QComboBox>
#include <QSpinBox>
#include <tuple>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/widgets/column_box.h"
#include "apps/qorvex-gallery/widgets/column_list.h"
#include "apps/text_source.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

constexpr const char* kTable =
    "a,b,g,n,m,k\n"
    "5.1,4.4,u,10,12,\n4.9,4.6,u,20,8,\n5.6,5.2,v,30,20,0.3\n"
    "5.8,4.9,v,12,14,0.5\n6.0,5.5,u,18,11,0.8\nNA,5.0,v,9,15,1.2\n";

struct TestPageTest : PageFixture<TestPage> {
  TestPageTest() { Load(kTable); }

  void Load(const char* text) {
    sheet.SetData(ReadSheet(apps::SourceOf(text), {}));
    Finish();
  }
  void Finish() {
    const auto works = page.findChildren<BackgroundWork*>();
    const auto timers = page.findChildren<QTimer*>();
    QApplication::processEvents();
    EXPECT_TRUE(QTest::qWaitFor([&] {
      return std::ranges::none_of(works, &BackgroundWork::IsRunning) &&
             std::ranges::none_of(timers, &QTimer::isActive);
    }));
  }
  void Choose(const char* test) {
    auto& box = Find<QComboBox>("test");
    box.setCurrentIndex(box.findData(QString(test)));
    Finish();
  }
  // Chooses columns by the letters of their names, and the labels after a slash.
  void Take(const std::string& columns) {
    const std::size_t slash = columns.find('/');
    const auto column = [](char name) {
      return static_cast<int>(std::string("abgnmk").find(name));
    };
    Find<QComboBox>("kind").setCurrentIndex(slash == std::string::npos ? 0 : 1);
    Find<ColumnBox>("first").SetColumn(column(columns[0]));
    if (slash != std::string::npos) {
      Find<ColumnBox>("labels").SetColumn(column(columns[slash + 1]));
    } else if (columns.size() > 1) {
      Find<ColumnBox>("second").SetColumn(column(columns[1]));
    }
    std::vector<int> ticked;
    for (const char name : columns) ticked.push_back(column(name));
    Find<ColumnList>("columns").SetColumns(ticked);
    Finish();
  }
  [[nodiscard]] double P() { return QString::fromStdString(Figure("results", "p")).toDouble(); }
  [[nodiscard]] bool Says(const char* words) {
    return Find<QLabel>("words").text().contains(words);
  }
};

// The values of p are those of R 4: t.test, wilcox.test, aov, var.test, shapiro.test, ks.test,
// chisq.test and binom.test.
TEST_F(TestPageTest, ComputesEveryTest) {
  const std::tuple<const char*, const char*, double> cases[] = {
      {"welch", "ab", 0.0724525390686},
      {"two-sample-t", "b/g", 0.597885197102},
      {"two-sample-t", "ab", 0.0649852895296},
      {"paired-t", "ab", 0.00651851851852},
      {"anova", "b/g", 0.597885197102},
      {"anova", "ab", 0.0649852895296},
      {"variance-ratio", "ab", 0.726809279199},
      {"paired-wilcoxon", "ab", 0.0625},
      {"two-sample-kolmogorov-smirnov", "ab", 0.207792207792},
      {"mann-whitney", "ab", 0.0995755338939},
      {"one-sample-t", "a", 1.24118275615e-05},
      {"variance", "a", 0.141787651268},
      {"wilcoxon", "b", 0.03125},
      {"kolmogorov-smirnov", "k", 0.0540194574871},
      {"shapiro-wilk", "b", 0.977872452},
      {"goodness-of-fit", "n", 0.00182472134},
      {"independence", "nm", 0.119460946151},
      {"binomial", "a", 0.056887933641},
  };
  for (const auto& [test, columns, p] : cases) {
    Choose(test);
    Take(columns);
    EXPECT_EQ(Message(), "") << test;
    EXPECT_NEAR(P() / p, 1, 2e-6) << test << ' ' << columns;
    EXPECT_TRUE(Says(p <= 0.05 ? "Rejected: " : "Not rejected: ")) << test;
  }
}

TEST_F(TestPageTest, FollowsTheHypothesisAndTheSheet) {
  Choose("one-sample-t");
  Take("a");
  Enter(Find<QLineEdit>("nullValue"), "5");
  Finish();
  EXPECT_TRUE(Says("The mean is 5."));
  EXPECT_EQ(Figure("results", "p"), "0.0825683");
  EXPECT_EQ(Figure("results", "Mean, confidence interval of 95 %"), "4.901592 to 6.058408");
  EXPECT_EQ(Find<QLabel>("leftOut").text(), "without 1 missing value");
  Find<QComboBox>("alternative").setCurrentIndex(2);
  Enter(Find<QLineEdit>("confidence"), "0.9");
  Finish();
  EXPECT_TRUE(
      Says("the significance level, 0.1. The data speak for the alternative: The mean is "
           "greater than 5."));
  sheet.setData(sheet.index(5, 0), 4.0);
  Finish();
  EXPECT_EQ(Figure("samples", "a"), "6");
  // A test of each group, by R: t.test(b[g == "u"], mu = 5).
  Find<QComboBox>("alternative").setCurrentIndex(0);
  Take("b/g");
  EXPECT_EQ(Texts("samples").filter("p").size(), 1);
  EXPECT_TRUE(Says("Rejected for 0 of 2 samples"));
}

// Ties among differences of decimals are exact: 0.3 - 0.1 = 0.5 - 0.3.
TEST_F(TestPageTest, TakesNumbersAsTheyAreWritten) {
  Load("a,b\n0.3,0.1\n0.5,0.3\n0.8,0.6\n1.2,1.1\n");
  Choose("paired-t");
  Take("ab");
  Enter(Find<QLineEdit>("nullValue"), "0.175");
  Finish();
  EXPECT_EQ(Figure("results", "Statistic t"), "0");
}

TEST_F(TestPageTest, SaysWhyThereIsNoResult) {
  const auto why_not = [this](const char* test, const char* columns) {
    Choose(test);
    Take(columns);
    return Message();
  };
  EXPECT_EQ(why_not("goodness-of-fit", "b"), "b: not all numbers are counts");
  EXPECT_EQ(why_not("anova", "b"), "the test compares at least two samples");
  EXPECT_EQ(why_not("welch", "b/n"), "the test compares two groups, and the labels make 6");
  EXPECT_EQ(why_not("variance-ratio", "aa"), "");
  Find<QCheckBox>("yates").setChecked(true);
  EXPECT_EQ(why_not("independence", "nm"), "Yates' correction is for tables of 2 by 2");
  Choose("binomial");
  Find<QSpinBox>("trials").setValue(5);
  Finish();
  EXPECT_EQ(Message(), "there are more successes than trials");
  EXPECT_TRUE(Texts("results").filter("Statistic").isEmpty()) << "no figures of other choices";
  Choose("variance");
  Enter(Find<QLineEdit>("nullValue"), "-1");
  Finish();
  EXPECT_NE(Message().find("Variance: -1 "), std::string::npos) << Message();
  Load("a,b\n5,1\n5,1\n");
  EXPECT_EQ(why_not("one-sample-t", "a"), "a: the values must not all be the same");
}

TEST_F(TestPageTest, KeepsItsState) {
  Choose("welch");
  Take("b/g");
  TestPage other(sheet);
  other.SetState(page.State());
  EXPECT_EQ(other.State(), page.State());
  EXPECT_EQ(page.Report().parts.size(), 3);
}

}  // namespace
}  // namespace qorvex::gallery
