#include "apps/qorvex-gallery/session.h"

#include <QApplication>
#include <QComboBox>
#include <QFile>
#include <QTabWidget>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <gtest/gtest.h>

#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/pages/data_page.h"
#include "apps/qorvex-gallery/widgets/recent_files.h"
#include "apps/qorvex-gallery/widgets/sheet_document.h"
#include "apps/qorvex-gallery/widgets/sheet_view.h"

namespace qorvex::gallery {
namespace {

struct SessionTest : testing::Test {
  ~SessionTest() override { SetAppearance(Appearance::kSystem); }

  // Starts the program, does something, and closes it.
  template <class Action>
  void Run(Action action) {
    MainWindow window;
    Session session{QDir(folder.filePath("session"))};
    ASSERT_TRUE(session.Begin());
    session.Restore(window);
    window.KeepSession = [&] { return session.Save(window); };
    QApplication::processEvents();
    action(window);
    EXPECT_TRUE(window.close()) << "no question";
  }
  QString Write(const char* name, const QByteArray& text) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    return file.fileName();
  }

  QTemporaryDir folder;
};

TEST_F(SessionTest, BringsBackWhatTheUserLeft) {
  const QString file = Write("two.csv", "a;b\n1,50;x y\n2,50;-\n");
  Run([&](MainWindow& window) {
    EXPECT_EQ(window.Table().columnCount(), 0) << "the first start";
    window.resize(1200, 800);
    window.ChooseAppearance(Appearance::kDark);
    window.Data().Document().OpenAs(file, {.missing = apps::MissingWords({"-"})});
    window.Pages()->setCurrentIndex(1);
  });
  Run([&](MainWindow& window) {
    EXPECT_EQ(window.size(), QSize(1200, 800));
    EXPECT_EQ(window.ChosenAppearance(), Appearance::kDark);
    EXPECT_EQ(window.Recent().Files(), QStringList(file));
    EXPECT_EQ(window.Data().Document().Folder(), folder.path());
    EXPECT_EQ(window.Pages()->currentIndex(), 1);
    EXPECT_EQ(window.Table().Numbers(0)[0], 1.5L);
    EXPECT_EQ(window.Table().Data().Missing(1), 1U);
    EXPECT_FALSE(window.isWindowModified());
    // Typed, but neither committed nor saved.
    TQorMatrixEdit& editor = window.Data().View().Editor();
    EXPECT_TRUE(editor.PasteBlock("7\n"));
    editor.InsertCols(1, 1);
  });
  Run([&](MainWindow& window) {
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_EQ(window.Table().Numbers(0)[0], 7);
    EXPECT_EQ(window.Table().Text(1, 0), "2,50");
    EXPECT_TRUE(window.Data().Document().Save());
  });
  QFile saved(file);
  EXPECT_TRUE(saved.open(QIODevice::ReadOnly));
  EXPECT_EQ(saved.readAll(), "a;;b\n7;;\"x y\"\n2,50;;-\n");
  Run([](MainWindow& window) { EXPECT_FALSE(window.isWindowModified()); });
}

TEST_F(SessionTest, KeepsASheetWithoutAFileAndSurvivesALostOne) {
  Run([](MainWindow& window) { window.Data().Document().ReadText("a\tb\n1\t2\n"); });
  const QString file = Write("gone.csv", "1\n2\n");
  Run([&](MainWindow& window) {
    EXPECT_TRUE(window.isWindowModified());
    EXPECT_EQ(window.Data().Document().Title(), "Untitled");
    EXPECT_EQ(window.Table().Title(1), "b");
    EXPECT_TRUE(window.Data().Document().SaveTo(folder.filePath("kept.csv")));
    window.Data().Document().Open(file);
  });
  EXPECT_TRUE(QFile::remove(file));
  Run([](MainWindow& window) {
    EXPECT_EQ(window.Table().rowCount(), 0);
    EXPECT_TRUE(window.ReadingError().startsWith("gone.csv: "));
  });
}

TEST_F(SessionTest, ChoosesColumnsWhenALargeFileIsReadAgain) {
  QByteArray text = "a,b,c\n";
  while (text.size() < (2 << 20)) text += "1,2,3\n";
  const QString file = Write("large.csv", text);
  const auto wait = [](MainWindow& window) {
    EXPECT_TRUE(QTest::qWaitFor([&] { return !window.Data().IsReading(); }));
    QApplication::processEvents();
  };
  const auto column = [](MainWindow& window) {
    return window.Data().findChild<QComboBox*>("column");
  };
  Run([&](MainWindow& window) {
    window.Open(file);
    wait(window);
    column(window)->setCurrentText("c");
  });
  // Closed before it is read.
  Run([](MainWindow& window) { EXPECT_TRUE(window.Data().IsReading()); });
  Run([&](MainWindow& window) {
    wait(window);
    EXPECT_EQ(column(window)->currentText(), "c");
  });
}

TEST_F(SessionTest, LeavesTheSessionToOneProgram) {
  Run([&](MainWindow& window) {
    window.Data().Document().ReadText("sep=;\n1\n2\n");
    Session other{QDir(folder.filePath("session"))};
    EXPECT_FALSE(other.Begin());
  });
  const QString copy = folder.filePath("session/unsaved.csv");
  Run([](MainWindow& window) { EXPECT_EQ(window.Table().rowCount(), 2); });
  QFile damaged(copy);
  EXPECT_TRUE(damaged.open(QIODevice::WriteOnly) && damaged.write("\"1\n") > 0);
  damaged.close();
  Run([](MainWindow& window) { EXPECT_EQ(window.Table().rowCount(), 0); });
  EXPECT_EQ(QDir(folder.filePath("session")).entryList({"unsaved-*.csv"}).size(), 1)
      << "put aside, not lost";
}

TEST_F(SessionTest, AsksIfItCannotBeKept) {
  Write("session", "a file where the folder would be");
  EXPECT_FALSE(Session(QDir(folder.filePath("session"))).Begin());
}

}  // namespace
}  // namespace qorvex::gallery
