// A table of measurements that grows as values are typed or pasted. Its changes go onto the undo
// stack of the program, whose Edit menu takes them back; the status bar shows the line through the
// points.

#include <QApplication>
#include <QMainWindow>
#include <QMenuBar>
#include <QStatusBar>
#include <QUndoStack>
#include <cmath>
#include <iostream>
#include <vector>

#include "qorvex/base/text.h"
#include "qorvex/controls/QorvexMatrixEdit.h"
#include "qorvex/stats/regression/pair_fit.h"

std::string LineThrough(const qorvex::TQorMatrixEdit& table) {
  std::vector<qorvex::Extended> load;
  std::vector<qorvex::Extended> length;
  for (quint32 row = 0; row < table.NoOfRows(); ++row) {
    const qorvex::Extended x = table.Element(row, 0);
    const qorvex::Extended y = table.Element(row, 1);
    // A row that is not complete yet has a null.
    if (std::isnan(x) || std::isnan(y)) continue;
    load.push_back(x);
    length.push_back(y);
  }
  const std::string points = std::to_string(load.size()) + " points";
  try {
    const auto line = qorvex::FitPairs(load, length).curve.Values();
    return points + ": " + qorvex::Float2EStr(line[0], 2) + " mm + " +
           qorvex::Float2EStr(line[1], 3) + " mm/N";
  } catch (const std::exception&) {
    return points + ", too few for a line";
  }
}

void SetUp(qorvex::TQorMatrixEdit& table) {
  table.setNoOfCols(2);
  table.setNoOfColEdits(2);
  table.setNoOfRowEdits(6);
  table.setDecimalPlaces(2);
  table.setRowHeadings(true);
  table.setColHeadings(true);
  table.OnGetColHeading = [](quint32 col) { return QString(col == 0 ? "Load, N" : "mm"); };
  table.setCanGrow(true);
}

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  QUndoStack changes;
  QMainWindow window;
  window.setWindowTitle("A spring");
  auto* const table = new qorvex::TQorMatrixEdit;
  SetUp(*table);
  table->setUndoStack(&changes);
  window.setCentralWidget(table);

  QMenu* const edit = window.menuBar()->addMenu("&Edit");
  QAction* const undo = changes.createUndoAction(&window);
  undo->setShortcut(QKeySequence::Undo);
  QAction* const redo = changes.createRedoAction(&window);
  redo->setShortcut(QKeySequence::Redo);
  edit->addActions({undo, redo});
  QObject::connect(&changes, &QUndoStack::indexChanged, &window, [&window, table] {
    const std::string text = LineThrough(*table);
    window.statusBar()->showMessage(QString::fromStdString(text));
    std::cout << text << '\n';
  });

  // The text that a spreadsheet puts on the clipboard: four rows for an empty table.
  table->PasteBlock("1\t102.1\n2\t104.0\n3\t106.3\n4\t120.0\n");
  table->DeleteRows(3, 1);
  changes.undo();
  std::cout << "To be done again: " << changes.redoText().toStdString() << '\n';
  changes.redo();

  // Without a screen, the window could never be closed.
  if (QGuiApplication::platformName() == "offscreen") return 0;
  window.show();
  return application.exec();
}
