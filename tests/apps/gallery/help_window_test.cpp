#include "apps/qorvex-gallery/widgets/help_window.h"

#include <QFile>
#include <QListWidget>
#include <QTabWidget>
#include <QTextBlock>
#include <QtTest/QTest>

#include "apps/qorvex-gallery/main_window.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

TEST(Help, OpensTheSectionOfThePage) {
  MainWindow window;
  window.show();
  for (int page = 0; page < window.Pages()->count(); ++page) {
    window.Pages()->setCurrentIndex(page);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
    QTest::keyClick(window.windowHandle(), Qt::Key_F1);
    auto& help = *window.findChild<HelpWindow*>();
    const QTextBlock heading = help.findChild<HelpView*>()->textCursor().block();
    EXPECT_EQ(heading.text(), window.Pages()->tabText(page));
    QTest::keyClick(&help, Qt::Key_Escape);
  }
}

TEST(Help, FollowsTheLinksOfAllDocuments) {
  HelpWindow help;
  auto& documents = *help.findChild<QListWidget*>("documents");
  auto& view = *help.findChild<HelpView*>("view");
  int sections = 0;
  for (int row = 0; row < documents.count(); ++row) {
    documents.setCurrentRow(row);
    const QUrl source = view.source();
    QList<QUrl> targets;
    for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next())
      for (const auto& part : block.textFormats())
        if (part.format.isAnchor()) targets += source.resolved(QUrl(part.format.anchorHref()));
    for (const QUrl& target : targets) {
      // Files of the project that are no documents, and the web.
      if (!QFile::exists(':' + target.path())) continue;
      view.setSource(target);
      const bool is_heading = view.textCursor().block().blockFormat().headingLevel() > 0;
      EXPECT_TRUE(view.source() == target && (target.fragment().isEmpty() || is_heading))
          << source.path().toStdString() << ": " << target.toString().toStdString();
      if (target.hasFragment()) ++sections;
    }
  }
  EXPECT_GT(sections, 5);
}

}  // namespace
}  // namespace qorvex::gallery
