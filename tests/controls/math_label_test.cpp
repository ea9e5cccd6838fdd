#include <QAccessible>
#include <QBitmap>
#include <QFontMetricsF>
#include <QHBoxLayout>
#include <QImage>
#include <QLineEdit>
#include <QPainter>
#include <QTest>
#include <cmath>
#include <gtest/gtest.h>
#include <memory>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/controls/QorvexMathLabel.h"
#include "qorvex/controls/detail/math_caption.h"
#include "support/properties.h"

namespace qorvex {

using QorvexControls::detail::CaptionRun;
using QorvexControls::detail::CaptionText;
using QorvexControls::detail::ParseCaption;

// What stands for the character above it.
const std::u32string kEscaped =
    U"!%&()*+,-./0123456789<=>@[]{}ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz";
const std::u32string kSymbols =
    U"∨°∞↔⇔×≠…±•÷∅∪∩⊃⊇⊄⊂⊆∈∉≤≈≥∧⇒⇐→←ΑΒΧΔΕΦΓΗΙϑΚΛΜΝΟΠΘΡΣΤΥςΩΞΨΖαβχδεφγηιϕκλμνοπθρστυϖωξψζ";

TEST(MathCaption, EveryEscapeGivesItsSymbolOrASpace) {
  ASSERT_EQ(kEscaped.size(), kSymbols.size());
  for (char32_t escaped = 1; escaped < 0x180; ++escaped) {
    if (escaped == '^') continue;
    const auto place = kEscaped.find(escaped);
    const std::u32string expected(1, place == kEscaped.npos ? U' ' : kSymbols[place]);
    EXPECT_EQ(ParseCaption(std::u32string{U'^', escaped}),
              (std::vector<CaptionRun>{{expected, true}}))
        << static_cast<unsigned>(escaped);
  }
}

TEST(MathCaption, SplitsIntoRunsOfOneFont) {
  const std::pair<const char32_t*, std::vector<CaptionRun>> cases[] = {
      {U"", {}},
      {U"^", {}},
      {U"plain", {{U"plain", false}}},
      {U"a^a", {{U"a", false}, {U"α", true}}},
      {U"x^+y", {{U"x", false}, {U"≠", true}, {U"y", false}}},
      {U"^a^b c^", {{U"αβ", true}, {U" c", false}}},
      {U"2^^^^3", {{U"2^^3", false}}},
      {U"^^^a", {{U"^", false}, {U"α", true}}},
      {U"^~^ ^😀^é", {{U"    ", true}}},
      {U"𝑥^8^{", {{U"𝑥", false}, {U"∈→", true}}},
  };
  for (const auto& [caption, runs] : cases) {
    EXPECT_EQ(ParseCaption(caption), runs);
    std::u32string text;
    for (const CaptionRun& run : runs) text += run.text;
    EXPECT_EQ(CaptionText(caption), text);
  }
}

// A label whose drawing step can be called.
template <class Label>
struct Drawn : Label {
  Drawn() {
    // Without smooth edges every pixel has one of the colours.
    QFont font("DejaVu Sans", 12);
    font.setStyleStrategy(QFont::NoAntialias);
    this->setFont(font);
    QPalette colors(Qt::black);
    colors.setColor(QPalette::WindowText, Qt::red);
    colors.setColor(QPalette::Disabled, QPalette::WindowText, Qt::gray);
    colors.setColor(QPalette::Light, Qt::yellow);
    colors.setColor(QPalette::Dark, Qt::blue);
    this->setPalette(colors);
  }

  QSize Measured(const QString& caption, int width = 1000, int flags = 0) {
    this->setCaption(caption);
    QPainter none;
    QRect rectangle(7, 5, width, 1);
    this->DoDrawLabel(none, rectangle, flags | Label::kMeasureOnly);
    EXPECT_EQ(rectangle.topLeft(), QPoint(7, 5));
    return rectangle.size();
  }

