#include "apps/qorvex-gallery/pages/data_page.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QLabel>
#include <QLineEdit>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTextDocument>
#include <QTimer>
#include <QUrl>
#include <QtTest/QSignalSpy>
#include <functional>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "apps/qorvex-gallery/plot/plot_view.h"

namespace qorvex::gallery {
namespace {

struct DataPageTest : PageFixture<DataPage> {
  QString Write(const char* name, const QByteArray& text) {
    const QString path = folder.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly) && file.write(text) == text.size());
    return path;
  }
  QByteArray Read(const char* name) {
    QFile file(folder.filePath(name));
    EXPECT_TRUE(file.open(QIODevice::ReadOnly));
    return file.readAll();
  }
  void Choose(int column) {
    Find<QComboBox>("column").setCurrentIndex(column);
    Q_EMIT Find<QComboBox>("column").activated(column);
  }
  // Presses a button of the question that comes next.
  void Answer(QMessageBox::StandardButton button) {
    ++asked;
    QTimer::singleShot(0, &page, [this, button] {
      auto* const question = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
      ASSERT_NE(question, nullptr);
      --asked;
      question->button(button)->click();
    });
  }
  // Saves under a name without a suffix, after an action in the dialog with the file it offers.
  void SaveAs(const char* name, const std::function<void(const QString& offered)>& action) {
    ++asked;
    QTimer::singleShot(0, &page, [this, name, action] {
      auto* const dialog = qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      --asked;
      auto& offered = *dialog->findChild<QLineEdit*>();
      action(dialog->directory().filePath(offered.text()));
      offered.clearFocus();
      dialog->selectFile(folder.filePath(name));
      static_cast<QDialog&>(*dialog).accept();
    });
    EXPECT_TRUE(page.SaveAs());
    EXPECT_EQ(asked, 0);
    page.activateWindow();
  }
  // More than is read at once.
  QString WriteLarge() {
    QByteArray text = "value\n";
    while (text.size() < (3 << 20)) text += "1.25\n2.5\n";
    return Write("large.csv", text);
  }
  TQorFloatVector Values() { return Find<TQorVectorEdit>("values").Vector(); }
  QString Picture() { return Find<PlotView>("histogram").accessibleDescription(); }

  QTemporaryDir folder;
  // Questions that have not come.
  int asked = 0;
};

TEST_F(DataPageTest, BeginsWithTheExample) {
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Figure("report", "Number of Values:"), "100");
  EXPECT_EQ(Figure("report", "Mean:"), "299852.4000");
  EXPECT_EQ(Find<QComboBox>("column").currentText(), "speed_km_s");
}

TEST_F(DataPageTest, FollowsEditsAndUndo) {
  page.Open(Write("small.csv", "name,size\nfirst,1\nsecond,2\nthird,6\n"));
  EXPECT_EQ(Figure("report", "Mean:"), "3.0000");
  EXPECT_EQ(Find<TQorLabelledVectorEdit>("values").Label(1), "second");
  const QString before = Picture();

  Type("values", "10");
  EXPECT_EQ(Figure("report", "Mean:"), "6.0000");
  EXPECT_NE(Picture(), before);

  Find<TQorVectorEdit>("values").Undo();
  QApplication::processEvents();
  EXPECT_EQ(Figure("report", "Mean:"), "3.0000");
  EXPECT_EQ(Picture(), before);

  Find<QSpinBox>("decimals").setValue(1);
  QApplication::processEvents();
  EXPECT_EQ(Figure("report", "Mean:"), "3.0");
}

