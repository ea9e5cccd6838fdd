// What every editor does, tested over one column of cells.

#include <QAction>
#include <QDropEvent>
#include <QMimeData>
#include <QScrollArea>
#include <QSignalSpy>
#include <memory>
#include <utility>

#include "controls/editor_fixture.h"

namespace qorvex {

template <class Editor>
struct Editors : EditorFixture<Editor> {
  // Whole numbers then look the same as decimal numbers and as fractions.
  Editors() { this->editor->setDecimalPlaces(0); }
};
TYPED_TEST_SUITE(Editors, EditorTypes);

TYPED_TEST(Editors, ScrollWholeRowsByTheWheelWhereTheFocusIs) {
  this->Open(30);
  QScrollArea area;
  area.setWidget(this->window.release());
  area.resize(100, 60);
  area.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&area));
  this->other->setFocus();
  const int before = area.verticalScrollBar()->value();
  TurnWheel(this->Cell(1), -120);
  EXPECT_EQ(this->editor->DisplayTopRow(), 0U);
  EXPECT_NE(area.verticalScrollBar()->value(), before) << "without the focus the parent scrolls";

  this->Cell(1)->setFocus();
  const int parent = area.verticalScrollBar()->value();
  const std::pair<int, quint32> turns[] = {{-120, 1}, {-99, 1}, {-240, 3}, {-600, 9},
                                           {99, 9},   {120, 8}, {199, 7},  {900, 7}};
  for (const auto& [amount, top] : turns) {
    TurnWheel(this->Cell(0), amount);
    EXPECT_EQ(this->editor->DisplayTopRow(), top) << amount;
  }
  TurnWheel(this->Bar(), 120);
  EXPECT_EQ(this->editor->DisplayTopRow(), 6U);
  // The small amounts of a touch pad add up to a notch; a turn back starts again.
  for (int i = 0; i < 5; ++i) TurnWheel(this->Cell(0), -50, Qt::ScrollUpdate);
  EXPECT_EQ(this->editor->DisplayTopRow(), 8U);
  for (int i = 0; i < 2; ++i) TurnWheel(this->Cell(0), 50, Qt::ScrollUpdate);
  EXPECT_EQ(this->editor->DisplayTopRow(), 8U);
  // Over a cell without an element, too.
  this->SetRows(2);
  TurnWheel(this->Cell(3), -120);
  EXPECT_EQ(area.verticalScrollBar()->value(), parent);
}

TYPED_TEST(Editors, KeepWhatIsBeingTypedWhileElementsChange) {
  this->Open(9);
  this->editor->setColorSetNegativeText(Qt::red);
  this->FocusEdit(1);
  this->Type("12");
  this->Set(0, 50);
  this->Set(1, -60);
  EXPECT_EQ(this->Texts(), "50|12|2|3");
  EXPECT_EQ(this->Cell(1)->palette().color(QPalette::Text), QColor(Qt::red));
  this->Press(Qt::Key_Escape);
  EXPECT_EQ(this->Cell(1)->Value(), -60);
  // The cells show null, but typing over one changes the element behind it.
  this->editor->setNull(true);
  EXPECT_EQ(this->Texts(), "|||");
  EXPECT_EQ(this->Get(1), -60);
  this->Type("7");
  this->Press(Qt::Key_PageDown);
  EXPECT_EQ(this->Texts(), "4|5|6|7");
  this->Press(Qt::Key_PageDown);
  EXPECT_EQ(this->editor->DisplayTopRow(), 5U);
  this->Press(Qt::Key_PageUp);
  EXPECT_EQ(this->editor->DisplayTopRow(), 1U);
  this->Press(Qt::Key_PageUp);
  EXPECT_EQ(this->Texts(), "50|7|2|3");
  this->editor->Undo();
  EXPECT_EQ(this->Get(1), -60);
}

TYPED_TEST(Editors, ShowNothingOfABatchUntilItEnds) {
  this->Open(6);
  this->editor->BeginUpdate();
  this->editor->BeginUpdate();
  this->Set(0, 5);
  this->editor->ScrollDown(1);
  this->editor->EndUpdate();
  EXPECT_EQ(this->Texts(), "0|1|2|3");
  EXPECT_EQ(this->Take(), this->kIsVector ? "top 1, current 0 1, after 1" : "top 1")
      << "events are not delayed";
  this->editor->EndUpdate();
  EXPECT_EQ(this->Texts(), "1|2|3|4");
  this->editor->EndUpdate();
  this->Set(1, 7);
  EXPECT_EQ(this->Texts(), "7|2|3|4");

  // A cell that comes into use during a batch can be given the focus.
  this->SetRows(1);
  this->editor->BeginUpdate();
  this->SetRows(5);
  this->FocusEdit(2);
  this->editor->EndUpdate();
  EXPECT_TRUE(this->Cell(2)->hasFocus());
  this->other->setFocus();
  this->editor->setFocus();
  EXPECT_TRUE(this->Cell(2)->hasFocus()) << "the editor hands the focus on to its cell";
}

