#include "apps/qorvex-gallery/pages/matrix_page.h"

#include <QRadioButton>
#include <QScrollBar>
#include <QSpinBox>
#include <QTemporaryFile>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/model/matrix_calculation.h"
#include "apps/qorvex-gallery/widgets/matrix_panel.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"
#include "qorvex/matrix/building.h"

namespace qorvex::gallery {
namespace {

struct MatrixPageTest : PageFixture<MatrixPage> {
  MatrixPageTest() {
    Finish();
    // With room for it; offscreen windows are active at once.
    EXPECT_TRUE(QTest::qWaitForWindowActive(&page));
  }

  MatrixPanel* a = &Find<MatrixPanel>("a");
  MatrixPanel* b = &Find<MatrixPanel>("b");
  MatrixPanel* result = &Find<MatrixPanel>("result");

  // Waits until the result is that of the current matrices.
  void Finish() {
    QApplication::processEvents();
    const auto works = page.template findChildren<BackgroundWork*>();
    EXPECT_TRUE(QTest::qWaitFor(
        [&] { return std::ranges::none_of(works, &BackgroundWork::IsRunning) && !IsWaiting(); },
        30'000));
  }
  bool IsWaiting() { return std::ranges::any_of(page.findChildren<QTimer*>(), &QTimer::isActive); }
  void Choose(const char* button) {
    Find<QRadioButton>(button).click();
    Finish();
  }
  void ClickAndFinish(const char* button) {
    Click(button);
    Finish();
  }
  void Set(MatrixPanel* panel, const TQorFloatMatrix& matrix) {
    panel->Replace(matrix);
    Finish();
  }
  [[nodiscard]] std::string Determinant() { return Figure("properties", "Determinant"); }
  [[nodiscard]] std::string Rank() { return Figure("properties", "Rank"); }
  // The text in place of a result.
  [[nodiscard]] std::string WhyNone() {
    const auto& remark = *result->findChild<QLabel*>("remark");
    return remark.isHidden() ? "" : remark.text().toStdString();
  }
  // The first cell of a matrix.
  static QLineEdit& Cell(const MatrixPanel* panel) {
    panel->Editor().setRowEditFocus(0);
    panel->Editor().setColEditFocus(0);
    return *qobject_cast<QLineEdit*>(QApplication::focusWidget());
  }
  static QSpinBox& Size(const MatrixPanel* panel, const char* box) {
    return *panel->findChild<QSpinBox*>(box);
  }
};

TEST_F(MatrixPageTest, ShowsEachResultOfWhatIsTyped) {
  EXPECT_EQ(Determinant(), "21.5");
  EXPECT_EQ(Rank(), "3");
  EXPECT_TRUE(b->isHidden());
  // The adjugate begins with 12; -3.5 is below it.
  EXPECT_NEAR(static_cast<double>(result->Matrix()[1][0] * 21.5L), -3.5, 1e-15);
  Choose("showFractions");
  const auto& fractions = dynamic_cast<TQorMatrixFractEdit&>(result->Editor());
  EXPECT_EQ(fractions.FractElement(0, 0).numerator, 24);
  EXPECT_EQ(fractions.FractElement(0, 0).denominator, 43);
  Enter(Cell(a), "7/2");
  Finish();
  EXPECT_EQ(Determinant(), "39.5");
  Choose("showDecimals");
  EXPECT_EQ(a->Matrix()[0][0], 3.5L);
  Choose("product");
  EXPECT_TRUE(b->isVisible());
  EXPECT_EQ(result->Matrix(), (TQorFloatMatrix{{7.5L}, {13}, {12.25L}}));
  Choose("solution");
  Enter(Cell(b), "1.25");
  Set(a, {{5, 0, 0}, {0, 4, 0}, {0, 0, -8}});
  EXPECT_EQ(result->Matrix(), (TQorFloatMatrix{{0.25L}, {0.5L}, {-0.375L}}));
  Choose("echelon");
  EXPECT_EQ(result->Matrix(), CreateFloatIdentityMatrix(3));
}

TEST_F(MatrixPageTest, UndoesCommandsResultsAndSizes) {
  const TQorFloatMatrix before = a->Matrix();
  Cell(a).selectAll();
  QTest::keyClicks(QApplication::focusWidget(), "4");
  ClickAndFinish("squares");
  EXPECT_EQ(a->Matrix()[0][0], 16) << "the text is committed before the command";
  Set(a, {{4, 0}, {0, 0.5L}});
  ClickAndFinish("useAsA");
  EXPECT_EQ(a->Matrix(), (TQorFloatMatrix{{0.25L, 0}, {0, 2}}));
  Size(a, "columns").setValue(3);
  Finish();
  EXPECT_EQ(a->Matrix()[1], (TQorFloatVector{0, 2, 0}));
  for (int i = 0; i < 5; ++i) ClickAndFinish("undo");
  EXPECT_EQ(a->Matrix(), before);
  EXPECT_EQ(Determinant(), "21.5");
  ClickAndFinish("redo");
  EXPECT_EQ(a->Matrix()[0][0], 4);
}

TEST_F(MatrixPageTest, SaysWhatIsWrong) {
  const auto why_none = [this](const TQorFloatMatrix& matrix) {
    Set(a, matrix);
    return WhyNone();
  };
  EXPECT_EQ(why_none({{1, 2}, {2, 4}}), "none, A is singular");
  EXPECT_EQ(Rank(), "1");
  EXPECT_EQ(why_none({{1, 0}, {0, kNaN}}), "none, an element is null");
  EXPECT_EQ(why_none({{kInfinity, 0}, {0, 1}}), "none, an element is infinite");
  EXPECT_EQ(why_none({{1e-4940L, 0}, {0, 1}}), "none, A is singular")
      << "zero within the tolerance";
  EXPECT_EQ(why_none({{1, 1e4930L}, {0, 1e-10L}}), "none, its elements would be beyond the range");
  EXPECT_EQ(why_none({{1, 2}}), "of square matrices only");
  EXPECT_EQ(Determinant(), "of square matrices only");
  EXPECT_FALSE(Find<QPushButton>("useAsA").isEnabled());
  const auto proceed = [](std::size_t, std::size_t) { return true; };
  EXPECT_EQ(Calculate({}, proceed).why_none, "none, A is empty");
  Choose("product");
  EXPECT_EQ(WhyNone(), "B needs as many rows as A has columns: 2");
  Choose("solution");
  EXPECT_EQ(WhyNone(), "A must be square");
  Click("ln");
  EXPECT_EQ(Message(), "");
  Set(a, {{-1}});
  Click("ln");
  EXPECT_NE(Message(), "");
  EXPECT_EQ(a->Matrix()[0][0], -1);
  Size(a, "columns").setValue(2'000'000'000);
  EXPECT_EQ(Message().find("1 × 2000000000 elements are too many"), 0U) << Message();
  EXPECT_EQ(Size(a, "columns").value(), 1);
  page.Open("/nowhere/matrix.csv");
  Finish();
  EXPECT_NE(Message().find("matrix.csv"), std::string::npos) << Message();
}

// A thousand rows: what the user types meanwhile counts, and bars scroll only what does not fit.
TEST_F(MatrixPageTest, ComputesLargeMatricesInTheBackground) {
  const auto bars = [](const MatrixPanel* panel) {
    int count = 0;
    for (const auto* const bar : panel->Editor().findChildren<QScrollBar*>())
      count += bar->visibleRegion().isEmpty() ? 0 : 1;
    return count;
  };
  EXPECT_EQ(bars(a), 0);
  constexpr std::size_t order = 1000;
  TQorFloatMatrix matrix = CreateFloatIdentityMatrix(order);
  matrix[0][order - 1] = 8;
  matrix[1][0] = 3;
  a->Replace(matrix);
  QApplication::processEvents();
  Enter(Cell(a), "2");
  Finish();
  EXPECT_EQ(Determinant(), "2");
  EXPECT_EQ(result->Matrix()[0][order - 1], -4);
  EXPECT_EQ(bars(a), 2);
  EXPECT_EQ(bars(result), 2);
}

TEST_F(MatrixPageTest, KeepsItsStateAndOpensFiles) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  file.write("1,2,3\n4,5,0.1\n");
  file.close();
  // The second reading stops the first one.
  page.Open(file.fileName());
  page.Open(file.fileName());
  Finish();
  EXPECT_EQ(a->Matrix()[1][2], 0.1L);
  Choose("product");
  MatrixPage other;
  other.SetState(page.State());
  EXPECT_EQ(other.findChild<MatrixPanel*>("a")->Matrix(), a->Matrix());
  EXPECT_TRUE(other.findChild<QRadioButton*>("product")->isChecked());
  // Nulls and infinities are kept, too.
  b->Replace({{kNaN}, {-kInfinity}});
  other.SetState(page.State());
  const TQorFloatMatrix kept = other.findChild<MatrixPanel*>("b")->Matrix();
  EXPECT_TRUE(std::isnan(kept[0][0]));
  EXPECT_EQ(kept[1][0], -kInfinity);
  EXPECT_EQ(page.Report().parts.size(), 4);
}

}  // namespace
}  // namespace qorvex::gallery
