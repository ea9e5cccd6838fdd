#include "apps/qorvex-gallery/pages/distribution_page.h"

#include <QComboBox>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "qorvex/base/text.h"
#include "qorvex/stats/distributions/distributions.h"

namespace qorvex::gallery {
namespace {

struct DistributionPageTest : PageFixture<DistributionPage> {
  void Choose(const char* family) {
    auto& box = Find<QComboBox>("family");
    box.setCurrentIndex(box.findText(QLatin1String(family)));
    ASSERT_EQ(box.currentText(), family);
    // The new cells become visible.
    QApplication::processEvents();
  }
  void EnterNumber(const char* name, const char* text) { Enter(Find<QLineEdit>(name), text); }
  [[nodiscard]] std::vector<Extended> Figures() {
    std::vector<Extended> figures;
    // Labels and figures alternate.
    const QStringList texts = Texts("figures");
    for (int i = 1; i < texts.size(); i += 2) figures.push_back(Str2Float(texts[i].toStdString()));
    return figures;
  }
  [[nodiscard]] Extended Quantile() { return Str2Float(Figure("quantile", "Quantile")); }
  [[nodiscard]] QImage Plot() { return Find<PlotView>("plot").grab().toImage(); }
};

TEST_F(DistributionPageTest, GivesTheFiguresOfAPoint) {
  Choose("Normal");
  EnterNumber("mean", "1");
  EnterNumber("std-dev", "0.5");
  EnterNumber("first", "5.5");
  EnterNumber("probability", "0.1");
  const NormalDistribution normal(1, 0.5L);
  EXPECT_EQ(Figures(), (std::vector{normal.Pdf(5.5L), Lower(normal, 5.5L), Upper(normal, 5.5L),
                                    LogLower(normal, 5.5L), LogUpper(normal, 5.5L)}));
  EXPECT_EQ(Quantile(), normal.Quantile(Tail::kLower, 0.1L));

  Choose("F");
  EnterNumber("df1", "2.5");
  EnterNumber("df2", "7");
  EnterNumber("first", "3");
  const FDistribution f(2.5L, 7);
  EXPECT_EQ(Figures()[2], Upper(f, 3));
  EXPECT_EQ(Quantile(), f.Quantile(Tail::kLower, 0.1L));
  EXPECT_EQ(Message(), "");
}

TEST_F(DistributionPageTest, GivesTheFiguresOfAnInterval) {
  Find<QComboBox>("question").setCurrentIndex(1);
  Choose("Binomial");
  EnterNumber("success-probability", "0.25");
  EnterNumber("trials", "8");
  // In either order.
  EnterNumber("first", "5");
  EnterNumber("second", "2");
  const BinomialDistribution binomial(0.25L, 8);
  EXPECT_EQ(Figures(),
            (std::vector{Upper(binomial, 2) - Upper(binomial, 4), Lower(binomial, 2),
                         Upper(binomial, 4), LogLower(binomial, 2), LogUpper(binomial, 4)}));
  // No count is less than 0.
  EnterNumber("first", "0");
  EnterNumber("second", "0");
  EXPECT_EQ(Figures()[2], 1);
  EXPECT_EQ(Figures()[4], 0);
}

TEST_F(DistributionPageTest, KeepsPlotAndFiguresWhenANumberIsRefused) {
  const char* const cases[][4] = {
      {"Normal", "std-dev", "-1", "Standard deviation: -1 is not greater than 0"},
      {"Binomial", "success-probability", "1.5",
       "Probability of success in each trial: 1.5 is not from 0 to 1"},
      {"Poisson", "first", "2.5", "k: 2.5 is not a whole number from 0 to 4294967295"},
      {"Normal", "probability", "1", "Probability: 1 is not between 0 and 1"},
      {"Beta", "lower-end", "3",
       "\"Upper end of the support\" must be greater than \"Lower end of the support\""},
  };
  for (const auto& [family, cell, number, message] : cases) {
    SCOPED_TRACE(message);
    Choose("Gamma");
    Choose(family);
    Find<QLineEdit>(cell).clearFocus();
    const auto shown = [this] { return std::tuple(Figures(), Quantile(), Plot()); };
    const auto before = shown();
    EnterNumber(cell, number);
    EXPECT_EQ(Message(), message);
    EXPECT_TRUE(shown() == before);
    EXPECT_TRUE(page.Report().parts.isEmpty());
    EnterNumber("probability", "0.5");
  }
}

TEST_F(DistributionPageTest, BeginsWhereTheSupportBeginsAndMarksPointAndQuantile) {
  const auto plot = [this] { return Find<PlotView>("plot").accessibleDescription().toStdString(); };
  Choose("Exponential");
  EnterNumber("first", "2.5");
  EnterNumber("probability", "0.5");
  EXPECT_EQ(plot().substr(0, 9), "x from 0 ");
  EXPECT_NE(plot().find("x = 2.5: mark. Quantile = 1.38629: mark."), std::string::npos) << plot();
  Choose("Beta");
  EXPECT_EQ(plot().substr(0, 14), "x from 0 to 1,");
  Choose("Poisson");
  // Half a stem, but no counts that do not exist.
  EXPECT_EQ(plot().substr(0, 8), "k from -");
  EXPECT_GE(Find<PlotView>("plot").Shown().x.low, -0.5);
  // Far from 0, the axis begins where the middle of the distribution does.
  Choose("Chi-square");
  EnterNumber("df", "100");
  EnterNumber("first", "90");
  EXPECT_EQ(plot().substr(0, 9), "x from 61");
}

TEST_F(DistributionPageTest, KeepsItsState) {
  Choose("Gamma");
  EnterNumber("shape", "2.5");
  EnterNumber("first", "1.1");
  Find<QComboBox>("question").setCurrentIndex(1);
  DistributionPage other;
  other.SetState(page.State());
  EXPECT_EQ(other.State(), page.State());
  EXPECT_EQ(other.findChild<QLineEdit*>("first")->text(), "1.1");
  ASSERT_EQ(other.Report().parts.size(), 4);
  EXPECT_EQ(other.Report().parts[0].rows[0], QStringList({"Shape", "2.5"}));
  const QVariantMap before = other.State();
  other.SetState({{"family", "no such family"}, {"first", "x"}});
  EXPECT_EQ(other.State(), before);
}

TEST_F(DistributionPageTest, ShowsEveryFamily) {
  auto& box = Find<QComboBox>("family");
  ASSERT_EQ(box.count(), 20);
  QImage before;
  for (int i = 0; i < box.count(); ++i) {
    box.setCurrentIndex(i);
    EXPECT_EQ(Message(), "") << box.currentText().toStdString();
    const QImage plot = Plot();
    EXPECT_NE(plot, before) << box.currentText().toStdString();
    before = plot;
  }
}

}  // namespace
}  // namespace qorvex::gallery
