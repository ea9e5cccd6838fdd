#include <QApplication>
#include <QClipboard>
#include <QSignalSpy>
#include <QVBoxLayout>
#include <QtTest/QTest>
#include <cmath>
#include <memory>
#include <tuple>
#include <type_traits>

#include "qorvex/base_controls/float_edit.h"
#include "qorvex/base_controls/fract_edit.h"
#include "support/test.h"

namespace qorvex {

template <class Edit>
struct Cells : testing::Test {
  QWidget window;
  Edit* cell = new Edit;
  QLineEdit* other = new QLineEdit;

  Cells() {
    QLocale::setDefault(QLocale::c());
    auto* const layout = new QVBoxLayout(&window);
    layout->addWidget(cell);
    layout->addWidget(other);
    window.show();
    EXPECT_TRUE(QTest::qWaitForWindowActive(&window));
    other->setFocus();
  }
  void Type(const char* text) {
    cell->setFocus();
    cell->selectAll();
    QTest::keyClicks(cell, text);
  }
  void Press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
    QTest::keyClick(cell, key, modifiers);
  }
  void Enter(const char* text) {
    Type(text);
    Press(Qt::Key_Return);
  }
  void TypeAndLeave(const char* text) {
    Type(text);
    other->setFocus();
  }
};
using FloatCell = Cells<TQorFloatEdit>;
using FractCell = Cells<TQorFractEdit>;
using CellTypes = testing::Types<TQorFloatEdit, TQorFractEdit>;
TYPED_TEST_SUITE(Cells, CellTypes);

TYPED_TEST(Cells, CommitExactlyWhatIsTypedAndNothingElse) {
  TypeParam* const edit = this->cell;
  QSignalSpy changed(edit, &TQorCustomEdit::Changed);
  EXPECT_EQ(edit->Value(), 0);
  const Extended pi = std::acos(-1.0L);
  edit->setValue(pi);
  const QString shown = edit->text();
  // Entered, left, typed and taken back, selected, committed: not a bit is lost.
  edit->setFocus();
  this->Press(Qt::Key_End);
  QTest::keyClicks(edit, "5");
  this->Press(Qt::Key_Backspace);
  this->Press(Qt::Key_Return);
  this->other->setFocus();
  EXPECT_EQ(edit->Value(), pi);
  EXPECT_EQ(changed.count(), 0);

  this->Type("2.5");
  EXPECT_EQ(edit->Value(), pi) << "typing alone changes nothing";
  this->Press(Qt::Key_Escape);
  EXPECT_EQ(edit->text(), shown);
  EXPECT_EQ(edit->selectedText(), shown) << "the next key types over it";
  this->Type("2.5");
  this->Press(Qt::Key_Enter, Qt::KeypadModifier);
  EXPECT_EQ(edit->Value(), 2.5L);
  this->TypeAndLeave("-4");
  EXPECT_EQ(edit->Value(), -4);
  EXPECT_EQ(changed.count(), 2);
}

TYPED_TEST(Cells, MarkInvalidTextAndNeverStoreIt) {
  TypeParam* const edit = this->cell;
  edit->setValue(7);
  const QString shown = edit->text();
  const QColor base = edit->palette().color(QPalette::Base);
  this->Enter("12x");
  EXPECT_EQ(edit->text(), "12x");
  EXPECT_EQ(edit->accessibleDescription(), "\"12x\" is not a number.");
  EXPECT_NE(edit->palette().color(QPalette::Base), base);
  this->Press(Qt::Key_Backspace);
  EXPECT_TRUE(edit->accessibleDescription().isEmpty()) << "the text is another one";
  EXPECT_EQ(edit->palette().color(QPalette::Base), base);
  QTest::keyClicks(edit, "y");
  this->Press(Qt::Key_Return);
  this->Press(Qt::Key_Escape);
  EXPECT_EQ(edit->text(), shown);
  this->TypeAndLeave("1,5");
  EXPECT_EQ(edit->Value(), 7);
  EXPECT_FALSE(edit->Pending());
  edit->setReadOnly(true);
  this->TypeAndLeave("8");
  EXPECT_EQ(edit->Value(), 7);
}

