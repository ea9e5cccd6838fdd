#include <QHBoxLayout>
#include <QHeaderView>
#include <QSortFilterProxyModel>
#include <QStandardItemModel>
#include <QTableView>
#include <QtTest/QTest>

#include "pictures.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"

using qorvex::TQorLabelledVectorEdit;
using qorvex::TQorMatrixEdit;

namespace {

QStandardItemModel* Peaks(QObject* parent) {
  auto* const model = new QStandardItemModel(7, 2, parent);
  const struct {
    const char* name;
    double height;
    double prominence;
  } peaks[] = {{"Kilimanjaro", 5895, 5885}, {"Mont Blanc", 4805.6, 4695.6},
               {"Teide", 3715, 3715},       {"Matterhorn", 4478, 1042},
               {"Etna", 3357, 3357},        {"Olympus", 2917.7, 2353},
               {"Zugspitze", 2962, 1746}};
  int row = 0;
  for (const auto& [name, height, prominence] : peaks) {
    model->setHeaderData(row, Qt::Vertical, name);
    model->setData(model->index(row, 0), height);
    model->setData(model->index(row, 1), prominence);
    for (const int col : {0, 1}) {
      model->setData(model->index(row, col), int{Qt::AlignRight | Qt::AlignVCenter},
                     Qt::TextAlignmentRole);
    }
    ++row;
  }
  model->setHorizontalHeaderLabels({"Height", "Prominence"});
  return model;
}

}  // namespace

std::unique_ptr<QWidget> Models() {
  auto form = std::make_unique<QWidget>();
  QStandardItemModel* const model = Peaks(form.get());
  auto* const sorted = new QSortFilterProxyModel(form.get());
  sorted->setSourceModel(model);
  sorted->sort(1, Qt::DescendingOrder);

  auto* const editor = new TQorMatrixEdit;
  editor->setNoOfRowEdits(6);
  editor->setNoOfColEdits(2);
  editor->setCellWidth(92);
  editor->setDecimalPlaces(1);
  editor->setRowHeadings(true);
  editor->setColHeadings(true);
  editor->setModel(model);
  auto* const table = new QTableView;
  table->setModel(model);
  table->horizontalHeader()->setDefaultSectionSize(76);
  table->verticalHeader()->setDefaultSectionSize(21);
  table->setFixedSize(256, editor->sizeHint().height());
  auto* const prominences = new TQorLabelledVectorEdit;
  prominences->setNoOfEdits(6);
  prominences->setDecimalPlaces(1);
  prominences->setLabelType(TQorLabelledVectorEdit::ltSupplied);
  prominences->setModelColumn(1);
  prominences->setModel(sorted);

  auto* const layout = new QHBoxLayout(form.get());
  layout->setSpacing(24);
  layout->setContentsMargins(16, 16, 16, 16);
  layout->addWidget(editor);
  layout->addWidget(table);
  layout->addWidget(prominences, 0, Qt::AlignBottom);
  form->show();
  if (!QTest::qWaitForWindowActive(form.get())) return form;
  editor->setRowEditFocus(1);
  return form;
}
