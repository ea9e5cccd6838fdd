#include "apps/qorvex-gallery/pages/regression_page.h"

#include <QSpinBox>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "qorvex/base/text.h"
#include "support/test.h"

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

// By hand.
TEST_F(RegressionPageTest, ShowsAllDigitsAndFollowsEdits) {
  Show({0, 1, 2, 3}, {1, 2, 5, 7});
  const std::tuple<const char*, Extended, Extended> figures[] = {
      {"Constant", 0.6L, 0.85L},
      {"Coefficient of x", 2.1L, 1.35L},
      {"Sum of squared errors", 0.7L, 0.45L},
      {"Coefficient of determination", 22.05L / 22.75L, 22.3L / 22.75L},
  };
  const auto error = [this](const char* label, int column, Extended expected) {
    return static_cast<double>(Str2Float(Figure("figures", label, column)) - expected);
  };
  for (const auto& [label, line, parabola] : figures) {
    EXPECT_NEAR(error(label, 1, line), 0, 1e-17) << label;
    EXPECT_NEAR(error(label, 2, parabola), 0, 1e-17) << label;
  }
  EXPECT_NEAR(error("Coefficient of x²", 2, 0.25L), 0, 1e-17);
  const QString before = Find<PlotView>("scatter").accessibleDescription();
  Type("y", "16\r");
  EXPECT_GT(error("Constant", 1, 0.6L), 1);
  EXPECT_NE(Find<PlotView>("scatter").accessibleDescription(), before);
}

TEST_F(RegressionPageTest, SaysWhyThereIsNoCurve) {
  EXPECT_EQ(Message(), "");
  Show({0, 0, 2, 2}, {1, 1, 4, 4});
  EXPECT_EQ(Message(), "A parabola needs three different x.");
  EXPECT_EQ(Figure("figures", "Coefficient of x"), "1.5");
  Show({1, 1, kNaN, 4}, {1, 2, 3, kNaN});
  EXPECT_EQ(Message(), "A line needs two different x.");
  const QString remark = "without 2 incomplete pairs";
  EXPECT_EQ(std::ranges::count(page.findChildren<QLabel*>(), remark, &QLabel::text), 1);
  Find<QSpinBox>("rows").setValue(0);
  QApplication::processEvents();
  EXPECT_EQ(Figure("figures", "Constant"), "—");
  page.ShowExample();
  EXPECT_EQ(Message(), "");
}

}  // namespace
}  // namespace qorvex::gallery
