#include <QFormLayout>
#include <QHBoxLayout>
#include <QtTest/QTest>
#include <cmath>
#include <limits>
#include <utility>

#include "pictures.h"
#include "qorvex/base_controls/float_edit.h"
#include "qorvex/base_controls/fract_edit.h"

using qorvex::TQorFloatEdit;
using qorvex::TQorFractEdit;

std::unique_ptr<QWidget> Cells() {
  auto form = std::make_unique<QWidget>();
  auto* const rows = new QFormLayout(form.get());
  const auto cell = [rows](const char* label, auto* edit, long double value) {
    edit->setValue(value);
    edit->setMinimumWidth(190);
    rows->addRow(label, edit);
    return edit;
  };
  const long double third = 1 / 3.0L;
  cell("DecimalPlaces 4", new TQorFloatEdit, third);
  cell("FullAccuracy", new TQorFloatEdit, third)->setFullAccuracy(true);
  cell("TrimTrailingZeroes", new TQorFloatEdit, 2.5L)->setTrimTrailingZeroes(true);
  const std::pair<const char*, qorvex::NumberSettings::Format> formats[] = {
      {"NumberFormat nfSignificant", qorvex::NumberSettings::nfSignificant},
      {"nfScientific", qorvex::NumberSettings::nfScientific},
      {"nfGeneral", qorvex::NumberSettings::nfGeneral}};
  for (const auto& [label, format] : formats) {
    cell(label, new TQorFloatEdit, 0.00125L)->setNumberFormat(format);
  }
  cell("Grouping", new TQorFloatEdit, 1234567.5L)->setGrouping(true);
  TQorFloatEdit* const german = cell("German locale", new TQorFloatEdit, -1234.5L);
  german->setLocale(QLocale(QLocale::German));
  cell("NullStr", new TQorFloatEdit, std::numeric_limits<long double>::quiet_NaN())
      ->setNullStr("not measured");
  TQorFloatEdit* const fixed = cell("ReadOnly, a colour", new TQorFloatEdit, 12);
  fixed->setReadOnly(true);
  fixed->setColorSetReadOnlyBackground(form->palette().color(QPalette::Window));
  cell("Fraction", new TQorFractEdit, 2 + third);
  cell("Improper fraction", new TQorFractEdit, 2 + third)
      ->setFractionDisplay(TQorFractEdit::fdImproper);
  cell("DecimalsFract 2", new TQorFractEdit, std::acos(-1.0L))->setDecimalsFract(2);
  auto* const narrow = new QHBoxLayout;
  for (const int width : {76, 56, 30}) {
    auto* const edit = new TQorFloatEdit;
    edit->setValue(-7654321.5L);
    edit->setFixedWidth(width);
    narrow->addWidget(edit);
  }
  rows->addRow("-7654321.5 in narrow cells", narrow);
  TQorFloatEdit* const marked = cell("No number", new TQorFloatEdit, 0);
  form->show();
  if (!QTest::qWaitForWindowActive(form.get())) return form;
  marked->setFocus();
  QTest::keyClicks(marked, "1,000");
  QTest::keyClick(marked, Qt::Key_Return);
  return form;
}
