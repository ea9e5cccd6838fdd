#include "apps/qorvex-gallery/pages/data_page.h"

#include <QCheckBox>
#include <QClipboard>
#include <QComboBox>
#include <QDragEnterEvent>
#include <QDropEvent>
#include <QFile>
#include <QFileDialog>
#include <QInputDialog>
#include <QMessageBox>
#include <QMimeData>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>
#include <QUrl>
#include <QtTest/QSignalSpy>
#include <cmath>
#include <functional>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/column_box.h"
#include "apps/qorvex-gallery/widgets/format_dialog.h"
#include "apps/qorvex-gallery/widgets/sheet_document.h"
#include "apps/qorvex-gallery/widgets/sheet_view.h"
#include "qorvex/controls/QorvexMatrixEdit.h"

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
    document.Open(Write(name, text));
    QApplication::processEvents();
  }
  void Choose(int column) {
    Find<QComboBox>("column").setCurrentIndex(column);
    QApplication::processEvents();
  }
  void Undo() {
    page.View().UndoLast();
    QApplication::processEvents();
  }
  // Types into a cell without leaving it.
  void TypeInto(quint32 row, quint32 column, const char* keys) {
    ASSERT_TRUE(QTest::qWaitForWindowActive(&page));
    editor.setRowEditFocus(row);
    editor.setColEditFocus(column);
    // Enter moves the focus on.
    for (const char* key = keys; *key != '\0'; ++key)
      QTest::keyClick(QApplication::focusWidget(), *key);
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
    EXPECT_TRUE(document.SaveAs());
    page.activateWindow();
  }
  // Large enough to be read in the background.
  QString WriteLarge() {
    QByteArray text = "value\n";
    while (text.size() < (3 << 20)) text += "1.25\n2.5\n";
    return Write("large.csv", text);
  }
  void TearDown() override { EXPECT_EQ(expected, 0) << "dialogs that did not appear"; }
  Extended At(quint32 row, quint32 column) { return editor.Element(row, column); }
  QString Picture() { return Find<PlotView>("columnPlot").accessibleDescription(); }
  std::string Mean() { return Figure("report", "Mean:"); }
  std::string Remark() { return Find<QLabel>("remark").text().toStdString(); }

  QTemporaryDir folder;
  SheetDocument& document = page.Document();
  TQorMatrixEdit& editor = page.View().Editor();
  int expected = 0;
};

TEST_F(DataPageTest, ShowsTheExampleAndFollowsEdits) {
  EXPECT_EQ(editor.NoOfRows() + editor.NoOfCols(), 0U) << "starts empty";
  document.OpenExample();
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Figure("report", "Number of Values:"), "100");
  EXPECT_EQ(Figure("report", "95 % Interval for the Mean:"), "299836.7 to 299868.1");
  EXPECT_EQ(Mean(), "299852.4");
  EXPECT_EQ(Find<QComboBox>("column").currentText(), "speed_km_s");

  Open("small.csv", "name,size\nfirst,1\nsecond,2\nthird,6\n");
  EXPECT_EQ(Mean(), "3");
  const QString before = Picture();
  TypeInto(0, 1, "10\r");
  EXPECT_EQ(Mean(), "6");
  EXPECT_NE(Picture(), before);
  Undo();
  EXPECT_EQ(Mean(), "3");
  EXPECT_EQ(Picture(), before);
  Find<QSpinBox>("decimals").setValue(1);
  QApplication::processEvents();
  EXPECT_EQ(Mean(), "3.0");
}

TEST_F(DataPageTest, DescribesTheColumnOfTheCursorAndItsGroups) {
  Open("groups.csv", "who,size,age\na,1,10\nb,2,20\na,5,30\nb,,40\n,100,50\n");
  EXPECT_EQ(Find<QComboBox>("column").currentText(), "size");
  auto& groups = Find<TQorMatrixEdit>("groups");
  EXPECT_FALSE(groups.isVisible());
  Find<QComboBox>("group").setCurrentText("who");
  EXPECT_TRUE(groups.isVisible());
  EXPECT_EQ(groups.RowHeading(1), "b");
  EXPECT_EQ(groups.NoOfRows(), 2U);
  EXPECT_EQ(groups.Element(0, 0), 2);
  EXPECT_EQ(groups.Element(0, 1), 3);
  EXPECT_EQ(groups.Element(1, 0), 1);
  Find<QCheckBox>("population").click();
  EXPECT_EQ(groups.Element(0, 2), 2) << "the standard deviation of 1 and 5";
  TypeInto(2, 2, "");
  EXPECT_EQ(Find<QComboBox>("column").currentText(), "age");
  EXPECT_EQ(groups.Element(1, 1), 30);
}

