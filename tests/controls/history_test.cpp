// Undo and redo of many steps, on the editor's own stack and on one of the form.

#include <QAction>
#include <QSignalSpy>
#include <QUndoStack>
#include <memory>

#include "controls/editor_fixture.h"

namespace qorvex {

template <class Editor>
struct History : EditorFixture<Editor> {
  History() { this->editor->setDecimalPlaces(0); }

  void TypeInto(quint32 edit, const char* text) {
    this->FocusEdit(edit);
    this->Enter(text);
  }
  void Undo() { this->Press(Qt::Key_Z, Qt::ControlModifier); }
  void Redo() { this->Press(Qt::Key_Y, Qt::ControlModifier); }
};
using EditorTypes =
    testing::Types<TQorVectorEdit, TQorLabelledVectorEdit, TQorMatrixEdit, TQorMatrixFractEdit>;
TYPED_TEST_SUITE(History, EditorTypes);

TYPED_TEST(History, UndoesStepsOfEveryKindInOrder) {
  this->Open(4);
  QStringList can;
  QObject::connect(this->editor, &CellPanel::OnCanUndoChange, this->editor,
                   [&can](bool on) { can << (on ? "undo" : "no undo"); });
  QObject::connect(this->editor, &CellPanel::OnCanRedoChange, this->editor,
                   [&can](bool on) { can << (on ? "redo" : "no redo"); });
  this->TypeInto(1, "7");
  EXPECT_TRUE(this->editor->PasteBlock("8\n9"));
  this->editor->LinearTransform(2, 0);
  this->editor->InsertRows(0, 1);
  this->editor->DeleteRows(1, 2);
  const char* const states[] = {"0|1|2|3",    "0|7|2|3",  "0|7|8|9",
                                "0|14|16|18", "|0|14|16", "|16|18|"};
  for (int step = 5; step >= 0; --step) {
    EXPECT_EQ(this->Texts(), states[step]);
    if (step > 0) this->Undo();
  }
  EXPECT_FALSE(this->editor->CanUndo());
  for (int step = 1; step <= 5; ++step) {
    this->Redo();
    EXPECT_EQ(this->Texts(), states[step]);
  }
  for (int step = 5; step > 2; --step) this->Undo();
  this->TypeInto(0, "5");
  EXPECT_FALSE(this->editor->CanRedo()) << "a new step takes the place of those that were undone";
  EXPECT_EQ(can.join(", ").toStdString(), "undo, redo, no undo, undo, no redo, redo, no redo");
}

TYPED_TEST(History, RaisesTheEventsOfElementsOnceTheyAreRestored) {
  this->Open(4);
  this->TypeInto(1, "7");
  EXPECT_TRUE(this->editor->PasteBlock("8\n9"));
  QSignalSpy undone(this->editor, &CellPanel::OnUndo);
  auto handler = this->On(&TypeParam::OnChange, [this] {
    EXPECT_EQ(this->Get(3), 3) << "all elements are there before the first event";
  });
  this->Take();
  this->editor->Undo();
  EXPECT_EQ(this->Take(), this->kIsVector ? "change 2, change 3" : "change 2 0, change 3 0");
  EXPECT_EQ(undone.count(), 1);
  // A handler may change elements and run commands.
  handler = this->On(&TypeParam::OnChange, [this] { this->editor->Sqr(); });
  this->editor->Undo();
  EXPECT_EQ(this->Texts(), "0|1|4|9");
  handler.reset();
  this->editor->Undo();
  EXPECT_EQ(this->Texts(), "0|1|2|3");
  // One that is told of a new size in the midst of a step runs a command that has no place in the
  // order of steps.
  this->editor->InsertRows(4, 1);
  const auto square = [this] { this->editor->Sqr(); };
  if constexpr (TestFixture::kIsVector) {
    handler = this->On(&TypeParam::OnRowNoChange, square);
  } else {
    handler = this->On(&TypeParam::OnNoRowsChange, square);
  }
  this->editor->Undo();
  EXPECT_EQ(this->Texts(), "0|1|4|9");
  EXPECT_FALSE(this->editor->CanUndo() || this->editor->CanRedo());
}

TYPED_TEST(History, ForgetsCommandsWhenTheProgramSetsAnElement) {
  this->Open(4);
  this->TypeInto(0, "5");
  this->editor->Sqr();
  this->TypeInto(1, "7");
  this->Set(3, 1);
  this->Undo();
  EXPECT_EQ(this->Texts(), "25|1|4|1") << "what was typed later can be undone";
  EXPECT_FALSE(this->editor->CanUndo());
  this->Redo();
  EXPECT_EQ(this->Texts(), "25|7|4|1");
  this->editor->Sqr();
  this->editor->Undo();
  this->Set(3, 2);
  EXPECT_FALSE(this->editor->CanRedo());
  EXPECT_TRUE(this->editor->CanUndo());
  this->SetRows(5);
  EXPECT_FALSE(this->editor->CanUndo());
}

TYPED_TEST(History, KeepsToItsLimit) {
  this->Open(300);
  for (const char* value : {"5", "6", "7"}) this->TypeInto(0, value);
  this->editor->setUndoLimit(1);
  this->editor->Undo();
  EXPECT_EQ(this->Get(0), 6);
  EXPECT_FALSE(this->editor->CanUndo()) << "only the newest step is kept";
  // Room for one command on all elements and a little more.
  this->editor->setUndoLimit(300 * 16 + 2000);
  for (int i = 0; i < 3; ++i) this->editor->LinearTransform(1, 1);
  this->TypeInto(0, "1");
  for (int i = 0; i < 9; ++i) this->editor->Undo();
  EXPECT_EQ(this->Get(1), 3);
  this->editor->setUndoLimit(0);
  EXPECT_FALSE(this->editor->CanRedo());
  this->TypeInto(0, "8");
  this->editor->Sqr();
  EXPECT_FALSE(this->editor->CanUndo());
  EXPECT_EQ(this->Get(0), 64);
}

TYPED_TEST(History, LeavesItsKeysToTheApplicationWhenThereIsNothingToUndo) {
  this->Open(4);
  QAction undo;
  undo.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Z));
  this->window->addAction(&undo);
  QSignalSpy undone(&undo, &QAction::triggered);
  this->FocusEdit(0);
  this->Undo();
  EXPECT_EQ(undone.count(), 1);
  this->Enter("7");
  this->Undo();
  EXPECT_EQ(this->Get(0), 0);
  EXPECT_EQ(undone.count(), 1);
  // A text that is being typed has its own undo.
  this->editor->setUndoLimit(0);
  this->Type("8");
  this->Undo();
  EXPECT_EQ(undone.count(), 1);
  this->Press(Qt::Key_Escape);
  this->editor->setReadOnly(true);
  this->Undo();
  EXPECT_EQ(undone.count(), 2);
}

