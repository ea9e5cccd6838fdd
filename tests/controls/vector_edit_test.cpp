#include <cmath>
#include <functional>
#include <memory>
#include <tuple>

#include "controls/editor_fixture.h"

namespace qorvex {

using VectorEdit = EditorFixture<TQorVectorEdit>;

TEST_F(VectorEdit, RaisesEventsInOrder) {
  Open(10);
  const auto press = [this](Qt::Key key) { return [=, this] { Press(key, Qt::ControlModifier); }; };
  const std::tuple<const char*, std::function<void()>, const char*> steps[] = {
      {"a program scrolls", [&] { editor->setDisplayTopRow(2); }, "top 2, current 0 2, after 2"},
      {"the same again", [&] { editor->setDisplayTopRow(2); }, ""},
      {"beyond the end", [&] { editor->setDisplayTopRow(99); }, "top 6, current 2 6, after 6"},
      {"beyond the end again", [&] { editor->setDisplayTopRow(99); }, ""},
      {"more rows up than there are", [&] { editor->ScrollUp(7); }, ""},
      {"six rows up", [&] { editor->ScrollUp(6); }, "top 0, current 6 0, after 0"},
      {"the focus comes", [&] { Cell(0)->setFocus(); }, "in 0"},
      {"Enter", [&] { Press(Qt::Key_Return); }, "out 0, current 0 1, in 1"},
      {"Ctrl+Down", press(Qt::Key_Down), "out 1, current 1 2, in 2"},
      {"typing", [&] { Type("7"); }, "text 2 7"},
      {"scrolling while typing", [&] { editor->ScrollDown(1); },
       "change 2, top 1, current 2 3, after 1"},
      {"keypad Enter", [&] { Press(Qt::Key_Enter, Qt::KeypadModifier); },
       "out 3, current 3 4, in 4"},
      {"down at the last cell", press(Qt::Key_Down), "out 4, top 2, current 4 5, after 2, in 5"},
      {"Ctrl+Shift+Up", [&] { Press(Qt::Key_Up, Qt::ControlModifier | Qt::ShiftModifier); }, ""},
      {"a row to the focus", [&] { editor->setCurrentRow(8); }, "top 5, current 5 8, after 5"},
      {"a row of the first page", [&] { editor->setCurrentRow(1); }, "top 1, current 8 4, after 1"},
      {"another cell", [&] { editor->setEditFocus(0); }, "out 4, current 4 1, in 1"},
      {"up at the first cell", press(Qt::Key_Up), "out 1, top 0, current 1 0, after 0, in 0"},
      {"up at the first row", press(Qt::Key_Up), ""},
      {"a wheel notch", [&] { TurnWheel(Cell(0), -120); }, "top 1, current 0 1, after 1"},
      {"to the end", [&] { editor->ScrollBottom(); }, "top 6, current 1 6, after 6"},
      {"the focus goes", [&] { other->setFocus(); }, "out 6"},
  };
  for (const auto& [action, run, events] : steps) {
    SCOPED_TRACE(action);
    run();
    EXPECT_EQ(Take(), events);
    EXPECT_EQ(Bar()->value(), static_cast<int>(editor->DisplayTopRow()));
  }
  EXPECT_EQ(editor->Element(2), 7);
}

TEST_F(VectorEdit, KeepsTheFocusOnAnElementThatStays) {
  Open(10);
  editor->setDisplayTopRow(6);
  editor->setEditFocus(3);
  // Handlers run in the midst of it, and find every element that they are told of.
  auto reader = std::make_unique<QObject>();
  for (auto signal : {&TQorVectorEdit::OnCellExit, &TQorVectorEdit::OnCellEnter}) {
    QObject::connect(editor, signal, reader.get(),
                     [this](quint32 row) { EXPECT_EQ(editor->Element(row), row); });
  }
  Take();
  editor->setNoOfRows(3);
  EXPECT_EQ(Take(), "out 9, top 0, current 9 2, after 0, in 2, rows 3");
  EXPECT_EQ(Texts(), "0.0000|1.0000|2.0000|");
  reader.reset();
  editor->setNoOfRows(0);
  EXPECT_EQ(Take(), "out 2, current 2 0, rows 0");
  editor->setNoOfRows(8);
  editor->setElement(5, 5.5L);
  editor->setDisplayTopRow(2);
  editor->setEditFocus(3);
  Type("6");
  Take();
  editor->setNoOfEdits(2);
  EXPECT_EQ(Take(), "change 5, out 5, current 5 3, in 3");
  EXPECT_EQ(Texts(), "0.0000|0.0000");
  EXPECT_EQ(editor->Element(5), 6);
  editor->setNoOfEdits(300);
  EXPECT_EQ(editor->NoOfEdits(), 255);
  EXPECT_EQ(editor->DisplayTopRow(), 0U);
  editor->setNoOfEdits(-1);
  EXPECT_EQ(editor->NoOfEdits(), 0);
  editor->ScrollBottom();
  editor->setNoOfEdits(4);
  EXPECT_EQ(Texts(), "0.0000|6.0000|0.0000|0.0000");
}

TEST_F(VectorEdit, TheBarScrollsWithoutMovingTheCurrentRow) {
  Open(10);
  editor->setEditFocus(0);
  Type("5");
  Take();
  // The arrow is at the end of the bar.
  QTest::mouseClick(Bar(), Qt::LeftButton, {}, Bar()->rect().bottomRight() - QPoint(3, 3));
  EXPECT_EQ(Take(), "change 0, out 0, top 1, after 1") << "the typed text belongs to the old row";
  EXPECT_EQ(editor->Element(0), 5);
  EXPECT_EQ(editor->CurrentRow(), 0U);
  Bar()->triggerAction(QAbstractSlider::SliderPageStepAdd);
  EXPECT_EQ(Take(), "top 5, after 5");
  Press(Qt::Key_Down);
  EXPECT_EQ(Take(), "top 6, after 6");
  Bar()->setValue(4);
  EXPECT_EQ(Take(), "top 4, after 4") << "the bar's own menu and assistive programs set the value";
  editor->ScrollTop();
  EXPECT_EQ(Take(), "top 0, after 0") << "the editor does not follow its own moves of the bar";
}

TEST_F(VectorEdit, CommandsApplyTheRoutinesAndCanBeUndone) {
  const TQorFloatVector values = {4, 0.25L, 16};
  TQorFloatVector mine = {4, 0.25L, 16};
  editor->setVector(mine);
  mine[0] = 9;
  editor->Vector()[1] = 9;
  EXPECT_EQ(Take(), "rows 3");
  Show();
  const std::tuple<const char*, std::function<void()>, TQorFloatVector> commands[] = {
      {"Clear", [&] { editor->Clear(); }, {0, 0, 0}},
      {"Fill", [&] { editor->Fill(3); }, {3, 3, 3}},
      {"Invert", [&] { editor->Invert(); }, {0.25L, 4, 0.0625L}},
      {"Sqr", [&] { editor->Sqr(); }, {16, 0.0625L, 256}},
      {"Sqrt", [&] { editor->Sqrt(); }, {2, 0.5L, 4}},
      {"Ln", [&] { editor->Ln(); }, {std::log(4.0L), std::log(0.25L), std::log(16.0L)}},
      {"Log10", [&] { editor->Log10(); }, {std::log10(4.0L), std::log10(0.25L), std::log10(16.0L)}},
      {"LinearTransform", [&] { editor->LinearTransform(2, 1); }, {9, 1.5L, 33}},
      {"Sort", [&] { editor->Sort(); }, {0.25L, 4, 16}},
      {"SwapElements", [&] { editor->SwapElements(0, 2); }, {16, 0.25L, 4}},
  };
  for (const auto& [name, run, result] : commands) {
    SCOPED_TRACE(name);
    run();
    EXPECT_TRUE(std::ranges::equal(editor->Vector(), result));
    EXPECT_EQ(Cell(0)->Value(), result[0]);
    editor->Undo();
    EXPECT_TRUE(std::ranges::equal(editor->Vector(), values));
    editor->Redo();
    EXPECT_TRUE(std::ranges::equal(editor->Vector(), result));
    editor->Undo();
    EXPECT_FALSE(editor->CanUndo());
    EXPECT_EQ(Cell(0)->Value(), 4);
  }
  EXPECT_EQ(Take(), "") << "changes by the program raise no events";

  editor->setElement(1, -1);
  EXPECT_FALSE(editor->CanRedo());
  EXPECT_MATH_ERROR(editor->Sqrt(), rsVectorNeg);
  EXPECT_MATH_ERROR(editor->SwapElements(0, 3), rsInvalidRow);
  EXPECT_MATH_ERROR(std::ignore = editor->Element(3), rsInvalidRow);
  EXPECT_MATH_ERROR(editor->setElement(3, 0), rsInvalidRow);
  EXPECT_FALSE(editor->CanUndo());
  EXPECT_FALSE(editor->Updating()) << "an error ends the update";
  editor->setNoOfRows(0);
  EXPECT_MATH_ERROR(std::ignore = editor->Element(0), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(editor->Sqr(), rsVectorIsEmpty);
}

TEST_F(VectorEdit, VirtualModeAsksForWhatItShows) {
  QList<quint32> asked;
  QHash<quint32, Extended> kept;
  QObject::connect(editor, &TQorVectorEdit::OnSetElement, editor,
                   [&kept](quint32 row, Extended value) { kept[row] = value; });
  editor->setNoOfRows(2);
  editor->Fill(8);
  editor->setVirtualMode(true);
  editor->setNoOfRows(4'000'000'000U);
  Show();
  EXPECT_EQ(Texts(), "0.0000|1.0000|2.0000|3.0000") << "without a source rows show their index";
  editor->OnGetElement = [&](quint32 row) {
    asked.append(row);
    return kept.value(row, 2.0L * row);
  };
  editor->ScrollBottom();
  EXPECT_EQ(asked, QList<quint32>({3999999996U, 3999999997U, 3999999998U, 3999999999U}));
  EXPECT_EQ(editor->Element(3'999'999'999U), 7999999998.0L);
  EXPECT_EQ(Bar()->value(), Bar()->maximum());
  Bar()->triggerAction(QAbstractSlider::SliderSingleStepSub);
  EXPECT_EQ(editor->DisplayTopRow(), 3'999'999'995U) << "one row, though the bar is coarser";
  Bar()->triggerAction(QAbstractSlider::SliderSingleStepAdd);
  EXPECT_EQ(editor->DisplayTopRow(), 3'999'999'996U);

  editor->setEditFocus(1);
  Take();
  Type("1.5");
  Press(Qt::Key_Escape);
  Type("12");
  Take();
  Press(Qt::Key_Return);
  EXPECT_EQ(Take(),
            "set 3999999997 12, change 3999999997, out 3999999997, "
            "current 3999999997 3999999998, in 3999999998");
  editor->Sqr();
  editor->Undo();
  EXPECT_EQ(Take(), "set 3999999997 7999999994, change 3999999997")
      << "a command has left the elements alone, so what was typed is taken back";
  editor->setElement(7, 3);
  EXPECT_EQ(Take(), "set 7 3");
  editor->setNoOfRows(3);
  editor->setVirtualMode(false);
  EXPECT_EQ(Texts(), "8.0000|8.0000|0.0000|");
}

TEST_F(VectorEdit, NamesItsCellsForScreenReadersAndMirrors) {
  Open(9);
  editor->setDisplayTopRow(4);
  EXPECT_EQ(Cell(0)->accessibleName(), "Row 5");
  const QRect left = Cell(0)->geometry();
  EXPECT_LT(left.x(), Bar()->x());
  EXPECT_EQ(left.size(), QSize(81, 21));
  EXPECT_EQ(editor->sizeHint(), QSize(81 + Bar()->width(), 4 * 21));
  editor->setLayoutDirection(Qt::RightToLeft);
  EXPECT_GT(Cell(0)->x(), Bar()->x());
  QFont large = editor->font();
  large.setPointSize(40);
  editor->setFont(large);
  EXPECT_GE(Cell(0)->height(), QFontMetrics(large).height());
}

}  // namespace qorvex