TEST_F(DataPageTest, FollowsItsColumnsWhenTheSheetChanges) {
  Open("three.csv", "a,b,c\n1,2,7\n3,4,8\n5,7,1\n");
  auto& column = Find<ColumnBox>("column");
  auto& groups = Find<ColumnBox>("group");
  auto& kind = Find<QComboBox>("plotKind");
  column.SetColumn(1);
  groups.SetColumn(2);
  Find<ColumnBox>("plotOther").SetColumn(2);
  // The box plot shows the groups, the scatter plot the other column.
  for (const int plot : {1, 5}) {
    kind.setCurrentIndex(plot);
    sheet.removeColumns(1, 2);
    QApplication::processEvents();
    EXPECT_EQ(groups.Column(), -1);
    EXPECT_EQ(Mean(), "3");
    Undo();
    column.SetColumn(1);
    groups.SetColumn(2);
  }
  ExpectQuestion(QMessageBox::Discard);
  Open("one.csv", "a\n1\n2\n");
  EXPECT_EQ(Mean(), "1.5");

  // Names that two columns share, and columns without names.
  Open("twice.csv", "x,y,x\n1,2,10\n3,4,20\n");
  column.SetColumn(2);
  groups.SetColumn(0);
  const QVariantMap state = page.State();
  sheet.setData(sheet.index(1, 1), 5.0);
  QApplication::processEvents();
  EXPECT_EQ(Mean(), "15");
  sheet.insertColumns(0, 1);
  QApplication::processEvents();
  EXPECT_EQ(Mean(), "15");
  EXPECT_EQ(groups.Column(), 1);
  sheet.UndoLines();
  column.SetColumn(1);
  page.SetState(state);
  EXPECT_EQ(Mean(), "15");
  ExpectQuestion(QMessageBox::Discard);
  Open("unnamed.csv", "1,2,10\n3,4,20\n");
  column.SetColumn(1);
  sheet.removeColumns(0, 1);
  QApplication::processEvents();
  EXPECT_EQ(Mean(), "3");
}

TEST_F(DataPageTest, GrowsFromNothing) {
  TypeInto(0, 0, "2\r4\rx\r");
  EXPECT_EQ(editor.NoOfRows(), 3U);
  EXPECT_EQ(Message(), "Column Column 1 counts as text: “x” in row 3 is not a number");
  TypeInto(2, 0, "6\r");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(Mean(), "4");
  page.View().AppendColumn();
  Expect<QInputDialog>([](QInputDialog& dialog) {
    dialog.setTextValue("weight");
    dialog.accept();
  });
  page.View().RenameColumn();
  EXPECT_EQ(editor.ColHeading(1), "weight");
  // Several columns, more rows than there are, and words for missing values.
  editor.Select({.row = 1, .rows = 1, .col = 1, .cols = 1});
  EXPECT_TRUE(editor.PasteBlock("1\tred\nNA\tgreen\n3\tblue\n"));
  QApplication::processEvents();
  EXPECT_EQ(editor.NoOfRows(), 4U);
  Choose(1);
  EXPECT_EQ(Mean(), "2");
  ASSERT_TRUE(document.SaveTo(folder.filePath("grown.csv")));
  EXPECT_EQ(Read("grown.csv"), ",weight,\n2,,\n4,1,red\n6,NA,green\n,3,blue\n");
  page.View().DeleteRowsHere();
  EXPECT_EQ(editor.NoOfRows(), 3U);
  Undo();
  EXPECT_EQ(editor.NoOfRows(), 4U);
}

