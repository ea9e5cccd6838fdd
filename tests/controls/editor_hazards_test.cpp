// Editors under unusual conditions: handlers that change them, inactive windows, and texts that are
// not typed.

#include <algorithm>

#include "controls/editor_fixture.h"

namespace qorvex {

using EditorHazards = EditorFixture<TQorVectorEdit>;

TEST_F(EditorHazards, AKeyAfterTheBarLeavesTheCellAndComesBack) {
  Open(10);
  editor->setEditFocus(3);
  Bar()->triggerAction(QAbstractSlider::SliderToMaximum);
  Take();
  Press(Qt::Key_Return);
  EXPECT_EQ(Take(), "out 9, current 3 9, in 9");
  // A whole page, however coarse the bar is.
  editor->setVirtualMode(true);
  editor->setNoOfRows(4'000'000'000U);
  editor->ScrollTop();
  Bar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_EQ(editor->DisplayTopRow(), 4U);
}

TEST_F(EditorHazards, HandlersThatChangeTheVectorLoseNothing) {
  editor->setVector({0, 1, 2, 3, -1});
  Show();
  auto handler = On(&TQorVectorEdit::OnChange, [this](quint32 row) {
    if (row == 1) editor->Sort();
  });
  EXPECT_TRUE(editor->PasteBlock("10\n20"));
  EXPECT_TRUE(std::ranges::equal(editor->Vector(), TQorFloatVector{-1, 2, 3, 10, 20}));
  handler.reset();
  editor->Undo();
  EXPECT_TRUE(std::ranges::equal(editor->Vector(), TQorFloatVector{10, 20, 2, 3, -1}));

  // A sum that a handler keeps in the last row does not stand in the way of the user's undo.
  handler = On(&TQorVectorEdit::OnChange,
               [this] { editor->setElement(4, editor->Element(0) + editor->Element(1)); });
  editor->setEditFocus(0);
  Enter("1");
  EXPECT_EQ(editor->Element(4), 21);
  Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(editor->Element(4), 30);
  Press(Qt::Key_Z, Qt::ControlModifier | Qt::ShiftModifier);
  EXPECT_EQ(editor->Element(4), 21);

  // What is typed is committed before rows are checked: the handler shortens the vector.
  handler = On(&TQorVectorEdit::OnChange, [this] { editor->setNoOfRows(2); });
  Type("5");
  EXPECT_MATH_ERROR(editor->SwapElements(0, 4), rsInvalidRow);

  // A handler of the number of rows finds the new elements.
  handler = On(&TQorVectorEdit::OnRowNoChange, [this] { EXPECT_EQ(editor->Element(2), 9); });
  editor->setVector({7, 8, 9});
}

TEST_F(EditorHazards, TheProgramMayStoreAnotherValueOrFewerRows) {
  editor->setNoOfRows(4'000'000'000U);
  editor->setVirtualMode(true);
  Extended kept = 1;
  QObject::connect(editor, &TQorVectorEdit::OnSetElement, editor,
                   [&kept](quint32, Extended value) { kept = std::min(value, 10.0L); });
  editor->OnGetElement = [&kept](quint32) { return kept; };
  Show();
  editor->setEditFocus(0);
  Enter("99");
  EXPECT_EQ(Cell(0)->text(), "10.0000");
  editor->OnGetElement = [this](quint32 row) { return editor->setNoOfRows(2), Extended(row); };
  editor->Redisplay();
  EXPECT_EQ(Texts(), "0.0000|1.0000||");
}

TEST_F(EditorHazards, AWindowThatIsLeftAndComesBackIsOneEntry) {
  Open(10);
  editor->setDisplayTopRow(6);
  editor->setEditFocus(3);
  QWidget second;
  const auto leave = [&] {
    Take();
    second.show();
    second.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&second));
  };
  const auto come_back = [&] {
    window->activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(window.get()));
  };
  Type("7");
  leave();
  EXPECT_EQ(Take(), "");
  come_back();
  EXPECT_EQ(Take(), "");
  leave();
  editor->setNoOfRows(3);
  EXPECT_EQ(Take(), "change 9, out 9, top 0, current 9 2, after 0, rows 3");
  come_back();
  EXPECT_EQ(Take(), "in 2");
  Type("8");
  Take();
  window->hide();
  EXPECT_EQ(Take(), "change 2") << "what is typed on a page that is turned is not lost";
}

}  // namespace qorvex
