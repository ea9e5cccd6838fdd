#include "apps/qorvex-gallery/pages/regression_page.h"

#include <QComboBox>
#include <QSpinBox>
#include <algorithm>
#include <tuple>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/column_box.h"
#include "apps/qorvex-gallery/widgets/column_list.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

struct RegressionPageTest : PageFixture<RegressionPage> {
  TQorMatrixEdit& own = Find<TQorMatrixEdit>("own");

  // Replaces the own values by pasted ones.
  void Paste(const char* rows) {
    Click("clear");
    EXPECT_TRUE(own.PasteBlock(rows)) << rows;
    QApplication::processEvents();
  }
  void SetDegree(int degree) {
    Find<QSpinBox>("degree").setValue(degree);
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
TEST_F(RegressionPageTest, ShowsTheFitAndFollowsEdits) {
  using Rows = std::vector<std::tuple<const char*, const char*, int, const char*>>;
  const auto expect = [this](const Rows& rows) {
    for (const auto& [table, label, columns, texts] : rows)
      EXPECT_EQ(Row(table, label, columns), texts) << label;
  };
  Paste("0\t1\n1\t2\n2\t5\n3\t7");
  expect({{"coefficients", "Constant", 5, "0.6 0.4950 -1.5297 2.7297 0.3492"},
          {"coefficients", "x", 5, "2.1 0.2646 0.9616 3.2384 0.0155"},
          {"quality", "Sum of squared errors", 1, "0.7"},
          {"quality", "p of the whole fit", 1, "0.0155"},
          {"quality", "Correlation of x and y", 1, "0.9844951849708403885"}});
  const auto described = [this](const char* plot) {
    return Find<PlotView>(plot).accessibleDescription();
  };
  const QString line = described("scatter"), residuals = described("residuals");
  EXPECT_TRUE(residuals.contains("Residual from ")) << residuals.toStdString();
  SetDegree(2);
  expect({{"coefficients", "Constant", 1, "0.85"},
          {"coefficients", "x²", 5, "0.25 0.3354 -4.0118 4.5118 0.5922"},
          {"quality", "Sum of squared errors", 1, "0.45"},
          {"quality", "p of the whole fit", 1, "0.1406"}});
  EXPECT_NE(described("residuals"), residuals);
  SetDegree(1);
  EXPECT_EQ(described("scatter"), line);
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  own.setRowEditFocus(0);
  own.setColEditFocus(1);
  QTest::keyClicks(QApplication::focusWidget(), "16\r");
  QApplication::processEvents();
  EXPECT_EQ(Figure("coefficients", "x"), "-2.4");
  own.Undo();
  QApplication::processEvents();
  EXPECT_EQ(Figure("coefficients", "x"), "2.1");
}

// y = 1 + 2 x1 - 3 x2.
TEST_F(RegressionPageTest, TakesTheLastColumnAsTheResponse) {
  Paste("1\t0\t3\n0\t1\t-2\n2\t1\t2\n3\t5\t-8");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Figure("coefficients", "Constant") + " " + Figure("coefficients", "x1") + " " +
                Figure("coefficients", "x2"),
            "1 2 -3");
  EXPECT_FALSE(Find<QSpinBox>("degree").isEnabled());
  EXPECT_EQ(own.ColHeading(2), "y");
  Paste("1\t1\t3\n2\t2\t-2\n3\t3\t2\n4\t4\t8");
  EXPECT_EQ(Message(), "x2 depends linearly on the constant and the predictors before it.");
}

TEST_F(RegressionPageTest, SaysWhyThereIsNoCurve) {
  EXPECT_EQ(Message(), "");
  Paste("0\t1\n0\t1\n2\t4\n2\t4");
  EXPECT_EQ(Row("coefficients", "x", 5), "1.5 0 1.5 1.5 0");
  SetDegree(2);
  EXPECT_EQ(Message(), "A parabola needs three different values of x.");
  EXPECT_EQ(Figure("coefficients", "x²"), "—");
  SetDegree(5);
  EXPECT_EQ(Message(), "This polynomial needs 6 different values of x.");
  SetDegree(1);
  Paste("1\t1\n1\t2\n\t3\n4\t");
  EXPECT_EQ(Message(), "A line needs two different values of x.");
  EXPECT_TRUE(HasRemark("without 2 incomplete rows"));
  // Without degrees of freedom there are neither errors nor bands.
  Paste("1\t1\n3\t2\n4\t");
  EXPECT_TRUE(HasRemark("without 1 incomplete row"));
  EXPECT_EQ(Row("coefficients", "x", 5), "0.5 — — — —");
  Paste("1\t1e4000\n2\t2\n3\t3\n4\t4");
  EXPECT_TRUE(QString::fromStdString(Message()).startsWith("The values are too large"));
  // Their range times the number of points of the curve would be beyond it, too.
  Paste("1e4900\t2\n-1e4900\t3\n1e4932\t4");
  EXPECT_EQ(Message(), "");
  Click("clear");
  QApplication::processEvents();
  EXPECT_EQ(Figure("coefficients", "Constant"), "—");
}

// As one step each.
TEST_F(RegressionPageTest, TakesTheExampleAndClearingBack) {
  EXPECT_FALSE(own.CanUndo());
  Paste("1\t0\t3\n0\t1\t-2\n2\t1\t2");
  own.setCurrentCol(2);
  Click("example");
  EXPECT_EQ(own.NoOfRows(), 16U);
  EXPECT_EQ(own.NoOfCols(), 2U);
  EXPECT_EQ(own.Element(15, 1), 130081);
  own.Undo();
  EXPECT_EQ(own.NoOfRows(), 3U);
  EXPECT_EQ(own.Element(0, 2), 3);
  Click("clear");
  EXPECT_EQ(own.NoOfRows(), 0U);
  own.Undo();
  EXPECT_EQ(own.Element(2, 0), 2);
  QApplication::processEvents();
  EXPECT_EQ(Message(), "");
}

// What took the focus from the text may compute again, but the report stays.
TEST_F(RegressionPageTest, ReportsATextThatIsNoNumberWhenTheCellIsLeft) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  own.setRowEditFocus(1);
  QTest::keyClicks(QApplication::focusWidget(), "abc");
  Find<QSpinBox>("degree").setFocus();
  SetDegree(2);
  EXPECT_EQ(Message(), "Row 2, column x: \"abc\" is not a number. The value stays.");
  own.setRowEditFocus(1);
  QTest::keyClicks(QApplication::focusWidget(), "1948.5\r");
  EXPECT_EQ(Message(), "");
}

