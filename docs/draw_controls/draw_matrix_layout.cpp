#include <QHBoxLayout>
#include <QStringList>
#include <QtTest/QTest>

#include "pictures.h"
#include "qorvex/controls/QorvexMatrixEdit.h"

using qorvex::TQorMatrixEdit;

namespace {

// Samples with what was measured of each, in columns of different widths and formats.
TQorMatrixEdit* Samples() {
  auto* const editor = new TQorMatrixEdit;
  editor->setNoOfRowEdits(7);
  editor->setNoOfColEdits(4);
  editor->setMatrix({{1, 12.402L, 4.61L, 2.690238L},
                     {2, 8.75L, 3.24L, 2.700617L},
                     {3, 20.118L, 2.25L, 8.941333L},
                     {4, 15.06L, 5.62L, 2.679715L},
                     {5, 3.997L, 0.21L, 19.03333L},
                     {6, 11.2L, 1.42L, 7.887324L},
                     {7, 9.81L, 1.1L, 8.918182L},
                     {8, 10.02L, 3.71L, 2.700809L}});
  editor->setColHeadings(true);
  editor->setRowHeadings(true);
  editor->OnGetRowHeading = [](quint32 row) {
    static const QStringList names = {"Aluminium", "Glass", "Brass",  "Quartz",
                                      "Gold",      "Iron",  "Copper", "Marble"};
    return names.value(static_cast<int>(row));
  };
  editor->OnGetColHeading = [](quint32 col) {
    static const QStringList names = {"No.", "Mass, g", "Volume, cm³", "Density, g/cm³"};
    return names.value(static_cast<int>(col));
  };
  editor->setColWidth(0, 36);
  editor->setColWidth(2, 92);
  editor->setColWidth(3, 118);
  editor->setColFormat(0, {.decimal_places = 0, .alignment = Qt::AlignCenter});
  editor->setColFormat(1, {.decimal_places = 3});
  editor->setColFormat(2, {.decimal_places = 2});
  editor->setColFormat(3, {.trim_trailing_zeroes = true, .decimal_places = 6});
  editor->Redisplay();
  return editor;
}

// As many cells as a window has room for.
TQorMatrixEdit* Filling() {
  auto* const editor = new TQorMatrixEdit;
  editor->setAutoEdits(true);
  editor->setRowHeadings(true);
  editor->setColHeadings(true);
  editor->setCellWidth(66);
  editor->setDecimalPlaces(0);
  editor->OnGetElement = [](quint32 row, quint32 col) {
    return (static_cast<long double>(row) + 1) * (static_cast<long double>(col) + 1);
  };
  editor->setVirtualMode(true);
  editor->setNoOfRows(1000);
  editor->setNoOfCols(1000);
  return editor;
}

}  // namespace

std::unique_ptr<QWidget> MatrixLayouts() {
  auto form = std::make_unique<QWidget>();
  auto* const layout = new QHBoxLayout(form.get());
  layout->setSpacing(24);
  layout->setContentsMargins(16, 16, 16, 16);
  TQorMatrixEdit* const samples = Samples();
  TQorMatrixEdit* const filling = Filling();
  layout->addWidget(samples, 0, Qt::AlignTop);
  layout->addWidget(filling);
  form->resize(868, form->sizeHint().height());
  form->show();
  if (!QTest::qWaitForWindowActive(form.get())) return form;
  filling->setDisplayTopRow(119);
  filling->setDisplayLeftCol(7);
  samples->setRowEditFocus(2);
  samples->setColEditFocus(3);
  return form;
}