TEST_F(DataPageTest, TakesAPastedTableWithItsNames) {
  QApplication::clipboard()->setText("name\tsize\nfirst\t1\nsecond\t2\n");
  TypeInto(0, 0, "");
  QTest::keySequence(QApplication::focusWidget(), QKeySequence::Paste);
  QApplication::processEvents();
  EXPECT_EQ(editor.ColHeading(1), "size");
  EXPECT_EQ(Mean(), "1.5");
  EXPECT_TRUE(sheet.IsChanged());
  // Digits that a number would not have stay, also over numbers.
  ExpectQuestion(QMessageBox::Discard);
  Open("digits.csv", "a,b\n1.50,2\n3,4\n");
  EXPECT_TRUE(editor.PasteBlock("007\t12345678901234567890123\n1.500\t0.10\n"));
  EXPECT_EQ(sheet.Labels(0), QStringList({"007", "1.500"}));
  EXPECT_EQ(sheet.Labels(1), QStringList({"12345678901234567890123", "0.10"}));
  EXPECT_EQ(At(0, 0), 7);
  editor.Undo();
  EXPECT_EQ(sheet.Labels(0), QStringList({"1.50", "3"}));
  EXPECT_FALSE(sheet.IsChanged());
  // A column of a German spreadsheet.
  QLocale::setDefault(QLocale::German);
  document.ReadText("1,5\n2,5\n");
  EXPECT_EQ(sheet.columnCount(), 1);
  EXPECT_EQ(sheet.Numbers(0)[1], 2.5L);
  QLocale::setDefault(QLocale::c());
}

