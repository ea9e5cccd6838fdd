// An editor of weighings that tells their mean after every change.

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
  QObject::connect(
      &editor, &qorvex::TQorVectorEdit::OnBlockRefused,
      [](const QString& message) { std::cout << message.toStdString() << '\n'; });
  report();

  // What a spreadsheet puts on the clipboard, as Ctrl+V would paste it.
  editor.PasteBlock("10.5\n10,7\n");
  editor.PasteBlock("10.5\n10.7\n");
  editor.Undo();

  // Without a screen nobody would ever close the window.
  if (QGuiApplication::platformName() == "offscreen") return 0;
  editor.show();
  return application.exec();
}
