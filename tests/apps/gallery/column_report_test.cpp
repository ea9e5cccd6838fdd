#include "apps/qorvex-gallery/widgets/column_report.h"

#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QFile>
#include <QFileDialog>
#include <QMenu>
#include <QMimeData>
#include <QSpinBox>
#include <QTemporaryDir>
#include <QTimer>

#include "apps/gallery/page_fixture.h"
#include "apps/qorvex-gallery/plot/plot_view.h"
#include "apps/qorvex-gallery/widgets/figure_table.h"
#include "apps/qorvex-gallery/widgets/page_document.h"
#include "apps/qorvex-gallery/widgets/page_report_actions.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

struct ColumnReportTest : testing::Test {
  ColumnReportTest() {
    QLocale::setDefault(QLocale::c());
    SheetData data({}, {"group", "a", "b"});
    const char* const rows[][3] = {
        {"x", "1", "2"}, {"y", "2", "4"}, {"x", "NA", "6"}, {"y", "4", "5"}, {"x", "5", "NA"}};
    for (const auto& row : rows) data.AppendRow(row);
    sheet.SetData(std::move(data));
    report.resize(600, 600);
    report.show();
    report.ShowColumn(1, -1);
  }
  template <class Widget>
  Widget& Find(const char* name) {
    return *report.findChild<Widget*>(name);
  }
  [[nodiscard]] std::string Plot() {
    return Find<PlotView>("columnPlot").accessibleDescription().toStdString();
  }

  Sheet sheet;
  ColumnReport report{sheet};
};

TEST_F(ColumnReportTest, ShowsEachKindOfDiagram) {
  // The normal density covers three standard deviations; other diagrams have a margin of 3 %.
  const std::pair<const char*, const char*> kinds[] = {
      {"Histogram", "a from -2.47723 to 8.47723, Density from 0 to "},
      {"Box plot", "a from "},
      {"Normal quantiles", "Normal quantile from "},
      {"Values in order", "Row from 0.88 to 5.12, a from "},
      {"Autocorrelation", "Lag from -0.12 to 4.12, Autocorrelation of a from "},
      {"Against another column", "b from 1.91 to 5.09, a from "},
      {"Residuals of a line", "b from 1.91 to 5.09, Residual of a from "},
  };
  auto& box = Find<QComboBox>("plotKind");
  ASSERT_EQ(box.count(), static_cast<int>(std::size(kinds)));
  Find<QComboBox>("plotOther").setCurrentText("b");
  for (int i = 0; i < box.count(); ++i) {
    box.setCurrentIndex(i);
    EXPECT_EQ(box.currentText(), kinds[i].first);
    EXPECT_EQ(Plot().substr(0, std::string(kinds[i].second).size()), kinds[i].second);
    EXPECT_EQ(Find<QWidget>("classes").isVisible(), i == 0);
    EXPECT_EQ(Find<QWidget>("plotOther").isVisible(), i >= 5);
  }
}

TEST_F(ColumnReportTest, FollowsItsChoicesAndKeepsThem) {
  Find<QSpinBox>("classes").setValue(4);
  EXPECT_EQ(Plot().substr(0, 7), "a from ");
  const std::string four = Plot();
  Find<QSpinBox>("classes").setValue(0);
  EXPECT_NE(Plot(), four);
  Find<QSpinBox>("classes").setValue(4);
  Find<QSpinBox>("decimals").setValue(1);
  Find<QComboBox>("plotKind").setCurrentIndex(1);
  ColumnReport other(sheet);
  other.SetState(report.State());
  EXPECT_EQ(other.State(), report.State());
  EXPECT_EQ(other.findChild<QComboBox*>("plotKind")->currentIndex(), 1);

  // Boxes by groups; a group without a value has none.
  report.ShowColumn(1, 0);
  EXPECT_EQ(Find<PlotView>("columnPlot").Shown().y, (AxisRange{-0.5, 1.5}));
  report.ShowColumn(-1, -1);
  EXPECT_EQ(Plot(), "No values to show");
  EXPECT_TRUE(report.ReportParts().empty());
}