TYPED_TEST(Cells, ReadAndShowNullAndZero) {
  TypeParam* const edit = this->cell;
  edit->setNullStr("n/a");
  QSignalSpy nulls(edit, &TQorCustomEdit::OnNull);
  this->Type("");
  this->Press(Qt::Key_Delete);
  this->Press(Qt::Key_Return);
  EXPECT_TRUE(edit->Null());
  EXPECT_EQ(edit->text(), "n/a");
  EXPECT_EQ(nulls.count(), 1);
  edit->setBlankWhenNull(true);
  EXPECT_EQ(edit->text(), "");
  edit->setNull(false);
  EXPECT_EQ(edit->Value(), 0);
  edit->setBlankWhenZero(true);
  EXPECT_EQ(edit->text(), "");
  edit->setAllowKbdNull(false);
  edit->setValue(3);
  this->TypeAndLeave("n/a");
  EXPECT_EQ(edit->Value(), 3) << "null cannot be typed";
  this->TypeAndLeave(" ");
  EXPECT_EQ(edit->Value(), 0) << "a zero shows as blank";
  edit->setBlankWhenZero(false);
  edit->setValue(3);
  this->TypeAndLeave(" ");
  EXPECT_EQ(edit->Value(), 3);
}

TYPED_TEST(Cells, SelectTheirTextOnEntryOrOnClick) {
  TypeParam* const edit = this->cell;
  edit->setValue(25);
  for (const bool click : {false, true}) {
    edit->setAutoSelect(!click);
    edit->setAutoSelectClick(click);
    this->other->setFocus();
    edit->setFocus(Qt::TabFocusReason);
    EXPECT_EQ(edit->hasSelectedText(), !click);
    this->other->setFocus();
    QTest::mouseClick(edit, Qt::LeftButton);
    EXPECT_EQ(edit->hasSelectedText(), click);
  }
  QTest::mouseClick(edit, Qt::LeftButton);
  EXPECT_FALSE(edit->hasSelectedText()) << "a second click places the cursor";
}

TEST_F(FloatCell, ShowsTheDigitsThatItsSettingsAskFor) {
  const std::tuple<Extended, int, bool, bool, const char*> cases[] = {
      // value, decimal places, full accuracy, trimmed
      {1 / 3.0L, 4, false, false, "0.3333"},  {1 / 3.0L, 4, true, false, "0.33333333333333333334"},
      {2.5L, 4, false, true, "2.5"},          {100, 0, false, true, "100"},
      {-0.00001L, 4, false, false, "0.0000"}, {0.125L, 2, false, false, "0.12"},
      {1e4000L, 4, false, false, "1e4000"},   {-kInfinity, 4, false, true, "-inf"},
  };
  for (const auto& [value, decimals, full, trim, text] : cases) {
    cell->setDecimalPlaces(decimals);
    cell->setFullAccuracy(full);
    cell->setTrimTrailingZeroes(trim);
    cell->setValue(value);
    EXPECT_EQ(cell->text(), text);
  }
  cell->setDecimalPlaces(1000);
  EXPECT_EQ(cell->DecimalPlaces(), 255);
  cell->setFullAccuracy(false);
  cell->setNumberFormat(NumberSettings::nfScientific);
  cell->setValue(0.00126L);
  for (const auto& [digits, text] : {std::pair(3, "1.26e-3"), std::pair(0, "1e-3")}) {
    cell->setSignificantDigits(digits);
    EXPECT_EQ(cell->text(), text);
  }
}

TEST_F(FloatCell, FollowsItsLocale) {
  cell->setValue(-1.5L);
  cell->setLocale(QLocale(QLocale::German));
  EXPECT_EQ(cell->text(), "-1,5000");
  Enter("2,25");
  EXPECT_EQ(cell->Value(), 2.25L);
  Type("3");
  // The keypad's point is what a German keypad labels a comma.
  Press(Qt::Key_Period, Qt::KeypadModifier);
  QTest::keyClicks(cell, "75");
  EXPECT_EQ(cell->text(), "3,75");
  Press(Qt::Key_Return);
  EXPECT_EQ(cell->Value(), 3.75L);
  cell->OnConvert = [](const QString& text) -> std::optional<Extended> {
    return text == "dozen" ? std::optional<Extended>(12) : std::nullopt;
  };
  Enter("dozen");
  EXPECT_EQ(cell->text(), "12,0000");
}

