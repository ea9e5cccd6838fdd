// Undo when memory runs out, and when handlers change tables in the midst of a step.

#include <QCoreApplication>
#include <QUndoStack>
#include <memory>

#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "support/failing_allocation.h"

namespace qorvex {

// Calls a function while no large array can be allocated.
template <class Function>
void RunShortOfMemory(Function function) {
  testing::largest_allocation = 10'000;
  function();
  testing::largest_allocation = SIZE_MAX;
}

TEST(HistoryHazards, RunsOutOfMemory) {
  QUndoStack stack;
  TQorMatrixEdit editor;
  QStringList refused;
  QObject::connect(&editor, &CellPanel::OnBlockRefused, &editor,
                   [&](const QString& why) { refused << why; });
  editor.setNoOfCols(1000);
  editor.setNoOfRows(2);
  for (QUndoStack* const used : {&stack, static_cast<QUndoStack*>(nullptr)}) {
    editor.setUndoStack(used);
    editor.InsertRows(1, 1);
    editor.Undo();
    RunShortOfMemory([&] { editor.Redo(); });
    EXPECT_EQ(editor.NoOfRows(), 2);
    EXPECT_FALSE(editor.CanUndo() || editor.CanRedo());
  }
  EXPECT_EQ(refused.size(), 2);
  // The second row of the block needs memory.
  editor.setNoOfRows(10);
  editor.setElement(9, 0, 5);
  editor.setNoOfRows(2000);
  editor.Select({9, 1, 0, 1});
  RunShortOfMemory([&] { EXPECT_FALSE(editor.PasteBlock("7\n8")); });
  EXPECT_EQ(editor.Element(9, 0), 5);
  EXPECT_EQ(refused.size(), 3);
}

TEST(HistoryHazards, StopsAStepWhoseTableAHandlerResizes) {
  TQorMatrixEdit editor;
  editor.setNoOfRows(4);
  editor.setNoOfCols(2);
  editor.setCanGrow(true);
  const auto paste = [&editor] {
    editor.Select({3, 1, 0, 1});
    return editor.PasteBlock("1\t2\t3\n4\t5\t6");
  };
  EXPECT_TRUE(paste());
  editor.Undo();
  QObject::connect(&editor, &TQorMatrixEdit::OnNoRowsChange, &editor,
                   [&editor] { editor.setNoOfCols(1); });
  editor.Redo();
  EXPECT_EQ(editor.NoOfRows(), 5);
  EXPECT_EQ(editor.NoOfCols(), 1);
  editor.setNoOfRows(4);
  editor.setNoOfCols(2);
  EXPECT_FALSE(paste());
  EXPECT_EQ(editor.NoOfCols(), 1);
  EXPECT_FALSE(editor.CanUndo());
}

TEST(HistoryHazards, StartsNothingOnAStackInTheMidstOfAStep) {
  // The second editor is as long as the first one.
  QUndoStack stack;
  TQorVectorEdit first;
  TQorVectorEdit second;
  for (TQorVectorEdit* const editor : {&first, &second}) {
    editor->setNoOfRows(3);
    editor->setUndoStack(&stack);
    editor->Fill(1);
  }
  QObject::connect(&first, &TQorVectorEdit::OnRowNoChange, &second, [&](quint32 rows) {
    first.Undo();
    const quint32 before = second.NoOfRows();
    if (rows > before) second.InsertRows(before, rows - before);
    if (rows < before) second.DeleteRows(rows, before - rows);
  });
  first.InsertRows(1, 1);
  EXPECT_EQ(second.NoOfRows(), 4);
  EXPECT_EQ(first.Element(0), 1) << "nothing is undone meanwhile";
  const auto move_through = [&] {
    while (stack.canUndo()) stack.undo();
    EXPECT_EQ(first.NoOfRows(), 3);
    EXPECT_EQ(second.NoOfRows(), 3);
    while (stack.canRedo()) stack.redo();
    EXPECT_EQ(first.NoOfRows(), 4);
    EXPECT_EQ(second.NoOfRows(), 4);
    EXPECT_EQ(stack.index(), stack.count());
  };
  move_through();
  move_through();
  EXPECT_TRUE(first.CanUndo()) << "only the second one has no place for its steps";
}

TEST(HistoryHazards, KeepsAStackWhoseOwnerForgetsInTheMidstOfAStep) {
  TQorVectorEdit owner;
  TQorVectorEdit guest;
  owner.setNoOfRows(3);
  guest.setNoOfRows(3);
  guest.setUndoStack(owner.UndoStack());
  guest.InsertRows(1, 1);
  const auto handler = std::make_unique<QObject>();
  QObject::connect(&guest, &TQorVectorEdit::OnRowNoChange, handler.get(), [&] {
    if (guest.NoOfRows() != 3) return;
    guest.setNoOfRows(7);
    owner.setNoOfRows(8);
  });
  guest.Undo();
  EXPECT_EQ(guest.NoOfRows(), 7);
  EXPECT_FALSE(guest.CanUndo() || guest.CanRedo());
  EXPECT_EQ(guest.UndoStack()->count(), 0);
}

TEST(HistoryHazards, TellsAllEditorsOnAStackWhatCanBeUndone) {
  QUndoStack stack;
  TQorVectorEdit first;
  TQorVectorEdit second;
  for (TQorVectorEdit* const editor : {&first, &second}) {
    editor->setNoOfRows(3);
    editor->setUndoStack(&stack);
  }
  QStringList told;
  QObject::connect(&second, &CellPanel::OnCanUndoChange, &second,
                   [&](bool can) { told << (can ? "undo" : "no undo"); });
  QObject::connect(&second, &CellPanel::OnCanRedoChange, &second,
                   [&](bool can) { told << (can ? "redo" : "no redo"); });
  first.Fill(1);
  first.setNoOfRows(4);
  EXPECT_EQ(told.join(", ").toStdString(), "undo, no undo");
  told.clear();
  // A handler that undoes at once.
  auto handler = std::make_unique<QObject>();
  QObject::connect(&second, &CellPanel::OnCanUndoChange, handler.get(), [&](bool can) {
    if (can) second.Undo();
  });
  second.Fill(2);
  EXPECT_EQ(told.join(", ").toStdString(), "undo, no undo, redo");
  EXPECT_TRUE(second.CanRedo());
  // A handler that forgets the step which the stack redoes.
  handler = std::make_unique<QObject>();
  first.InsertRows(0, 1);
  stack.undo();
  told.clear();
  QObject::connect(&first, &TQorVectorEdit::OnRowNoChange, handler.get(), [&](quint32 rows) {
    if (rows == 5) first.setNoOfRows(4);
  });
  stack.redo();
  QCoreApplication::processEvents();
  EXPECT_EQ(told.join(", ").toStdString(), "no redo");
}

TEST(HistoryHazards, CountsTheLabelsOfDeletedRows) {
  TQorLabelledVectorEdit editor;
  editor.setLabelType(TQorLabelledVectorEdit::ltCustom);
  editor.setNoOfRows(30);
  for (quint32 row = 0; row < 30; ++row) editor.setLabel(row, QString(10'000, 'x'));
  // Three steps of five labels do not fit.
  editor.setUndoLimit(300'000);
  for (int step = 0; step < 3; ++step) editor.DeleteRows(0, 5);
  for (int step = 0; step < 3; ++step) editor.Undo();
  EXPECT_EQ(editor.NoOfRows(), 25);
  editor.Sort();
  editor.Sort();
  editor.Undo();
  EXPECT_FALSE(editor.CanUndo()) << "a command keeps all labels";
}

TEST(HistoryHazards, KeepsItsStepsOnTheStackThatItHas) {
  TQorVectorEdit editor;
  editor.setNoOfRows(3);
  editor.Fill(1);
  editor.setUndoStack(nullptr);
  EXPECT_TRUE(editor.CanUndo());
}

}  // namespace qorvex
