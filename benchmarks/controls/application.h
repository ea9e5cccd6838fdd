#pragma once

#include <QApplication>

namespace qorvex::benchmarks {

/// Makes the application of the process, with offscreen windows, unless it exists.
inline void StartApplication() {
  if (QApplication::instance() != nullptr) return;
  static int count = 1;
  static char name[] = "controls_benchmark";
  static char* arguments[] = {name, nullptr};
  qputenv("QT_QPA_PLATFORM", "offscreen");
  // Never deleted: Qt has to be destroyed last.
  new QApplication(count, arguments);
  QApplication::setStyle("Fusion");
}

}  // namespace qorvex::benchmarks
