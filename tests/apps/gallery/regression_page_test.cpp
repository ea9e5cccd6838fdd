#include "apps/qorvex-gallery/pages/regression_page.h"

#include <QSpinBox>
#include <cmath>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "support/table.h"

namespace qorvex::gallery {
namespace {

struct RegressionPageTest : PageFixture<RegressionPage> {
  void Show(const TQorFloatVector& x, const TQorFloatVector& y) {
    Find<QSpinBox>("rows").setValue(0);
    Find<QSpinBox>("rows").setValue(static_cast<int>(x.size()));
    Find<TQorVectorEdit>("x").setVector(x);
    Find<TQorVectorEdit>("y").setVector(y);
    QApplication::processEvents();
  }
};

TEST_F(RegressionPageTest, ShowsCertifiedCoefficientsWithAllDigits) {
  const testing::Table certified("nist/regression.csv");
  TQorFloatVector x, y;
  for (const Extended number : testing::ReadNumbers("nist/Norris.txt"))
    (x.size() == y.size() ? x : y).Append(number);
  Show(x, y);
  ASSERT_EQ(certified.Text(0, "name"), "Norris");
  for (const auto& [label, column] : {std::pair{"Constant", "b0"},
                                      {"Coefficient of x", "b1"},
                                      {"Sum of squared errors", "rss"},
                                      {"Coefficient of determination", "r2"}}) {
    const Extended expected = certified.Value(0, column);
    EXPECT_NEAR(static_cast<double>(Str2Float(Figure("figures", label)) / expected - 1), 0, 1e-15);
  }
}

TEST_F(RegressionPageTest, FollowsEdits) {
  Show({0, 1, 2, 3}, {1, 2, 5, 10});
  EXPECT_EQ(Figure("figures", "Coefficient of x²", 2), "1");
  EXPECT_EQ(Figure("figures", "Constant", 1), "0");
  const QString before = Find<PlotView>("scatter").accessibleDescription();
  Type("y", "16\r");
  EXPECT_NE(Figure("figures", "Coefficient of x²", 2), "1");
  EXPECT_NE(Find<PlotView>("scatter").accessibleDescription(), before);
}

TEST_F(RegressionPageTest, SaysWhyThereIsNoCurve) {
  EXPECT_EQ(Message(), "");
  Show({0, 0, 2, 2}, {1, 1, 4, 4});
  EXPECT_EQ(Message(), "A parabola needs three different x.");
  EXPECT_EQ(Figure("figures", "Coefficient of x"), "1.5");
  Show({1, 1, NAN}, {1, 2, 3});
  EXPECT_EQ(Message(), "A line needs two different x.");
  Find<QSpinBox>("rows").setValue(0);
  QApplication::processEvents();
  EXPECT_EQ(Figure("figures", "Constant"), "—");
  page.ShowExample();
  EXPECT_EQ(Message(), "");
}

}  // namespace
}  // namespace qorvex::gallery
