// Tables that the user and the program make longer and shorter.

#include <QMenu>
#include <QUndoStack>
#include <functional>
#include <tuple>
#include <vector>

#include "controls/editor_fixture.h"

namespace qorvex {

template <class Editor>
struct Growing : EditorFixture<Editor> {
  Growing() { this->editor->setDecimalPlaces(0); }
};
using EditorTypes =
    testing::Types<TQorVectorEdit, TQorLabelledVectorEdit, TQorMatrixEdit, TQorMatrixFractEdit>;
TYPED_TEST_SUITE(Growing, EditorTypes);

TYPED_TEST(Growing, TakeNewValuesInASpareRow) {
  this->Open(2);
  EXPECT_FALSE(this->Cell(2)->isEnabled());
  this->editor->setCanGrow(true);
  EXPECT_EQ(this->Texts(), "0|1||");
  EXPECT_TRUE(this->Cell(2)->isEnabled());
  EXPECT_FALSE(this->Cell(3)->isEnabled());
  EXPECT_EQ(this->editor->NoOfRows(), 2U);
  this->FocusEdit(2);
  this->Take();
  for (const char* value : {"2", "3", "4"}) this->Enter(value);
  EXPECT_EQ(this->Texts(), "2|3|4|");
  EXPECT_TRUE(this->Cell(3)->hasFocus()) << "the next spare row has come into sight";
  EXPECT_EQ(this->Take().substr(0, 42), this->kIsVector
                                            ? "text 2 2, rows 3, change 2, out 2, current"
                                            : "text 2 0 2, rows 3, change 2 0, out 2 0, c");
  this->Enter("no number");
  EXPECT_EQ(this->editor->NoOfRows(), 5U);
  this->Press(Qt::Key_Escape);
  for (int step = 0; step < 3; ++step) this->editor->Undo();
  EXPECT_EQ(this->Texts(), "0|1||");

  this->editor->setReadOnly(true);
  EXPECT_FALSE(this->Cell(2)->isEnabled());
  this->editor->setReadOnly(false);
  this->FocusEdit(2);
  this->Type("7");
  this->editor->setCanGrow(false);
  EXPECT_EQ(this->Texts(), "0|1|7|") << "what was being typed is not lost";
  this->editor->setCanGrow(true);
  this->FocusEdit(3);
  this->Type("1");
  this->SetRows(4);
  this->Set(3, 5);
  this->Type("2");
  EXPECT_EQ(this->Texts(), "1|7|5|12") << "nor when the program appends a row";
  this->Press(Qt::Key_Return);
  EXPECT_EQ(this->Get(3), 5);
  EXPECT_EQ(this->Get(4), 12);
  this->SetRows(0);
  this->FocusEdit(0);
  this->Enter("6");
  EXPECT_EQ(this->Texts(), "6|||") << "an empty table grows, too";
}

TYPED_TEST(Growing, AppendWhatIsPastedBeyondTheEnd) {
  this->Open(3);
  this->FocusEdit(2);
  EXPECT_FALSE(this->editor->PasteBlock("7\n8"));
  this->editor->setCanGrow(true);
  this->Take();
  EXPECT_FALSE(this->editor->PasteBlock("7\nx"));
  EXPECT_EQ(this->editor->NoOfRows(), 3U);
  this->Take();
  EXPECT_TRUE(this->editor->PasteBlock("7\n8\n\n9"));
  EXPECT_EQ(this->Take(), this->kIsVector ? "rows 6, change 2, change 3, change 5"
                                          : "rows 6, change 2 0, change 3 0, change 5 0");
  EXPECT_TRUE(std::isnan(this->Get(4)));
  this->editor->Undo();
  EXPECT_EQ(this->editor->NoOfRows(), 3U);
  EXPECT_EQ(this->Get(2), 2);
  this->editor->Redo();
  EXPECT_EQ(this->Get(5), 9);
  EXPECT_EQ(this->editor->PasteBlock("1\t2"), !this->kIsVector) << "a matrix gets a column";
}

TYPED_TEST(Growing, LeaveTheRowsOfVirtualModeToTheProgram) {
  std::vector<Extended> kept = {1, 2};
  this->SetCells(4);
  this->SetRows(2);
  this->editor->setVirtualMode(true);
  this->editor->OnGetElement = [&kept](quint32 row, auto...) { return kept.at(row); };
  this->editor->setCanGrow(true);
  this->Show();
  EXPECT_FALSE(this->Cell(2)->isEnabled()) << "nobody would insert the row";
  bool refuse = true;
  auto insert = this->On(&CellPanel::OnInsertRows, [&](quint32 row, quint32 count) {
    this->log << QString("insert %1 %2").arg(row).arg(count);
    if (refuse) return;
    kept.insert(kept.begin() + row, count, 0);
    this->editor->setNoOfRows(static_cast<quint32>(kept.size()));
  });
  const auto store = this->On(&TypeParam::OnSetElement, [&](quint32 row, auto... rest) {
    kept.at(row) = std::get<sizeof...(rest) - 1>(std::tuple(rest...));
  });
  EXPECT_TRUE(this->Cell(2)->isEnabled());
  this->FocusEdit(2);
  this->Enter("5");
  EXPECT_NE(this->Take().find("insert 2 1, refused These values"), std::string::npos);
  EXPECT_EQ(this->Texts(), "1|2||");
  refuse = false;
  this->FocusEdit(1);
  EXPECT_TRUE(this->editor->PasteBlock("3\n4"));
  EXPECT_EQ(kept, (std::vector<Extended>{1, 3, 4}));
  this->editor->InsertRows(0, 2);
  const auto remove = this->On(&CellPanel::OnDeleteRows, [&](quint32 row, quint32 count) {
    kept.erase(kept.begin() + row, kept.begin() + row + count);
    this->editor->setNoOfRows(static_cast<quint32>(kept.size()));
  });
  this->editor->DeleteRows(1, 2);
  EXPECT_EQ(kept, (std::vector<Extended>{0, 3, 4}));
  EXPECT_FALSE(this->editor->CanUndo());
  insert.reset();
  QApplication::processEvents();
  EXPECT_FALSE(this->Cell(3)->isEnabled());
}

TYPED_TEST(Growing, OfferRowsByMenuAndKeys) {
  this->Open(4);
  const auto trigger = [this](const char* text) {
    const std::unique_ptr<QMenu> menu(this->Cell(1)->CreateContextMenu());
    for (QAction* action : menu->actions()) {
      if (action->text().section('\t', 0, 0) == text && action->isEnabled())
        return action->trigger(), true;
    }
    return false;
  };
  this->FocusEdit(1);
  EXPECT_FALSE(trigger("Delete Rows"));
  this->editor->setCanGrow(true);
  EXPECT_TRUE(trigger("Delete Rows"));
  EXPECT_EQ(this->Texts(), "0|2|3|");
  this->editor->setAllowKbdNull(false);
  EXPECT_TRUE(trigger("Insert Rows"));
  EXPECT_EQ(this->Texts(), "0|0|2|3");
  EXPECT_EQ(trigger("Insert Columns"), !this->kIsVector);
  this->FocusEdit(3);
  this->editor->ScrollBottom();
  EXPECT_FALSE(trigger("Delete Rows")) << "the spare row stays";
  EXPECT_EQ(this->editor->NoOfRows(), 4U);
  // As many as are selected.
  this->SetRows(4);
  this->editor->SelectRows(1, 2);
  this->Press(Qt::Key_Minus, Qt::ControlModifier);
  EXPECT_EQ(this->editor->NoOfRows(), 2U);
  this->editor->setProperty("NoOfCols", 2);
  this->editor->SelectCols(0, 1);
  this->Press(Qt::Key_Plus, Qt::ControlModifier);
  EXPECT_EQ(this->editor->NoOfRows(), this->kIsVector ? 4U : 2U) << "or columns, if they are whole";
}

TYPED_TEST(Growing, KeepWhatIsTypedUnlessItsElementMoves) {
  this->Open(3);
  this->FocusEdit(1);
  this->Type("1");
  this->editor->setCanGrow(true);
  this->Type("2");
  this->editor->InsertRows(2, 1);
  this->editor->InsertRows(4, 1);
  this->Type("3");
  this->editor->DeleteRows(2, 1);
  this->editor->setCanGrow(false);
  this->Type("4");
  EXPECT_EQ(this->Texts(), "0|1234|2|");
  EXPECT_EQ(this->Get(1), 1) << "nothing has been committed";
  this->editor->InsertRows(1, 1);
  EXPECT_EQ(this->Get(2), 1234);
  this->editor->setCanGrow(true);
  this->FocusEdit(3);
  this->Press(Qt::Key_Down);
  this->Press(Qt::Key_Down);
  this->Type("5");
  this->editor->InsertRows(0, 1);
  this->Type("6");
  EXPECT_EQ(this->Texts(), "1234|2||56") << "nor is it in the spare row, which only gets lower";
}

TYPED_TEST(Growing, ForgetTheTopOfAFormWhenTheProgramScrolls) {
  for (const auto scroll : {&CellPanel::ScrollTop, &CellPanel::ScrollBottom}) {
    TypeParam form;
    form.setDisplayTopRow(5);
    (form.*scroll)();
    form.setNoOfRows(100);
    EXPECT_EQ(form.DisplayTopRow(), 0U);
  }
}

TYPED_TEST(Growing, BringBackWhatInsertedAndDeletedRowsHadWhenTheyWent) {
  this->Open(3);
  this->editor->DeleteRows(1, 1);
  this->editor->Undo();
  this->Set(1, 7);
  this->editor->Redo();
  this->editor->Undo();
  EXPECT_EQ(this->Texts(), "0|7|2|");
  this->editor->InsertRows(0, 1);
  this->Set(0, 8);
  this->FocusEdit(0);
  this->Type("9");
  this->editor->UndoStack()->undo();
  EXPECT_EQ(this->Texts(), "0|7|2|");
  this->editor->Redo();
  EXPECT_EQ(this->Texts(), "9|0|7|2") << "also what was being typed";
  // What a step takes out of the table counts for the limit, and what is left can still be redone.
  for (quint32 rows = 4; rows < 364; rows += 40) this->editor->InsertRows(rows, 40);
  for (quint32 row = 4; row < 364; ++row) this->Set(row, row);
  while (this->editor->CanUndo()) this->editor->Undo();
  this->editor->setUndoLimit(5000);
  while (this->editor->CanRedo()) this->editor->Redo();
  const quint32 rows = this->editor->NoOfRows();
  EXPECT_TRUE(4 < rows && rows < 364);
  EXPECT_EQ(this->Get(rows - 1), rows - 1);
}

using GrowingMatrix = EditorFixture<TQorMatrixEdit>;

TEST_F(GrowingMatrix, InsertsAndDeletesLinesAnywhere) {
  const TQorFloatMatrix start = {{1, 2, 3}, {4, 5, 6}};
  editor->setAllowKbdNull(false);
  using Change = std::function<void()>;
  const std::pair<Change, TQorFloatMatrix> cases[] = {
      {[&] { editor->InsertRows(0, 1); }, {{0, 0, 0}, {1, 2, 3}, {4, 5, 6}}},
      {[&] { editor->InsertRows(2, 2); }, {{1, 2, 3}, {4, 5, 6}, {0, 0, 0}, {0, 0, 0}}},
      {[&] { editor->InsertCols(1, 2); }, {{1, 0, 0, 2, 3}, {4, 0, 0, 5, 6}}},
      {[&] { editor->InsertCols(3, 1); }, {{1, 2, 3, 0}, {4, 5, 6, 0}}},
      {[&] { editor->DeleteRows(0, 1); }, {{4, 5, 6}}},
      {[&] { editor->DeleteCols(0, 2); }, {{3}, {6}}},
      {[&] { editor->InsertRows(1, 0), editor->DeleteCols(3, 0); }, start},
  };
  const auto same = [](const TQorFloatMatrix& a, const TQorFloatMatrix& b) {
    return std::ranges::equal(a, b, [](auto& x, auto& y) { return std::ranges::equal(x, y); });
  };
  for (const auto& [run, result] : cases) {
    editor->setMatrix(start);
    run();
    EXPECT_TRUE(same(editor->Matrix(), result));
    editor->Undo();
    EXPECT_TRUE(same(editor->Matrix(), start));
    editor->Redo();
    EXPECT_TRUE(same(editor->Matrix(), result));
  }
  editor->setMatrix(start);
  editor->InsertCols(1, 1);
  editor->setColWidth(1, 150);
  editor->Undo();
  editor->Redo();
  EXPECT_EQ(editor->ColWidth(1), 150);
  editor->setMatrix(start);
  EXPECT_MATH_ERROR(editor->InsertRows(3, 1), rsInvalidRow);
  EXPECT_MATH_ERROR(editor->DeleteRows(1, 2), rsInvalidRow);
  EXPECT_MATH_ERROR(editor->InsertCols(4, 1), rsInvalidCol);
  EXPECT_MATH_ERROR(editor->DeleteCols(3, 1), rsInvalidCol);
  EXPECT_THROW(editor->InsertRows(0, 0xFFFFFFFFU), std::length_error);
  EXPECT_TRUE(same(editor->Matrix(), start));
  EXPECT_FALSE(editor->CanUndo());

  // A wide and long block makes an empty matrix.
  editor->setMatrix({});
  editor->setCanGrow(true);
  EXPECT_TRUE(editor->PasteBlock("1\t2\n3"));
  EXPECT_TRUE(same(editor->Matrix(), {{1, 2}, {3, 0}}));
  editor->Undo();
  EXPECT_EQ(editor->NoOfRows() + editor->NoOfCols(), 0U);
  // So do typed values: there is a spare column as long as there is none.
  Show();
  editor->setRowEditFocus(0);
  EXPECT_TRUE(Cell(0)->hasFocus());
  Enter("5");
  Enter("6");
  EXPECT_TRUE(same(editor->Matrix(), {{5}, {6}}));
  editor->Undo();
  editor->Undo();
  EXPECT_TRUE(Cell(0)->isEnabled() && editor->NoOfCols() == 0);
  QApplication::clipboard()->setText("1\t2\n3\t4");
  Press(Qt::Key_V, Qt::ControlModifier);
  EXPECT_TRUE(same(editor->Matrix(), {{1, 2}, {3, 4}}));
  editor->setNoOfCols(0);
  editor->setRowEditFocus(1);
  Enter("7");
  EXPECT_TRUE(same(editor->Matrix(), {{0}, {7}}));
  editor->setNoOfCols(0);
  editor->setCanGrow(false);
  EXPECT_FALSE(Cell(0)->isEnabled());
  // Elements that never got memory cost none.
  editor->setNoOfRows(4'000'000'000U);
  editor->InsertRows(2, 100'000'000);
  editor->DeleteRows(0, 1);
  editor->Undo();
  EXPECT_EQ(editor->NoOfRows(), 4'100'000'000U);
}

using GrowingLabels = EditorFixture<TQorLabelledVectorEdit>;

TEST_F(GrowingLabels, MoveWithTheirRows) {
  editor->setVector({1, 2, 3});
  editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
  for (quint32 row = 0; row < 3; ++row) editor->setLabel(row, QString(QChar('a' + row)));
  const auto labels = [this] {
    QString all;
    for (quint32 row = 0; row < editor->NoOfRows(); ++row) all += editor->Label(row) + '|';
    return all.toStdString();
  };
  editor->InsertRows(1, 1);
  EXPECT_EQ(labels(), "a||b|c|");
  editor->DeleteRows(2, 2);
  EXPECT_EQ(labels(), "a||");
  editor->Undo();
  EXPECT_EQ(labels(), "a||b|c|");
  editor->setLabel(1, "new");
  editor->Undo();
  editor->Redo();
  EXPECT_EQ(labels(), "a|new|b|c|");
  editor->Undo();
  editor->setCanGrow(true);
  editor->setLabelsEditable(true);
  Show();
  auto cells = editor->findChildren<QLineEdit*>();
  cells.removeIf([](QLineEdit* cell) { return qobject_cast<TQorFloatEdit*>(cell) != nullptr; });
  EXPECT_EQ(cells[3]->text(), "*") << "marks the spare row";
  EXPECT_TRUE(cells[3]->isReadOnly()) << "there is no row that could have the label";
  EXPECT_EQ(cells[3]->focusPolicy(), Qt::ClickFocus);
  FocusEdit(3);
  Enter("4");
  EXPECT_TRUE(cells[3]->isReadOnly()) << "the next spare row";
  EXPECT_FALSE(cells[2]->isReadOnly());
  cells[2]->setFocus();
  Enter("d");
  EXPECT_EQ(editor->Label(3), "d");
}

}  // namespace qorvex
