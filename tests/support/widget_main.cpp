#include <gtest/gtest.h>

#include <QApplication>

int main(int argc, char** argv) {
  // Must be set before the application is created, also when the program only lists its tests.
  if (qEnvironmentVariableIsEmpty("QT_QPA_PLATFORM")) qputenv("QT_QPA_PLATFORM", "offscreen");
  testing::InitGoogleTest(&argc, argv);
  QApplication application(argc, argv);
  QApplication::setStyle("Fusion");
  return RUN_ALL_TESTS();
}
