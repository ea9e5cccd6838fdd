#include <QSignalSpy>
#include <tuple>

#include "controls/editor_fixture.h"

namespace qorvex {

struct LabelledVectorEdit : EditorFixture<TQorLabelledVectorEdit> {
  QLineEdit* LabelCell(int edit) const {
    auto cells = editor->findChildren<QLineEdit*>();
    cells.removeIf([](QLineEdit* cell) { return qobject_cast<TQorFloatEdit*>(cell) != nullptr; });
    return cells.at(edit);
  }
  std::string Labels() const {
    QStringList labels;
    for (quint32 row = 0; row < editor->NoOfRows(); ++row) labels.append(editor->Label(row));
    return labels.join(QLatin1Char('|')).toStdString();
  }
  void Name(const QStringList& labels) {
    editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
    for (int row = 0; row < labels.size(); ++row) {
      editor->setLabel(static_cast<quint32>(row), labels[row]);
    }
  }
};

TEST_F(LabelledVectorEdit, LabelsRowsByTheirType) {
  EXPECT_MATH_ERROR(std::ignore = editor->Label(0), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(editor->setLabel(0, "a"), rsVectorIsEmpty);
  Open(3);
  EXPECT_EQ(Labels(), "1|2|3");
  EXPECT_EQ(LabelCell(2)->text(), "3");
  EXPECT_EQ(LabelCell(3)->text(), "");
  EXPECT_FALSE(LabelCell(3)->isEnabled());
  EXPECT_MATH_ERROR(std::ignore = editor->Label(3), rsInvalidRow);
  editor->setLabel(1, "ignored");
  editor->setLabelNumOffSet(-1);
  EXPECT_EQ(Labels(), "-1|0|1");
  EXPECT_EQ(Cell(1)->accessibleName(), "Row 0") << "the row has the name that can be seen";

  editor->setLabelType(TQorLabelledVectorEdit::ltSupplied);
  EXPECT_EQ(Labels(), "0|1|2");
  editor->OnGetLabel = [](quint32 row) { return QString(static_cast<int>(row) + 1, 'x'); };
  editor->setLabel(1, "ignored");
  EXPECT_EQ(Labels(), "x|xx|xxx");

  Name({"b", "C", "a"});
  editor->setNoOfRows(4);
  EXPECT_EQ(Labels(), "b|C|a|") << "a new row has no label yet";
  EXPECT_EQ(Cell(1)->accessibleName(), "C, Row 2");
  editor->setLabelsEditable(true);
  editor->setLabelType(TQorLabelledVectorEdit::ltNumbered);
  EXPECT_FALSE(editor->LabelsEditable());
}

TEST_F(LabelledVectorEdit, SortsBothColumnsIndependently) {
  editor->setVector({3, 1, 2});
  Name({"b", "C", "a"});
  editor->Sort();
  EXPECT_EQ(Labels(), "a|b|C");
  EXPECT_EQ(Texts(), "1.0000|2.0000|3.0000|");
  editor->Undo();
  EXPECT_EQ(Labels(), "b|C|a");
  EXPECT_EQ(Texts(), "3.0000|1.0000|2.0000|");
  editor->SwapElements(0, 2);
  EXPECT_EQ(Labels(), "a|C|b");
  EXPECT_EQ(Texts(), "2.0000|1.0000|3.0000|");
  editor->Undo();
  EXPECT_EQ(Labels(), "b|C|a");
  editor->setLabelType(TQorLabelledVectorEdit::ltNumbered);
  editor->Sort();
  editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
  editor->setVirtualMode(true);
  editor->Sort();
  EXPECT_EQ(Labels(), "b|C|a") << "labels that do not show, or of a program, are not sorted";
  QSignalSpy kept(editor, &TQorLabelledVectorEdit::OnSetLabel);
  editor->setLabel(1, "new");
  EXPECT_EQ(kept.count(), 1);
  EXPECT_EQ(editor->Label(1), "C");
}

TEST_F(LabelledVectorEdit, SortsTheLabelsOfItsRowsWhateverHasBeenSet) {
  editor->setVector({4, 1, 2, 3, 5});
  Name({"", "d", "b", "", "e"});
  editor->setNoOfRows(3);
  editor->Sort();
  EXPECT_EQ(Labels(), "|b|d") << "a row without a label counts as an empty one";
  editor->setNoOfRows(5);
  EXPECT_EQ(Labels(), "|b|d||e") << "labels beyond the rows have stayed";
  editor->Sort();
  EXPECT_EQ(Labels(), "||b|d|e");
  editor->Undo();
  EXPECT_EQ(Labels(), "|b|d||e");

  // Labels take memory only where they have been given.
  editor->setVirtualMode(true);
  editor->setNoOfRows(1'000'000'000);
  editor->setLabelType(TQorLabelledVectorEdit::ltNumbered);
  editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
  EXPECT_EQ(editor->Label(999'999'999), "");
  EXPECT_EQ(editor->Label(4), "e");
}

TEST_F(LabelledVectorEdit, KeepsNavigationInTheColumnOfLabels) {
  Open(6);
  Name({"a", "b", "c", "d", "e", "f"});
  editor->setLabelsEditable(true);
  QStringList labels;
  const auto record = [&](auto signal, const char* name) {
    QObject::connect(editor, signal, editor,
                     [&labels, name](quint32 row) { labels.append(name + QString::number(row)); });
  };
  record(&TQorLabelledVectorEdit::OnLabelChange, "change ");
  record(&TQorLabelledVectorEdit::OnLabelExit, "exit ");
  LabelCell(2)->setFocus();
  Take();
  Enter("see");
  EXPECT_TRUE(LabelCell(3)->hasFocus());
  EXPECT_EQ(editor->CurrentRow(), 3U);
  Type("dee");
  Press(Qt::Key_Down, Qt::ControlModifier);
  EXPECT_TRUE(LabelCell(3)->hasFocus());
  EXPECT_EQ(Take(), "current 2 3, top 1, current 3 4, after 1");
  EXPECT_EQ(labels.join(", ").toStdString(), "change 2, exit 2, change 3, exit 3");
  EXPECT_EQ(Labels(), "a|b|see|dee|e|f");
  EXPECT_EQ(LabelCell(3)->text(), "e");
  Type("x");
  Press(Qt::Key_Escape);
  Type("y");
  editor->ScrollDown(1);
  EXPECT_EQ(editor->Label(4), "y") << "the text belongs to the row where it was typed";

  editor->setLabelsEditable(false);
  LabelCell(0)->setFocus();
  Type("z");
  Cell(0)->setFocus();
  EXPECT_EQ(editor->Label(2), "see");
  editor->setLabelsEditable(true);
  editor->setTabStop(false);
  EXPECT_EQ(LabelCell(0)->focusPolicy(), Qt::ClickFocus);
  LabelCell(3)->setFocus();
  QApplication::clipboard()->setText("one\ttwo\nthree");
  Press(Qt::Key_V, Qt::ControlModifier);
  editor->setNoOfEdits(2);
  EXPECT_EQ(editor->Label(5), "one");
  EXPECT_TRUE(LabelCell(1)->hasFocus()) << "the focus stays among the labels";
  editor->setNoOfEdits(4);
  EXPECT_EQ(LabelCell(1)->geometry().right() + 1, Cell(1)->geometry().left());
  editor->setLabelAlignment(Qt::AlignLeft);
  EXPECT_EQ(LabelCell(1)->alignment(), Qt::AlignLeft);
  editor->setLabelWidth(30);
  EXPECT_EQ(Cell(0)->x(), 30);
  editor->setLayoutDirection(Qt::RightToLeft);
  EXPECT_GT(LabelCell(0)->x(), Cell(0)->x());
}

TEST_F(LabelledVectorEdit, SurvivesARequestForALabelThatDropsCells) {
  Open(3);
  EXPECT_EQ(Cell(3)->accessibleName(), "Row 4") << "there is no such row";
  editor->setLabelType(TQorLabelledVectorEdit::ltSupplied);
  int requests = 0;
  editor->OnGetLabel = [&](quint32 row) {
    // The first request shows the label, the second names the cell.
    if (row == 2 && ++requests == 2) editor->setNoOfEdits(1);
    return QString("x");
  };
  editor->Redisplay();
  EXPECT_EQ(Cells().size(), 1);
  editor->setNoOfRows(0);
  EXPECT_EQ(Cell(0)->accessibleName(), "Row 1") << "the label is gone";
}

}  // namespace qorvex
