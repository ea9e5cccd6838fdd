// Headings, columns of their own width and format, and as many cells as have room.

#include <QToolButton>
#include <algorithm>
#include <limits>
#include <vector>

#include "controls/editor_fixture.h"

namespace qorvex {

struct GridLayout : EditorFixture<TQorMatrixEdit> {
  /// The first row is 0, 1, 2, ..., in a window that is shown.
  void Open(quint32 rows, quint32 cols) {
    editor->setNoOfRows(rows);
    editor->setNoOfCols(cols);
    for (quint32 col = 0; col < cols; ++col) editor->setElement(0, col, col);
    Show();
  }
  QWidget* Headings(const char* name) const { return editor->findChild<QWidget*>(name); }
  QScrollBar* AcrossBar() const { return editor->findChildren<QScrollBar*>().at(1); }
  /// The widths of the cells in the first row.
  std::vector<int> Widths() const {
    std::vector<int> widths;
    for (int col = 0; col < editor->NoOfColEdits(); ++col) widths.push_back(Cell(col)->width());
    return widths;
  }
  void Resize(int width, int height) {
    window->layout()->removeWidget(editor);
    editor->resize(width, height);
    QApplication::processEvents();
  }
  static constexpr int kHeight = 21;
};

TEST_F(GridLayout, HeadingsTakeRoomAndNameTheElements) {
  Open(120, 4);
  const QSize without = editor->sizeHint();
  editor->setRowHeadings(true);
  editor->setColHeadings(true);
  QWidget* const rows = Headings("RowHeadings");
  QWidget* const cols = Headings("ColHeadings");
  const int numbers = rows->width();
  EXPECT_GT(numbers, editor->fontMetrics().horizontalAdvance("120"));
  EXPECT_EQ(editor->sizeHint(), without + QSize(numbers, kHeight));
  EXPECT_EQ(rows->geometry(), QRect(0, kHeight, numbers, 4 * kHeight));
  EXPECT_EQ(cols->geometry(), QRect(numbers, 0, 3 * 81, kHeight));
  EXPECT_EQ(Cell(0)->pos(), QPoint(numbers, kHeight));
  EXPECT_EQ(Bar()->geometry().top(), kHeight);
  EXPECT_EQ(editor->RowHeading(3), "4");
  EXPECT_EQ(Cell(4)->accessibleName(), "Row 2, column 2");

  std::vector<quint32> asked;
  editor->OnGetRowHeading = [&](quint32 row) {
    asked.push_back(row);
    return row < 50 ? QString("day %1").arg(row) : QString("a much longer heading");
  };
  editor->OnGetColHeading = [](quint32 col) { return QString(QChar('A' + static_cast<int>(col))); };
  editor->Redisplay();
  editor->grab();
  EXPECT_EQ(Cell(4)->accessibleName(), "Row day 1, column B");
  EXPECT_LE(*std::ranges::max_element(asked), 3U) << "only those in sight";
  const int days = rows->width();
  EXPECT_GT(days, numbers);
  editor->setDisplayTopRow(60);
  const int longer = rows->width();
  EXPECT_GT(longer, days);
  editor->ScrollTop();
  EXPECT_EQ(rows->width(), longer) << "the cells do not move to and fro";
  editor->setNoOfRows(100);
  EXPECT_EQ(rows->width(), days);

  editor->OnGetRowHeading = [](quint32) { return QString(10'000, 'x'); };
  editor->Redisplay();
  EXPECT_LT(rows->width(), 500);

  editor->setLayoutDirection(Qt::RightToLeft);
  EXPECT_EQ(rows->geometry().right() + 1, editor->width());
  editor->setRowHeadings(false);
  EXPECT_TRUE(rows->isHidden());
  editor->setColHeadings(false);
  EXPECT_EQ(editor->sizeHint(), without);
}

TEST_F(GridLayout, HeadingsAreMeasuredWhenTheyShow) {
  editor->setMatrix({{1}});
  editor->setRowHeadings(true);
  editor->OnGetRowHeading = [](quint32) { return QString("a long heading"); };
  Show();
  EXPECT_GT(Headings("RowHeadings")->width(),
            editor->fontMetrics().horizontalAdvance("a long heading"));
}

TEST_F(GridLayout, EdgesOfColumnHeadingsCanBeDragged) {
  editor->setColHeadings(true);
  Open(4, 5);
  QWidget* const cols = Headings("ColHeadings");
  const auto drag = [&](int from, int to) {
    QTest::mousePress(cols, Qt::LeftButton, {}, {from, 5});
    QTest::mouseMove(cols, {to, 5});
    QTest::mouseRelease(cols, Qt::LeftButton, {}, {to, 5});
    QApplication::processEvents();
  };
  // An X server takes its time to move the mouse.
  const auto turns_into = [cols](Qt::CursorShape shape) {
    return QTest::qWaitFor([=] { return cols->cursor().shape() == shape; });
  };
  QTest::mouseMove(cols, {79, 5});
  EXPECT_TRUE(turns_into(Qt::SplitHCursor));
  QTest::mouseMove(cols, {40, 5});
  EXPECT_TRUE(turns_into(Qt::ArrowCursor));
  editor->setDisplayLeftCol(1);
  drag(79, 99);
  EXPECT_EQ(editor->ColWidth(1), 101);
  EXPECT_EQ(editor->ColWidth(0), 81);
  EXPECT_EQ(Widths(), std::vector({101, 81, 81}));
  drag(102, -500);
  EXPECT_EQ(editor->ColWidth(1), 8) << "it stays within reach of the mouse";
  editor->setColWidth(2, 0);
  drag(9, 39);
  EXPECT_EQ(editor->ColWidth(2), 30) << "a column without a width can be widened";
  editor->resetColWidth(1);
  editor->resetColWidth(2);

  const auto fit = [&] {
    QTest::mouseDClick(cols, Qt::LeftButton, {}, {editor->ColWidth(1) - 1, 5});
    return editor->ColWidth(1);
  };
  const int narrow = fit();
  EXPECT_LT(narrow, 81);
  editor->setElement(2, 1, 123'456'789'012);
  const int wide = fit();
  EXPECT_GT(wide, narrow);
  const auto painted = [this] { return Cell(6)->PaintedText(); };
  EXPECT_EQ(painted(), "123456789012.0000");
  editor->setColWidth(1, wide - 1);
  EXPECT_NE(painted(), "123456789012.0000") << "not a pixel more than needed";
  editor->OnGetColHeading = [](quint32) { return QString(60, 'x'); };
  EXPECT_GT(fit(), wide);
  editor->resetColWidth(1);

  editor->setLayoutDirection(Qt::RightToLeft);
  const int edge = cols->width() - 81;
  drag(edge, edge - 10);
  EXPECT_EQ(editor->ColWidth(1), 91);
  Resize(200, 100);
  drag(cols->width() - 91, cols->width() - 291);
  EXPECT_EQ(editor->width(), editor->sizeHint().width()) << "without a layout it widens itself";
}

TEST_F(GridLayout, HeadingsSelectRowsAndColumns) {
  editor->setRowHeadings(true);
  editor->setColHeadings(true);
  Open(9, 5);
  editor->setDisplayTopRow(2);
  editor->setDisplayLeftCol(1);
  QWidget* const rows = Headings("RowHeadings");
  QWidget* const cols = Headings("ColHeadings");
  const auto press = [](QWidget* bar, QPoint place, Qt::KeyboardModifiers held = {}) {
    QTest::mousePress(bar, Qt::LeftButton, held, place);
  };
  const auto drag = [](QWidget* bar, QPoint to) {
    QTest::mouseMove(bar, to);
    QTest::mouseRelease(bar, Qt::LeftButton, {}, to);
  };
  press(rows, {5, kHeight + 5});
  EXPECT_EQ(editor->Selection(), (TQorCellRange{3, 1, 0, 5}));
  EXPECT_EQ(editor->CurrentRow(), 3U) << "what is typed goes into the row";
  drag(rows, {5, 3 * kHeight + 5});
  EXPECT_EQ(editor->Selection(), (TQorCellRange{3, 3, 0, 5}));
  press(rows, {5, 5}, Qt::ShiftModifier);
  EXPECT_EQ(editor->Selection(), (TQorCellRange{2, 2, 0, 5})) << "from the row pressed first";
  QTest::mouseRelease(rows, Qt::LeftButton, {}, {5, 5});

  Type("7");
  press(cols, {2 * 81 + 20, 5});
  EXPECT_NE(Take().find("change 3 1"), std::string::npos);
  EXPECT_EQ(editor->Selection(), (TQorCellRange{0, 9, 3, 1}));
  EXPECT_EQ(editor->CurrentCol(), 3U);
  QTest::mouseMove(cols, {3 * 81 + 50, 5});
  EXPECT_TRUE(QTest::qWaitFor([this] { return editor->DisplayLeftCol() == 2; }))
      << "beyond the headings the mouse scrolls";
  QTest::mouseRelease(cols, Qt::LeftButton, {}, {3 * 81 + 50, 5});
  EXPECT_EQ(editor->Selection(), (TQorCellRange{0, 9, 3, 2}));
  QTest::mouseClick(editor->childAt(3, 3), Qt::LeftButton, {}, {3, 3});
  EXPECT_EQ(editor->Selection(), (TQorCellRange{0, 9, 0, 5})) << "the corner selects all";
}

TEST_F(GridLayout, ColumnsKeepTheirWidthAndFormatWhenScrolled) {
  editor->setColWidth(3, 120);
  editor->setColWidth(1, 30);
  editor->setColFormat(3, {.decimal_places = 1, .alignment = Qt::AlignLeft});
  editor->setNoOfRowEdits(1);
  Open(4, 6);
  EXPECT_EQ(Widths(), std::vector({81, 30, 81}));
  EXPECT_EQ(editor->sizeHint().width(), 2 * 81 + 120 + Bar()->width()) << "wherever it is scrolled";
  const int bar = Bar()->x();
  editor->setDisplayLeftCol(2);
  EXPECT_EQ(Widths(), std::vector({81, 120, 81}));
  EXPECT_EQ(Cell(2)->x(), 201);
  EXPECT_EQ(Bar()->x(), bar);
  EXPECT_EQ(Cell(0)->text(), "2.0000");
  EXPECT_EQ(Cell(1)->text(), "3.0");
  EXPECT_EQ(Cell(1)->Alignment(), Qt::AlignLeft);
  editor->setDecimalPlaces(2);
  editor->setNoOfColEdits(4);
  EXPECT_EQ(Texts(), "2.00|3.0|4.00|5.00");
  EXPECT_EQ(editor->ColFormat(3).decimal_places, 1);
  EXPECT_EQ(editor->ColFormat(2).decimal_places, 2);
  editor->setDisplayLeftCol(0);
  EXPECT_EQ(Texts(), "0.00|1.00|2.00|3.0");
  editor->resetColFormat(3);
  EXPECT_EQ(Cell(3)->text(), "3.00");
  editor->resetColWidth(3);
  EXPECT_EQ(Cell(3)->width(), 81);
}

TEST_F(GridLayout, AutoEditsHaveTheRoomThatThereIs) {
  Open(100, 10);
  const QSize before = editor->sizeHint();
  editor->setAutoEdits(true);
  EXPECT_EQ(editor->sizePolicy(), QSizePolicy(QSizePolicy::Expanding, QSizePolicy::Expanding));
  EXPECT_EQ(editor->sizeHint(), before);
  const int bar = AcrossBar()->height();
  const auto edits = [this] { return std::pair(editor->NoOfRowEdits(), editor->NoOfColEdits()); };
  const auto bars = [this] {
    return std::pair(!Bar()->size().isEmpty(), !AcrossBar()->size().isEmpty());
  };
  Resize(5 * 81 + bar, 7 * kHeight + bar + 20);
  EXPECT_EQ(edits(), std::pair(7, 5));
  EXPECT_EQ(bars(), std::pair(true, true));
  EXPECT_EQ(Bar()->geometry().right() + 1, editor->width());
  EXPECT_EQ(AcrossBar()->geometry().bottom() + 1, editor->height());
  Resize(5 * 81 + bar - 1, 7 * kHeight + bar - 1);
  EXPECT_EQ(edits(), std::pair(6, 4));
  Resize(1, 1);
  EXPECT_EQ(edits(), std::pair(1, 1));
  editor->setDisplayTopRow(98);
  Resize(10 * 81, 9 * kHeight);
  EXPECT_EQ(edits(), std::pair(8, 9)) << "each bar makes the other one necessary";
  EXPECT_EQ(editor->DisplayTopRow(), 92U) << "no room is wasted below the last row";
  Resize(10 * 81 + bar, 9 * kHeight);
  EXPECT_EQ(edits(), std::pair(9, 10));
  EXPECT_EQ(bars(), std::pair(true, false));

  editor->setNoOfRows(3);
  EXPECT_EQ(edits(), std::pair(3, 10)) << "no cells without elements";
  EXPECT_EQ(bars(), std::pair(false, false));
  QToolButton* const corner = editor->findChild<QToolButton*>();
  EXPECT_TRUE(corner->size().isEmpty());
  editor->setRowEditFocus(2);
  Take();
  editor->setNoOfRows(2);
  EXPECT_EQ(Take(), "out 2 0, current 2 1, in 1 0, rows 2") << "without a bar, too";
  editor->setNoOfRows(0);
  editor->setNoOfRows(1000);
  EXPECT_EQ(edits(), std::pair(9, 10));
  editor->setColHeadings(true);
  editor->setRowHeadings(true);
  EXPECT_EQ(edits(), std::pair(7, 9));
  editor->setNoOfRowEdits(20);
  EXPECT_EQ(editor->sizeHint().height(), 21 * kHeight + bar) << "what a layout should give it";
  QApplication::processEvents();
  EXPECT_EQ(edits(), std::pair(7, 9));
  editor->setAutoEdits(false);
  EXPECT_EQ(edits(), std::pair(20, 3));
  EXPECT_EQ(editor->sizePolicy(), QSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed));
}

TEST_F(GridLayout, AutoEditsFillALayoutWhenItIsShown) {
  editor->setAutoEdits(true);
  editor->setNoOfCols(50);
  editor->setNoOfRows(50);
  editor->setDisplayTopRow(45);
  window->resize(600, 500);
  Show();
  const QSize room = editor->size() - QSize(Bar()->width(), AcrossBar()->height());
  EXPECT_GT(room.height(), 4 * kHeight);
  EXPECT_EQ(editor->NoOfRowEdits(), room.height() / kHeight);
  EXPECT_EQ(editor->NoOfColEdits(), room.width() / 81);
  EXPECT_EQ(static_cast<int>(editor->DisplayTopRow()), 50 - editor->NoOfRowEdits());
}

// The number of cells in a row changes while the keys go through columns of all widths.
TEST_F(GridLayout, KeysReachEveryColumnWhateverHasRoom) {
  editor->setAutoEdits(true);
  Open(2, 12);
  for (quint32 col : {1U, 5U, 6U, 11U}) editor->setColWidth(col, 60 * static_cast<int>(col));
  editor->setColWidth(8, 20);
  Resize(400, 200);
  editor->setColEditFocus(0);
  Take();
  QStringList visited;
  QObject::connect(editor, &TQorMatrixEdit::OnCellEnter, editor, [&](quint32 row, quint32 col) {
    visited.append(QString("%1 %2").arg(row).arg(col));
    const auto* const cell = static_cast<QWidget*>(QApplication::focusWidget());
    EXPECT_TRUE(col == 11 || cell->geometry().right() < Bar()->geometry().right() + 1) << col;
  });
  QStringList expected;
  for (quint32 step = 1; step < 24; ++step) {
    Press(Qt::Key_Right, Qt::ControlModifier);
    expected.append(QString("%1 %2").arg(step / 12).arg(step % 12));
  }
  EXPECT_EQ(visited.join(", ").toStdString(), expected.join(", ").toStdString());
  visited.clear();
  std::ranges::reverse(expected);
  expected.removeFirst();
  expected.append("0 0");
  for (int step = 1; step < 24; ++step) Press(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_EQ(visited.join(", ").toStdString(), expected.join(", ").toStdString());
  visited.clear();
  Press(Qt::Key_End, Qt::ControlModifier);
  Press(Qt::Key_Home, Qt::ControlModifier);
  EXPECT_EQ(visited.join(", ").toStdString(), "1 11, 0 0");
}

TEST_F(GridLayout, HugeSizesAreClamped) {
  constexpr int huge = std::numeric_limits<int>::max();
  editor->setCellHeight(huge);
  editor->setCellWidth(huge);
  editor->setColWidth(0, huge);
  editor->setNoOfRowEdits(255);
  EXPECT_EQ(editor->sizeHint(),
            QSize(3 * 32'767, 255 * 32'767) + QSize(Bar()->width(), Bar()->width()));
  EXPECT_EQ(editor->ColWidth(0), 32'767);
  editor->setCellWidth(-1);
  EXPECT_EQ(editor->CellWidth(), 0);
  TQorLabelledVectorEdit labelled;
  labelled.setLabelWidth(huge);
  EXPECT_EQ(labelled.LabelWidth(), 32'767);
}

}  // namespace qorvex