TEST_F(DataPageTest, ComputesFromExactSums) {
  Open("cancel.csv", "1e25\n1\n-1e25\n");
  EXPECT_EQ(Mean(), "0.3333333");
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

TEST_F(DataPageTest, AsksBeforeItReplacesWhatAnotherProgramHasWritten) {
  const QString file = Write("shared.csv", "a\n1\n");
  document.Open(file);
  TypeInto(0, 0, "2\r");
  Write("shared.csv", "a\n1\n3\n");
  ExpectQuestion(QMessageBox::Cancel);
  EXPECT_FALSE(document.Save());
  EXPECT_EQ(Read("shared.csv"), "a\n1\n3\n");
  ExpectQuestion(QMessageBox::Save);
  EXPECT_TRUE(document.Save());
  EXPECT_EQ(Read("shared.csv"), "a\n2\n");
  EXPECT_TRUE(document.Save());
}

TEST_F(DataPageTest, SavesAFileAsItWasWritten) {
  const QString file = Write("two.csv", "name;a;b\n\"x, y\";1.50;2\nz;3.50;\n");
  document.Open(file);
  TypeInto(0, 1, "10\r");
  // Still being typed.
  TypeInto(1, 2, "0.1");
  EXPECT_TRUE(document.Save());
  EXPECT_EQ(Read("two.csv"), "name;a;b\n\"x, y\";10;2\nz;3.50;0.1\n");
  EXPECT_FALSE(sheet.IsChanged());
  // With its mark, the line that tells the delimiter, line ends, and in spite of its suffix.
  for (const auto& [name, text] :
       {std::pair("mark.csv", "\xEF\xBB\xBFsep=;\r\nn\xC3\xA4me;b\r\n1,50;\"x y\"\r\n"),
        {"tabs.csv", "a\tb\r\n1.50\t2\r\n"},
        {"commas.tsv", "a,b\n1.50,2\n"}}) {
    Open(name, text);
    EXPECT_TRUE(document.Save());
    EXPECT_EQ(Read(name), text) << name;
  }
  document.Open(file);
  QApplication::processEvents();
  EXPECT_TRUE(document.SaveTo(folder.filePath("out.tsv")));
  EXPECT_EQ(Read("out.tsv"), "name\ta\tb\n\"x, y\"\t10\t2\nz\t3.50\t0.1\n");
  EXPECT_EQ(document.Title(), "out.tsv");
  EXPECT_FALSE(document.SaveTo(folder.filePath("none/out.csv")));
  EXPECT_TRUE(Message().starts_with("out.csv: ")) << Message();
}

TEST_F(DataPageTest, AsksBeforeEditsAreLost) {
  Open("small.csv", "1\n2\n");
  TypeInto(0, 0, "10\r");
  Undo();
  EXPECT_FALSE(sheet.IsChanged());
  TypeInto(0, 0, "10\r");
  ExpectQuestion(QMessageBox::Cancel);
  Open("other.csv", "7\n9\n");
  EXPECT_EQ(document.Title(), "small.csv");
  EXPECT_EQ(At(0, 0), 10);
  ExpectQuestion(QMessageBox::Discard);
  Open("other.csv", "7\n9\n");
  EXPECT_EQ(At(0, 0), 7);
  EXPECT_FALSE(sheet.IsChanged());
}

TEST_F(DataPageTest, AsksBeforeAWindowWithEditsIsClosed) {
  MainWindow window;
  window.Open(Write("small.csv", "1\n2\n"));
  EXPECT_EQ(window.windowTitle(), "small.csv[*] – Qorvex Gallery");
  EXPECT_FALSE(window.isWindowModified());
  window.show();
  ASSERT_TRUE(QTest::qWaitForWindowActive(&window));
  window.Data().View().Editor().setRowEditFocus(0);
  QTest::keyClicks(QApplication::focusWidget(), "5\t");
  QApplication::processEvents();
  EXPECT_TRUE(window.isWindowModified());
  ExpectQuestion(QMessageBox::Cancel);
  EXPECT_FALSE(window.close());
  ExpectQuestion(QMessageBox::Discard);
  EXPECT_TRUE(window.close());
}

TEST_F(DataPageTest, SavesTheTableThatIsShown) {
  document.OpenExample();
  QSignalSpy ended(&page, &DataPage::ReadingEnded);
  document.Open(WriteLarge());
  SaveAs("first", [&](const QString& suggested) {
    EXPECT_EQ(QFileInfo(suggested).fileName(), "michelson_1879.csv");
    EXPECT_EQ(ended.size(), 1) << "otherwise another table could be shown meanwhile";
  });
  EXPECT_EQ(editor.NoOfRows(), 100U);
  EXPECT_EQ(document.Title(), "first.csv");
  EXPECT_TRUE(Read("first.csv").startsWith("series,run,speed_km_s"));
  ASSERT_TRUE(QDir(folder.path()).mkdir("in"));
  Open("in/two.tsv", "1\t2\n");
  SaveAs("saved",
         [this](const QString& suggested) { EXPECT_EQ(suggested, folder.filePath("in/two.csv")); });
  EXPECT_EQ(Read("saved.csv"), "1,2\n");
}

TEST_F(DataPageTest, RemarksOnEmptyCellsAndOnFiguresThatAreTooSmall) {
  Open("gap.csv", "a,b\n1,4\n2,\n\n3,8\n");
  Choose(1);
  EXPECT_EQ(editor.NoOfRows(), 4U);
  EXPECT_EQ(Figure("report", "Number of Values:"), "2");
  EXPECT_EQ(Mean(), "6");
  Open("tiny.csv", "1e-9\n2e-9\n4e-9\n");
  EXPECT_EQ(Mean(), "2.333333e-9");
  EXPECT_EQ(Remark(), "");
  Find<QSpinBox>("decimals").setValue(4);
  QApplication::processEvents();
  EXPECT_TRUE(Remark().ends_with("figures need up to 21 decimals")) << Remark();
  EXPECT_LE(page.minimumSizeHint().width(), 1100);
  Find<QSpinBox>("decimals").setValue(21);
  QApplication::processEvents();
  EXPECT_EQ(Remark(), "");
  Find<QSpinBox>("decimals").setValue(4);
  Open("near.csv", "a,b\n1,1\n1,1\n1.0001,1\n,1\n");
  EXPECT_EQ(Remark(), "without 1 empty cell; 1 figure needs up to 12 decimals");
  EXPECT_NE(Find<QLabel>("remark").toolTip(), "");
}

TEST_F(DataPageTest, DoesNotMoveOrWidenForMessagesAndTitles) {
  const QPoint place = editor.mapTo(&page, QPoint());
  Open("long.csv", QByteArray(5000, 'x') + "\n1\nabc\n");
  EXPECT_GT(Message().size(), 5000U);
  EXPECT_EQ(editor.mapTo(&page, QPoint()), place);
  EXPECT_LE(page.minimumSizeHint().width(), 1100);
  const auto& text = *Find<MessageBar>("messageBar").findChild<QLineEdit*>();
  QLabel tip(text.toolTip());
  tip.setWordWrap(true);
  EXPECT_LT(tip.minimumSizeHint().width(), 500) << "of a line";
  EXPECT_TRUE(tip.text().size() > 100 && tip.text().size() < 1500) << tip.text().size();

  Open("huge.csv", QByteArray(5000, 'x') + "\n1e4000\n-1e-4000\n3e4931\n");
  EXPECT_EQ(Figure("report", "Maximum:"), "3e4931");
  EXPECT_LE(page.minimumSizeHint().width(), 1100);
  document.OpenExample();
  EXPECT_EQ(Message(), "");
}

TEST_F(DataPageTest, ShowsMessagesInTheColoursOfTheProgram) {
  document.Open("missing.csv");
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
  document.OpenExample();
  document.Open(folder.filePath("missing.csv"));
  EXPECT_TRUE(Message().starts_with("missing.csv: ")) << Message();
  EXPECT_EQ(editor.NoOfRows(), 100U);
  const std::pair<const char*, const char*> cases[] = {
      {"size\n1\n2\nabc\n", "Column size counts as text: “abc” in row 3 is not a number"},
      {"a,b\n1,2\n3\n", "bad.csv:3: the row has 1 cell where line 1 has 2"}};
  for (const auto& [text, message] : cases) {
    Open("bad.csv", text);
    EXPECT_TRUE(Message().starts_with(message)) << Message();
  }
  Open("good.csv", "size\n1\n2\n");
  EXPECT_EQ(Message(), "");
  EXPECT_EQ(editor.NoOfRows(), 2U);
}

TEST_F(DataPageTest, ShowsHowAFileInDoubtIsRead) {
  const auto dialog = [this] { return page.findChild<FormatDialog*>(); };
  const auto choose = [&](const char* box, int value) {
    auto& choices = *dialog()->findChild<QComboBox*>(box);
    choices.setCurrentIndex(choices.findData(value));
  };
  Open("points.csv", "a,b\n\"1,5\",x y\n2,z\n");
  ASSERT_NE(dialog(), nullptr);
  EXPECT_EQ(editor.NoOfRows(), 0U) << "not before it is decided";
  auto& preview = *dialog()->findChild<TQorMatrixEdit*>("preview");
  EXPECT_EQ(preview.NoOfCols(), 2U);
  choose("decimalSign", ',');
  EXPECT_EQ(preview.Element(0, 0), 1.5L);
  choose("delimiter", ' ');
  EXPECT_EQ(preview.NoOfCols(), 0U);
  EXPECT_EQ(dialog()->findChild<QLabel*>("error")->text(),
            "The beginning:2: \",x\" follows a closing quote");
  dialog()->reject();
  QApplication::processEvents();
  EXPECT_EQ(editor.NoOfRows(), 0U);

  // Years as names, and as a row.
  Open("years.csv", "land,2019,2020\nx,1,-\n");
  dialog()->findChild<QLineEdit*>("missing")->setText("-, NA");
  dialog()->accept();
  QApplication::processEvents();
  EXPECT_EQ(editor.ColHeading(1), "2019");
  EXPECT_TRUE(std::isnan(sheet.Numbers(2)[0]));
  document.ChooseFormat();
  dialog()->findChild<QCheckBox*>("header")->setChecked(false);
  dialog()->accept();
  QApplication::processEvents();
  EXPECT_EQ(editor.NoOfRows(), 2U);

  for (const char* names : {"2019,2020\n0,1\n", ",1999,2001\nx,3,4\n", "1,10\n0.5,1\n2,0.25\n"}) {
    Open("names.csv", names);
    ASSERT_NE(dialog(), nullptr) << names;
    dialog()->reject();
    QApplication::processEvents();
  }
  for (const char* rows : {"2019,2020\n2020,2021\n", "1,2\n0.5,3\n", "2,1\n0.5,0.5\n"}) {
    Open("rows.csv", rows);
    EXPECT_EQ(dialog(), nullptr) << rows;
  }
  Open("commas.csv", "a;b\n1,5;2\n1;2,5\n");
  EXPECT_EQ(dialog(), nullptr) << "no doubt";
  EXPECT_EQ(sheet.Numbers(0)[0], 1.5L);
}

TEST_F(DataPageTest, SavesNamesThatAreReadAgain) {
  const auto save = [this](const char* rows) {
    document.ReadText(rows);
    EXPECT_TRUE(sheet.setData(sheet.index(0, 0), "x"));
    EXPECT_TRUE(document.SaveTo(folder.filePath("saved.csv")));
    return Read("saved.csv");
  };
  EXPECT_EQ(save("1\t2\n"), "\"Column 1\",\"Column 2\"\nx,2\n");
  EXPECT_EQ(sheet.Data().Format().header, true);
  EXPECT_EQ(Message(),
            "The columns have got names, because the first row would have been read as names");
  EXPECT_EQ(save("a\tb\n1\t2\n"), "a,b\nx,2\n");
  document.ReadText("a\tb\n1\t2\n");
  for (int column = 0; column < 2; ++column)
    EXPECT_TRUE(sheet.setHeaderData(column, Qt::Horizontal, 2019 + column, Qt::EditRole));
  EXPECT_TRUE(document.SaveTo(folder.filePath("years.csv")));
  EXPECT_EQ(Message(), "The names in years.csv are numbers; other programs may read them as a row");
  document.ReadText("1\t2\n");
  EXPECT_TRUE(document.SaveTo(folder.filePath("rows.csv")));
  EXPECT_EQ(sheet.Data().Format().header, false) << "as the next session will read it";
}

TEST_F(DataPageTest, ReadsLargeFilesInTheBackground) {
  const QString large = WriteLarge();
  QSignalSpy ended(&page, &DataPage::ReadingEnded);
  document.OpenExample();
  document.Open(large);
  EXPECT_TRUE(Find<QWidget>("progress").isVisible());
  EXPECT_FALSE(editor.isEnabled());
  Click("cancel");
  EXPECT_FALSE(Find<QWidget>("progress").isVisible());
  EXPECT_EQ(ended.size(), 1);
  QApplication::processEvents();
  EXPECT_EQ(editor.NoOfRows(), 100U);

  document.Open(large);
  ASSERT_TRUE(QTest::qWaitFor([&] { return ended.size() == 2; }));
  EXPECT_FALSE(Find<QWidget>("progress").isVisible());
  EXPECT_TRUE(editor.isEnabled());
  EXPECT_EQ(Mean(), "1.875");

  document.Open(Write("late.csv", QByteArray(2 << 20, '1') + ",2\n3\n"));
  ASSERT_TRUE(QTest::qWaitFor([&] { return ended.size() == 3; }));
  EXPECT_EQ(Message(), "late.csv:2: the row has 1 cell where line 1 has 2");

  document.Open(large);
  Open("small.csv", "1\n2\n");
  EXPECT_FALSE(Find<QWidget>("progress").isVisible()) << "it would replace the table";
  EXPECT_EQ(editor.NoOfRows(), 2U);
}

TEST_F(DataPageTest, CanBeDestroyedWhileReading) {
  auto other = std::make_unique<DataPage>(sheet);
  other->Document().Open(WriteLarge());
  other.reset();
  QApplication::processEvents();
}

// Dropped onto a cell and together with a text, as file managers do.
TEST_F(DataPageTest, OpensADroppedFile) {
  MainWindow window;
  window.show();
  TQorMatrixEdit& values = window.Data().View().Editor();
  const auto cells = values.findChildren<TextCell*>();
  QMimeData data;
  data.setUrls({QUrl::fromLocalFile(Write("dropped.csv", "7\n9\n"))});
  data.setText(data.urls().first().toString());
  QDragEnterEvent enter(QPoint(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(cells.first(), &enter);
  QDropEvent drop(QPointF(5, 5), Qt::CopyAction, &data, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(cells.first(), &drop);
  EXPECT_EQ(values.NoOfRows(), 0U) << "the program with the file waits for the drop to end";
  QApplication::processEvents();
  EXPECT_EQ(values.NoOfRows(), 2U);
  EXPECT_EQ(values.Element(0, 0), 7);
}

}  // namespace
}  // namespace qorvex::gallery
