#include "apps/qorvex-gallery/pages/data_page.h"

#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <QtTest/QSignalSpy>
#include <functional>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/main_window.h"
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
  void Open(const char* name, const QByteArray& text) {
    page.Open(Write(name, text));
    QApplication::processEvents();
  }
  void Choose(int column) {
    Find<QComboBox>("column").setCurrentIndex(column);
    Q_EMIT Find<QComboBox>("column").activated(column);
  }
  void Undo() {
    Find<TQorVectorEdit>("values").Undo();
    QApplication::processEvents();
  }
  // Does something with the next dialog.
  template <class Dialog>
  void Expect(const std::function<void(Dialog& dialog)>& action) {
    ++expected;
    QTimer::singleShot(0, &page, [this, action] {
      auto* const dialog = qobject_cast<Dialog*>(QApplication::activeModalWidget());
      ASSERT_NE(dialog, nullptr);
      --expected;
      action(*dialog);
    });
  }
  void ExpectQuestion(QMessageBox::StandardButton answer) {
    Expect<QMessageBox>([answer](QMessageBox& question) { question.button(answer)->click(); });
  }
  // Saves under a name without a suffix, after an action with the file that the dialog suggests.
  void SaveAs(const char* name, const std::function<void(const QString& suggested)>& action) {
    Expect<QFileDialog>([this, name, action](QFileDialog& dialog) {
      auto& suggested = *dialog.findChild<QLineEdit*>();
      action(dialog.directory().filePath(suggested.text()));
      suggested.clearFocus();
      dialog.selectFile(folder.filePath(name));
      static_cast<QDialog&>(dialog).accept();
    });
    EXPECT_TRUE(page.SaveAs());
    page.activateWindow();
  }
  // Large enough to be read in the background.
  QString WriteLarge() {
    QByteArray text = "value\n";
    while (text.size() < (3 << 20)) text += "1.25\n2.5\n";
    return Write("large.csv", text);
  }
  void TearDown() override { EXPECT_EQ(expected, 0) << "dialogs that did not appear"; }
  TQorFloatVector Values() { return Find<TQorVectorEdit>("values").Vector(); }
  QString Picture() { return Find<PlotView>("histogram").accessibleDescription(); }
  std::string Mean() { return Figure("report", "Mean:"); }
  std::string Remark() { return Find<QLabel>("remark").text().toStdString(); }

  QTemporaryDir folder;
  int expected = 0;
};

TEST_F(DataPageTest, StartsWithTheExampleAndFollowsEdits) {
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Figure("report", "Number of Values:"), "100");
  EXPECT_EQ(Figure("report", "95 % Interval for the Mean:"), "299836.7226 to 299868.0774");
  EXPECT_EQ(Mean(), "299852.4000");
  EXPECT_EQ(Find<QComboBox>("column").currentText(), "speed_km_s");

  Open("small.csv", "name,size\nfirst,1\nsecond,2\nthird,6\n");
  EXPECT_EQ(Mean(), "3.0000");
  EXPECT_EQ(Find<TQorLabelledVectorEdit>("values").Label(1), "second");
  const QString before = Picture();
  Type("values", "10\r");
  EXPECT_EQ(Mean(), "6.0000");
  EXPECT_NE(Picture(), before);
  Undo();
  EXPECT_EQ(Mean(), "3.0000");
  EXPECT_EQ(Picture(), before);
  Find<QSpinBox>("decimals").setValue(1);
  QApplication::processEvents();
  EXPECT_EQ(Mean(), "3.0");
}

TEST_F(DataPageTest, ComputesFromExactSums) {
  Open("cancel.csv", "1e25\n1\n-1e25\n");
  EXPECT_EQ(Mean(), "0.3333");
  // A thousand values of 0.1 have no spread, and no normal density beside their bar.
  Open("equal.csv", QByteArray("0.1\n").repeated(1000));
  Find<QSpinBox>("decimals").setValue(22);
  QApplication::processEvents();
  EXPECT_EQ(Figure("report", "Standard Deviation:"), "0.0000000000000000000000");
  EXPECT_EQ(Remark(), "");
  EXPECT_FALSE(Picture().contains("Normal density")) << Picture().toStdString();
  // The density and the variance are beyond the range.
  Open("tiny.csv", "1e-4940\n3e-4940\n");
  EXPECT_FALSE(Picture().contains("Normal density")) << Picture().toStdString();
  Open("huge.csv", "8e4931\n-8e4931\n0\n");
  EXPECT_EQ(Figure("report", "Standard Deviation:"), "8e+4931");
  EXPECT_EQ(Remark(), "");
}

