#include <QHBoxLayout>
#include <QtTest/QTest>
#include <cmath>
#include <limits>

#include "pictures.h"
#include "qorvex/controls/QorvexVectorEdit.h"

using qorvex::TQorFloatEdit;
using qorvex::TQorLabelledVectorEdit;
using qorvex::TQorVectorEdit;

namespace {

TQorVectorEdit* Plain() {
  auto* const editor = new TQorVectorEdit;
  editor->setNoOfEdits(6);
  editor->setNoOfRows(40);
  for (quint32 row = 0; row < 40; ++row) editor->setElement(row, std::sqrt(row + 1.0L));
  editor->setDisplayTopRow(7);
  return editor;
}

TQorLabelledVectorEdit* Labelled() {
  auto* const editor = new TQorLabelledVectorEdit;
  editor->setNoOfEdits(6);
  editor->setDecimalPlaces(1);
  editor->setNullStr("unknown");
  editor->setVector({5895, 4808, 3718.5L, std::numeric_limits<long double>::quiet_NaN(), 4478});
  editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
  editor->setLabelsEditable(true);
  editor->setLabelAlignment(Qt::AlignLeft | Qt::AlignVCenter);
  editor->setLabelWidth(100);
  const char* const names[] = {"Kilimanjaro", "Mont Blanc", "Teide", "Tent peak", "Matterhorn"};
  for (quint32 row = 0; row < 5; ++row) editor->setLabel(row, names[row]);
  return editor;
}

TQorVectorEdit* Coloured() {
  auto* const editor = new TQorLabelledVectorEdit;
  editor->setLabelWidth(30);
  editor->setNoOfEdits(6);
  editor->setDecimalPlaces(2);
  editor->setVector({1250, -480.5L, 17.25L, 0, -3.1L, 900, 12});
  const bool dark = editor->palette().color(QPalette::Base).lightness() < 128;
  editor->setColorSetNegativeText(dark ? QColor(0xff, 0x8a, 0x80) : QColor(0xb3, 0x26, 0x1e));
  editor->setColorSetFocusBackground(dark ? QColor(0x3b, 0x3a, 0x1e) : QColor(0xff, 0xf8, 0xd6));
  editor->setBlankWhenZero(true);
  return editor;
}

}  // namespace

std::unique_ptr<QWidget> VectorEdits() {
  auto form = std::make_unique<QWidget>();
  auto* const layout = new QHBoxLayout(form.get());
  layout->setSpacing(24);
  layout->setContentsMargins(16, 16, 16, 16);
  TQorVectorEdit* const coloured = Coloured();
  layout->addWidget(Plain());
  layout->addWidget(Labelled());
  layout->addWidget(coloured);
  form->show();
  if (!QTest::qWaitForWindowActive(form.get())) return form;
  auto* const cell = coloured->findChildren<TQorFloatEdit*>().at(2);
  cell->setFocus();
  QTest::keyClicks(cell, "17.2.5");
  QTest::keyClick(cell, Qt::Key_Return);
  return form;
}
