#include "apps/qorvex-gallery/plot/plot_view.h"

#include <QApplication>
#include <QClipboard>
#include <QFile>
#include <QMenu>
#include <QMimeData>
#include <QPdfWriter>
#include <QTemporaryDir>
#include <QWheelEvent>
#include <QtTest/QTest>
#include <cmath>
#include <map>

#include "apps/qorvex-gallery/plot/plot_picture.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

// The places of values are found with the readout, which is what a user sees.
struct PlotViewTest : testing::Test {
  PlotViewTest() {
    QLocale::setDefault(QLocale::c());
    plot.setLocale(QLocale::c());
    plot.resize(600, 400);
    plot.show();
  }
  void ShowLine() {
    PlotContent content{{{PlotShape::kPoints, PlotRole::kData, "dots", {{0, 0}, {NAN, 1}, {10, 5}}},
                         {PlotShape::kLine, PlotRole::kModel, "line", {{0, 0}, {10, 5}}}},
                        {"time"},
                        {"way"}};
    plot.SetContent(std::move(content));
    plot.grab();
  }
  [[nodiscard]] std::string Readout() const { return plot.ReadoutLines().join(u'|').toStdString(); }
  [[nodiscard]] std::string ReadoutAt(const QPoint& at) {
    QTest::mouseMove(&plot, at);
    return Readout();
  }
  void Turn(double notches, Qt::KeyboardModifiers keys = {}) {
    const QPointF at(300, 200);
    QWheelEvent event(at, plot.mapToGlobal(at), {}, {0, static_cast<int>(120 * notches)}, {}, keys,
                      Qt::NoScrollPhase, false);
    QApplication::sendEvent(&plot, &event);
  }
  static double Width(const AxisRange& range) { return range.high - range.low; }

  PlotView plot;
};

TEST_F(PlotViewTest, ReadsOutWhatIsNextToThePointer) {
  ShowLine();
  // On the line, in the middle between its points.
  QStringList lines;
  for (int y = 40; y < 360 && lines.isEmpty(); ++y) {
    QTest::mouseMove(&plot, QPoint(320, y));
    lines = plot.ReadoutLines();
  }
  ASSERT_EQ(lines.size(), 3);
  EXPECT_EQ(lines[0], "line");
  const double x = lines[1].section(": ", 1).toDouble();
  EXPECT_NEAR(lines[2].section(": ", 1).toDouble(), x / 2, 1e-4);
  EXPECT_TRUE(plot.accessibleDescription().startsWith("line; time: "));
  EXPECT_EQ(ReadoutAt({320, 380}), "");

  plot.SetContent({{{PlotShape::kBars, PlotRole::kData, {}, {{0, 0}, {1, 3}, {2, 1}}}}, {}, {}});
  plot.grab();
  EXPECT_EQ(ReadoutAt({150, 300}), "x: 0 to 1|y: 3");
  // Above the lower bar, which may be a pixel high.
  EXPECT_EQ(ReadoutAt({500, 60}), "x: 1 to 2|y: 1");
}

TEST_F(PlotViewTest, GoesFromPointToPointWithTheArrowKeys) {
  ShowLine();
  const std::pair<Qt::Key, const char*> steps[] = {
      {Qt::Key_Right, "dots|time: 0|way: 0"},  {Qt::Key_Right, "dots|time: 10|way: 5"},
      {Qt::Key_Right, "dots|time: 10|way: 5"}, {Qt::Key_Up, "line|time: 0|way: 0"},
      {Qt::Key_End, "line|time: 10|way: 5"},   {Qt::Key_Left, "line|time: 0|way: 0"},
      {Qt::Key_Down, "dots|time: 0|way: 0"},   {Qt::Key_Escape, ""}};
  for (const auto& [key, lines] : steps) {
    QTest::keyClick(&plot, key);
    EXPECT_EQ(Readout(), lines) << key;
  }
}

