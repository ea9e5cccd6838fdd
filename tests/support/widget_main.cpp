#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // Before the application exists, since discovery of the tests runs this program too.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  return RUN_ALL_TESTS();
}
