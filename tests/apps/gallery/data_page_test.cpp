#include "apps/qorvex-gallery/data_page.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QLabel>
#include <QMimeData>
#include <QPushButton>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QUrl>
#include <QtTest/QSignalSpy>

#include "apps/gallery/page_fixture.h"
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
  // More than is read at once.
  QString WriteLarge() {
    QByteArray text = "value\n";
    while (text.size() < (3 << 20)) text += "1.25\n2.5\n";
    return Write("large.csv", text);
  }
  TQorFloatVector Values() { return Find<TQorVectorEdit>("values").Vector(); }
  QString Picture() { return Find<PlotView>("histogram").accessibleDescription(); }

  QTemporaryDir folder;
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

TEST_F(DataPageTest, KeepsItsWidthWhateverTheValuesAndTitles) {
  page.Open(Write("huge.csv", QByteArray(5000, 'x') + "\n1e4000\n-1e-4000\n3e4931\n"));
  EXPECT_EQ(Figure("report", "Maximum:"), "3e+4931");
  QApplication::processEvents();
  EXPECT_LE(page.minimumSizeHint().width(), 1100);
}

TEST_F(DataPageTest, LeavesEmptyCellsOut) {
  page.Open(Write("gap.csv", "a,b\n1,4\n2,\n\n3,8\n"));
  Find<QComboBox>("column").setCurrentIndex(1);
  Q_EMIT Find<QComboBox>("column").activated(1);
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

TEST(ColumnReader, StopsWhenAsked) {
  std::stop_source stop;
  qint64 read = 0;
  const auto input = Observed(OpenFile(QORVEX_EXAMPLE_DATA "/michelson_1879.csv"), stop.get_token(),
                              [&](qint64 bytes) {
                                read = bytes;
                                stop.request_stop();
                              });
  EXPECT_THROW((void)ReadColumn(input, 2), ReadingStopped);
  EXPECT_GT(read, 0);
}

}  // namespace
}  // namespace qorvex::gallery
