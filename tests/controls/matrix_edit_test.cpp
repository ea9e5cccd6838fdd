#include <QSignalSpy>
#include <QToolButton>
#include <algorithm>
#include <cmath>
#include <functional>
#include <tuple>

#include "controls/editor_fixture.h"
#include "qorvex/matrix/QorvexMatrix.h"

namespace qorvex {

template <class Editor>
struct MatrixFixture : EditorFixture<Editor> {
  using EditorFixture<Editor>::editor;

  /// Elements 10 * row + col in a window that is shown.
  void Open(quint32 rows, quint32 cols) {
    editor->setMatrix(Numbered(rows, cols));
    editor->setNoOfRows(rows);
    editor->setNoOfCols(cols);
    this->Show();
  }
  static TQorFloatMatrix Numbered(quint32 rows, quint32 cols) {
    auto matrix = CreateFloatMatrix(rows, cols);
    for (quint32 r = 0; r < rows; ++r) {
      for (quint32 c = 0; c < cols; ++c) matrix[r][c] = 10.0L * r + c;
    }
    return matrix;
  }
  /// The cell in a row and a column of the grid, whose size is the default.
  TQorCustomEdit* At(int row, int col) const { return this->Cell(row * 3 + col); }
  static bool Same(const TQorFloatMatrix& a, const TQorFloatMatrix& b) {
    return std::ranges::equal(a, b, [](auto& x, auto& y) { return std::ranges::equal(x, y); });
  }
};
using MatrixEdit = MatrixFixture<TQorMatrixEdit>;
using MatrixFractEdit = MatrixFixture<TQorMatrixFractEdit>;

TEST_F(MatrixEdit, RaisesEventsInOrder) {
  Open(6, 5);
  QScrollBar* const across = editor->findChildren<QScrollBar*>().at(1);
  const auto press = [this](Qt::Key key) { return [=, this] { Press(key, Qt::ControlModifier); }; };
  const std::tuple<const char*, std::function<void()>, const char*> steps[] = {
      {"a program scrolls", [&] { editor->setDisplayTopRow(99); }, "top 2"},
      {"beyond the end again", [&] { editor->setDisplayTopRow(99); }, ""},
      {"a program scrolls across", [&] { editor->ScrollRight(1); }, "left 1"},
      {"the focus comes", [&] { At(3, 2)->setFocus(); }, "current 0 5, column 0 3, in 5 3"},
      {"to the last column", press(Qt::Key_Right), "out 5 3, left 2, column 3 4, in 5 4"},
      {"at the end of the matrix", press(Qt::Key_Right), ""},
      {"nor further down", [&] { Press(Qt::Key_Return, Qt::ShiftModifier); }, ""},
      {"up", press(Qt::Key_Up), "out 5 4, current 5 4, in 4 4"},
      {"left", press(Qt::Key_Left), "out 4 4, column 4 3, in 4 3"},
      {"down", press(Qt::Key_Down), "out 4 3, current 4 5, in 5 3"},
      {"typing", [&] { Type("8"); }, "text 5 3 8"},
      {"from the last row to the next column", press(Qt::Key_Down),
       "change 5 3, out 5 3, top 0, current 5 0, column 3 4, in 0 4"},
      {"and up again", press(Qt::Key_Up), "out 0 4, top 2, current 0 5, column 4 3, in 5 3"},
      {"a wheel notch", [&] { TurnWheel(At(0, 0), 120); }, "top 1"},
      {"the other bar", [&] { across->triggerAction(QScrollBar::SliderSingleStepSub); }, "left 1"},
      {"a row that is asked for", [&] { editor->setCurrentRow(3); }, "top 0, current 5 3"},
      {"a column", [&] { editor->setCurrentCol(4); }, "left 2"},
      {"fewer columns", [&] { editor->setNoOfCols(2); },
       "out 3 3, left 0, column 3 1, in 3 1, cols 2"},
      {"fewer rows", [&] { editor->setNoOfRows(1); }, "out 3 1, current 3 0, in 0 1, rows 1"},
  };
  for (const auto& [action, run, events] : steps) {
    SCOPED_TRACE(action);
    run();
    EXPECT_EQ(Take(), events);
  }
}

TEST_F(MatrixEdit, KeysReachEveryElement) {
  for (const auto& [rows, cols] : {std::pair(1, 1), {2, 1}, {1, 2}, {4, 3}, {5, 2}, {7, 6}}) {
    Open(static_cast<quint32>(rows), static_cast<quint32>(cols));
    At(0, 0)->setFocus();
    for (const Qt::Key key : {Qt::Key_Down, Qt::Key_Up, Qt::Key_Right, Qt::Key_Left}) {
      const bool by_columns = key == Qt::Key_Down || key == Qt::Key_Up;
      const bool back = key == Qt::Key_Up || key == Qt::Key_Left;
      for (int step = 0; step < rows * cols; ++step) {
        const int i = back ? rows * cols - 1 - step : step;
        const auto* const cell = qobject_cast<TQorCustomEdit*>(QApplication::focusWidget());
        ASSERT_TRUE(cell);
        ASSERT_EQ(cell->Value(),
                  by_columns ? 10 * (i % rows) + i / rows : 10 * (i / cols) + i % cols)
            << rows << " x " << cols << ", key " << key;
        Press(key, Qt::ControlModifier);
      }
    }
  }
}

TEST_F(MatrixEdit, CommandsApplyTheRoutinesAndCanBeUndone) {
  const TQorFloatMatrix start = {{4, 1}, {0.25L, 2}};
  editor->setMatrix(start);
  Show();
  const auto each = [](Extended (*f)(Extended)) {
    return TQorFloatMatrix{{f(4), f(1)}, {f(0.25L), f(2)}};
  };
  const std::tuple<const char*, std::function<void()>, TQorFloatMatrix> commands[] = {
      {"SwapRows", [&] { editor->SwapRows(0, 1); }, {{0.25L, 2}, {4, 1}}},
      {"SwapColumns", [&] { editor->SwapColumns(0, 1); }, {{1, 4}, {2, 0.25L}}},
      {"LinearTransform", [&] { editor->LinearTransform(2, 1); }, {{9, 3}, {1.5L, 5}}},
      {"Sqr", [&] { editor->Sqr(); }, {{16, 1}, {0.0625L, 4}}},
      {"Sqrt", [&] { editor->Sqrt(); }, each(std::sqrt)},
      {"Invert", [&] { editor->Invert(); }, {{0.25L, 1}, {4, 0.5L}}},
      {"Ln", [&] { editor->Ln(); }, each(std::log)},
      {"Log10", [&] { editor->Log10(); }, each(std::log10)},
      {"Transpose", [&] { editor->Transpose(); }, {{4, 0.25L}, {1, 2}}},
      {"Inverse",
       [&] { editor->setElement(1, 0, 0), editor->Inverse(); },
       {{0.25L, -0.125L}, {0, 0.5L}}},
      {"Replace", [&] { editor->Replace({{7}, {8}, {9}}); }, {{7}, {8}, {9}}},
      {"RowReduce", [&] { editor->RowReduce(); }, {{1, 0.25L}, {0, 1}}},
      {"ScaleRow", [&] { editor->ScaleRow(1, 4); }, {{4, 1}, {1, 8}}},
      {"ScaleCol", [&] { editor->ScaleCol(0, 2); }, {{8, 1}, {0.5L, 2}}},
      {"AddRows", [&] { editor->AddRows(0, 1, 4); }, {{5, 9}, {0.25L, 2}}},
      {"AddCols", [&] { editor->AddCols(1, 0, 2); }, {{4, 9}, {0.25L, 2.5L}}},
  };
  for (const auto& [name, run, result] : commands) {
    SCOPED_TRACE(name);
    editor->setMatrix(start);
    run();
    EXPECT_TRUE(Same(editor->Matrix(), result));
    EXPECT_EQ(At(1, 0)->Value(), result[1][0]);
    editor->Undo();
    EXPECT_EQ(editor->Element(0, 1), 1);
    editor->Redo();
    EXPECT_TRUE(Same(editor->Matrix(), result));
  }
  editor->setMatrix({{1, 2}, {2, 4}});
  EXPECT_MATH_ERROR(editor->Inverse(), rsNoInvert);
  EXPECT_TRUE(Same(editor->Matrix(), {{1, 2}, {2, 4}}));
  EXPECT_MATH_ERROR(editor->SwapRows(0, 2), rsInvalidRow);
  EXPECT_MATH_ERROR(editor->Replace({{1, 2}, {3}}), rsMatrixRect);
  EXPECT_MATH_ERROR(editor->Replace({}), rsMatrixIsEmpty);
  EXPECT_FALSE(editor->CanUndo());
  EXPECT_FALSE(editor->Updating());
  editor->setNoOfCols(0);
  EXPECT_MATH_ERROR(editor->RowReduce(), rsMatrixIsEmpty);
}

TEST_F(MatrixEdit, ATransposeChangesTheShapeThereAndBack) {
  Open(5, 2);
  At(3, 1)->setFocus();
  editor->Transpose();
  EXPECT_EQ(editor->Element(1, 4), 41);
  EXPECT_EQ(Texts(), "0.0000|10.0000|20.0000|1.0000|11.0000|21.0000||||||");
  QSignalSpy undone(editor, &TQorMatrixEdit::OnUndo);
  // While the shape changes, the elements are those before.
  At(1, 2)->setFocus();
  Extended read = 0;
  auto handler = On(&TQorMatrixEdit::OnCellExit, [&] { read = editor->Element(1, 0); });
  editor->Undo();
  EXPECT_EQ(read, 1);
  handler.reset();
  EXPECT_EQ(undone.count(), 1);
  EXPECT_TRUE(Same(editor->Matrix(), Numbered(5, 2)));
  editor->Redo();
  EXPECT_EQ(editor->Element(1, 4), 41);
}

TEST_F(MatrixEdit, OwnsARectangularMatrix) {
  TQorFloatMatrix mine = Numbered(2, 2);
  editor->setMatrix(mine);
  mine[0][0] = 99;
  EXPECT_EQ(editor->Element(0, 0), 0);
  TQorFloatMatrix read = editor->Matrix();
  read[1][1] = 99;
  EXPECT_EQ(editor->Element(1, 1), 11);
  EXPECT_MATH_ERROR(editor->setMatrix({{1, 2}, {3}}), rsMatrixRect);
  EXPECT_MATH_ERROR(std::ignore = editor->Element(2, 0), rsInvalidRow);
  EXPECT_MATH_ERROR(std::ignore = editor->Element(0, 2), rsInvalidCol);
  // What has gone does not come back with the columns.
  editor->setNoOfCols(1);
  editor->setNoOfCols(3);
  editor->setElement(0, 2, 5);
  EXPECT_TRUE(Same(editor->Matrix(), {{0, 0, 5}, {10, 0, 0}}));
  editor->setMatrix({});
  EXPECT_EQ(editor->NoOfCols(), 0U);
  EXPECT_MATH_ERROR(std::ignore = editor->Element(0, 0), rsMatrixIsEmpty);
}

TEST_F(MatrixEdit, VirtualModeAsksForWhatItShows) {
  editor->setVirtualMode(true);
  editor->setNoOfRows(4'000'000'000U);
  editor->setNoOfCols(4'000'000'000U);
  Show();
  EXPECT_EQ(editor->Element(2, 3), 8000000003.0L) << "the position of the element by rows";
  int asked = 0;
  editor->OnGetElement = [&asked](quint32 row, quint32 col) {
    ++asked;
    return static_cast<Extended>(row) - static_cast<Extended>(col);
  };
  editor->ScrollRightMost();
  EXPECT_EQ(asked, 12);
  At(1, 0)->setFocus();
  Take();
  Type("5");
  Take();
  Press(Qt::Key_Return);
  EXPECT_EQ(Take(),
            "set 1 3999999997 5, change 1 3999999997, out 1 3999999997, current 1 2, "
            "in 2 3999999997");
  editor->Inverse();
  editor->Transpose();
  EXPECT_EQ(Take(), "");
}

TEST_F(MatrixEdit, ColoursCopiesPastesAndNamesItsCells) {
  Open(3, 3);
  editor->setColorSetText(Qt::blue);
  editor->OnSpecialColor = [](quint32 row, quint32 col, Extended, QColor& color) {
    EXPECT_EQ(color, QColor(Qt::blue));
    if (row == col) color = Qt::red;
  };
  editor->Redisplay();
  EXPECT_EQ(At(1, 1)->palette().color(QPalette::Text), QColor(Qt::red));
  EXPECT_EQ(At(1, 0)->palette().color(QPalette::Text), QColor(Qt::blue));
  EXPECT_EQ(At(2, 1)->accessibleName(), "Row 3, column 2");
  editor->CopyAll();
  EXPECT_EQ(QApplication::clipboard()->text(), "0\t1\t2\n10\t11\t12\n20\t21\t22\n");
  At(1, 1)->setFocus();
  EXPECT_TRUE(editor->PasteBlock("5\t6\n7\n"));
  EXPECT_TRUE(Same(editor->Matrix(), {{0, 1, 2}, {10, 5, 6}, {20, 7, 22}}));
  Take();
  EXPECT_FALSE(editor->PasteBlock("1\tx"));
  EXPECT_EQ(Take(), "refused Row 2, column 3: \"x\" is not a number.");
  EXPECT_FALSE(editor->PasteBlock("1\t2\t3"));
  editor->Undo();
  EXPECT_TRUE(Same(editor->Matrix(), Numbered(3, 3)));
  QSignalSpy corner(editor, &TQorMatrixEdit::OnCornerBtnClick);
  QTest::mouseClick(editor->findChild<QToolButton*>(), Qt::LeftButton);
  EXPECT_EQ(corner.count(), 1);
  editor->setLayoutDirection(Qt::RightToLeft);
  EXPECT_GT(At(0, 0)->x(), At(0, 1)->x());
  At(0, 0)->setFocus();
  Press(Qt::Key_Left, Qt::ControlModifier);
  EXPECT_TRUE(At(0, 1)->hasFocus()) << "left is a direction on the screen";
}

TEST_F(MatrixFractEdit, ShowsAndTakesFractions) {
  EXPECT_MATH_ERROR(std::ignore = editor->FractElement(0, 0), rsMatrixIsEmpty);
  editor->setMatrix({{0.5L, 7 / 3.0L}, {-1.75L, 3}});
  Show();
  EXPECT_EQ(Texts(), "1/2|2 1/3||-1 3/4|3|||||||");
  editor->setFractionDisplay(TQorFractEdit::fdImproper);
  EXPECT_EQ(At(0, 1)->text(), "7/3");
  editor->setNoOfColEdits(4);
  editor->setNoOfCols(4);
  editor->setDecimalsFract(1);
  editor->setElement(0, 3, std::acos(-1.0L));
  EXPECT_EQ(editor->FractElement(0, 3), (TQorMixedFraction{3, 1, 7}));
  EXPECT_TRUE(QString::fromStdString(Texts()).contains("22/7")) << "a new cell is like the others";
  editor->setFractElement(1, 0, {2, 1, 3});
  EXPECT_EQ(editor->Element(1, 0), 2 + 1 / 3.0L);
  EXPECT_ERROR(editor->setFractElement(1, 0, {1, 1, 0}), EZeroDivide, rsZeroDivide);

  EXPECT_EQ(editor->FractElement(1, 4), TQorMixedFraction{}) << "one past the last reads as 0";
  editor->setFractElement(1, 4, {9, 0, 1});
  EXPECT_EQ(editor->FractElement(1, 4), TQorMixedFraction{});
  EXPECT_MATH_ERROR(std::ignore = editor->FractElement(1, 5), rsInvalidCol);
  EXPECT_MATH_ERROR(std::ignore = editor->FractElement(2, 9), rsInvalidRow);
  editor->setVirtualMode(true);
  editor->setNoOfCols(5);
  EXPECT_EQ(editor->FractElement(1, 2), (TQorMixedFraction{7, 0, 1}));
}

}  // namespace qorvex