TEST_F(PlotViewTest, ZoomsAndMovesByWheelMouseAndKeys) {
  ShowLine();
  const PlotExtent all = plot.Shown();
  Turn(2);
  EXPECT_NEAR(Width(plot.Shown().x), Width(all.x) / 1.5625, 1e-9);
  EXPECT_NEAR(Width(plot.Shown().y), Width(all.y) / 1.5625, 1e-9);
  Turn(-2);
  Turn(1, Qt::ShiftModifier);
  EXPECT_NEAR(Width(plot.Shown().y), Width(all.y), 1e-9);
  EXPECT_NEAR(Width(plot.Shown().x), Width(all.x) / 1.25, 1e-9);
  QTest::mouseDClick(&plot, Qt::LeftButton, {}, QPoint(300, 200));
  EXPECT_EQ(plot.Shown(), all);

  // The point under the pointer stays there.
  QTest::keyClick(&plot, Qt::Key_Right);
  QTest::keyClick(&plot, Qt::Key_Escape);
  QTest::mousePress(&plot, Qt::LeftButton, {}, QPoint(300, 200));
  QTest::mouseMove(&plot, QPoint(200, 200));
  QTest::mouseRelease(&plot, Qt::LeftButton, {}, QPoint(200, 200));
  EXPECT_GT(plot.Shown().x.low, all.x.low + 1);
  EXPECT_NEAR(Width(plot.Shown().x), Width(all.x), 1e-9);
  EXPECT_EQ(plot.Shown().y, all.y);
  QTest::keyClick(&plot, Qt::Key_0);
  EXPECT_EQ(plot.Shown(), all);
  QTest::keyClick(&plot, Qt::Key_Up, Qt::ShiftModifier);
  EXPECT_NEAR(plot.Shown().y.low, all.y.low + 0.1 * Width(all.y), 1e-9);

  // The same range keeps the part, another one does not.
  QTest::keyClick(&plot, Qt::Key_Plus);
  const PlotExtent part = plot.Shown();
  ShowLine();
  EXPECT_EQ(plot.Shown(), part);
  plot.SetLayers({{PlotShape::kPoints, PlotRole::kData, {}, {{0, 0}, {20, 5}}}});
  EXPECT_GT(plot.Shown().x.high, 20);
  for (int i = 0; i < 500; ++i) QTest::keyClick(&plot, Qt::Key_Plus);
  EXPECT_GT(Width(plot.Shown().x), 1e-5);
  for (int i = 0; i < 8000; ++i) QTest::keyClick(&plot, Qt::Key_Minus);
  EXPECT_TRUE(std::isfinite(plot.Shown().x.low) && std::isfinite(plot.Shown().y.high));
  plot.grab();
}

TEST_F(PlotViewTest, BeginsWhereThereIsNothingBelow) {
  PlotContent content{{{PlotShape::kStems, PlotRole::kData, {}, {{0, 1}, {4, 2}}}}, {}, {}};
  plot.SetContent(content);
  EXPECT_LT(plot.Shown().x.low, 0);
  content.x.least = 0;
  content.x.greatest = 100;
  plot.SetContent(content);
  EXPECT_EQ(plot.Shown().x.low, 0);
  EXPECT_LT(plot.Shown().x.high, 5);
}

TEST_F(PlotViewTest, DrawsNarrowBarsWithoutGaps) {
  PlotLayer bars{PlotShape::kBars, PlotRole::kData, {}, {{0, 0}}};
  for (int i = 1; i <= 300; ++i) bars.points.emplace_back(i, 1);
  plot.SetLayers({bars});
  const QImage picture = plot.grab().toImage();
  // Lines of the grid show through.
  const int grey = qGray(picture.pixel(301, 205)) + 5;
  EXPECT_LT(grey, qGray(plot.palette().color(QPalette::Base).rgb()));
  for (int x = 200; x < 400; ++x) ASSERT_LT(qGray(picture.pixel(x, 205)), grey) << x;
}

TEST_F(PlotViewTest, CopiesSavesAndPrintsItsPicture) {
  ShowLine();
  QTest::keyClick(&plot, Qt::Key_C, Qt::ControlModifier);
  const QMimeData& copied = *QApplication::clipboard()->mimeData();
  EXPECT_EQ(qvariant_cast<QImage>(copied.imageData()).size(), 2 * plot.size());
  const std::map<QString, QByteArray> beginnings = {
      {"png", "\x89PNG"}, {"pdf", "%PDF-"}, {"svg", "<?xml"}};
  const QTemporaryDir folder;
  EXPECT_GE(PictureFormats().size(), 2U);
  for (const PictureFormat& format : PictureFormats()) {
    EXPECT_TRUE(copied.hasFormat(format.mime_type)) << format.suffix.toStdString();
    QFile file(folder.filePath("plot." + format.suffix.toUpper()));
    SavePicture(plot, file.fileName());
    ASSERT_TRUE(file.open(QIODevice::ReadOnly));
    EXPECT_TRUE(file.readAll().startsWith(beginnings.at(format.suffix)));
  }
  const auto refused = [this](const QString& path) {
    try {
      SavePicture(plot, path);
    } catch (const std::runtime_error& error) {
      return QString(error.what());
    }
    return QString("saved");
  };
  EXPECT_TRUE(refused(folder.filePath("plot.gif")).startsWith("plot.gif: pictures are written to"));
  EXPECT_TRUE(refused("/dev/null/plot.png").startsWith("plot.png: "));

  const QString printed = folder.filePath("printed.pdf");
  QPdfWriter printer(printed);
  PrintPicture(plot, printer);
  EXPECT_GT(QFile(printed).size(), 1000);
}

TEST_F(PlotViewTest, HasAMenuUnlessItIsEmpty) {
  const auto entries = [this] {
    QContextMenuEvent event(QContextMenuEvent::Keyboard, {}, {});
    QApplication::sendEvent(&plot, &event);
    const auto* const menu = plot.findChild<QMenu*>();
    return menu == nullptr ? 0 : menu->actions().size();
  };
  EXPECT_EQ(entries(), 0);
  ShowLine();
  const PlotExtent all = plot.Shown();
  EXPECT_EQ(entries(), 7);
  auto* const menu = plot.findChild<QMenu*>();
  QTest::keyClick(menu, Qt::Key_I);
  EXPECT_LT(Width(plot.Shown().x), Width(all.x));
}

}  // namespace
}  // namespace qorvex::gallery