TEST_F(DataPageTest, KeepsTheEditsOfEveryColumn) {
  page.Open(Write("two.csv", "name;a;b\n\"x, y\";1.50;2\nz;3.50;\n"));
  Type("values", "10");
  Choose(2);
  EXPECT_EQ(Values()[0], 2);
  // Still being typed when the column is left.
  auto& values = Find<TQorVectorEdit>("values");
  values.setEditFocus(1);
  QTest::keyClicks(QApplication::focusWidget(), "0.1");
  Choose(1);
  EXPECT_EQ(Values()[0], 10);
  EXPECT_EQ(Figure("report", "Mean:"), "6.7500");

  ASSERT_TRUE(page.Save(folder.filePath("out.csv")));
  EXPECT_EQ(Read("out.csv"), "name,a,b\n\"x, y\",10,2\nz,3.50,0.1\n");
  EXPECT_EQ(page.Title(), "out.csv");
  EXPECT_FALSE(page.IsChanged());
  EXPECT_FALSE(page.Save(folder.filePath("none/out.csv")));
  EXPECT_TRUE(Message().starts_with("out.csv: ")) << Message();
}

TEST_F(DataPageTest, AsksBeforeEditsAreLost) {
  const QString small = Write("small.csv", "1\n2\n"), other = Write("other.csv", "7\n9\n");
  page.Open(small);
  Type("values", "10");
  EXPECT_TRUE(page.IsChanged());
  Find<TQorVectorEdit>("values").Undo();
  QApplication::processEvents();
  EXPECT_FALSE(page.IsChanged());

  Type("values", "10");
  Answer(QMessageBox::Cancel);
  page.Open(other);
  EXPECT_EQ(page.Title(), "small.csv");
  EXPECT_EQ(Values()[0], 10);
  Answer(QMessageBox::Discard);
  page.Open(other);
  EXPECT_EQ(Values()[0], 7);
  EXPECT_EQ(asked, 0);
  EXPECT_FALSE(page.IsChanged());
}

TEST_F(DataPageTest, SavesAsCsvWhereTheFileIs) {
  SaveAs("first", [](const QString& offered) {
    EXPECT_EQ(QFileInfo(offered).fileName(), "michelson_1879.csv");
  });
  EXPECT_EQ(page.Title(), "first.csv");
  ASSERT_TRUE(QDir(folder.path()).mkdir("in"));
  page.Open(Write("in/two.tsv", "1\t2\n"));
  SaveAs("saved",
         [this](const QString& offered) { EXPECT_EQ(offered, folder.filePath("in/two.csv")); });
  EXPECT_EQ(Read("saved.csv"), "1,2\n");
}

TEST_F(DataPageTest, SavesTheTableThatIsShownWhateverIsBeingRead) {
  QSignalSpy ended(&page, &DataPage::ReadingEnded);
  page.Open(WriteLarge());
  SaveAs("saved", [&](const QString&) {
    ASSERT_TRUE(QTest::qWaitFor([&] { return ended.size() == 1; }));
    QApplication::processEvents();
  });
  EXPECT_EQ(Values().size(), 100U);
  EXPECT_TRUE(Read("saved.csv").startsWith("series,run,speed_km_s")) << "not the other table";
}

TEST_F(DataPageTest, TellsOfATextThatIsNoNumberAndKeepsTheValue) {
  page.Open(Write("two.csv", "a,b\n1,2\n"));
  const std::string refused = "1, Row 1: \"abc\" is not a number. The value stays.";
  const auto type = [this] {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    Find<TQorVectorEdit>("values").setEditFocus(0);
    QTest::keyClicks(QApplication::focusWidget(), "abc");
  };
  type();
  Find<QComboBox>("column").setFocus();
  EXPECT_EQ(Message(), refused);
  Choose(1);
  EXPECT_EQ(Message(), refused) << "it has just been left";
  Choose(0);
  EXPECT_EQ(Message(), "");
  type();
  SaveAs("saved", [&](const QString&) { EXPECT_EQ(Message(), refused); });
  EXPECT_EQ(Message(), refused);
  EXPECT_EQ(Read("saved.csv"), "a,b\n1,2\n");
  Type("values", "3");
  EXPECT_EQ(Message(), "");
}

