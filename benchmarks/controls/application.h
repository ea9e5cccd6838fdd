#pragma once

#include <QApplication>

namespace qorvex::benchmarks {

/// Makes the application of the process, whose windows are offscreen, unless it is there.
inline void StartApplication() {
  if (QApplication::instance() != nullptr) return;
  static int count = 1;
  static char name[] = "controls_benchmark";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Lives as long as the process: Qt wants to be last.
  new QApplication(count, arguments);
  QApplication::setStyle("Fusion");
}

}  // namespace qorvex::benchmarks
