// An editor of weighings. The program prints their mean after every change.

#include <QApplication>
#include <iostream>

#include "qorvex/base/text.h"
#include "qorvex/controls/QorvexVectorEdit.h"
#include "qorvex/stats/QorvexStatistics.h"

int main(int argc, char** argv) {
  QApplication application(argc, argv);
  qorvex::TQorLabelledVectorEdit editor;
  editor.setWindowTitle("Weighings, g");
  editor.setNoOfEdits(6);
  editor.setDecimalPlaces(2);
  editor.setVector({10.1L, 10.2L, 10.3L, 10.4L});

  const auto report = [&editor] {
    const qorvex::Extended mean = QorMean(editor.Vector());
    std::cout << "Mean " << qorvex::Float2EStr(mean, 3) << " g\n";
  };
  QObject::connect(&editor, &qorvex::TQorVectorEdit::OnChange, report);
  QObject::connect(&editor, &qorvex::TQorVectorEdit::OnBlockRefused,
                   [](const QString& message) { std::cout << message.toStdString() << '\n'; });
  report();

  // The text that a spreadsheet puts on the clipboard, pasted as by Ctrl+V.
  editor.PasteBlock("10.5\n10,7\n");
  editor.PasteBlock("10.5\n10.7\n");
  editor.Undo();

  // Without a screen, the window could never be closed.
  if (QGuiApplication::platformName() == "offscreen") return 0;
  editor.show();
  return application.exec();
}
