// The selection of an editor: by keys, by the mouse and by program, and what is done with it.

#include <QMenu>
#include <QSignalSpy>

#include "controls/editor_fixture.h"

namespace qorvex {

template <class Editor>
struct SelectionFixture : EditorFixture<Editor> {
  using Base = EditorFixture<Editor>;
  static constexpr Qt::KeyboardModifiers kShift = Qt::ShiftModifier;
  static constexpr Qt::KeyboardModifiers kCtrl = Qt::ControlModifier;

  // The first row and the number of rows, the first column and the number of columns.
  static std::string Text(const TQorCellRange& range) {
    return std::to_string(range.row) + '+' + std::to_string(range.rows) + ' ' +
           std::to_string(range.col) + '+' + std::to_string(range.cols);
  }
  std::string Selected() const { return Text(this->editor->Selection()); }
  std::string Marked() const {
    const QColor mark = this->editor->palette().color(QPalette::Highlight);
    std::string marked;
    for (const TQorCustomEdit* cell : this->Cells()) {
      marked += cell->palette().color(QPalette::Base) == mark ? 'x' : '.';
    }
    return marked;
  }
  QPoint CentreOf(int edit) const { return this->Cell(edit)->geometry().center(); }
  // A drag from a cell or a label to a place in the editor, still pressed at the end.
  void Drag(QWidget* from, QPoint to) {
    QTest::mousePress(from, Qt::LeftButton);
    const QPoint place = from->mapFrom(this->editor, to);
    QMouseEvent event(QEvent::MouseMove, place, from->mapToGlobal(place), Qt::NoButton,
                      Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(from, &event);
  }
  static QString Clipboard() { return QApplication::clipboard()->text(); }
};

// A matrix of 6 x 5 elements, row and column as digits, of which 4 x 3 are in sight.
struct MatrixSelection : SelectionFixture<TQorMatrixEdit> {
  void Open() {
    editor->setDecimalPlaces(0);
    auto matrix = TQorFloatMatrix::WithLength(6);
    for (unsigned row = 0; row < 6; ++row) {
      matrix[row] = TQorFloatVector::WithLength(5);
      for (unsigned col = 0; col < 5; ++col) matrix[row][col] = 10 * row + col;
    }
    editor->setMatrix(matrix);
    Show();
    editor->setRowEditFocus(1);
    editor->setColEditFocus(1);
    Take();
  }
};

TEST_F(MatrixSelection, IsMadeWithKeysAndScrollsWithThem) {
  Open();
  const QSignalSpy changes(editor, &CellPanel::OnSelectionChange);
  const struct {
    Qt::Key key;
    Qt::KeyboardModifiers held;
    const char* selected;
    const char* place;
  } steps[] = {
      {Qt::Key_Right, kShift, "1+1 1+2", "1 2"},
      {Qt::Key_Right, kShift, "1+1 1+3", "1 3"},
      {Qt::Key_Down, kShift, "1+2 1+3", "2 3"},
      {Qt::Key_Home, kShift, "1+2 0+2", "2 0"},
      {Qt::Key_PageDown, kShift, "1+5 0+2", "5 0"},
      {Qt::Key_End, kShift, "1+5 1+4", "5 4"},
      {Qt::Key_Down, kShift, "1+5 1+4", "5 4"},
      {Qt::Key_Home, kShift | kCtrl, "0+2 0+2", "0 0"},
      {Qt::Key_Space, kShift, "0+2 0+5", "0 0"},
      {Qt::Key_Space, kCtrl, "0+6 0+5", "0 0"},
      {Qt::Key_Escape, {}, "0+1 0+1", "0 0"},
      {Qt::Key_End, {}, "0+1 4+1", "0 4"},
      {Qt::Key_End, kCtrl, "5+1 4+1", "5 4"},
      {Qt::Key_PageUp, kShift, "1+5 4+1", "1 4"},
      {Qt::Key_Left, {}, "1+1 3+1", "1 3"},
      {Qt::Key_Home, kCtrl, "0+1 0+1", "0 0"},
      {Qt::Key_Up, {}, "0+1 0+1", "0 0"},
      {Qt::Key_A, kCtrl, "0+6 0+5", "0 0"},
  };
  for (const auto& step : steps) {
    const std::string name =
        QKeySequence(QKeyCombination(step.held, step.key)).toString().toStdString();
    Press(step.key, step.held);
    EXPECT_EQ(Selected(), step.selected) << name;
    const std::string place =
        std::to_string(editor->CurrentRow()) + ' ' + std::to_string(editor->CurrentCol());
    EXPECT_EQ(place, step.place) << name;
    EXPECT_TRUE(qobject_cast<TQorCustomEdit*>(QApplication::focusWidget())) << name;
  }
  EXPECT_EQ(changes.count(), 16) << "one a step, where the selection differs";
  EXPECT_EQ(Marked(), ".xxxxxxxxxxx") << "all but the cell that has the focus";
  other->setFocus();
  editor->setFocus();
  EXPECT_EQ(Selected(), "0+6 0+5") << "it survives another field";
  other->setFocus();
  editor->setColEditFocus(1);
  EXPECT_EQ(Selected(), "0+1 1+1");
  editor->setColEditFocus(0);

  // Elements are selected, not cells; fewer elements leave fewer.
  editor->Select({1, 2, 0, 99});
  EXPECT_EQ(Marked(), "...xxxxxx...");
  editor->ScrollDown(2);
  EXPECT_EQ(Marked(), ".xx.........");
  editor->ScrollUp(1);
  EXPECT_EQ(Marked(), ".xxxxx......");
  editor->setNoOfRows(2);
  EXPECT_EQ(Selected(), "1+1 0+5");
  editor->setNoOfRows(6);
  EXPECT_EQ(Selected(), "1+1 0+5") << "new elements are not selected";
  editor->setNoOfCols(0);
  EXPECT_EQ(Selected(), "0+0 0+0");
  Press(Qt::Key_End, kCtrl | kShift);
  EXPECT_EQ(Marked(), "............");
}

TEST_F(MatrixSelection, IsMadeWithTheMouse) {
  Open();
  QTest::mouseClick(Cell(8), Qt::LeftButton);
  EXPECT_EQ(Selected(), "2+1 2+1");
  QTest::mouseClick(Cell(4), Qt::LeftButton, kShift);
  EXPECT_EQ(Selected(), "1+2 1+2") << "the focus has moved before the press";
  QTest::mouseClick(Cell(6), Qt::LeftButton, kShift);
  EXPECT_EQ(Selected(), "2+1 0+3") << "from the same anchor";
  QTest::mouseClick(Cell(7), Qt::RightButton);
  EXPECT_EQ(Selected(), "2+1 0+3") << "the menu is about the selection";
  QTest::mouseClick(Cell(0), Qt::RightButton);
  EXPECT_EQ(Selected(), "0+1 0+1");

  Drag(Cell(4), CentreOf(11));
  EXPECT_EQ(Selected(), "1+3 1+2");
  EXPECT_EQ(Cell(4)->selectedText(), "") << "the text is not selected by the drag";
  QTest::mouseRelease(Cell(4), Qt::LeftButton);
  Drag(Cell(3), {CentreOf(5).x(), editor->height() + 20});
  EXPECT_TRUE(QTest::qWaitFor([this] { return editor->DisplayTopRow() == 2; }));
  EXPECT_EQ(Selected(), "1+5 0+3") << "scrolled to the last row";
  QTest::mouseRelease(Cell(3), Qt::LeftButton);

  editor->setLayoutDirection(Qt::RightToLeft);
  editor->ScrollTop();
  Drag(Cell(1), {-5, CentreOf(0).y()});
  EXPECT_TRUE(QTest::qWaitFor([this] { return editor->DisplayLeftCol() == 2; }));
  EXPECT_EQ(Selected(), "0+1 1+4") << "the last column is on the left";
}

TEST_F(MatrixSelection, IsCopiedChangedAndUndoneInOneStep) {
  Open();
  editor->setElement(1, 1, 1 / 3.0L);
  Press(Qt::Key_C, kCtrl);
  EXPECT_EQ(Clipboard(), "0.33333333333333333334") << "all digits, without a line end";
  editor->Select({1, 2, 1, 2});
  Press(Qt::Key_X, kCtrl);
  EXPECT_EQ(Clipboard(), "0.33333333333333333334\t12\n21\t22\n");
  EXPECT_EQ(Texts(), "0|1|2|10|||20|||30|31|32");
  EXPECT_EQ(
      Take(),
      "null 1 1, change 1 1, null 1 2, change 1 2, null 2 1, change 2 1, null 2 2, change 2 2");
  Press(Qt::Key_Z, kCtrl);
  EXPECT_EQ(Texts(), "0|1|2|10|0|12|20|21|22|30|31|32");

  // As often as the block covers the selection, or once from its corner on.
  QApplication::clipboard()->setText("7\t8\n");
  editor->Select({0, 2, 1, 4});
  Press(Qt::Key_V, kCtrl);
  EXPECT_EQ(Texts(), "0|7|8|10|7|8|20|21|22|30|31|32");
  EXPECT_EQ(editor->Element(1, 4), 8);
  editor->Undo();
  editor->Select({2, 2, 0, 3});
  Press(Qt::Key_V, kCtrl);
  EXPECT_EQ(Texts(), "0|1|2|10|0|12|7|8|22|30|31|32");
  editor->Undo();
  EXPECT_TRUE(editor->PasteBlock("5"));
  EXPECT_EQ(Texts(), "0|1|2|10|0|12|5|5|5|5|5|5");
  editor->Undo();

  editor->Select({0, 3, 0, 2});
  Press(Qt::Key_D, kCtrl);
  EXPECT_EQ(Texts(), "0|1|2|0|1|12|0|1|22|30|31|32");
  Press(Qt::Key_R, kCtrl);
  EXPECT_EQ(Texts(), "0|0|2|0|0|12|0|0|22|30|31|32");
  editor->Undo();
  Press(Qt::Key_Escape);
  Press(Qt::Key_D, kCtrl);
  Press(Qt::Key_Right);
  Press(Qt::Key_R, kCtrl);
  EXPECT_EQ(Texts(), "0|1|2|0|1|1|0|1|22|30|31|32")
      << "a single cell is filled from the one before";

  editor->CopyCells({5, 9, 3, 9});
  EXPECT_EQ(Clipboard(), "53\t54\n");
  editor->setNoOfRows(0);
  editor->CopyAll();
  EXPECT_FALSE(editor->Copy());
  EXPECT_EQ(Clipboard(), "53\t54\n") << "nothing to copy";
}

TEST_F(MatrixSelection, RefusesAChangeWithAReason) {
  Open();
  editor->SelectAll();
  QApplication::clipboard()->setText("old");
  editor->setAllowKbdNull(false);
  Press(Qt::Key_Delete);
  Press(Qt::Key_X, kCtrl);
  EXPECT_EQ(Take(), "refused These values cannot be empty., refused These values cannot be empty.");
  editor->setReadOnly(true);
  EXPECT_FALSE(editor->Cut());
  EXPECT_FALSE(editor->FillDown());
  EXPECT_EQ(Take(),
            "refused These values cannot be changed., refused These values cannot be changed.");
  EXPECT_EQ(Clipboard(), "old");
  EXPECT_EQ(editor->Element(5, 4), 54);
  editor->setReadOnly(false);
  editor->setAllowKbdNull(true);
  editor->setVirtualMode(true);
  editor->setNoOfRows(4'000'000'000U);
  editor->SelectCols(0, 1);
  EXPECT_FALSE(editor->DeleteSelected());
  EXPECT_FALSE(editor->PasteBlock("1"));
  EXPECT_EQ(Take(),
            "rows 4000000000, refused Too many values to change: 4000000000., refused Too many "
            "values to change: 4000000000.");
}

TEST_F(MatrixSelection, LeavesKeysToATextThatIsBeingEdited) {
  Open();
  const auto edit_by_double_click = [this] { QTest::mouseDClick(Cell(4), Qt::LeftButton); };
  const auto edit_by_key = [this] { Press(Qt::Key_F2); };
  const auto edit_by_typing = [this] { Type("23"); };
  for (const std::function<void()>& begin :
       {std::function<void()>(edit_by_double_click), std::function<void()>(edit_by_key),
        std::function<void()>(edit_by_typing)}) {
    begin();
    EXPECT_EQ(Cell(4)->text().size(), 2);
    Press(Qt::Key_Home);
    Press(Qt::Key_Right);
    Press(Qt::Key_Delete);
    Press(Qt::Key_Left, kShift);
    Press(Qt::Key_C, kCtrl);
    EXPECT_EQ(Cell(4)->text().size(), 1);
    EXPECT_EQ(Clipboard(), Cell(4)->text());
    EXPECT_EQ(Selected(), "1+1 1+1");
    Press(Qt::Key_Escape);
    EXPECT_EQ(Cell(4)->text(), "11");
    Press(Qt::Key_Right);
    EXPECT_EQ(editor->CurrentCol(), 2U) << "the keys are the grid's again";
    Press(Qt::Key_Left);
  }
  // Escape takes back the text first, then the selection; then the dialog has it.
  editor->SelectAll();
  Type("9");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Selected(), "0+6 0+5");
  Press(Qt::Key_Escape);
  EXPECT_EQ(Selected(), "1+1 1+1");
  QKeyEvent escape(QEvent::KeyPress, Qt::Key_Escape, Qt::NoModifier);
  QApplication::sendEvent(Cell(4), &escape);
  EXPECT_FALSE(escape.isAccepted());
  // F2 a second time ends editing, a text that is not a number keeps the focus.
  Type("9");
  Press(Qt::Key_F2);
  Press(Qt::Key_Right);
  EXPECT_EQ(editor->Element(1, 1), 9);
  Type("x");
  Take();
  Press(Qt::Key_Down);
  Press(Qt::Key_End, kCtrl);
  EXPECT_EQ(Take(), "");
  EXPECT_EQ(Cell(5)->text(), "x");
}

TEST_F(MatrixSelection, NamesTheElementUnderTheMouseAndOffersAMenu) {
  Open();
  editor->setDisplayTopRow(2);
  QStringList mouse;
  const auto record = [&](const char* name) {
    return [&mouse, name](QMouseEvent*, quint32 row, quint32 col) {
      mouse.append(QString("%1 %2 %3").arg(name).arg(row).arg(col));
    };
  };
  QObject::connect(editor, &CellPanel::OnCellMouseDown, editor, record("down"));
  QObject::connect(editor, &CellPanel::OnCellMouseMove, editor, record("move"));
  QObject::connect(editor, &CellPanel::OnCellMouseUp, editor, record("up"));
  const QSignalSpy clicks(editor, &CellPanel::OnCellClick);
  const QSignalSpy double_clicks(editor, &CellPanel::OnCellDblClick);
  Drag(Cell(2), CentreOf(3));
  QTest::mouseRelease(Cell(2), Qt::LeftButton);
  EXPECT_EQ(mouse.join(", "), "down 2 2, move 2 2, up 2 2");
  QTest::mouseClick(Cell(4), Qt::LeftButton);
  QTest::mouseDClick(Cell(4), Qt::LeftButton);
  EXPECT_EQ(clicks.last(), QVariantList({3U, 1U}));
  EXPECT_EQ(double_clicks.last(), QVariantList({3U, 1U}));

  const auto entries = [this] {
    const std::unique_ptr<QMenu> menu(Cell(4)->CreateContextMenu());
    QStringList texts;
    for (const QAction* action : menu->actions()) {
      if (action->isEnabled()) texts.append(action->text().section('\t', 0, 0));
    }
    return texts.join('|').toStdString();
  };
  EXPECT_EQ(entries().find("Fill"), std::string::npos) << "the text is being edited";
  Press(Qt::Key_Escape);
  QApplication::clipboard()->setText("1");
  EXPECT_EQ(entries().find("Cut|Copy|Paste|Delete||Fill Down|Fill Right||Select All|"), 0U);
  editor->setReadOnly(true);
  EXPECT_EQ(entries().find("Copy||"), 0U);
  editor->setReadOnly(false);

  editor->setRowHeadings(true);
  editor->setCanGrow(true);
  editor->ScrollBottom();
  auto* const rows = editor->findChild<QWidget*>("RowHeadings");
  QTest::mouseClick(rows, Qt::LeftButton, {}, {5, rows->height() - 5});
  EXPECT_EQ(Selected(), "6+1 0+1") << "the spare row";
}

TEST_F(MatrixSelection, OffersItsMenuOnHeadings) {
  Open();
  editor->setCanGrow(true);
  editor->setRowHeadings(true);
  editor->setColHeadings(true);
  QString place;
  QObject::connect(
      editor, &CellPanel::OnContextMenu, editor,
      [&](QMenu&, quint32 row, quint32 col) { place = QString("%1 %2").arg(row).arg(col); });
  const auto open = [this](const char* bar_name, const char* entry) {
    auto* const bar = editor->findChild<QWidget*>(bar_name);
    const QPoint at(5, 5);
    QContextMenuEvent event(QContextMenuEvent::Mouse, at, bar->mapToGlobal(at));
    QApplication::sendEvent(bar, &event);
    auto* const menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
    if (menu == nullptr) return false;
    for (QAction* action : menu->actions()) {
      if (action->text().startsWith(entry)) action->trigger();
    }
    return menu->close();
  };
  Type("5");
  EXPECT_TRUE(open("ColHeadings", "none"));
  EXPECT_EQ(editor->Element(1, 1), 5);
  EXPECT_EQ(Selected() + ' ' + place.toStdString(), "0+6 0+1 0 0");
  editor->SelectRows(0, 3);
  EXPECT_TRUE(open("RowHeadings", "Delete Rows")) << "of the selection";
  EXPECT_EQ(editor->NoOfRows(), 3U);
  EXPECT_EQ(editor->Element(0, 0), 30);
  editor->setContextMenuPolicy(Qt::NoContextMenu);
  EXPECT_FALSE(open("RowHeadings", "Delete Rows"));
}

using LabelSelection = SelectionFixture<TQorLabelledVectorEdit>;

TEST_F(LabelSelection, TakesWholeRowsByTheirLabels) {
  Open(9);
  const auto label = [this](int row) { return editor->childAt(10, CentreOf(row).y()); };
  QTest::mouseClick(label(1), Qt::LeftButton);
  EXPECT_EQ(Selected(), "1+1 0+1");
  QTest::mouseClick(label(3), Qt::LeftButton, kShift);
  EXPECT_EQ(Selected(), "1+3 0+1");
  Press(Qt::Key_C, kCtrl);
  EXPECT_EQ(Clipboard(), "1\n2\n3\n");
  Drag(label(2), CentreOf(0));
  EXPECT_EQ(Selected(), "0+3 0+1");
  QTest::mouseRelease(label(2), Qt::LeftButton);

  // The spare row alone is not an element, and is in no range.
  editor->setCanGrow(true);
  editor->ScrollBottom();
  for (QWidget* part : {label(3), static_cast<QWidget*>(Cell(3))}) {
    Press(Qt::Key_Home, kCtrl);
    editor->ScrollBottom();
    QTest::mouseClick(part, Qt::LeftButton);
    EXPECT_EQ(Selected(), "9+1 0+1");
    Press(Qt::Key_Minus, kCtrl);
    Press(Qt::Key_Delete);
  }
  EXPECT_TRUE(editor->PasteBlock("10"));
  EXPECT_EQ(editor->Element(9), 10);
  EXPECT_EQ(editor->Element(8), 8);
  Press(Qt::Key_A, kCtrl);
  EXPECT_EQ(Selected(), "0+10 0+1");
  editor->setNoOfRows(9);
  editor->setCanGrow(false);
  editor->ScrollTop();

  const auto menu = [&label](int row) {
    const std::unique_ptr<QMenu> of_label(qobject_cast<TextCell*>(label(row))->CreateContextMenu());
    QStringList texts;
    for (const QAction* action : of_label->actions()) {
      texts.append(action->text().section('\t', 0, 0).remove('&'));
    }
    return texts.join('|').toStdString();
  };
  QTest::mouseClick(label(1), Qt::LeftButton);
  EXPECT_EQ(menu(1).find("Cut|Copy|Paste|Delete||Fill Down||Select All||Copy All Values|"), 0U);

  // A label that can be typed keeps its keys.
  editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
  editor->setLabel(1, "two");
  editor->setLabelsEditable(true);
  QTest::mouseClick(label(2), Qt::LeftButton);
  EXPECT_EQ(Selected(), "2+1 0+1");
  label(1)->setFocus();
  Press(Qt::Key_A, kCtrl);
  EXPECT_EQ(menu(1), "Undo|Redo||Cut|Copy|Paste|Delete||Select All||Copy All Values|");
  Press(Qt::Key_X, kCtrl);
  EXPECT_EQ(Clipboard(), "two");
  Press(Qt::Key_Down);
  EXPECT_EQ(editor->Label(1), "");
  EXPECT_EQ(editor->Element(1), 1);
  // In one column, Left has nowhere to go, and Home and End mean the vector.
  editor->setEditFocus(1);
  for (const Qt::Key key : {Qt::Key_Left, Qt::Key_End}) Press(key);
  EXPECT_EQ(editor->CurrentRow(), 8U);
  Press(Qt::Key_Home, kShift);
  EXPECT_EQ(Selected(), "0+9 0+1");
}

}  // namespace qorvex
