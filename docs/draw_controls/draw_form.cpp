#include <QFormLayout>
#include <QLabel>
#include <QLineEdit>
#include <QtTest/QTest>

#include "pictures.h"
#include "qorvex/controls/QorvexVectorEdit.h"

std::unique_ptr<QWidget> WeighingForm() {
  auto form = std::make_unique<QWidget>();
  auto* const rows = new QFormLayout(form.get());
  auto* const editor = new qorvex::TQorLabelledVectorEdit;
  auto* const message = new QLabel;
  editor->setDecimalPlaces(2);
  editor->setLabelWidth(24);
  editor->setVector({10.1L, 10.2L, 10.3L, 10.4L, 10.2L, 10.3L});
  rows->addRow("&Sample", new QLineEdit("Copper"));
  rows->addRow("&Weighings, g", editor);
  rows->addRow("&Remark", new QLineEdit);
  rows->addRow(message);
  QObject::connect(editor, &qorvex::CellPanel::OnTextRefused, message, &QLabel::setText);
  form->show();
  if (!QTest::qWaitForWindowActive(form.get())) return form;
  editor->setEditFocus(2);
  QTest::keyClicks(QApplication::focusWidget(), "10.3.1");
  QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
  return form;
}
