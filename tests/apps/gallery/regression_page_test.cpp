#include "apps/qorvex-gallery/pages/regression_page.h"

#include <QScrollBar>
#include <QSpinBox>
#include <tuple>

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
  // The texts after a label, separated by blanks.
  std::string Row(const char* table, const char* label, int columns) {
    std::string row;
    for (int i = 1; i <= columns; ++i) row += (i > 1 ? " " : "") + Figure(table, label, i);
    return row;
  }
  bool HasRemark(const char* remark) {
    return std::ranges::count(page.findChildren<QLabel*>(), remark, &QLabel::text) == 1;
  }
};

// By hand. Of the line, Sxx = 5, the squared errors are 0.7 on 2 degrees of freedom, whose t has
// the distribution function 1/2 + t / (2 sqrt(2 + t^2)); of the parabola 0.45 on 1.
TEST_F(RegressionPageTest, ShowsTheFitsAndFollowsEdits) {
  Show({0, 1, 2, 3}, {1, 2, 5, 7});
  const std::tuple<const char*, const char*, int, const char*> rows[] = {
      {"coefficients", "Line, constant", 5, "0.6 0.4950 -1.5297 2.7297 0.3492"},
      {"coefficients", "Line, coefficient of x", 5, "2.1 0.2646 0.9616 3.2384 0.01550"},
      {"coefficients", "Parabola, constant", 1, "0.85"},
      {"coefficients", "Parabola, coefficient of x²", 5, "0.25 0.3354 -4.0118 4.5118 0.5922"},
      {"quality", "Sum of squared errors", 2, "0.7 0.45"},
      {"quality", "p of the whole fit", 2, "0.01550 0.1406"},
      {"quality", "Correlation of x and y", 2, "0.9844951849708403885 "},
  };
  for (const auto& [table, label, columns, texts] : rows)
    EXPECT_EQ(Row(table, label, columns), texts) << label;
  const auto described = [this](const char* plot) {
    return Find<PlotView>(plot).accessibleDescription();
  };
  const QString scatter = described("scatter"), residuals = described("residuals");
  // The bands are wider than this.
  EXPECT_TRUE(scatter.contains("y from 0.207 to 7.543"));
  EXPECT_TRUE(residuals.contains("Residual from -0.769 to 0.519"));
  Type("y", "16\r");
  EXPECT_EQ(Figure("coefficients", "Line, coefficient of x"), "-2.4");
  EXPECT_NE(described("scatter"), scatter);
  EXPECT_NE(described("residuals"), residuals);
}

TEST_F(RegressionPageTest, HasScrollBarsOnlyIfPairsAreOutOfSight) {
  const auto& bar = *Find<TQorVectorEdit>("x").findChild<QScrollBar*>();
  EXPECT_TRUE(bar.visibleRegion().isEmpty());
  Find<QSpinBox>("rows").setValue(100);
  EXPECT_FALSE(bar.visibleRegion().isEmpty());
}

TEST_F(RegressionPageTest, SaysWhyThereIsNoCurve) {
  EXPECT_EQ(Message(), "");
  Show({0, 0, 2, 2}, {1, 1, 4, 4});
  EXPECT_EQ(Message(), "A parabola needs three different x.");
  EXPECT_EQ(Row("coefficients", "Line, coefficient of x", 5), "1.5 0 1.5 1.5 0");
  EXPECT_EQ(Figure("coefficients", "Parabola, coefficient of x"), "—");
  Show({1, 1, kNaN, 4}, {1, 2, 3, kNaN});
  EXPECT_EQ(Message(), "A line needs two different x.");
  EXPECT_TRUE(HasRemark("without 2 incomplete pairs"));
  // Without degrees of freedom there are neither errors nor bands.
  Show({1, 3, 4}, {1, 2, kNaN});
  EXPECT_TRUE(HasRemark("without 1 incomplete pair"));
  EXPECT_EQ(Row("coefficients", "Line, coefficient of x", 5), "0.5 — — — —");
  Show({1, 2, 3, 4}, {1e4000L, 2, 3, 4});
  EXPECT_TRUE(QString::fromStdString(Message()).startsWith("The values are too large"));
  Find<QSpinBox>("rows").setValue(0);
  QApplication::processEvents();
  EXPECT_EQ(Figure("coefficients", "Line, constant"), "—");
  page.ShowExample();
  EXPECT_EQ(Message(), "");
}

}  // namespace
}  // namespace qorvex::gallery
