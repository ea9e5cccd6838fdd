// What a screen reader learns about an editor, and what it can do.

#include <QAccessible>
#include <QFormLayout>
#include <QLabel>
#include <QMenu>
#include <QSignalSpy>
#include <limits>
#include <memory>
#include <string>

#include "controls/editor_fixture.h"

namespace qorvex {

namespace {

QAccessibleInterface* Interface(QObject* object) {
  return QAccessible::queryAccessibleInterface(object);
}

std::string Read(QAccessibleInterface* cell, QAccessible::Text kind = QAccessible::Value) {
  return cell->text(kind).toStdString();
}

}  // namespace

template <class Editor>
struct AccessibleEditors : EditorFixture<Editor> {
  AccessibleEditors() { this->editor->setDecimalPlaces(0); }

  QAccessibleInterface* Panel() const { return Interface(this->editor); }
  QAccessibleTableInterface* Table() const { return Panel()->tableInterface(); }
};
using EditorTypes =
    testing::Types<TQorVectorEdit, TQorLabelledVectorEdit, TQorMatrixEdit, TQorMatrixFractEdit>;
TYPED_TEST_SUITE(AccessibleEditors, EditorTypes);

TYPED_TEST(AccessibleEditors, AreTablesOfAllElements) {
  this->Open(30);
  this->Set(25, kNaN);
  this->editor->setNullStr("none");
  ASSERT_NE(this->Table(), nullptr);
  EXPECT_EQ(this->Panel()->role(), QAccessible::Table);
  EXPECT_EQ(this->Table()->rowCount(), 30);
  EXPECT_EQ(this->Table()->columnCount(), 1);
  for (const int row : {0, 3, 4, 25, 29}) {
    SCOPED_TRACE(row);
    QAccessibleInterface* const cell = this->Table()->cellAt(row, 0);
    ASSERT_NE(cell, nullptr);
    EXPECT_TRUE(cell->isValid());
    EXPECT_EQ(Read(cell), row == 25 ? "none" : std::to_string(row));
    EXPECT_NE(Read(cell, QAccessible::Name).find(std::to_string(row + 1)), std::string::npos);
    EXPECT_EQ(cell->textInterface()->text(0, 99).toStdString(), Read(cell));
    EXPECT_EQ(cell->role(), QAccessible::Cell);
    EXPECT_EQ(cell->state().offscreen, row > 3);
    EXPECT_EQ(cell->rect().isEmpty(), row > 3);
    EXPECT_EQ(cell->parent(), this->Panel());
    EXPECT_EQ(this->Panel()->child(row), cell);
    EXPECT_EQ(this->Panel()->indexOfChild(cell), row);
    QAccessibleTableCellInterface* const place = cell->tableCellInterface();
    ASSERT_NE(place, nullptr);
    EXPECT_EQ(place->rowIndex(), row);
    EXPECT_EQ(place->columnIndex(), 0);
    EXPECT_EQ(place->table(), this->Panel());
  }
  EXPECT_EQ(this->Table()->cellAt(30, 0), nullptr);
  EXPECT_EQ(this->Table()->cellAt(0, 1), nullptr);
  EXPECT_EQ(this->Table()->cellAt(-1, 0), nullptr);

  // A cell shows other elements after scrolling.
  QAccessibleInterface* const first = Interface(this->Cell(0));
  this->editor->setDisplayTopRow(20);
  EXPECT_EQ(first->tableCellInterface()->rowIndex(), 20);
  EXPECT_EQ(this->Table()->cellAt(20, 0), first);
  EXPECT_EQ(this->Panel()->childAt(first->rect().center().x(), first->rect().center().y()), first);
}

TYPED_TEST(AccessibleEditors, ForgetElementsOutOfSightThatAreGone) {
  this->Open(30);
  const auto id = [this](int row) { return QAccessible::uniqueId(this->Table()->cellAt(row, 0)); };
  const QAccessible::Id before = id(20);
  this->SetRows(10);
  EXPECT_FALSE(QAccessible::accessibleInterface(before)->isValid());
  EXPECT_EQ(Read(QAccessible::accessibleInterface(before)), "");
  const QAccessible::Id at_end = id(9);
  EXPECT_EQ(Read(QAccessible::accessibleInterface(at_end)), "9");
  delete this->editor;
  EXPECT_EQ(QAccessible::accessibleInterface(at_end), nullptr);
}

TYPED_TEST(AccessibleEditors, LetTheFocusGoToAnyElement) {
  this->Open(30);
  for (const int row : {17, 2, 29}) {
    QAccessibleActionInterface* const action = this->Table()->cellAt(row, 0)->actionInterface();
    ASSERT_NE(action, nullptr);
    action->doAction(QAccessibleActionInterface::setFocusAction());
    QAccessibleInterface* const focus = this->Panel()->focusChild();
    ASSERT_NE(focus, nullptr);
    EXPECT_EQ(focus->tableCellInterface()->rowIndex(), row);
    EXPECT_TRUE(focus->state().focused);
    EXPECT_FALSE(this->Panel()->state().focused);
  }
}

TYPED_TEST(AccessibleEditors, TellAndChangeWhatIsSelected) {
  this->Open(2000);
  this->FocusEdit(0);
  this->editor->Select({2, 3, 0, 1});
  EXPECT_EQ(this->Table()->selectedCellCount(), 3);
  EXPECT_EQ(this->Table()->selectedRows(), QList({2, 3, 4}));
  EXPECT_FALSE(this->Table()->isColumnSelected(0));
  for (int row = 1; row < 6; ++row) {
    QAccessibleInterface* const cell = this->Table()->cellAt(row, 0);
    EXPECT_EQ(cell->tableCellInterface()->isSelected(), row > 1 && row < 5) << row;
    EXPECT_EQ(cell->state().selected, row > 1 && row < 5) << row;
    EXPECT_EQ(this->Table()->isRowSelected(row), row > 1 && row < 5) << row;
  }
  EXPECT_EQ(this->Table()->selectedCells().at(2), this->Table()->cellAt(4, 0));
  EXPECT_TRUE(this->Table()->selectRow(700));
  EXPECT_EQ(this->editor->Selection(), (TQorCellRange{700, 1, 0, 1}));
  EXPECT_FALSE(this->Table()->unselectRow(3));
  EXPECT_TRUE(this->Table()->unselectRow(700));
  EXPECT_EQ(this->editor->Selection(), (TQorCellRange{0, 1, 0, 1})) << "the cell with the focus";
  EXPECT_TRUE(this->Table()->selectColumn(0));
  EXPECT_EQ(this->Table()->selectedColumnCount(), 1);
  EXPECT_EQ(this->Table()->selectedRowCount(), 2000);
  EXPECT_EQ(this->Table()->selectedRows().size(), 1000) << "lists are limited";
  EXPECT_EQ(this->Table()->selectedCells().size(), 1000);
  EXPECT_FALSE(this->Table()->selectRow(2000));
  EXPECT_FALSE(this->Table()->selectColumn(-1));
}

TYPED_TEST(AccessibleEditors, HaveCellsThatCanBeEditedLikeOtherTexts) {
  this->Open(9);
  QAccessibleInterface* const cell = this->Table()->cellAt(1, 0);
  cell->setText(QAccessible::Value, "42");
  EXPECT_EQ(this->Get(1), 42);
  EXPECT_EQ(this->Take(), this->kIsVector ? "text 1 42, change 1" : "text 1 0 42, change 1 0");
  QAccessibleEditableTextInterface* const edit = cell->editableTextInterface();
  QAccessibleTextInterface* const text = cell->textInterface();
  ASSERT_TRUE(edit && text);
  edit->insertText(1, "00");
  EXPECT_TRUE(this->Cell(1)->hasFocus());
  EXPECT_EQ(text->text(0, text->characterCount()), "4002");
  edit->deleteText(0, 1);
  edit->replaceText(2, 3, "75");
  EXPECT_EQ(text->text(1, 9), "075");
  text->setSelection(0, 1, 3);
  int start = 0;
  int end = 0;
  text->selection(0, &start, &end);
  EXPECT_EQ(start * 10 + end, 13);
  EXPECT_EQ(this->Cell(1)->selectedText(), "07");
  // A line edit is scrolled when it is painted.
  this->Cell(1)->repaint();
  const QRect third = text->characterRect(2);
  EXPECT_TRUE(cell->rect().contains(third));
  EXPECT_EQ(text->offsetAtPoint(third.center() - QPoint(third.width() / 3, 0)), 2);
  this->FocusEdit(0);
  EXPECT_EQ(this->Get(1), 75);
  this->editor->setReadOnly(true);
  cell->setText(QAccessible::Value, "1");
  edit->insertText(0, "1");
  EXPECT_EQ(this->Get(1), 75);
  EXPECT_TRUE(cell->state().readOnly);
  EXPECT_TRUE(this->Table()->cellAt(8, 0)->state().readOnly) << "out of sight";
}

TYPED_TEST(AccessibleEditors, HaveNames) {
  const bool vector = this->kIsVector;
  EXPECT_EQ(Read(this->Panel(), QAccessible::Name), vector ? "Vector" : "Matrix");
  QWidget form;
  auto* const layout = new QFormLayout(&form);
  auto* const named = new TypeParam;
  layout->addRow("&Weights", named);
  EXPECT_EQ(Read(Interface(named), QAccessible::Name), "Weights") << "that of its label";
  named->setAccessibleName("Masses");
  EXPECT_EQ(Read(Interface(named), QAccessible::Name), "Masses");
  QStringList bars;
  for (const auto& [bar, relation] : Interface(named)->relations(QAccessible::Controller)) {
    bars.append(bar->text(QAccessible::Name));
    EXPECT_EQ(bar->parent(), Interface(named));
  }
  EXPECT_EQ(bars.join(' '), vector ? "Rows" : "Rows Columns");
}

struct AccessibleMatrix : AccessibleEditors<TQorMatrixEdit> {};

TEST_F(AccessibleMatrix, CountsInIntEvenIfItIsLarger) {
  editor->setVirtualMode(true);
  editor->setNoOfRows(4'000'000'000);
  editor->setNoOfCols(4'000'000'000);
  Show();
  constexpr int most = std::numeric_limits<int>::max();
  EXPECT_EQ(Table()->rowCount(), most);
  EXPECT_EQ(Panel()->childCount(), most);
  EXPECT_EQ(Read(Panel()->child(1'000'000'000)), "1000000000");
  editor->ScrollBottom();
  QAccessibleInterface* const last = Interface(Cell(0));
  EXPECT_EQ(last->parent(), Panel());
  EXPECT_EQ(Panel()->indexOfChild(last), -1);
  EXPECT_EQ(last->tableCellInterface()->rowIndex(), -1);
  EXPECT_EQ(Panel()->childAt(last->rect().x() + 1, last->rect().y() + 1), last);
  EXPECT_EQ(Read(last, QAccessible::Name), "Row 3999999997, column 1");
  editor->SelectRows(2'147'483'645, 5);
  EXPECT_EQ(Table()->selectedRows(), (QList{most - 2, most - 1}));
  editor->SelectRows(3'000'000'000, 5);
  EXPECT_EQ(Table()->selectedRows(), QList<int>());
}

TEST_F(AccessibleMatrix, HasHeadingsAndFormatsOfColumns) {
  editor->setNoOfRows(9);
  editor->setNoOfCols(8);
  editor->setElement(8, 7, 0.25L);
  NumberSettings format;
  format.decimal_places = 2;
  editor->setColFormat(7, format);
  EXPECT_EQ(Read(Table()->cellAt(8, 7)), "0.25");
  EXPECT_EQ(Panel()->childCount(), 72);
  editor->setColHeadings(true);
  editor->OnGetColHeading = [](quint32 col) { return QString(QChar('A' + static_cast<int>(col))); };
  EXPECT_EQ(Table()->columnDescription(2), "C");
  EXPECT_EQ(Table()->rowDescription(2), "") << "there is no such heading";
  editor->setRowHeadings(true);
  Show();
  ASSERT_EQ(Panel()->childCount(), 72 + 9 + 8);
  EXPECT_EQ(Panel()->child(19), Table()->cellAt(2, 3));
  EXPECT_EQ(Panel()->indexOfChild(Table()->cellAt(2, 3)), 19);
  EXPECT_EQ(Panel()->child(-1), nullptr);
  EXPECT_EQ(Panel()->child(89), nullptr);
  for (int index : {72, 80, 81, 82, 88}) {
    QAccessibleInterface* const heading = Panel()->child(index);
    const bool of_row = index < 81;
    const int number = index - (of_row ? 72 : 81);
    const std::string text =
        of_row ? std::to_string(number + 1) : std::string(1, "ABCDEFGH"[number]);
    EXPECT_EQ(Read(heading, QAccessible::Name), text);
    EXPECT_EQ(heading->role(), of_row ? QAccessible::RowHeader : QAccessible::ColumnHeader);
    EXPECT_EQ(Panel()->indexOfChild(heading), index);
    EXPECT_EQ(heading->state().offscreen, number > 3) << index;
  }
  const QAccessibleTableCellInterface* const cell = Table()->cellAt(1, 2)->tableCellInterface();
  EXPECT_EQ(cell->rowHeaderCells(), QList{Panel()->child(73)});
  EXPECT_EQ(cell->columnHeaderCells(), QList{Panel()->child(83)});
  const QPoint place = Panel()->child(83)->rect().center();
  EXPECT_EQ(Panel()->childAt(place.x(), place.y()), Panel()->child(83));
  editor->setNoOfRows(0);
  ASSERT_EQ(Panel()->childCount(), 8);
  EXPECT_EQ(Read(Panel()->child(2), QAccessible::Name), "C");
}

TEST_F(AccessibleMatrix, SelectsColumnsAboveTheSpareRow) {
  editor->setMatrix({{1, 2}, {3, 4}});
  editor->setCanGrow(true);
  editor->SelectCols(1, 1);
  EXPECT_EQ(Table()->selectedColumns(), QList{1});
  EXPECT_EQ(Table()->selectedColumnCount(), 1);
  EXPECT_TRUE(Table()->isColumnSelected(1));
  EXPECT_FALSE(Table()->isColumnSelected(0));
  editor->Select({1, 1, 0, 1});
  EXPECT_EQ(Table()->selectedColumnCount(), 0);
  EXPECT_EQ(Table()->selectedRowCount(), 0);
}

TEST_F(AccessibleMatrix, ReachesTheCornerByTheMenuIfItHasAMeaning) {
  editor->setMatrix({{1}});
  const auto entry = [this] {
    const std::unique_ptr<QMenu> menu(Cell(0)->CreateContextMenu());
    for (QAction* const action : menu->actions()) {
      if (action->text() != "Corner Button") continue;
      action->trigger();
      return true;
    }
    return false;
  };
  EXPECT_FALSE(entry());
  const QSignalSpy clicked(editor, &TQorMatrixEdit::OnCornerBtnClick);
  EXPECT_TRUE(entry());
  EXPECT_EQ(clicked.count(), 1);
}

struct AccessibleLabels : AccessibleEditors<TQorLabelledVectorEdit> {};

TEST_F(AccessibleLabels, AreTheHeadingsOfTheRows) {
  Open(30);
  editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
  editor->setLabelsEditable(true);
  editor->setLabel(1, "near");
  editor->setLabel(20, "far");
  for (const auto& [row, label] : {std::pair(1, "near"), {20, "far"}}) {
    EXPECT_EQ(Table()->rowDescription(row), label);
    const auto headings = Table()->cellAt(row, 0)->tableCellInterface()->rowHeaderCells();
    ASSERT_EQ(headings.size(), 1);
    EXPECT_EQ(Read(headings[0]), label);
    EXPECT_EQ(headings[0]->role(), QAccessible::RowHeader);
    EXPECT_EQ(Panel()->indexOfChild(headings[0]), 30 + row);
  }
  Panel()->child(31)->setText(QAccessible::Value, "nearer");
  EXPECT_EQ(editor->Label(1), "nearer");
}

TEST_F(AccessibleMatrix, IsEmptyWithoutElementsOrCells) {
  EXPECT_EQ(Panel()->childCount(), 0);
  EXPECT_EQ(Interface(Cell(0))->tableCellInterface()->rowIndex(), -1) << "a cell without element";
  EXPECT_EQ(Panel()->indexOfChild(Interface(Cell(0))), -1);
  editor->setMatrix({{1, 2}, {3, 4}});
  EXPECT_EQ(Panel()->childCount(), 4);
  EXPECT_EQ(Read(Panel()->child(2)), "3");
  EXPECT_EQ(Table()->cellAt(1, 0)->tableCellInterface()->rowIndex(), 1);
  editor->setNoOfRowEdits(0);
  EXPECT_EQ(Panel()->childCount(), 0);
}

TEST(AccessibleCells, HaveAFrameInEveryPalette) {
  TQorFloatEdit cell;
  const auto edge = [&cell](const QColor& window, const QColor& base, const QColor& ink) {
    QPalette palette(window, window);
    palette.setColor(QPalette::Base, base);
    palette.setColor(QPalette::Text, ink);
    cell.setPalette(palette);
    return cell.grab().toImage().pixelColor(cell.width() / 2, 0).lightness();
  };
  EXPECT_GT(edge(Qt::black, Qt::black, Qt::white), 100) << "high contrast";
  EXPECT_GT(edge(QColor(0x2b, 0x2d, 0x30), QColor(0x1e, 0x1f, 0x22), Qt::white), 70) << "dark";
  EXPECT_LT(edge(Qt::white, Qt::white, Qt::black), 200);
}

}  // namespace qorvex
