#include <QFontMetricsF>
#include <QHelpEvent>
#include <QStyleOptionFrame>
#include <QToolTip>
#include <cmath>
#include <random>

#include "editor_fixture.h"
#include "qorvex/base_controls/detail/number_text.h"
#include "qorvex/base_controls/float_edit.h"
#include "qorvex/base_controls/fract_edit.h"

namespace qorvex {
namespace {

// Half a unit of the last digit of a number.
Extended HalfUnit(const QString& text, const QLocale& locale) {
  const qsizetype e = text.indexOf('e');
  const QString mantissa = text.left(e);
  const qsizetype point = mantissa.indexOf(locale.decimalPoint());
  Extended unit = point < 0 ? 0 : static_cast<Extended>(point + 1 - mantissa.size());
  if (e >= 0) unit += QorvexBaseControls::detail::ParseLocalNumber(text.mid(e + 1), locale).value();
  return std::pow(10.0L, unit) / 2;
}

// The picture of a line edit that shows this text and is like the cell otherwise.
QImage Picture(const TQorCustomEdit& cell, const QString& text) {
  QLineEdit plain(cell.parentWidget());
  plain.setLayoutDirection(cell.layoutDirection());
  plain.setEnabled(cell.isEnabled());
  plain.setFont(cell.font());
  plain.setPalette(cell.palette());
  plain.setAlignment(cell.alignment());
  plain.setFixedSize(cell.size());
  plain.setText(text);
  plain.setCursorPosition(0);
  return plain.grab().toImage();
}

// Slanted glyphs reach beyond their advance.
qreal Width(const QLineEdit& edit, const QString& text) {
  const QFontMetricsF metrics(edit.font());
  return std::max(metrics.horizontalAdvance(text), metrics.boundingRect(text).right());
}

// What the frame leaves for a text, without the two pixels that a line edit keeps free around it.
qreal Room(const QLineEdit& edit) {
  QStyleOptionFrame frame;
  frame.initFrom(&edit);
  frame.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &frame, &edit);
  return edit.style()->subElementRect(QStyle::SE_LineEditContents, &frame, &edit).width() - 4;
}

template <class Edit>
struct FittedCells : testing::Test {};
using Edits = testing::Types<TQorFloatEdit, TQorFractEdit>;
TYPED_TEST_SUITE(FittedCells, Edits);

TYPED_TEST(FittedCells, PaintEveryNumberWithinTheDigitsShownOrTheMark) {
  const auto seed = std::random_device{}();
  SCOPED_TRACE(seed);
  std::mt19937_64 engine(seed);
  const auto one_of = [&engine](const auto&... choices) {
    const std::initializer_list list{choices...};
    return list.begin()[engine() % list.size()];
  };
  int shorter = 0;
  QFont font;
  for (int i = 0; i < 600; ++i) {
    // A new font takes longer than a cell.
    if (i % 20 == 0) {
      font = QFont(one_of("DejaVu Sans", "DejaVu Sans Mono"), 6 + static_cast<int>(engine() % 12));
      font.setItalic(one_of(true, false));
      font.setBold(one_of(true, false));
      font.setLetterSpacing(QFont::AbsoluteSpacing, one_of(0, 4));
    }
    TypeParam cell;
    cell.setFont(font);
    cell.setLocale(QLocale(one_of(QLocale::C, QLocale::German, QLocale::Swedish)));
    cell.setAlignment(one_of(Qt::AlignRight, Qt::AlignLeft, Qt::AlignHCenter) |
                      one_of(Qt::AlignTop, Qt::AlignBottom, Qt::AlignVCenter));
    cell.setEnabled(one_of(true, true, false));
    cell.SetSpecialColor(one_of(QColor(), QColor(Qt::red)));
    cell.setLayoutDirection(one_of(Qt::LeftToRight, Qt::RightToLeft));
    cell.setProperty("DecimalPlaces", static_cast<int>(engine() % 20));
    cell.setProperty("DecimalsFract", static_cast<int>(engine() % 20));
    cell.setProperty("FullAccuracy", one_of(true, false));
    cell.setProperty("TrimTrailingZeroes", one_of(true, false));
    cell.setFixedSize(static_cast<int>(engine() % 150), 14 + static_cast<int>(engine() % 20));
    const auto integer = static_cast<Extended>(static_cast<std::int64_t>(engine()) >> 20);
    const auto power = static_cast<int>(engine() % 36) - 30;
    cell.setValue(one_of(true, false) ? integer * std::pow(10.0L, power)
                                      : std::trunc(integer / 0x1p20L) / 16);

    const QString painted = cell.PaintedText();
    SCOPED_TRACE(
        (cell.text() + " in " + QString::number(cell.width()) + ": " + painted).toStdString());
    ASSERT_EQ(cell.grab().toImage(), Picture(cell, painted));
    const qreal room = Room(cell);
    ASSERT_TRUE(painted.isEmpty() || Width(cell, painted) <= room);
    if (painted == cell.text()) continue;
    ++shorter;
    // The spacing after the last letter may count or not.
    ASSERT_GT(Width(cell, cell.text()), room - 2 - font.letterSpacing()) << "it would have fitted";
    if (QLatin1String("####").startsWith(painted)) continue;
    const auto value = QorvexBaseControls::detail::ParseLocalNumber(painted, cell.locale());
    ASSERT_TRUE(value);
    const Extended slack = std::fabs(cell.Value()) * 0x1p-60L;
    ASSERT_LE(std::fabs(*value - cell.Value()), HalfUnit(painted, cell.locale()) + slack);
    ASSERT_EQ(*value < 0, cell.Value() < 0 && *value != 0);
  }
  EXPECT_GT(shorter, 100);
}

QString TipOf(TextCell& cell) {
  QHelpEvent event(QEvent::ToolTip, {3, 3}, cell.mapToGlobal(QPoint(3, 3)));
  QApplication::sendEvent(&cell, &event);
  return event.isAccepted() ? QToolTip::text() : QString();
}

struct PaintCounter : QObject {
  int count = 0;
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::Paint) ++count;
    return false;
  }
};