TEST_F(DataPageTest, AWindowWithEditsShowsAStarAndAsksWhenClosed) {
  MainWindow window;
  window.Open(Write("small.csv", "1\n2\n"));
  EXPECT_EQ(window.windowTitle(), "small.csv[*] – Qorvex Gallery");
  EXPECT_FALSE(window.isWindowModified());
  window.show();
  auto& values = *window.findChild<TQorVectorEdit*>("values");
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  values.setEditFocus(0);
  QTest::keyClicks(QApplication::focusWidget(), "5\t");
  QApplication::processEvents();
  EXPECT_TRUE(window.isWindowModified());
  Answer(QMessageBox::Cancel);
  EXPECT_FALSE(window.close());
  Answer(QMessageBox::Discard);
  EXPECT_TRUE(window.close());
  EXPECT_EQ(asked, 0);
}

TEST_F(DataPageTest, TellsOfFiguresWithoutADigitAndOfEmptyCells) {
  const int width = page.minimumSizeHint().width();
  const auto& remark = Find<QLabel>("remark");
  page.Open(Write("tiny.csv", "1e-9\n2e-9\n4e-9\n"));
  EXPECT_TRUE(remark.text().endsWith("figures need up to 21 decimals")) << Message();
  EXPECT_LE(page.minimumSizeHint().width(), width);
  Find<QSpinBox>("decimals").setValue(21);
  QApplication::processEvents();
  EXPECT_EQ(remark.text(), "");
  Find<QSpinBox>("decimals").setValue(4);
  page.Open(Write("near.csv", "a,b\n1,1\n1,1\n1.0001,1\n,1\n"));
  EXPECT_EQ(remark.text(), "without 1 empty cell; 1 figure needs up to 12 decimals");
  EXPECT_NE(remark.toolTip(), "");
}

// Neither where the cells are nor how wide the page is hangs on a message.
TEST_F(DataPageTest, MessagesMoveNothing) {
  auto& values = Find<TQorVectorEdit>("values");
  const QPoint place = values.mapTo(&page, QPoint());
  const int width = page.minimumSizeHint().width();
  page.Open(Write("long.csv", QByteArray(5000, 'x') + "\n1\nabc\n"));
  EXPECT_GT(Message().size(), 5000U);
  QApplication::processEvents();
  EXPECT_EQ(values.mapTo(&page, QPoint()), place);
  EXPECT_LE(page.minimumSizeHint().width(), width);
  const auto& text = *Find<MessageBar>("messageBar").findChild<QLineEdit*>();
  QTextDocument tip;
  tip.setHtml(text.toolTip());
  const QString shown = tip.toPlainText().remove(QChar(0x200B));
  EXPECT_LT(shown.size(), 500);
  EXPECT_TRUE(text.text().startsWith(shown.chopped(1))) << shown.toStdString();
  QLabel tip_label(text.toolTip());
  tip_label.setWordWrap(true);
  EXPECT_LT(tip_label.minimumSizeHint().width(), 500) << "a line of it";

  page.OpenExample();
  EXPECT_EQ(Message(), "");
  values.setEditFocus(0);
  EXPECT_FALSE(values.PasteBlock("1\tx"));
  EXPECT_NE(Message(), "");
  Type("values", "1");
  EXPECT_EQ(Message(), "");
}

TEST_F(DataPageTest, MessagesFollowTheColoursOfTheProgram) {
  page.Open("missing.csv");
  const QPalette before = QApplication::palette();
  QPalette dark(QColor(60, 60, 60), QColor(30, 30, 30));
  QApplication::setPalette(dark);
  QApplication::processEvents();
  const auto& text = *Find<MessageBar>("messageBar").findChild<QLineEdit*>();
  EXPECT_EQ(text.palette().color(QPalette::Text), dark.color(QPalette::Text));
  EXPECT_EQ(text.palette().color(QPalette::Base).alpha(), 0);
  QApplication::setPalette(before);
  QApplication::processEvents();
}