TEST_F(DataPageTest, KeepsTheEditsOfEveryColumn) {
  Open("two.csv", "name;a;b\n\"x, y\";1.50;2\nz;3.50;\n");
  Type("values", "10\r");
  Choose(2);
  EXPECT_EQ(Values()[0], 2);
  // Still being typed when the column is left.
  Find<TQorVectorEdit>("values").setEditFocus(1);
  QTest::keyClicks(QApplication::focusWidget(), "0.1");
  Choose(1);
  EXPECT_EQ(Values()[0], 10);
  EXPECT_EQ(Mean(), "6.7500");
  ASSERT_TRUE(page.Save(folder.filePath("out.csv")));
  EXPECT_EQ(Read("out.csv"), "name,a,b\n\"x, y\",10,2\nz,3.50,0.1\n");
  EXPECT_EQ(page.Title(), "out.csv");
  EXPECT_FALSE(page.IsChanged());
  EXPECT_FALSE(page.Save(folder.filePath("none/out.csv")));
  EXPECT_TRUE(Message().starts_with("out.csv: ")) << Message();
}

TEST_F(DataPageTest, AsksBeforeEditsAreLost) {
  Open("small.csv", "1\n2\n");
  Type("values", "10\r");
  Undo();
  EXPECT_FALSE(page.IsChanged());
  Type("values", "10\r");
  ExpectQuestion(QMessageBox::Cancel);
  Open("other.csv", "7\n9\n");
  EXPECT_EQ(page.Title(), "small.csv");
  EXPECT_EQ(Values()[0], 10);
  ExpectQuestion(QMessageBox::Discard);
  Open("other.csv", "7\n9\n");
  EXPECT_EQ(Values()[0], 7);
  EXPECT_FALSE(page.IsChanged());
}

TEST_F(DataPageTest, AsksBeforeAWindowWithEditsIsClosed) {
  MainWindow window;
  window.Open(Write("small.csv", "1\n2\n"));
  EXPECT_EQ(window.windowTitle(), "small.csv[*] – Qorvex Gallery");
  EXPECT_FALSE(window.isWindowModified());
  window.show();
  Type(*window.findChild<TQorVectorEdit*>("values"), "5\t");
  EXPECT_TRUE(window.isWindowModified());
  ExpectQuestion(QMessageBox::Cancel);
  EXPECT_FALSE(window.close());
  ExpectQuestion(QMessageBox::Discard);
  EXPECT_TRUE(window.close());
}

TEST_F(DataPageTest, SavesTheTableThatIsShown) {
  QSignalSpy ended(&page, &DataPage::ReadingEnded);
  page.Open(WriteLarge());
  SaveAs("first", [&](const QString& suggested) {
    EXPECT_EQ(QFileInfo(suggested).fileName(), "michelson_1879.csv");
    EXPECT_EQ(ended.size(), 1) << "otherwise another table could be shown meanwhile";
  });
  EXPECT_EQ(Values().size(), 100U);
  EXPECT_EQ(page.Title(), "first.csv");
  EXPECT_TRUE(Read("first.csv").startsWith("series,run,speed_km_s"));
  ASSERT_TRUE(QDir(folder.path()).mkdir("in"));
  Open("in/two.tsv", "1\t2\n");
  SaveAs("saved",
         [this](const QString& suggested) { EXPECT_EQ(suggested, folder.filePath("in/two.csv")); });
  EXPECT_EQ(Read("saved.csv"), "1,2\n");
}

TEST_F(DataPageTest, KeepsTheValueIfATextIsNotANumber) {
  Open("two.csv", "a,b\n1,2\n");
  const std::string refused = "1, Row 1: \"abc\" is not a number. The value stays.";
  Type("values", "abc");
  Find<QComboBox>("column").setFocus();
  Choose(1);
  EXPECT_EQ(Message(), refused) << "the text has only just been left";
  Choose(0);
  EXPECT_EQ(Message(), "");
  Type("values", "abc");
  SaveAs("saved", [&](const QString&) { EXPECT_EQ(Message(), refused); });
  EXPECT_EQ(Message(), refused);
  EXPECT_EQ(Read("saved.csv"), "a,b\n1,2\n");
  Type("values", "3\r");
  EXPECT_EQ(Message(), "");
}

TEST_F(DataPageTest, RemarksOnEmptyCellsAndOnFiguresThatAreTooSmall) {
  Open("gap.csv", "a,b\n1,4\n2,\n\n3,8\n");
  Choose(1);
  EXPECT_EQ(Values().size(), 4U);
  EXPECT_EQ(Figure("report", "Number of Values:"), "2");
  EXPECT_EQ(Mean(), "6.0000");
  const int width = page.minimumSizeHint().width();
  Open("tiny.csv", "1e-9\n2e-9\n4e-9\n");
  EXPECT_TRUE(Remark().ends_with("figures need up to 21 decimals")) << Remark();
  EXPECT_LE(page.minimumSizeHint().width(), width);
  Find<QSpinBox>("decimals").setValue(21);
  QApplication::processEvents();
  EXPECT_EQ(Remark(), "");
  Find<QSpinBox>("decimals").setValue(4);
  Open("near.csv", "a,b\n1,1\n1,1\n1.0001,1\n,1\n");
  EXPECT_EQ(Remark(), "without 1 empty cell; 1 figure needs up to 12 decimals");
  EXPECT_NE(Find<QLabel>("remark").toolTip(), "");
}

