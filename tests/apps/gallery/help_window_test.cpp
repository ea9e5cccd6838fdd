#include "apps/qorvex-gallery/widgets/help_window.h"

#include <QApplication>
#include <QListWidget>
#include <QScrollBar>
#include <QTabWidget>
#include <QTextBlock>
#include <QtTest/QTest>

#include "apps/qorvex-gallery/main_window.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

struct HelpTest : testing::Test {
  HelpTest() { window.show(); }

  HelpWindow& Help() { return *window.findChild<HelpWindow*>(); }
  HelpView& View() { return *Help().findChild<HelpView*>("view"); }
  // The heading at the cursor, which a section that was found moves there.
  std::string Heading() { return View().textCursor().block().text().toStdString(); }

  MainWindow window;
};

TEST_F(HelpTest, OpensTheSectionOfThePage) {
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  for (int page = 0; page < window.Pages()->count(); ++page) {
    window.Pages()->setCurrentIndex(page);
    QTest::keyClick(window.windowHandle(), Qt::Key_F1);
    EXPECT_EQ(Heading(), window.Pages()->tabText(page).toStdString());
    EXPECT_GT(View().verticalScrollBar()->value(), 0);
    QTest::keyClick(&Help(), Qt::Key_Escape);
    window.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  }
}

TEST_F(HelpTest, FollowsTheLinksOfAllDocuments) {
  HelpWindow help;
  auto& documents = *help.findChild<QListWidget*>("documents");
  auto& view = *help.findChild<HelpView*>("view");
  EXPECT_GT(documents.count(), 20);
  int sections = 0;
  for (int row = 0; row < documents.count(); ++row) {
    documents.setCurrentRow(row);
    const QUrl source = view.source();
    ASSERT_EQ(source.path(), documents.currentItem()->data(Qt::UserRole).toString());
    EXPECT_FALSE(view.toPlainText().contains("![")) << source.path().toStdString();
    QStringList links;
    for (QTextBlock block = view.document()->begin(); block.isValid(); block = block.next()) {
      for (const auto& part : block.textFormats())
        if (part.format.isAnchor()) links += part.format.anchorHref();
    }
    for (const QString& link : links) {
      const QUrl target = source.resolved(QUrl(link));
      // Files of the project that are no documents, and the web.
      if (!QFile::exists(':' + target.path())) continue;
      view.setSource(target);
      EXPECT_EQ(view.source(), target) << link.toStdString();
      if (target.fragment().isEmpty()) continue;
      ++sections;
      EXPECT_GT(view.textCursor().block().blockFormat().headingLevel(), 0)
          << source.path().toStdString() << ": " << link.toStdString();
    }
  }
  EXPECT_GT(sections, 5);
}

}  // namespace
}  // namespace qorvex::gallery
