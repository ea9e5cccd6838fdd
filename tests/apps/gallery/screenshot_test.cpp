#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "qorvex/base/version.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

struct Outcome {
  int status;
  QString output;
  QString errors;
};

Outcome RunGallery(const QStringList& arguments) {
  QProcess program;
  program.start(QORVEX_GALLERY, arguments);
  program.waitForFinished(120'000);
  const QString output = program.readAllStandardOutput();
  return {program.exitCode(), output, program.readAllStandardError()};
}

TEST(Screenshot, ShowsEveryPage) {
  const QTemporaryDir directory;
  const QString folder = directory.filePath("new/pictures");
  QString expected;
  const QStringList pages = {"data", "matrix", "distribution", "random", "regression"};
  for (const QString& page : pages) expected += folder + '/' + page + ".png\n";
  const Outcome outcome = RunGallery({"--screenshot", folder});
  EXPECT_EQ(outcome.status, 0);
  EXPECT_EQ(outcome.output, expected);
  QImage before;
  for (const QString& page : pages) {
    const QImage picture(folder + '/' + page + ".png");
    EXPECT_EQ(picture.size(), QSize(1100, 720)) << page.toStdString();
    EXPECT_NE(picture, before) << page.toStdString();
    before = picture;
  }
}

TEST(Gallery, TellsItsVersionWithoutADisplay) {
  qunsetenv("QT_QPA_PLATFORM");
  EXPECT_EQ(RunGallery({"--version"}).output, "qorvex-gallery " QORVEX_VERSION "\n");
}

TEST(Screenshot, SaysWhereItCannotWrite) {
  const Outcome outcome = RunGallery({"--screenshot", "/dev/null/pictures"});
  EXPECT_EQ(outcome.status, 1);
  EXPECT_EQ(outcome.output, "");
  EXPECT_TRUE(outcome.errors.contains("cannot create the directory /dev/null/pictures\n"))
      << outcome.errors.toStdString();
}

}  // namespace
}  // namespace qorvex::gallery