TEST_F(DataPageTest, KeepsItsWidthWhateverTheValuesAndTitles) {
  page.Open(Write("huge.csv", QByteArray(5000, 'x') + "\n1e4000\n-1e-4000\n3e4931\n"));
  EXPECT_EQ(Figure("report", "Maximum:"), "3e+4931");
  QApplication::processEvents();
  EXPECT_LE(page.minimumSizeHint().width(), 1100);
}

TEST_F(DataPageTest, LeavesEmptyCellsOut) {
  page.Open(Write("gap.csv", "a,b\n1,4\n2,\n\n3,8\n"));
  Choose(1);
  EXPECT_EQ(Values().size(), 4U);
  EXPECT_EQ(Figure("report", "Number of Values:"), "2");
  EXPECT_EQ(Figure("report", "Mean:"), "6.0000");
}

TEST_F(DataPageTest, TellsOnThePageWhatIsWrong) {
  page.Open(folder.filePath("missing.csv"));
  EXPECT_TRUE(Message().starts_with("missing.csv: ")) << Message();
  EXPECT_EQ(Values().size(), 100U);

  const std::pair<const char*, const char*> cases[] = {
      {"size\n1\n2\nabc\n", "bad.csv:4: column 1 (size): \"abc\" is not a number"},
      {"size\n", "bad.csv: column 1 (size) has no values"},
      {"1,2\n3\n", "bad.csv:2: "},
      {"", "bad.csv: "}};
  for (const auto& [text, message] : cases) {
    page.Open(Write("bad.csv", text));
    EXPECT_TRUE(Message().starts_with(message)) << Message();
  }
  page.Open(Write("doubtful.csv", "1.5,NA\n2,3\n"));
  EXPECT_EQ(Message(), "The first row was taken for names, although it contains a number");
  page.Open(Write("good.csv", "size\n1\n2\n"));
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Values().size(), 2U);
}

TEST_F(DataPageTest, ReadsLargeFilesBesidesAndCanBeStopped) {
  const QString large = WriteLarge();
  QSignalSpy ended(&page, &DataPage::ReadingEnded);
  page.Open(large);
  EXPECT_TRUE(Find<QWidget>("progress").isVisible());
  Find<QPushButton>("cancel").click();
  EXPECT_FALSE(Find<QWidget>("progress").isVisible());
  EXPECT_EQ(ended.size(), 1);
  QApplication::processEvents();
  EXPECT_EQ(Values().size(), 100U);
  EXPECT_EQ(Find<QComboBox>("column").currentText(), "speed_km_s");

  page.Open(large);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ended.size() == 2; }));
  EXPECT_FALSE(Find<QWidget>("progress").isVisible());
  EXPECT_GT(Values().size(), 600'000U);
  EXPECT_EQ(Figure("report", "Mean:"), "1.8750");
}

TEST_F(DataPageTest, IsLeftInTheMiddleOfReading) {
  auto other = std::make_unique<DataPage>();
  other->Open(WriteLarge());
  other.reset();
  QApplication::processEvents();
}

// Onto a cell, and with a text as well, as file managers have it.
TEST_F(DataPageTest, AWindowTakesADroppedFile) {
  MainWindow window;
  window.show();
  auto& values = *window.findChild<TQorVectorEdit*>("values");
  const auto cells = values.findChildren<TextCell*>();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(Write("dropped.csv", "7\n9\n"))});
  data.setText(data.urls().first().toString());
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(cells.first(), &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(cells.first(), &drop);
  EXPECT_EQ(values.Vector().size(), 100U) << "the source of the file waits";
  QApplication::processEvents();
  EXPECT_EQ(values.Vector().size(), 2U);
  EXPECT_EQ(values.Element(0), 7);
}

TEST(DataTableReading, StopsWhenAsked) {
  std::size_t read = 0;
  const auto input = Observed(OpenFile(QORVEX_EXAMPLE_DATA "/michelson_1879.csv"),
                              [&](std::size_t bytes) { return (read = bytes) == 0; });
  EXPECT_THROW(DataTable{input}, ReadingStopped);
  EXPECT_GT(read, 0U);
}

}  // namespace
}  // namespace qorvex::gallery