TYPED_TEST(Editors, TakeTheTopFromAFormBeforeTheRowsAndTheCells) {
  this->SetCells(4);
  this->editor->setDisplayTopRow(98);
  this->SetRows(3);
  this->SetRows(100);
  EXPECT_EQ(this->editor->DisplayTopRow(), 96U);
  this->SetCells(2);
  EXPECT_EQ(this->editor->DisplayTopRow(), 98U);
  this->Show();
  this->SetRows(3);
  this->SetRows(100);
  EXPECT_EQ(this->editor->DisplayTopRow(), 1U);
}

TYPED_TEST(Editors, MayBeChangedByTheirHandlers) {
  this->Open(10);
  this->FocusEdit(3);
  auto handler = this->On(&CellPanel::OnKeyDown, [this] { this->SetCells(1); });
  this->Press(Qt::Key_X);
  EXPECT_EQ(this->Cells().size(), 1);
  handler.reset();
  this->SetCells(4);

  // A handler that shortens the table while a block is pasted.
  handler = this->On(&TypeParam::OnChange, [this] { this->SetRows(4); });
  this->editor->setDisplayTopRow(0);
  this->FocusEdit(2);
  EXPECT_TRUE(this->editor->PasteBlock("20\n30\n40\n50"));
  EXPECT_EQ(this->editor->NoOfRows(), 4U);
  EXPECT_EQ(this->Get(3), 30);
  handler = this->On(&CellPanel::OnKeyPress,
                     [](QKeyEvent* event) { event->setAccepted(event->text() == "5"); });
  this->FocusEdit(0);
  this->Type("456");
  EXPECT_EQ(this->Cell(0)->text(), "46");
  handler.reset();

  const QPointer<TypeParam> gone(this->editor);
  QObject::connect(this->editor, &CellPanel::OnKeyDown, this->editor, &QObject::deleteLater);
  this->Press(Qt::Key_Return);
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_TRUE(gone.isNull());
}

TYPED_TEST(Editors, TakeTheirKeysBeforeTheApplicationDoes) {
  this->Open(10);
  QAction action;
  action.setShortcut(QKeySequence(Qt::CTRL | Qt::Key_Down));
  this->window->addAction(&action);
  QSignalSpy taken(&action, &QAction::triggered);
  this->FocusEdit(0);
  this->Press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(this->editor->CurrentRow(), 1U);
  EXPECT_EQ(taken.count(), 0);
  this->other->setFocus();
  this->Press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_EQ(taken.count(), 1);
}

TYPED_TEST(Editors, ShareSettingsAndOutliveThem) {
  this->Open(3);
  this->editor->setNullStr("none");
  auto shared = std::make_unique<TQorUICtrl>();
  shared->setNullStr("n/a");
  shared->setAlignment(Qt::AlignLeft);
  shared->setColorSetBackground(Qt::yellow);
  const auto base = [this] { return this->Cell(1)->palette().color(QPalette::Base); };
  this->editor->setUICtrl(shared.get());
  this->Set(0, kNaN);
  EXPECT_EQ(this->Cell(0)->text(), "n/a");
  EXPECT_EQ(base(), QColor(Qt::yellow));
  this->editor->setUIUsage(TQorUICtrl::uuNumberFormat);
  EXPECT_EQ(this->Cell(0)->text(), "none");
  EXPECT_NE(base(), QColor(Qt::yellow));
  shared->setAlignment(Qt::AlignHCenter);
  EXPECT_EQ(this->Cell(1)->alignment(), Qt::AlignHCenter);
  EXPECT_EQ(this->editor->Alignment(), Qt::AlignRight | Qt::AlignVCenter);
  shared.reset();
  EXPECT_EQ(this->Cell(1)->alignment(), Qt::AlignRight | Qt::AlignVCenter);
  EXPECT_EQ(this->editor->UICtrl(), nullptr);
  this->editor->setColorSetNegativeText(Qt::green);
  EXPECT_EQ(this->editor->ColorSet()->NegativeText(), QColor(Qt::green));
  // The editor raises its signal first, whichever way the colour is set.
  this->Take();
  const auto first = this->On(&CellPanel::OnColorSetChange, [this] { this->log << "editor"; });
  QObject::connect(this->editor->ColorSet(), &TQorEditColorSet::Changed, this->editor,
                   [this] { this->log << "set"; });
  this->editor->ColorSet()->setText(Qt::blue);
  EXPECT_EQ(this->Cell(1)->palette().color(QPalette::Text), QColor(Qt::blue));
  this->editor->setColorSetText(Qt::red);
  EXPECT_EQ(this->editor->ColorSet()->Text(), QColor(Qt::red));
  EXPECT_EQ(this->Take(), "editor, set, editor, set");
}

