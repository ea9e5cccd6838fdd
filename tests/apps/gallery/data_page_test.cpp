#include "apps/qorvex-gallery/data_page.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QMessageBox>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <QtTest/QSignalSpy>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/table_input.h"

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

TEST_F(DataPageTest, TellsOfFiguresWithoutADigit) {
  page.Open(Write("tiny.csv", "1e-9\n2e-9\n4e-9\n"));
  const auto remark = [this] {
    QStringList texts;
    for (const QLabel* const label : page.findChildren<QLabel*>()) texts.append(label->text());
    return texts.filter("no digit").join('\n').toStdString();
  };
  EXPECT_EQ(remark(), "12 figures show no digit, which takes 21 decimals");
  Find<QSpinBox>("decimals").setValue(21);
  QApplication::processEvents();
  EXPECT_EQ(remark(), "");
}

// Neither where the cells are nor how wide the page is hangs on a message.
TEST_F(DataPageTest, MessagesMoveNothing) {
  auto& values = Find<TQorVectorEdit>("values");
  const QPoint place = values.mapTo(&page, QPoint());
  const int width = page.minimumSizeHint().width();
  page.Open(Write("binary.csv", "1\n" + QByteArray(6000, 'x') + "\n"));
  EXPECT_NE(Message(), "");
  QApplication::processEvents();
  EXPECT_EQ(values.mapTo(&page, QPoint()), place);
  EXPECT_LE(page.minimumSizeHint().width(), width);

  page.OpenExample();
  EXPECT_EQ(Message(), "");
  values.setEditFocus(0);
  EXPECT_FALSE(values.PasteBlock("1\tx"));
  EXPECT_NE(Message(), "");
  Type("values", "1");
  EXPECT_EQ(Message(), "");
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
  EXPECT_EQ(Message(), "The first row was taken for names, although it holds a number");
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

TEST_F(DataPageTest, TakesADroppedFile) {
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(Write("dropped.csv", "7\n9\n"))});
  QDragEnterEvent enter(QPoint(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&page, &enter);
  QDropEvent drop(QPointF(50, 50), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&page, &drop);
  EXPECT_EQ(Figure("report", "Mean:"), "8.0000");
}

TEST(DataTableReading, StopsWhenAsked) {
  std::stop_source stop;
  qint64 read = 0;
  const auto input = Observed(OpenFile(QORVEX_EXAMPLE_DATA "/michelson_1879.csv"), stop.get_token(),
                              [&](qint64 bytes) {
                                read = bytes;
                                stop.request_stop();
                              });
  EXPECT_THROW(DataTable{input}, ReadingStopped);
  EXPECT_GT(read, 0);
}

}  // namespace
}  // namespace qorvex::gallery