// weight = 1 + 2 length - 3 width, and the name is text.
TEST_F(RegressionPageTest, TakesColumnsOfTheSheet) {
  auto& source = Find<QComboBox>("source");
  auto& response = Find<ColumnBox>("response");
  auto& predictors = Find<ColumnList>("predictors");
  const auto settle = [] { QTest::qWait(1); };
  source.setCurrentIndex(1);
  settle();
  EXPECT_EQ(Message(), "The sheet on the page Data is empty.");
  SheetData data({}, {"name", "length", "width", "weight"});
  for (const std::vector<std::string>& row : {std::vector<std::string>{"a", "1", "0", "3"},
                                              {"b", "0", "1", "-2"},
                                              {"c", "2", "1", "2"},
                                              {"d", "3", "NA", "7"},
                                              {"e", "3", "5", "-8"}}) {
    data.AppendRow(row);
  }
  sheet.SetData(data);
  settle();
  EXPECT_EQ(response.count(), 3);
  EXPECT_EQ(predictors.count(), 3);
  EXPECT_EQ(Message(), "Tick one or more predictors.");
  response.SetColumn(3);
  predictors.SetColumns({1, 2});
  settle();
  EXPECT_EQ(Message(), "");
  EXPECT_TRUE(HasRemark("without 1 incomplete row"));
  EXPECT_EQ(Figure("coefficients", "length") + " " + Figure("coefficients", "width"), "2 -3");
  // The space key ticks the current column, here the response itself.
  predictors.setCurrentRow(2);
  QTest::keyClick(&predictors, Qt::Key_Space);
  settle();
  EXPECT_EQ(Message(), "weight is the response and a predictor.");
  predictors.SetColumns({1});
  SetDegree(2);
  settle();
  EXPECT_NE(Figure("coefficients", "length²"), "");
  // A fit that is not in sight is computed when it is.
  page.hide();
  sheet.setData(sheet.index(0, 3), 30.0);
  sheet.setData(sheet.index(3, 2), 0.0);
  settle();
  const std::string before = Figure("coefficients", "length²");
  page.show();
  EXPECT_NE(Figure("coefficients", "length²"), before);
  const QVariantMap state = page.State();
  RegressionPage other(sheet);
  other.SetState(state);
  EXPECT_EQ(other.State(), state);
}

TEST_F(RegressionPageTest, FollowsColumnsThatMove) {
  auto& predictors = Find<ColumnList>("predictors");
  const auto show = [&](const std::vector<std::string>& names) {
    SheetData data({}, names);
    data.AppendRow(std::vector<std::string>(names.size(), "1"));
    sheet.SetData(data);
    QTest::qWait(1);
  };
  show({"x", "y", "x", "z"});
  predictors.item(2)->setCheckState(Qt::Checked);
  EXPECT_EQ(predictors.Columns(), std::vector{2}) << "not the other column of the name";
  sheet.setData(sheet.index(0, 1), 5.0);
  QTest::qWait(1);
  EXPECT_EQ(predictors.Columns(), std::vector{2});
  sheet.insertColumns(1, 2);
  sheet.removeColumns(0, 1);
  EXPECT_EQ(predictors.Columns(), std::vector{3}) << "before the list is filled again";
  QTest::qWait(1);
  EXPECT_EQ(predictors.Columns(), std::vector{3});
  sheet.setHeaderData(3, Qt::Horizontal, "weight");
  QTest::qWait(1);
  EXPECT_EQ(predictors.State(), QVariantList({3, "weight"}));
  show({"height", "weight"});
  EXPECT_EQ(predictors.Columns(), std::vector{1});
  sheet.removeColumns(1, 1);
  QTest::qWait(1);
  EXPECT_TRUE(predictors.Columns().empty());
}

TEST_F(RegressionPageTest, RemembersTheOwnValues) {
  Paste("0\t1\n1\t2\n\t5\n3\t0.1");
  SetDegree(2);
  const QVariantMap state = page.State();
  RegressionPage other(sheet);
  other.SetState(state);
  other.show();
  EXPECT_EQ(other.State(), state);
  EXPECT_EQ(other.Report().parts.front().rows, page.Report().parts.front().rows);
}

}  // namespace
}  // namespace qorvex::gallery
