// An editor of a matrix in fractions with a coloured diagonal. The program inverts the matrix.

#include <QApplication>
#include <iostream>

#include "qorvex/base/errors.h"
#include "qorvex/base/fractions.h"
#include "qorvex/controls/QorvexMatrixFractEdit.h"

void Print(const qorvex::TQorMatrixFractEdit& editor) {
  for (quint32 row = 0; row < editor.NoOfRows(); ++row) {
    for (quint32 col = 0; col < editor.NoOfCols(); ++col) {
      const qorvex::TQorMixedFraction element = editor.FractElement(row, col);
      std::cout << qorvex::Fraction2Str(element, qorvex::fdImproper) << ' ';
    }
    std::cout << '\n';
  }
}

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  qorvex::TQorMatrixFractEdit editor;
  editor.setWindowTitle("Springs");
  editor.setNoOfRowEdits(3);
  editor.setFractionDisplay(qorvex::TQorFractEdit::fdImproper);
  editor.setMatrix({{2, -1, 0}, {-1, 2, -1}, {0, -1, 2}});
  editor.OnSpecialColor = [&editor](quint32 row, quint32 col, qorvex::Extended, QColor& color) {
    if (row == col) color = editor.palette().color(QPalette::Link);
  };
  QObject::connect(&editor, &qorvex::TQorMatrixFractEdit::OnBlockRefused,
                   [](const QString& message) { std::cout << message.toStdString() << '\n'; });

  editor.Inverse();
  Print(editor);
  editor.Undo();

  // Spreadsheets separate cells with tabs.
  editor.PasteBlock("1\t2\n3\t1/0\n");
  editor.PasteBlock("2\t4\t0\n1\t2\t1/2\n");
  try {
    editor.ScaleRow(1, 2);
    editor.AddRows(1, 0, -1);
    Print(editor);
    editor.AddRows(2, 3, 1);
  } catch (const qorvex::EMathError& error) {
    std::cout << error.what() << '\n';
  }

  // Without a screen, the window could never be closed.
  if (QGuiApplication::platformName() == "offscreen") return 0;
  editor.show();
  return application.exec();
}
