#include <QAction>
#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QtTest/QTest>

#include "pictures.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"

using qorvex::TQorFloatEdit;
using qorvex::TQorLabelledVectorEdit;
using qorvex::TQorMatrixEdit;

namespace {

TQorMatrixEdit* Table() {
  auto* const table = new TQorMatrixEdit;
  table->setDecimalPlaces(1);
  table->setNoOfColEdits(2);
  table->setNoOfRowEdits(7);
  table->setMatrix({{1, 102.1L}, {2, 104}, {3, 106.3L}, {4, 108.2L}});
  table->setRowHeadings(true);
  table->setColHeadings(true);
  table->OnGetColHeading = [](quint32 col) { return QString(col == 0 ? "Load, N" : "mm"); };
  table->setCanGrow(true);
  return table;
}

TQorLabelledVectorEdit* Column() {
  auto* const column = new TQorLabelledVectorEdit;
  column->setDecimalPlaces(2);
  column->setLabelWidth(30);
  column->setNoOfEdits(8);
  column->setVector({10.1L, 10.2L, 10.3L});
  column->setCanGrow(true);
  return column;
}

}  // namespace

std::unique_ptr<QWidget> Growing() {
  auto form = std::make_unique<QWidget>();
  auto* const layout = new QHBoxLayout(form.get());
  layout->setSpacing(24);
  layout->setContentsMargins(16, 16, 16, 16);
  TQorMatrixEdit* const table = Table();
  auto* const menu = new QLabel;
  layout->addWidget(Column(), 0, Qt::AlignTop);
  layout->addWidget(table, 0, Qt::AlignTop);
  layout->addWidget(menu, 0, Qt::AlignTop);
  form->show();
  if (!QTest::qWaitForWindowActive(form.get())) return form;
  // So that there is something to undo.
  table->LinearTransform(1, 0);
  const std::unique_ptr<QMenu> entries(
      table->findChildren<TQorFloatEdit*>().at(2)->CreateContextMenu());
  // The last ones, since all of them are higher than the screen.
  QList<QAction*> actions = entries->actions();
  while (!actions.front()->text().startsWith("Undo")) actions.takeFirst()->setVisible(false);
  menu->setPixmap(entries->grab());
  form->resize(form->sizeHint());
  table->setRowEditFocus(4);
  QTest::keyClicks(table->focusProxy(), "5");
  return form;
}
