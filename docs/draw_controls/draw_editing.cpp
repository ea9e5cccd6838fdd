#include <QHBoxLayout>
#include <QtTest/QTest>
#include <cmath>

#include "pictures.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"

using qorvex::TQorLabelledVectorEdit;
using qorvex::TQorMatrixEdit;

namespace {

// Compound interest, by years and rates.
TQorMatrixEdit* Interest() {
  auto* const editor = new TQorMatrixEdit;
  editor->setNoOfRowEdits(7);
  editor->setNoOfColEdits(4);
  editor->setCellWidth(64);
  editor->setDecimalPlaces(3);
  editor->setRowHeadings(true);
  editor->setColHeadings(true);
  editor->setNoOfRows(12);
  editor->setNoOfCols(6);
  for (quint32 row = 0; row < 12; ++row) {
    for (quint32 col = 0; col < 6; ++col) {
      editor->setElement(row, col, std::pow(1.01L + 0.01L * col, row + 1));
    }
  }
  return editor;
}

TQorLabelledVectorEdit* Harvest() {
  auto* const editor = new TQorLabelledVectorEdit;
  editor->setNoOfEdits(7);
  editor->setDecimalPlaces(1);
  editor->setLabelType(TQorLabelledVectorEdit::ltCustom);
  editor->setVector({41.5L, 38.2L, 52.9L, 47, 44.6L, 39.8L, 50.3L});
  const char* const names[] = {"Apples", "Pears", "Plums", "Quinces", "Cherries", "Grapes", "Figs"};
  for (quint32 row = 0; row < 7; ++row) editor->setLabel(row, names[row]);
  return editor;
}

}  // namespace

std::unique_ptr<QWidget> Editing() {
  auto form = std::make_unique<QWidget>();
  auto* const layout = new QHBoxLayout(form.get());
  layout->setSpacing(24);
  layout->setContentsMargins(16, 16, 16, 16);
  TQorMatrixEdit* const interest = Interest();
  TQorLabelledVectorEdit* const harvest = Harvest();
  layout->addWidget(interest);
  layout->addWidget(harvest);
  form->show();
  if (!QTest::qWaitForWindowActive(form.get())) return form;
  interest->setRowEditFocus(4);
  interest->setColEditFocus(2);
  for (const Qt::Key key : {Qt::Key_Up, Qt::Key_Up, Qt::Key_Up, Qt::Key_Left}) {
    QTest::keyClick(form->focusWidget(), key, Qt::ShiftModifier);
  }
  harvest->SelectRows(1, 2);
  return form;
}
