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
  TQorFloatEdit* cell = new TQorFloatEdit(&window);
  TQorFractEdit* fraction = new TQorFractEdit(&window);

  CellNumbers() {
    QLocale::setDefault(QLocale::c());
    cell->setGeometry(0, 30, 200, 24);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
  }
  void Type(TQorCustomEdit* edit, const char* text) {
    edit->setFocus();
    edit->selectAll();
    QTest::keyClicks(edit, text);
  }
  void Enter(TQorCustomEdit* edit, const char* text) {
    Type(edit, text);
    QTest::keyClick(edit, Qt::Key_Return);
  }
  bool Paints(const QColor& color) const {
    const QImage image = cell->grab().toImage();
    for (int i = 0; i < image.width() * image.height(); ++i) {
      if (image.pixelColor(i % image.width(), i / image.width()) == color) return true;
    }
    return false;
  }
  // The colour of its left end, which has no text.
  QColor Background() const { return cell->grab().toImage().pixelColor(5, 12); }
};

TEST_F(CellNumbers, AreGroupedForReadingOnly) {
  cell->setGrouping(true);
  cell->setLocale(QLocale(QLocale::English));
  cell->setValue(-1234567.5L);
  fraction->setFocus();
  EXPECT_EQ(cell->PaintedText(), "-1,234,567.5000");
  EXPECT_EQ(cell->text(), "-1234567.5000");
  cell->setFocus();
  EXPECT_EQ(cell->PaintedText(), "-1234567.5000") << "for editing and copying";
  Enter(cell, "1,234");
  EXPECT_EQ(cell->Value(), 1234) << "as it shows it";
  cell->setValue(-1234567.5L);
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

TEST_F(CellNumbers, AreReadOrRefusedWithAReason) {
  const std::tuple<TQorCustomEdit*, const char*, Extended, const char*> cases[] = {
      {cell, "1.234,50", 1234.5L, ""},
      {cell, "1,234", 1234.5L, "\"1,234\" may mean 1234 or 1.234."},
      {cell, "12%", 1234.5L, "\"12%\" is not a number."},
      {fraction, "1,234.50", 1234.5L, ""},
      {fraction, "2//3", 1234.5L, "\"2//3\" is not a number."},
      {fraction, "2/3", 2 / 3.0L, ""},
  };
  for (const auto& [edit, text, value, reason] : cases) {
    Enter(edit, text);
    EXPECT_EQ(edit->Value(), value) << text;
    EXPECT_EQ(edit->accessibleDescription(), reason);
    QTest::keyClick(edit, Qt::Key_Escape);
  }
  cell->setReadExpressions(true);
  Enter(cell, "(12%)");
  EXPECT_EQ(cell->Value(), -0.12L);
  cell->OnConvert = [](const QString&) { return std::optional<Extended>(); };
  Enter(cell, "5");
  EXPECT_EQ(cell->Refusal(), "\"5\" is not a number.") << "OnConvert decides alone";
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
  EXPECT_EQ(editor->Matrix(), (TQorFloatMatrix{{1234567}, {0.25L}}));
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
  const auto stored = [&] { return model.index(mapper.currentIndex(), 0).data().toString(); };
  // The mapper asks before the cell knows that it is left.
  Type(cell, "0.1");
  fraction->setFocus();
  EXPECT_EQ(stored(), "0.1");
  EXPECT_EQ(cell->Value(), 0.1L);
  Enter(cell, "2");
  QApplication::processEvents();
  EXPECT_EQ(stored(), "2");
  EXPECT_EQ(changed.count(), 2);
  mapper.toNext();
  EXPECT_TRUE(cell->Null());
  EXPECT_EQ(cell->ValueText(), "");
  EXPECT_EQ(changed.count(), 2) << "the program has changed it";

  // Reported with qWarning.
  cell->setProperty("Value", "1,5");
  EXPECT_TRUE(cell->Null());
  cell->setValue(1 / 3.0L);
  fraction->setProperty("Value", cell->property("Value"));
  EXPECT_EQ(fraction->Value(), 1 / 3.0L) << "to the last bit";
}

TEST_F(CellNumbers, HaveTheirColoursUnderAStyleSheet) {
  fraction->setFocus();
  cell->setColorSetNegativeText(Qt::red);
  cell->setValue(-8);
  const QColor base = Background();
  const QString sheet = "QLineEdit { color: #00ff00; background: #101010; }";
  const QColor dark("#101010");
  // Around the cell; and its own, with and without a selector.
  for (const QString& own : {QString(), QString("padding: 1px"), sheet}) {
    SCOPED_TRACE(own.toStdString());
    cell->setStyleSheet(own);
    window.setStyleSheet(sheet);
    EXPECT_EQ(Background(), dark);
    EXPECT_TRUE(Paints(Qt::red));
    cell->setValue(8);
    EXPECT_FALSE(Paints(Qt::red));
    EXPECT_TRUE(Paints(Qt::green));
    Enter(cell, "x");
    const QColor mark = Background();
    EXPECT_GT(mark.red(), 0xF0);
    const std::unique_ptr<QMenu> menu(cell->CreateContextMenu());
    EXPECT_NE(menu->palette().color(QPalette::Window), mark);
    QTest::keyClick(cell, Qt::Key_Escape);
    EXPECT_EQ(Background(), dark);
    cell->setValue(-8);
    fraction->setFocus();
    cell->setStyleSheet({});
    window.setStyleSheet({});
    EXPECT_EQ(Background(), base);
    EXPECT_TRUE(Paints(Qt::red));
  }
}

}  // namespace
}  // namespace qorvex
