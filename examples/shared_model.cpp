// Readings and their errors in one model, which an editor, a table of Qt and a sorted view of the
// readings share. What one of them changes, the others show.

#include <QApplication>
#include <QHBoxLayout>
#include <QSortFilterProxyModel>
#include <QTableView>
#include <iostream>

#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "qorvex/controls/models/matrix_model.h"

void Print(const char* title, const qorvex::TQorVectorEdit& editor) {
  std::cout << title;
  for (quint32 row = 0; row < editor.NoOfRows(); ++row) std::cout << ' ' << editor.Element(row);
  std::cout << '\n';
}

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  qorvex::TQorMatrixModel readings;
  readings.setMatrix({{20.4L, 0.2L}, {19.8L, 0.1L}, {20.1L, 0.3L}});

  QSortFilterProxyModel sorted;
  sorted.setSourceModel(&readings);
  sorted.setSortRole(qorvex::TQorCustomModel::SortRole);
  sorted.sort(0);

  QWidget window;
  window.setWindowTitle("Readings");
  QHBoxLayout layout(&window);
  qorvex::TQorMatrixEdit editor;
  editor.setNoOfColEdits(2);
  editor.setModel(&readings);
  QTableView table;
  table.setModel(&readings);
  qorvex::TQorVectorEdit in_order;
  in_order.setModel(&sorted);
  layout.addWidget(&editor);
  layout.addWidget(&table, 1);
  layout.addWidget(&in_order);

  Print("In order:", in_order);
  // As typed into the table: its first cell, then the text.
  readings.setData(readings.index(0, 0), "19.2");
  Print("One changed:", in_order);
  // Pasted into the editor, as by Ctrl+V.
  editor.PasteBlock("20.4\t0.2\n20.5\t0.2\n");
  Print("Two pasted:", in_order);
  editor.Undo();
  Print("Undone:", in_order);
  // The third has 80 bits, which a text takes along.
  readings.setElement(2, 0, 20 + 1 / 3.0L);
  std::cout << readings.index(2, 0).data(Qt::EditRole).toString().toStdString() << '\n';

  // Without a screen, the window could never be closed.
  if (QGuiApplication::platformName() == "offscreen") return 0;
  window.show();
  return application.exec();
}
