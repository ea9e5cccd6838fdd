#include <QTextDocumentFragment>
#include <QToolTip>
#include <QTranslator>

#include "controls/editor_fixture.h"
#include "qorvex/base_controls/translation.h"

namespace qorvex {

using BlockPaste = EditorFixture<TQorVectorEdit>;

TEST_F(BlockPaste, FillsTheVectorFromTheFocusedCellAndIsUndoneInOneStep) {
  Open(6);
  editor->setDisplayTopRow(1);
  editor->setEditFocus(1);
  Take();
  QApplication::clipboard()->setText("20\r\n3\r\n\r\n");
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_EQ(Take(), "change 2, null 4, change 4") << "row 3 was 3 already";
  EXPECT_EQ(Texts(), "1.0000|20.0000|3.0000|");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(Take(), "change 2, change 4");
  EXPECT_EQ(Texts(), "1.0000|2.0000|3.0000|4.0000");
  Press(Qt::Key_Y, Qt::ControlModifier);
  EXPECT_EQ(Texts(), "1.0000|20.0000|3.0000|");
  Press(Qt::Key_Z, Qt::ControlModifier);

  // What is being typed is taken back by the cell itself, what was typed by the editor.
  Type("77");
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_NE(Cell(1)->text(), "77");
  Press(Qt::Key_A, Qt::ControlModifier);
  Enter("88");
  EXPECT_EQ(editor->Element(2), 88);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(editor->Element(2), 2);
  editor->setElement(0, 5);
  EXPECT_TRUE(editor->CanRedo()) << "another element has nothing to do with it";
  editor->setNoOfRows(7);
  EXPECT_FALSE(editor->CanRedo());
  EXPECT_TRUE(editor->PasteBlock(""));
  EXPECT_FALSE(editor->CanUndo()) << "nothing has changed";
}

TEST_F(BlockPaste, RefusesAWholeTextWithAReason) {
  Open(4);
  editor->setEditFocus(1);
  Take();
  const auto expect_refusal = [this](const char* text, const char* message) {
    EXPECT_FALSE(editor->PasteBlock(text));
    EXPECT_EQ(Take(), std::string("refused ") + message);
    EXPECT_EQ(QTextDocumentFragment::fromHtml(QToolTip::text()).toPlainText(), message);
    EXPECT_TRUE(QToolTip::text() == message || Qt::mightBeRichText(QToolTip::text()));
  };
  expect_refusal("5\n<b>&amp;", "Row 3: \"<b>&amp;\" is not a number.");
  expect_refusal("1\n2\n3\n4", "The block does not fit. Its rows: 4, rows from here on: 3.");
  expect_refusal("1\t2", "The block does not fit. Its columns: 2, columns from here on: 1.");
  editor->setAllowKbdNull(false);
  expect_refusal("1\n\n2", "Row 3: A number is missing.");
  editor->setReadOnly(true);
  expect_refusal("1\n2", "These values cannot be changed.");
  EXPECT_EQ(Texts(), "0.0000|1.0000|2.0000|3.0000");
}

TEST_F(BlockPaste, CopiesEveryDigitAndTakesItBack) {
  const TQorFloatVector values = {1 / 3.0L, -1e-4000L, 12345678.9L, kNaN};
  editor->setVector(values);
  editor->setLocale(QLocale(QLocale::German));
  Show();
  editor->setEditFocus(0);
  Press(Qt::Key_C, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(QApplication::clipboard()->text(), "0,33333333333333333334\n-1e-4000\n12345678,9\n\n");
  editor->Fill(0);
  EXPECT_TRUE(editor->PasteBlock(QApplication::clipboard()->text()));
  const TQorFloatVector pasted = editor->Vector();
  EXPECT_TRUE(std::equal(values.begin(), values.begin() + 3, pasted.begin()));
  EXPECT_TRUE(std::isnan(pasted[3]));
  editor->setVirtualMode(true);
  editor->setNoOfRows(4'000'000'000U);
  Take();
  editor->CopyAll();
  EXPECT_EQ(Take(), "refused Too many values to copy: 4000000000.");
  editor->setNoOfRows(4);
  editor->CopyRows(2, 99);
  EXPECT_EQ(QApplication::clipboard()->text(), "2\n3\n");
}

#ifdef QORVEX_HAS_TRANSLATIONS
TEST_F(BlockPaste, SpeaksGerman) {
  Open(4);
  editor->setDecimalPlaces(1);
  EXPECT_FALSE(InstallTranslation(QLocale(QLocale::Zulu)));
  ASSERT_TRUE(InstallTranslation(QLocale(QLocale::German, QLocale::Austria)));
  QApplication::processEvents();
  EXPECT_EQ(Cell(1)->accessibleName(), "Zeile 2");
  EXPECT_EQ(Texts(), "0.0|1.0|2.0|3.0") << "numbers go by the locale of the widget";
  EXPECT_FALSE(editor->PasteBlock("1\nx"));
  EXPECT_EQ(Take(), "refused Zeile 2: „x“ ist keine Zahl.");
  delete QApplication::instance()->findChild<QTranslator*>();
}
#endif

}  // namespace qorvex