TYPED_TEST(Editors, CanBeDeletedInAnyOrder) {
  // Of the editor, its shared settings and its window, with a text half typed.
  for (int order = 0; order < 3; ++order) {
    auto* const shared = new TQorUICtrl;
    auto* const form = new QWidget;
    auto* const edit = new TypeParam(form);
    edit->setUICtrl(shared);
    edit->setNoOfRows(2);
    edit->setProperty("NoOfCols", 1);
    form->show();
    ASSERT_TRUE(QTest::qWaitForWindowActive(form));
    edit->setFocus();
    ASSERT_TRUE(qobject_cast<TQorCustomEdit*>(QApplication::focusWidget()));
    this->Type("3");
    if (order == 0) delete edit;
    if (order == 1) delete shared;
    delete form;
    if (order != 1) delete shared;
  }
}

TYPED_TEST(Editors, TakeADropInTheCellUnderIt) {
  this->Open(10);
  this->FocusEdit(0);
  QMimeData contents;
  const auto drop = [&](int edit, const char* text) {
    contents.setText(text);
    QDragEnterEvent enter({2, 2}, Qt::CopyAction, &contents, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(this->Cell(edit), &enter);
    if (!enter.isAccepted()) return;
    QDropEvent event({2, 2}, Qt::CopyAction, &contents, Qt::LeftButton, Qt::NoModifier);
    QApplication::sendEvent(this->Cell(edit), &event);
  };
  drop(2, "77");
  EXPECT_EQ(this->Texts(), "0|1|77|3");
  this->editor->ScrollDown(3);
  EXPECT_EQ(this->Get(2), 77);
  drop(0, "\n55\n");
  EXPECT_EQ(this->Texts(), "|55|5|6") << "an empty cell stands above the number";
  this->editor->setReadOnly(true);
  drop(3, "1");
  EXPECT_EQ(this->Get(6), 6);
  this->editor->setReadOnly(false);
  contents.setUrls({QUrl("file:///data.csv")});
  drop(3, "1");
  EXPECT_EQ(this->Texts(), "|55|5|6") << "a file is for the parent";
}

TYPED_TEST(Editors, SelectANewTextSoThatTheNextKeyReplacesIt) {
  this->Open(5);
  this->FocusEdit(1);
  TurnWheel(this->Cell(1), -120);
  this->Type("7");
  EXPECT_EQ(this->Cell(1)->text(), "7");
  // The last row keeps the focus when Enter cannot go on.
  this->FocusEdit(3);
  this->Enter("05");
  this->Type("6");
  EXPECT_EQ(this->Cell(3)->text(), "6");
  // A read-only editor keeps what was typed before, and cannot undo it.
  this->editor->setReadOnly(true);
  EXPECT_EQ(this->Get(4), 6);
  this->Press(Qt::Key_Z, Qt::ControlModifier);
  EXPECT_EQ(this->Get(4), 6);
}

TYPED_TEST(Editors, ForwardTheMouseOfCellsInUse) {
  this->Open(2);
  QStringList mouse;
  const auto record = [&](auto signal, const char* name) {
    QObject::connect(this->editor, signal, this->editor, [&mouse, name] { mouse.append(name); });
  };
  record(&CellPanel::OnClick, "click");
  record(&CellPanel::OnDblClick, "double");
  record(&CellPanel::OnMouseDown, "down");
  record(&CellPanel::OnMouseUp, "up");
  record(&CellPanel::OnKeyUp, "key");
  const auto take = [&mouse] { return std::exchange(mouse, {}).join(' ').toStdString(); };
  QTest::mouseClick(this->Cell(1), Qt::LeftButton);
  EXPECT_EQ(take(), "down up click");
  QTest::mousePress(this->Cell(1), Qt::LeftButton);
  QTest::mouseRelease(this->Cell(1), Qt::LeftButton, {}, {-9, -9});
  EXPECT_EQ(take(), "down up") << "released elsewhere";
  QTest::mouseDClick(this->Cell(1), Qt::LeftButton);
  EXPECT_NE(take().find("double"), std::string::npos);
  this->Press(Qt::Key_X);
  EXPECT_EQ(take(), "key");
  QTest::mouseClick(this->Cell(3), Qt::LeftButton);
  EXPECT_EQ(take(), "") << "the cell has no element";
}

TYPED_TEST(Editors, NameTheirCellsOnceAssistiveTechnologyIsActive) {
  QAccessible::setActive(false);
  TypeParam unnamed;
  auto* const cell = unnamed.template findChild<TQorCustomEdit*>();
  EXPECT_EQ(cell->accessibleName(), "");
  QAccessible::setActive(true);
  EXPECT_TRUE(cell->accessibleName().startsWith("Row 1")) << "even without an element";
}

}  // namespace qorvex
