#include "apps/qorvex-gallery/pages/matrix_page.h"

#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryFile>

#include "apps/gallery/page_fixture.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"

namespace qorvex::gallery {
namespace {

struct MatrixPageTest : PageFixture<MatrixPage> {
  TQorMatrixEdit* decimals = &Find<TQorMatrixEdit>("decimals");
  TQorMatrixFractEdit* fractions = &Find<TQorMatrixFractEdit>("fractions");

  [[nodiscard]] std::string Determinant() { return Figure("properties", "Determinant"); }
  [[nodiscard]] std::string Rank() { return Figure("properties", "Rank"); }
  // The first cell of an editor.
  static QLineEdit& Cell(TQorCustomMatrixEdit* editor) {
    editor->setRowEditFocus(0);
    editor->setColEditFocus(0);
    return *qobject_cast<QLineEdit*>(QApplication::focusWidget());
  }
};

TEST_F(MatrixPageTest, ShowsTheInverseInBothEditorsAndUndoesIt) {
  EXPECT_EQ(Determinant(), "21.5");
  EXPECT_EQ(Rank(), "3");
  auto& inverse = Find<TQorMatrixFractEdit>("inverseFractions");
  EXPECT_EQ(inverse.FractElement(0, 0).numerator, 24);
  EXPECT_EQ(inverse.FractElement(0, 0).denominator, 43);
  Click("inverse");
  EXPECT_NEAR(static_cast<double>(inverse.Element(0, 1)), 0.5, 1e-15);
  // The second row of the adjugate begins with -3.5.
  EXPECT_NEAR(static_cast<double>(decimals->Element(1, 0) * 21.5L), -3.5, 1e-15);
  EXPECT_EQ(fractions->Matrix(), decimals->Matrix());
  Click("undo");
  EXPECT_EQ(Determinant(), "21.5");
  EXPECT_EQ(fractions->Element(0, 0), 2);
  Click("redo");
  EXPECT_LT(fractions->Element(0, 0), 1);
  // Directly in the editor.
  decimals->Undo();
  EXPECT_TRUE(QTest::qWaitFor([&] { return Determinant() == "21.5"; }));
  EXPECT_EQ(fractions->Element(0, 0), 2);
}

TEST_F(MatrixPageTest, TakesWhatIsTypedIntoEitherEditor) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
  Enter(Cell(fractions), "7/2");
  EXPECT_EQ(decimals->Element(0, 0), 3.5L);
  EXPECT_EQ(Determinant(), "39.5");
  Click("undo");
  EXPECT_EQ(decimals->Element(0, 0), 2);
  Enter(Cell(decimals), "0.25");
  EXPECT_EQ(fractions->Element(0, 0), 0.25L);
  // A text that is being typed is committed before the command.
  Cell(fractions).selectAll();
  QTest::keyClicks(QApplication::focusWidget(), "4");
  Click("squares");
  EXPECT_EQ(decimals->Element(0, 0), 16);
  EXPECT_EQ(fractions->Element(0, 0), 16);
}

TEST_F(MatrixPageTest, SaysWhatIsWrongAndKeepsTheMatrix) {
  Find<QSpinBox>("rows").setValue(2);
  Find<QSpinBox>("columns").setValue(2);
  ASSERT_TRUE(decimals->PasteBlock("1\t2\n2\t4"));
  EXPECT_EQ(Rank(), "1");
  decimals->Undo();
  EXPECT_EQ(Rank(), "2");
  decimals->Redo();
  EXPECT_EQ(Find<QSpinBox>("rows").value(), 2);
  EXPECT_EQ(Find<QLabel>("noInverse").text(), "none, the matrix is singular");
  Click("inverse");
  EXPECT_EQ(Message(), "The matrix has no inverse");
  EXPECT_EQ(decimals->Element(1, 1), 4);
  const auto why_not = [this](Extended a, Extended d, Extended c = 0) {
    decimals->setMatrix({{a, 0}, {c, d}});
    Click("transpose");
    return Find<QLabel>("noInverse").text().toStdString();
  };
  EXPECT_EQ(why_not(1, kNaN), "none, an element is null");
  EXPECT_EQ(why_not(kInfinity, 1), "none, an element is infinite");
  EXPECT_EQ(why_not(1e-4940L, 1), "none, the matrix is singular") << "zero within the tolerance";
  EXPECT_EQ(why_not(1, 1e-10L, 1e4930L), "none, its elements would be beyond the range");
  Click("transpose");
  EXPECT_EQ(Message(), "");
  page.Open("/nowhere/matrix.csv");
  EXPECT_NE(Message().find("/nowhere/matrix.csv"), std::string::npos) << Message();
}

TEST_F(MatrixPageTest, OpensFilesAndChangesTheSize) {
  QTemporaryFile file;
  ASSERT_TRUE(file.open());
  file.write("1,2,3\n4,5,6\n");
  file.close();
  page.Open(file.fileName());
  EXPECT_EQ(fractions->Element(1, 2), 6);
  EXPECT_EQ(Determinant(), "of square matrices only");
  EXPECT_EQ(Rank(), "2");
  Find<QSpinBox>("columns").setValue(2);
  EXPECT_EQ(Determinant(), "-3");
  EXPECT_EQ(fractions->NoOfCols(), 2U);
}

}  // namespace
}  // namespace qorvex::gallery
