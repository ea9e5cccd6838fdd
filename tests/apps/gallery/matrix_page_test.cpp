#include "apps/qorvex-gallery/matrix_page.h"

#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryFile>

#include "apps/gallery/page_test.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"

namespace qorvex::gallery {
namespace {

// The example of the page: its determinant is 19, and its inverse is this matrix divided by 19.
constexpr int kAdjugate[3][3] = {{12, -4, -1}, {-2, 7, -3}, {-3, 1, 5}};

struct MatrixPageTest : testing::Test {
  MatrixPage page;
  TQorMatrixEdit* decimals = Child<TQorMatrixEdit>(page, "decimals");
  TQorMatrixFractEdit* fractions = Child<TQorMatrixFractEdit>(page, "fractions");

  MatrixPageTest() { page.show(); }
  void Click(const char* button) { Child<QPushButton>(page, button)->click(); }
  [[nodiscard]] QString Text(const char* label) const { return Child<QLabel>(page, label)->text(); }
  // The cell in the first row and column.
  static QLineEdit* Cell(TQorCustomMatrixEdit* editor) {
    editor->setRowEditFocus(0);
    editor->setColEditFocus(0);
    return qobject_cast<QLineEdit*>(QApplication::focusWidget());
  }
};

TEST_F(MatrixPageTest, ShowsTheInverseInBothEditorsAndTakesItBack) {
  EXPECT_EQ(Text("determinant"), "19");
  EXPECT_EQ(Text("rank"), "3");
  Click("inverse");
  for (quint32 row = 0; row < 3; ++row) {
    for (quint32 col = 0; col < 3; ++col) {
      EXPECT_NEAR(static_cast<double>(decimals->Element(row, col) * 19), kAdjugate[row][col],
                  1e-15);
      EXPECT_EQ(decimals->Element(row, col), fractions->Element(row, col));
    }
  }
  const TQorMixedFraction fraction = fractions->FractElement(0, 0);
  EXPECT_EQ(fraction.Num, 12);
  EXPECT_EQ(fraction.Denom, 19);
  Click("undo");
  EXPECT_EQ(Text("determinant"), "19");
  EXPECT_EQ(fractions->Element(0, 0), 2);
  Click("redo");
  EXPECT_LT(fractions->Element(0, 0), 1);
  // By the control itself, behind the back of the page.
  decimals->Undo();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Text("determinant") == "19"; }));
  EXPECT_EQ(fractions->Element(0, 0), 2);
}

TEST_F(MatrixPageTest, TakesWhatIsTypedIntoEitherEditor) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  Enter(Cell(fractions), "7/2");
  EXPECT_EQ(decimals->Element(0, 0), 3.5L);
  EXPECT_EQ(Text("determinant"), "37");
  Click("undo");
  EXPECT_EQ(decimals->Element(0, 0), 2);
  Enter(Cell(decimals), "0.25");
  EXPECT_EQ(fractions->Element(0, 0), 0.25L);
  // A text that is still being typed is not lost, nor does it undo the command.
  Cell(fractions)->selectAll();
  QTest::keyClicks(QApplication::focusWidget(), "4");
  Click("squares");
  EXPECT_EQ(decimals->Element(0, 0), 16);
  EXPECT_EQ(fractions->Element(0, 0), 16);
}

TEST_F(MatrixPageTest, SaysWhatIsWrongAndKeepsTheMatrix) {
  decimals->setMatrix({{1, 2}, {2, 4}});
  ASSERT_TRUE(QTest::qWaitFor([&] { return Text("rank") == "1"; }));
  EXPECT_EQ(Child<QSpinBox>(page, "rows")->value(), 2);
  Click("inverse");
  EXPECT_EQ(Messages(page), "The matrix has no inverse");
  EXPECT_EQ(decimals->Element(1, 1), 4);
  Click("transpose");
  EXPECT_EQ(Messages(page), "");
  page.Open("/nowhere/matrix.csv");
  EXPECT_TRUE(Messages(page).contains("/nowhere/matrix.csv")) << Messages(page).toStdString();
}

TEST_F(MatrixPageTest, OpensFilesAndChangesTheSize) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  file.write("1,2,3\n4,5,6\n");
  file.close();
  page.Open(file.fileName());
  EXPECT_EQ(fractions->Element(1, 2), 6);
  EXPECT_EQ(Text("determinant"), "of square matrices only");
  EXPECT_EQ(Text("rank"), "2");
  Child<QSpinBox>(page, "columns")->setValue(2);
  EXPECT_EQ(Text("determinant"), "-3");
  EXPECT_EQ(fractions->NoOfCols(), 2U);
}

}  // namespace
}  // namespace qorvex::gallery