TEST_F(ColumnReportTest, CopiesAllStatisticsAsText) {
  Find<QPushButton>("copyStatistics").click();
  const QMimeData& copied = *QApplication::clipboard()->mimeData();
  const QStringList lines = copied.text().split(u'\n');
  EXPECT_EQ(lines[0], "Number of Values:\t4");
  EXPECT_TRUE(lines.contains("Mean:\t3"));
  EXPECT_TRUE(lines.contains("Third Quartile:\t4.5"));
  EXPECT_TRUE(copied.html().contains("Mean:</th><td align=\"right\">3</td>"));
}

TEST_F(ColumnReportTest, CopiesATableFromTheMenuOfAnyOfItsFigures) {
  auto& table = Find<FigureTable>("report");
  auto& figure = *table.findChildren<QLabel*>()[1];
  ASSERT_TRUE(QTest::qWaitForWindowActive(&report));
  figure.setFocus();
  QTest::keyClick(&figure, Qt::Key_A, Qt::ControlModifier);
  EXPECT_EQ(figure.selectedText(), "4");
  const auto choose = [&](Qt::Key key) {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, QPoint(1, 1), {});
    QApplication::sendEvent(&figure, &event);
    QTest::keyClick(QApplication::activePopupWidget(), key);
    return QApplication::clipboard()->text();
  };
  EXPECT_TRUE(choose(Qt::Key_T).startsWith("Number of Values:\t4\n"));
  EXPECT_EQ(choose(Qt::Key_C), "4");
}

TEST_F(ColumnReportTest, IsSavedFromTheFileMenu) {
  struct ReportedPage : Page {
    PageReport report;
    [[nodiscard]] PageReport Report() const override { return report; }
  } page;
  QMenu menu;
  AddReportActions(menu, [&page] { return &page; });
  const QTemporaryDir folder;
  Q_EMIT menu.aboutToShow();
  EXPECT_FALSE(menu.actions()[0]->isEnabled());
  Q_EMIT menu.aboutToHide();
  page.report = {"title", report.ReportParts()};
  // The suffix follows the chosen kind of file.
  QTimer::singleShot(0, &page, [&folder] {
    auto& dialog = *qobject_cast<QFileDialog*>(QApplication::activeModalWidget());
    dialog.selectNameFilter("PDF (*.pdf)");
    Q_EMIT dialog.filterSelected("PDF (*.pdf)");
    dialog.setDirectory(folder.path());
    dialog.findChild<QLineEdit*>()->setText("saved");
    static_cast<QDialog&>(dialog).accept();
  });
  menu.actions()[0]->trigger();
  QFile file(folder.filePath("saved.pdf"));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_TRUE(file.readAll().startsWith("%PDF-"));
}

TEST_F(ColumnReportTest, IsWrittenAsHtmlAndPdf) {
  const PageReport page{"1 < 2", report.ReportParts()};
  const QTemporaryDir folder;
  const auto written = [&](const char* name) {
    QFile file(folder.filePath(name));
    SaveReport(page, file.fileName());
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
  };
  const QByteArray html = written("report.html");
  for (const char* const part :
       {"<title>1 &lt; 2</title>", "<h2>Statistics of a</h2>", "<td align=\"right\">3</td>",
        "<h2>Histogram</h2>", "src=\"data:image/", "alt=\"a from -2.47723 to 8.47723"})
    EXPECT_TRUE(html.contains(part)) << part;
  const QByteArray pdf = written("report.PDF");
  EXPECT_TRUE(pdf.startsWith("%PDF-"));
  EXPECT_TRUE(pdf.contains("/Type /Page\n"));
  EXPECT_THROW(SaveReport(page, "/dev/null/report.html"), std::runtime_error);
}

}  // namespace
}  // namespace qorvex::gallery