  QImage Drawing(const QString& caption, int width = 1000, int flags = 0) {
    this->setCaption(caption);
    QImage image(300, 100, QImage::Format_RGB32);
    image.fill(Qt::white);
    QPainter painter(&image);
    QRect rectangle(10, 10, width, 50);
    this->DoDrawLabel(painter, rectangle, flags);
    return image;
  }

  qreal Advance(const QString& text) const {
    return QFontMetricsF(this->font()).horizontalAdvance(text);
  }
};
using BaseLabel = Drawn<TQorCustomLabel>;
using MathLabel = Drawn<TQorMathLabel>;

template <class Label>
struct Labels : testing::Test {};
using LabelTypes = testing::Types<BaseLabel, MathLabel>;
TYPED_TEST_SUITE(Labels, LabelTypes);

// Where the pixels are not white.
QRect Ink(const QImage& image) {
  return QRegion(QBitmap::fromImage(image.createMaskFromColor(0xFFFFFFFF, Qt::MaskInColor)))
      .boundingRect();
}

TYPED_TEST(Labels, EmbossedTextHasACopyOneToTheLowerRight) {
  TypeParam label;
  const QImage plain = label.Drawing("W M");
  EXPECT_GT(Ink(plain).width(), 20);
  for (const auto style : {TQorCustomLabel::esRaised, TQorCustomLabel::esLowered}) {
    const QColor copy = style == TQorCustomLabel::esRaised ? Qt::blue : Qt::yellow;
    label.setEmbossedStyle(style);
    for (const bool enabled : {true, false}) {
      label.setEnabled(enabled);
      const QColor face = enabled ? Qt::red : Qt::gray;
      const QImage embossed = label.Drawing("W M");
      for (int y = 1; y < plain.height(); ++y) {
        for (int x = 1; x < plain.width(); ++x) {
          const bool in_face = plain.pixelColor(x, y) == Qt::red;
          const bool in_copy = plain.pixelColor(x - 1, y - 1) == Qt::red;
          ASSERT_EQ(embossed.pixelColor(x, y), in_face ? face : in_copy ? copy : QColor(Qt::white));
        }
      }
    }
  }
}

TYPED_TEST(Labels, AcceleratorsTakeNoWidthAndUnderline) {
  TypeParam label;
  label.setShowAccelChar(false);
  const QSize plain = label.Measured("il");
  const QImage without = label.Drawing("il");
  EXPECT_GT(label.Measured("i&l").width(), plain.width());
  EXPECT_EQ(label.AccessibleText(), "i&l");
  label.setShowAccelChar(true);
  EXPECT_EQ(label.Measured("i&l"), plain);
  EXPECT_EQ(label.AccessibleText(), "il");
  const QRect line = Ink(label.Drawing("i&l").copy(0, Ink(without).bottom() + 1, 300, 20));
  EXPECT_GE(line.left(), 10 + std::floor(label.Advance("i")) - 1) << "under the l alone";
  EXPECT_GT(line.width(), 1);

  const QImage doubled = label.Drawing("i&&l");
  label.setShowAccelChar(false);
  EXPECT_EQ(doubled, label.Drawing("i&l"));
  label.setShowAccelChar(true);
  label.setCaption("a && &b &");
  EXPECT_EQ(label.AccessibleText(), "a & b ");
  for (const char* nothing : {"", "&"}) EXPECT_EQ(label.Measured(nothing), label.Measured(" "));
}

TYPED_TEST(Labels, WrappedLinesAreThoseThatEndThere) {
  TypeParam label;
  const int width = static_cast<int>(std::ceil(label.Advance("aaa bb")));
  for (const int alignment : {0x1, 0x2, 0x4}) {  // Qt::AlignLeft, AlignRight, AlignHCenter
    const int flags = alignment | Qt::TextWordWrap;
    const QImage wrapped = label.Drawing("aaa bb cccc d\nee  ", width, flags);
    EXPECT_EQ(wrapped, label.Drawing("aaa bb\ncccc d\nee  ", width, alignment));
  }
  label.setWordWrap(true);
  label.setCaption("aaa bb cccc d");
  const int line = label.heightForWidth(1000);
  EXPECT_GE(label.heightForWidth(width), line + static_cast<int>(label.Advance("M")));
  EXPECT_EQ(label.heightForWidth(1), label.heightForWidth(label.minimumSizeHint().width()));
  EXPECT_EQ(label.sizeHint().height(), line);
}

TYPED_TEST(Labels, SizeFollowsTheText) {
  QWidget window;
  auto* const label = new TypeParam;
  label->setParent(&window);
  label->setGeometry(100, 50, 60, 10);
  label->setAlignment(TQorCustomLabel::laTrailing);
  label->setCaption("a long caption");
  EXPECT_EQ(label->geometry(), QRect(100, 50, 60, 10)) << "a form is still being set up";
  label->ensurePolished();
  const QSize plain = label->Measured("a long caption");
  EXPECT_EQ(label->geometry(), QRect(QPoint(160 - plain.width(), 50), plain));
  label->setEmbossedStyle(TQorCustomLabel::esLowered);
  label->setContentsMargins(1, 2, 3, 4);
  label->setAutoSize(false);
  label->setCaption("short");
  EXPECT_EQ(label->size(), plain + QSize(1 + 4, 1 + 6));
  EXPECT_EQ(label->geometry().right(), 159);
  label->setAutoSize(true);
  EXPECT_EQ(label->size(), label->sizeHint());

  label->setWordWrap(true);
  label->setCaption("several words in lines");
  window.show();
  label->resize(70, 5);
  EXPECT_EQ(label->size(), QSize(70, label->heightForWidth(70)));

  QHBoxLayout layout(&window);
  auto* const inner = new QHBoxLayout;
  layout.addLayout(inner);
  inner->addWidget(label);
  label->resize(200, 100);
  EXPECT_EQ(label->size(), QSize(200, 100)) << "the layout decides";
}

TYPED_TEST(Labels, TextStandsWhereItIsPutOnTheGroundItIsGiven) {
  TypeParam label;
  label.setAutoSize(false);
  label.setCaption("M");
  label.resize(100, 90);
  label.setTransparent(false);
  QPalette colors = label.palette();
  colors.setColor(QPalette::Window, Qt::white);
  label.setPalette(colors);
  // In which of three columns and rows the text stands.
  const auto thirds = [&label] {
    const QImage image = label.grab().toImage();
    const QPoint centre = Ink(image).center();
    return QPoint(3 * centre.x() / image.width(), 3 * centre.y() / image.height());
  };
  for (const auto direction : {Qt::LeftToRight, Qt::RightToLeft}) {
    label.setLayoutDirection(direction);
    for (const int place : {0, 1, 2}) {
      label.setAlignment(QList{TQorCustomLabel::laLeading, TQorCustomLabel::laCentered,
                               TQorCustomLabel::laTrailing}[place]);
      label.setLayout(QList{TQorCustomLabel::llTop, TQorCustomLabel::llCentered,
                            TQorCustomLabel::llBottom}[place]);
      EXPECT_EQ(thirds(), QPoint(direction == Qt::LeftToRight ? place : 2 - place, place));
    }
  }
}

TEST(MathLabel, DrawsSymbolsInTheirFontAndWithTheirWidth) {
  MathLabel label;
  EXPECT_EQ(label.Measured("x^+y").width(),
            std::ceil(label.Advance("x") + label.Advance("≠") + label.Advance("y")));
  EXPECT_EQ(label.Drawing("x^+y ^^^~2"), label.Drawing("x≠y ^^ 2"));
  EXPECT_EQ(label.Drawing("x^"), label.Drawing("x"));
  EXPECT_EQ(label.Drawing("&^a"), label.Drawing("&α"));
  EXPECT_EQ(label.Drawing("e\u0301"), label.Drawing("é")) << "one character with its mark";

  const QImage same_family = label.Drawing("a^a");
  label.setSymbolFamily("DejaVu Serif");
  EXPECT_NE(label.Drawing("a^a"), same_family);
  EXPECT_EQ(label.Drawing("aα"), same_family);
  QFont serif = label.font();
  serif.setFamily("DejaVu Serif");
  serif.setBold(true);
  serif.setPointSize(20);
  label.setFont(serif);
  EXPECT_EQ(label.Drawing("a^a"), label.Drawing("aα")) << "size and style are the label's";
}

TEST(MathLabel, ALineThatIsTooWideEndsWithTheCharacterThatPassesTheEdge) {
  MathLabel label;
  const qreal three = label.Advance("W") + label.Advance("i") + label.Advance("^");
  const std::pair<int, const char*> cases[] = {
      {0, "W"},  // The left edge has to pass the right one.
      {static_cast<int>(std::ceil(three)) - 1, "Wi^^"},
      {static_cast<int>(std::floor(three)) + 1, "Wi^^W"}};
  for (const auto& [width, drawn] : cases) {
    for (const int alignment : {0x1, 0x2, 0x4}) {
      EXPECT_EQ(label.Drawing("Wi^^Wi", width, alignment), label.Drawing(drawn)) << width;
    }
  }
}

TEST(MathLabel, AcceleratorsFocusTheirControl) {
  QWidget window;
  auto* const label = new TQorMathLabel(&window);
  label->setCaption("^b^+&Beta ^&");
  label->setFocusControl("later");
  EXPECT_EQ(label->FocusControl(), nullptr);
  auto* const first = new QLineEdit(&window);
  auto* const later = new QLineEdit(&window);
  later->setObjectName("later");
  EXPECT_EQ(label->FocusControl(), later);
  auto third = std::make_unique<QLineEdit>(&window);
  third->setObjectName("third");
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  const auto key = [&](Qt::Key accelerator) {
    first->setFocus();
    QTest::keyClick(&window, accelerator, Qt::AltModifier);
    return QApplication::focusWidget();
  };
  EXPECT_EQ(key(Qt::Key_B), later);
  label->setCaption("&Gamma");
  EXPECT_EQ(key(Qt::Key_B), first);
  EXPECT_EQ(key(Qt::Key_G), later);
  label->setShowAccelChar(false);
  EXPECT_EQ(key(Qt::Key_G), first);
  label->setShowAccelChar(true);
  label->setFocusControl(QString());
  EXPECT_EQ(key(Qt::Key_G), first);
  label->setFocusControl(third.get());
  EXPECT_EQ(key(Qt::Key_G), third.get());
  EXPECT_EQ(label->FocusControlName(), "third");
  third.reset();
  QTest::keyClick(&window, Qt::Key_G, Qt::AltModifier);
  EXPECT_EQ(label->FocusControl(), nullptr);
}

TEST(MathLabel, ScreenReadersGetTheSymbols) {
  QWidget window;
  auto* const label = new TQorMathLabel(&window);
  auto* const edit = new QLineEdit(&window);
  label->setCaption("&x^<^p/2 ^& ^^");
  label->setFocusControl(edit);
  QAccessibleInterface* const accessible = QAccessible::queryAccessibleInterface(label);
  ASSERT_NE(accessible, nullptr);
  EXPECT_EQ(accessible->role(), QAccessible::StaticText);
  EXPECT_EQ(accessible->text(QAccessible::Name), QString("x≤π/2 ∞ ^"));
  const auto relations = accessible->relations(QAccessible::Labelled);
  ASSERT_EQ(relations.size(), 1);
  EXPECT_EQ(relations[0].first->object(), edit);
  label->setAccessibleName("Upper bound");
  EXPECT_EQ(accessible->text(QAccessible::Name), QString("Upper bound"));
}

TEST(MathLabel, PublishesItsPropertiesWithTheirDefaults) {
  EXPECT_EQ(PropertyTable(TQorMathLabel()),
            "Alignment=0 AutoSize=true Caption= EmbossedStyle=0 FocusControl= Layout=1 "
            "ShowAccelChar=true Transparent=true WordWrap=false SymbolFamily=");
}

}  // namespace qorvex