TEST_F(DataPageTest, DoesNotMoveOrWidenForMessagesAndTitles) {
  auto& values = Find<TQorVectorEdit>("values");
  const QPoint place = values.mapTo(&page, QPoint());
  Open("long.csv", QByteArray(5000, 'x') + "\n1\nabc\n");
  EXPECT_GT(Message().size(), 5000U);
  EXPECT_EQ(values.mapTo(&page, QPoint()), place);
  EXPECT_LE(page.minimumSizeHint().width(), 1100);
  const auto& text = *Find<MessageBar>("messageBar").findChild<QLineEdit*>();
  QLabel tip(text.toolTip());
  tip.setWordWrap(true);
  EXPECT_LT(tip.minimumSizeHint().width(), 500) << "of a line";
  EXPECT_TRUE(tip.text().size() > 100 && tip.text().size() < 1500) << tip.text().size();

  Open("huge.csv", QByteArray(5000, 'x') + "\n1e4000\n-1e-4000\n3e4931\n");
  EXPECT_EQ(Figure("report", "Maximum:"), "3e+4931");
  EXPECT_LE(page.minimumSizeHint().width(), 1100);
  page.OpenExample();
  EXPECT_EQ(Message(), "");
  values.setEditFocus(0);
  EXPECT_FALSE(values.PasteBlock("1\tx"));
  EXPECT_NE(Message(), "");
  Type("values", "1\r");
  EXPECT_EQ(Message(), "");
}

TEST_F(DataPageTest, ShowsMessagesInTheColoursOfTheProgram) {
  page.Open("missing.csv");
  const QPalette before = QApplication::palette();
  const QPalette dark(QColor(60, 60, 60), QColor(30, 30, 30));
  QApplication::setPalette(dark);
  QApplication::processEvents();
  const auto& text = *Find<MessageBar>("messageBar").findChild<QLineEdit*>();
  EXPECT_EQ(text.palette().color(QPalette::Text), dark.color(QPalette::Text));
  EXPECT_EQ(text.palette().color(QPalette::Base).alpha(), 0);
  QApplication::setPalette(before);
  QApplication::processEvents();
}

TEST_F(DataPageTest, SaysWhatIsWrongWithAFile) {
  page.Open(folder.filePath("missing.csv"));
  EXPECT_TRUE(Message().starts_with("missing.csv: ")) << Message();
  EXPECT_EQ(Values().size(), 100U);
  const std::pair<const char*, const char*> cases[] = {
      {"size\n1\n2\nabc\n", "bad.csv:4: column 1 (size): \"abc\" is not a number"},
      {"1.5,NA\n2,3\n", "The first row was read as names, although it contains a number"}};
  for (const auto& [text, message] : cases) {
    Open("bad.csv", text);
    EXPECT_TRUE(Message().starts_with(message)) << Message();
  }
  Open("good.csv", "size\n1\n2\n");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Values().size(), 2U);
}

TEST_F(DataPageTest, ReadsLargeFilesInTheBackground) {
  const QString large = WriteLarge();
  QSignalSpy ended(&page, &DataPage::ReadingEnded);
  page.Open(large);
  EXPECT_TRUE(Find<QWidget>("progress").isVisible());
  EXPECT_FALSE(Find<TQorVectorEdit>("values").isEnabled());
  Click("cancel");
  EXPECT_FALSE(Find<QWidget>("progress").isVisible());
  EXPECT_EQ(ended.size(), 1);
  QApplication::processEvents();
  EXPECT_EQ(Values().size(), 100U);

  page.Open(large);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ended.size() == 2; }));
  EXPECT_FALSE(Find<QWidget>("progress").isVisible());
  EXPECT_TRUE(Find<TQorVectorEdit>("values").isEnabled());
  EXPECT_EQ(Mean(), "1.8750");

  page.Open(Write("late.csv", QByteArray(2 << 20, '1') + ",2\n3\n"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return ended.size() == 3; }));
  EXPECT_EQ(Message(), "late.csv:2: the row has 1 cell where line 1 has 2");

  page.Open(large);
  Open("small.csv", "1\n2\n");
  EXPECT_FALSE(Find<QWidget>("progress").isVisible()) << "it would replace the table";
  EXPECT_EQ(Values().size(), 2U);
}

TEST_F(DataPageTest, CanBeDestroyedWhileReading) {
  auto other = std::make_unique<DataPage>();
  other->Open(WriteLarge());
  other.reset();
  QApplication::processEvents();
}

// Dropped onto a cell and together with a text, as file managers do.
TEST_F(DataPageTest, OpensADroppedFile) {
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
  EXPECT_EQ(values.Vector().size(), 100U) << "the program with the file waits for the drop to end";
  QApplication::processEvents();
  EXPECT_EQ(values.Vector().size(), 2U);
  EXPECT_EQ(values.Element(0), 7);
}

}  // namespace
}  // namespace qorvex::gallery
