#include <QDataWidgetMapper>
#include <QSignalSpy>
#include <QStandardItemModel>

#include "editor_fixture.h"
#include "qorvex/base_controls/float_edit.h"
#include "qorvex/base_controls/fract_edit.h"

namespace qorvex {
namespace {

// Two cells in a window.
struct CellNumbers : testing::Test {
  QWidget window;
  TQorFloatEdit* cell = new TQorFloatEdit;
  TQorFractEdit* fraction = new TQorFractEdit;

  CellNumbers() {
    QLocale::setDefault(QLocale::c());
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(fraction);
    layout->addWidget(cell);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  void Enter(TQorCustomEdit* edit, const char* text) {
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
  }
  // The colour in the middle of a cell's left end, where there is no text.
  static QColor Background(QWidget* edit) {
    return edit->grab().toImage().pixelColor(4, edit->height() / 2);
  }
  static bool Paints(QWidget* edit, const QColor& color) {
    const QImage image = edit->grab().toImage();
    for (int y = 0; y < image.height(); ++y) {
      for (int x = 0; x < image.width(); ++x) {
        if (image.pixelColor(x, y) == color) return true;
      }
    }
    return false;
  }
};

TEST_F(CellNumbers, HaveTheFormatOfTheirSettings) {
  using enum NumberSettings::Format;
  const std::tuple<NumberSettings::Format, int, bool, bool, Extended, const char*> cases[] = {
      // format, digits, trimmed, full accuracy, value, text
      {nfFixed, 6, false, false, 1e-6L, "0.0000"},
      {nfSignificant, 6, false, false, 1e-6L, "1.00000e-6"},
      {nfSignificant, 6, true, false, 0.0012L, "0.0012"},
      {nfSignificant, 3, false, false, 9.996L, "10.0"},
      {nfScientific, 3, false, false, -1234.5L, "-1.23e3"},
      {nfGeneral, 6, false, false, 1234.5L, "1234.5"},
      {nfGeneral, 6, false, false, 1234567, "1.23457e6"},
      {nfGeneral, 6, false, true, 1 / 3.0L, "0.33333333333333333334"},
  };
  for (const auto& [format, digits, trimmed, all, value, text] : cases) {
    cell->setNumberFormat(format);
    cell->setSignificantDigits(digits);
    cell->setTrimTrailingZeroes(trimmed);
    cell->setFullAccuracy(all);
    cell->setValue(value);
    EXPECT_EQ(cell->text(), text);
  }
  for (const auto& [digits, clamped] : {std::pair(0, 1), std::pair(300, 255)}) {
    cell->setSignificantDigits(digits);
    EXPECT_EQ(cell->SignificantDigits(), clamped);
  }
}

TEST_F(CellNumbers, AreGroupedForReadingOnly) {
  cell->setGrouping(true);
  cell->setLocale(QLocale(QLocale::English));
  cell->setFixedWidth(200);
  cell->setValue(-1234567.5L);
  fraction->setFocus();
  EXPECT_EQ(cell->PaintedText(), "-1,234,567.5000");
  EXPECT_EQ(cell->text(), "-1234567.5000");
  cell->setFocus();
  EXPECT_EQ(cell->PaintedText(), "-1234567.5000") << "for editing and copying";
  fraction->setFocus();
  cell->setFixedWidth(90);
  EXPECT_EQ(cell->PaintedText(), "-1,234,567.5") << "with the decimals that fit";
  for (const Extended value : {0.0L, kNaN}) {
    cell->setValue(value);
    cell->setNullStr("1234567");
    cell->setBlankWhenZero(true);
    EXPECT_EQ(cell->PaintedText(), cell->text()) << "not a number";
  }
}

TEST_F(CellNumbers, AreReadWhereTheirSeparatorsLeaveNoDoubt) {
  cell->setReadExpressions(true);
  const std::tuple<TQorCustomEdit*, const char*, Extended> read[] = {
      {cell, "1.234,50", 1234.5L}, {fraction, "1,234.50", 1234.5L}, {fraction, "2/3", 2 / 3.0L},
      {cell, "12%", 0.12L},        {cell, "(2/3)", -2 / 3.0L},
  };
  for (const auto& [edit, text, value] : read) {
    Enter(edit, text);
    EXPECT_EQ(edit->Value(), value) << text;
  }
  cell->setReadExpressions(false);
  const std::tuple<TQorCustomEdit*, const char*, const char*> refused[] = {
      {cell, "1,234", "\"1,234\" may mean 1234 or 1.234."},
      {cell, "12%", "\"12%\" is not a number."},
      {fraction, "12,5", "\"12,5\" is not a number: the decimal separator is \".\"."},
      {fraction, "2//3", "\"2//3\" is not a number."},
  };
  for (const auto& [edit, text, reason] : refused) {
    Enter(edit, text);
    EXPECT_EQ(edit->Refusal(), reason);
    EXPECT_EQ(edit->accessibleDescription(), reason);
    QTest::keyClick(edit, Qt::Key_Escape);
  }
  cell->setReadExpressions(true);
  cell->OnConvert = [](const QString&) { return std::optional<Extended>(); };
  Enter(cell, "5%");
  EXPECT_EQ(cell->Refusal(), "\"5%\" is not a number.") << "OnConvert decides alone";
}

// An editor says why it refuses a text or a block.
using EditorNumbers = EditorFixture<TQorMatrixEdit>;
TEST_F(EditorNumbers, AreRefusedWithTheReason) {
  Open(2);
  QSignalSpy refused(editor, &CellPanel::OnTextRefused);
  FocusEdit(0);
  Type("1,234");
  other->setFocus();
  EXPECT_EQ(refused.takeFirst().at(0).toString(),
            "Row 1, column 1: \"1,234\" may mean 1234 or 1.234. The value stays.");
  log.clear();
  EXPECT_FALSE(editor->PasteBlock("1,234,567\n1,5"));
  EXPECT_EQ(Take(),
            "refused Row 2, column 1: \"1,5\" is not a number: the decimal separator is \".\".");
  editor->setReadExpressions(true);
  EXPECT_TRUE(editor->PasteBlock("1,234,567\n1/4"));
  EXPECT_EQ(editor->Element(0, 0), 1234567);
  EXPECT_EQ(editor->Element(1, 0), 0.25L);
}

TEST_F(CellNumbers, AreMappedToAModel) {
  QStandardItemModel model(2, 1);
  model.setData(model.index(0, 0), 0.25);
  QDataWidgetMapper mapper;
  mapper.setModel(&model);
  mapper.addMapping(cell, 0);
  mapper.toFirst();
  EXPECT_EQ(cell->Value(), 0.25L);
  QSignalSpy changed(cell, &TQorCustomEdit::Changed);
  const auto type = [this](const char* text) {
    cell->setFocus();
    cell->selectAll();
    QTest::keyClicks(cell, text);
  };
  const auto stored = [&] { return model.index(mapper.currentIndex(), 0).data().toString(); };
  // The mapper asks before the cell knows that it is left.
  type("0.1");
  fraction->setFocus();
  EXPECT_EQ(stored(), "0.1");
  EXPECT_EQ(cell->Value(), 0.1L);
  type("2");
  QTest::keyClick(cell, Qt::Key_Return);
  QApplication::processEvents();
  EXPECT_EQ(stored(), "2");
  EXPECT_EQ(changed.count(), 2);
  type("x");
  fraction->setFocus();
  EXPECT_EQ(stored(), "2");
  EXPECT_EQ(cell->text(), "2.0000");
  mapper.toNext();
  EXPECT_TRUE(cell->Null());
  EXPECT_EQ(cell->ValueText(), "");
  EXPECT_EQ(changed.count(), 2) << "the program has changed it";

  QTest::ignoreMessage(QtWarningMsg, ": \"1,5\" is not a number");
  cell->setProperty("Value", "1,5");
  EXPECT_TRUE(cell->Null());
  cell->setValue(1 / 3.0L);
  fraction->setProperty("Value", cell->property("Value"));
  EXPECT_EQ(fraction->Value(), 1 / 3.0L) << "to the last bit";
}

TEST_F(CellNumbers, HaveTheirColoursUnderAStyleSheet) {
  const QColor base = Background(cell);
  cell->setColorSetNegativeText(Qt::red);
  cell->setValue(-8);
  fraction->setFocus();
  EXPECT_TRUE(Paints(cell, Qt::red));
  const QString sheet = "QLineEdit { color: #00ff00; background: #101010; }";
  const QColor dark(0x10, 0x10, 0x10);
  // Around the cell, and its own, with and without rules.
  for (const QString& own : {QString(), QString("padding: 1px"), QString(sheet)}) {
    SCOPED_TRACE(own.toStdString());
    cell->setStyleSheet(own);
    window.setStyleSheet(sheet);
    EXPECT_EQ(Background(cell), dark);
    EXPECT_TRUE(Paints(cell, Qt::red));
    cell->setValue(8);
    EXPECT_FALSE(Paints(cell, Qt::red));
    EXPECT_TRUE(Paints(cell, Qt::green));
    Enter(cell, "x");
    cell->deselect();
    EXPECT_GT(Background(cell).red(), 0xF0) << "the mark of an invalid text";
    const std::unique_ptr<QMenu> menu(cell->CreateContextMenu());
    EXPECT_NE(menu->palette().color(QPalette::Window), Background(cell));
    QTest::keyClick(cell, Qt::Key_Escape);
    EXPECT_EQ(Background(cell), dark);
    cell->setValue(-8);
    fraction->setFocus();
    window.setStyleSheet({});
    cell->setStyleSheet({});
    EXPECT_EQ(Background(cell), base);
    EXPECT_TRUE(Paints(cell, Qt::red));
  }
}

}  // namespace
}  // namespace qorvex