using FittedVector = EditorFixture<TQorLabelledVectorEdit>;

TEST_F(FittedVector, HasTheWholeTextForEditingTipsAndScreenReaders) {
  Open(2, 2);
  editor->setElement(0, -123456789.25L);
  const QString whole = "-123456789.2500";
  TQorCustomEdit* const cell = Cell(0);
  const QString painted = cell->PaintedText();
  EXPECT_NE(painted, whole);
  EXPECT_EQ(TipOf(*cell), whole);
  EXPECT_EQ(TipOf(*Cell(1)), "") << "nothing is missing";
  EXPECT_EQ(QAccessible::queryAccessibleInterface(cell)->text(QAccessible::Value), whole);
  editor->setEditFocus(0);
  EXPECT_EQ(cell->selectedText(), whole);
  EXPECT_EQ(cell->PaintedText(), painted) << "it is not being edited";
  Press(Qt::Key_F2);
  Press(Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(cell->PaintedText(), whole);
  other->setFocus();
  EXPECT_EQ(cell->PaintedText(), painted);
  editor->setEditFocus(0);
  editor->setReadOnly(true);
  EXPECT_EQ(cell->PaintedText(), painted) << "it cannot be edited";
  const QImage selected = cell->grab().toImage();
  cell->deselect();
  EXPECT_NE(cell->grab().toImage(), selected);
  cell->setSelection(0, 3);
  EXPECT_EQ(cell->PaintedText(), whole) << "a selected text is shown whole";
}

TEST_F(FittedVector, FollowsWidthFontAndSettings) {
  Open(1, 1);
  editor->setElement(0, 1234567.75L);
  TQorCustomEdit* const cell = Cell(0);
  editor->setCellWidth(45);
  EXPECT_TRUE(cell->PaintedText().endsWith("e6"));
  QFont small = editor->font();
  small.setPointSize(4);
  editor->setFont(small);
  EXPECT_EQ(cell->PaintedText(), "1234567.7500");
  editor->setBlankWhenZero(true);
  editor->setElement(0, 0);
  EXPECT_EQ(cell->PaintedText(), "");
  editor->setNullStr("not measured at all");
  editor->setElement(0, kNaN);
  EXPECT_TRUE(cell->PaintedText().startsWith("not"));
  EXPECT_TRUE(cell->PaintedText().endsWith(QChar(0x2026))) << "not a number";
}

TEST_F(FittedVector, PaintsAnotherValueOfTheSameText) {
  Open(1, 1);
  editor->setDecimalPlaces(0);
  editor->setCellWidth(35);
  editor->setElement(0, 249999.6L);
  EXPECT_EQ(Cell(0)->PaintedText(), "2e5");
  QApplication::processEvents();
  PaintCounter paints;
  Cell(0)->installEventFilter(&paints);
  editor->setElement(0, 250000.4L);
  EXPECT_EQ(Cell(0)->text(), "250000");
  EXPECT_EQ(Cell(0)->PaintedText(), "3e5");
  QApplication::processEvents();
  EXPECT_EQ(paints.count, 1);
}

TEST_F(FittedVector, ElidesLabelsAtTheirEnd) {
  editor->setLabelType(TQorLabelledVectorEdit::ltSupplied);
  editor->OnGetLabel = [](quint32) { return QStringLiteral("Mount Kilimanjaro"); };
  editor->setLabelWidth(60);
  Open(1, 1);
  auto* const label = dynamic_cast<TextCell*>(editor->childAt(5, 5));
  ASSERT_TRUE(label);
  EXPECT_TRUE(label->PaintedText().startsWith("Mou"));
  EXPECT_TRUE(label->PaintedText().endsWith(QChar(0x2026)));
  EXPECT_EQ(TipOf(*label), "Mount Kilimanjaro");
}

}  // namespace
}  // namespace qorvex
