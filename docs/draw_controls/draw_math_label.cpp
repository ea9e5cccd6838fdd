#include <QFrame>
#include <QGridLayout>
#include <QLineEdit>
#include <QVBoxLayout>

#include "pictures.h"
#include "qorvex/controls/QorvexMathLabel.h"

using qorvex::TQorCustomLabel;
using qorvex::TQorMathLabel;

namespace {

TQorMathLabel* Label(const QString& caption) {
  auto* const label = new TQorMathLabel;
  label->setCaption(caption);
  return label;
}

// A caption as typed.
TQorCustomLabel* Source(const QString& caption) {
  auto* const label = new TQorCustomLabel;
  label->setShowAccelChar(false);
  label->setCaption(caption);
  label->setFont(QFont("DejaVu Sans Mono", 9));
  return label;
}

QFrame* Rule() {
  auto* const rule = new QFrame;
  rule->setFrameShape(QFrame::HLine);
  rule->setFrameShadow(QFrame::Sunken);
  return rule;
}

QGridLayout* Captions() {
  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(30);
  int row = 0;
  for (const char* const caption : {"x ^8 A ^[ x ^9 B", "A ^1 (B ^2 C) ^7 D", "20.0 ^%C ^- 0.5 ^%C",
                                    "^a ^< ^p/2 ^= 1.5708", "f: x ^{ x^^3, x ^+ ^&"}) {
    grid->addWidget(Source(caption), row, 0);
    grid->addWidget(Label(caption), row++, 1);
  }
  grid->setColumnStretch(1, 1);
  return grid;
}

QGridLayout* Form() {
  auto* const grid = new QGridLayout;
  const struct {
    const char* caption;
    const char* text;
  } rows[] = {{"Level of &significance ^a", "0.05"}, {"&Degrees of freedom ^n", "12"}};
  int row = 0;
  for (const auto& [caption, text] : rows) {
    auto* const edit = new QLineEdit(text);
    edit->setAlignment(Qt::AlignRight);
    TQorMathLabel* const label = Label(caption);
    label->setFocusControl(edit);
    grid->addWidget(label, row, 0);
    grid->addWidget(edit, row++, 1);
  }
  return grid;
}

QGridLayout* Styles() {
  auto* const grid = new QGridLayout;
  grid->setHorizontalSpacing(20);
  const struct {
    const char* name;
    TQorCustomLabel::TQorEmbossedStyle style;
    bool enabled;
  } styles[] = {{"esNone", TQorCustomLabel::esNone, true},
                {"esRaised", TQorCustomLabel::esRaised, true},
                {"esLowered", TQorCustomLabel::esLowered, true},
                {"disabled", TQorCustomLabel::esLowered, false}};
  int column = 0;
  for (const auto& [name, style, enabled] : styles) {
    TQorMathLabel* const label = Label("^D ^+ ^0");
    label->setFont(QFont("DejaVu Sans", 20, QFont::Bold));
    label->setEmbossedStyle(style);
    label->setAlignment(TQorCustomLabel::laCentered);
    label->setEnabled(enabled);
    grid->addWidget(label, 0, column);
    TQorCustomLabel* const caption = Source(name);
    caption->setAlignment(TQorCustomLabel::laCentered);
    grid->addWidget(caption, 1, column++);
  }
  return grid;
}

}  // namespace

std::unique_ptr<QWidget> MathLabels() {
  auto form = std::make_unique<QWidget>();
  auto* const layout = new QVBoxLayout(form.get());
  layout->addLayout(Captions());
  layout->addWidget(Rule());
  layout->addLayout(Form());
  layout->addWidget(Rule());
  layout->addLayout(Styles());
  return form;
}

std::unique_ptr<QWidget> MathSymbols() {
  constexpr int columns = 13;
  auto table = std::make_unique<QWidget>();
  auto* const grid = new QGridLayout(table.get());
  grid->setHorizontalSpacing(18);
  int cell = 0;
  const QString escaped =
      "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789+-*/<>=,.@!%&()[]{}^";
  for (const QChar character : escaped) {
    const QString caption = QString("^") + character;
    TQorMathLabel* const symbol = Label(caption);
    symbol->setFont(QFont("DejaVu Sans", 12));
    auto* const pair = new QHBoxLayout;
    pair->setSpacing(8);
    pair->addWidget(Source(caption));
    pair->addWidget(symbol, 1);
    grid->addLayout(pair, cell / columns, cell % columns);
    ++cell;
  }
  return table;
}