TEST_F(FloatCell, PastesOneNumberAndPassesBlocksOn) {
  QSignalSpy blocks(cell, &TQorCustomEdit::BlockPasted);
  QSignalSpy typed(cell, &QLineEdit::textEdited);
  const auto paste = [this](const char* text) {
    QApplication::clipboard()->setText(text);
    cell->setFocus();
    cell->selectAll();
    Press(Qt::Key_V, Qt::ControlModifier);
  };
  paste(" 4.5\r\n");
  EXPECT_EQ(cell->text(), "4.5") << "a spreadsheet ends a single cell with a line end, too";
  EXPECT_EQ(typed.count(), 1);
  paste("1\t2");
  EXPECT_EQ(blocks.count(), 1);
  EXPECT_EQ(cell->text(), "4.5");
  const std::unique_ptr<QMenu> menu(cell->CreateContextMenu());
  for (QAction* action : menu->actions()) {
    if (action->text().startsWith("&Paste")) action->trigger();
  }
  EXPECT_EQ(blocks.count(), 2) << "the menu pastes like the key";
}

TEST_F(FloatCell, KeepsToThePaletteUntilAColourIsSet) {
  EXPECT_FALSE(cell->testAttribute(Qt::WA_SetPalette));
  cell->setColorSetNegativeText(Qt::red);
  cell->setColorSetText(Qt::blue);
  cell->setValue(-1);
  EXPECT_EQ(cell->palette().color(QPalette::Text), QColor(Qt::red));
  cell->setValue(1);
  EXPECT_EQ(cell->palette().color(QPalette::Text), QColor(Qt::blue));
  cell->setColorSetReadOnlyBackground(Qt::lightGray);
  cell->setReadOnly(true);
  EXPECT_EQ(cell->palette().color(QPalette::Base), QColor(Qt::lightGray));
  cell->setColorSetFocusBackground(Qt::yellow);
  cell->setFocus();
  EXPECT_EQ(cell->palette().color(QPalette::Base), QColor(Qt::yellow));
  other->setFocus();
  cell->setReadOnly(false);
  cell->resetColorSetText();
  cell->resetColorSetNegativeText();
  EXPECT_FALSE(cell->testAttribute(Qt::WA_SetPalette));
  // The mark of an invalid text has contrast on the form that it is on.
  Enter("x");
  for (const bool dark : {true, false}) {
    window.setPalette(QPalette(dark ? Qt::black : Qt::white));
    const QColor text = cell->palette().color(QPalette::Text);
    EXPECT_EQ(cell->palette().color(QPalette::Base).lightness() < 128, dark);
    EXPECT_EQ(text.lightness() > 128, dark);
    EXPECT_GT(text.red(), text.green());
  }
}

TEST_F(FractCell, ShowsAndTakesFractions) {
  cell->setValue(7 / 3.0L);
  EXPECT_EQ(cell->text(), "2 1/3");
  cell->setDecimalsFract(-1);
  EXPECT_EQ(cell->text(), "2") << "no decimals";
  cell->setDecimalsFract(9);
  Enter("-1 3/4");
  EXPECT_EQ(cell->Value(), -1.75L);
  Enter("1/0");
  EXPECT_EQ(cell->Value(), -1.75L);
  Press(Qt::Key_Escape);
  Enter("0.2");
  EXPECT_EQ(cell->Value(), 0.2L);
  EXPECT_EQ(cell->text(), "1/5");
}

// It would keep a pointer to a temporary.
static_assert(!std::is_constructible_v<TQorFloatEdit, QWidget*, TQorConvertEvent>);

}  // namespace qorvex