TYPED_TEST(History, SharesAStackOfTheForm) {
  this->Open(3);
  auto stack = std::make_unique<QUndoStack>();
  auto second = std::make_unique<TypeParam>(this->window.get());
  second->setNoOfRows(3);
  second->setProperty("NoOfCols", 1);
  this->TypeInto(0, "5");
  this->editor->setUndoStack(stack.get());
  second->setUndoStack(stack.get());
  EXPECT_FALSE(this->editor->CanUndo()) << "the steps so far are gone";
  this->TypeInto(0, "6");
  second->LinearTransform(0, 4);
  this->TypeInto(1, "7");
  EXPECT_EQ(stack->undoText(), "Typing");
  this->Take();
  stack->undo();
  EXPECT_EQ(this->Take(), this->kIsVector ? "change 1" : "change 1 0");
  EXPECT_EQ(this->Texts(), "6|1|2|");
  this->Undo();
  EXPECT_EQ(this->Texts(), "6|1|2|") << "the last change was made in the other editor";
  stack->setIndex(3);
  EXPECT_EQ(this->Texts(), "6|7|2|");

  // Steps of an editor that is gone, or has forgotten them, have no effect.
  second.reset();
  stack->undo();
  this->Undo();
  EXPECT_EQ(this->Texts(), "5|1|2|");
  EXPECT_FALSE(this->editor->CanUndo());
  this->SetRows(2);
  EXPECT_FALSE(this->editor->CanRedo());
  while (stack->canRedo()) stack->redo();
  EXPECT_EQ(this->Texts(), "5|1||");
  stack.reset();
  this->TypeInto(0, "8");
  this->Undo();
  EXPECT_EQ(this->Texts(), "5|1||");
  // The stack may be the one that lives longer.
  stack = std::make_unique<QUndoStack>();
  this->editor->setUndoStack(stack.get());
  this->TypeInto(0, "8");
  this->window.reset();
  stack->undo();
  EXPECT_EQ(stack->count(), 0);
}

TYPED_TEST(History, CommitsWhatIsTypedBeforeAnUndoOfTheFormMovesIt) {
  this->Open(4);
  this->editor->InsertRows(0, 1);
  this->FocusEdit(2);
  this->Type("9");
  this->editor->UndoStack()->undo();
  EXPECT_EQ(this->Texts(), "0|9|2|3");
}

}  // namespace qorvex
