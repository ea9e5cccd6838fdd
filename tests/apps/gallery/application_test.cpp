#include "apps/qorvex-gallery/application.h"

#include <QMessageBox>
#include <QtTest/QTest>
#include <gtest/gtest.h>
#include <stdexcept>

namespace qorvex::gallery {
namespace {

TEST(Application, ShowsAnErrorThatNothingElseHasCaught) {
  const auto fail = []() -> bool { throw std::runtime_error("lost <b>"); };
  const auto open_messages = [] {
    QList<QMessageBox*> messages;
    for (QWidget* const widget : QApplication::topLevelWidgets()) {
      auto* const message = qobject_cast<QMessageBox*>(widget);
      if (message != nullptr && message->isVisible()) messages += message;
    }
    return messages;
  };
  EXPECT_TRUE(Application::Guard([] { return true; }));
  for (int times = 0; times < 2; ++times) EXPECT_FALSE(Application::Guard(fail));
  QApplication::processEvents();
  ASSERT_EQ(open_messages().size(), 1);
  EXPECT_EQ(open_messages().front()->informativeText(), "lost <b>");
  open_messages().front()->accept();
  QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
  EXPECT_FALSE(Application::Guard(fail));
  QApplication::processEvents();
  ASSERT_EQ(open_messages().size(), 1) << "the first one is closed";
  open_messages().front()->accept();
}

}  // namespace
}  // namespace qorvex::gallery
