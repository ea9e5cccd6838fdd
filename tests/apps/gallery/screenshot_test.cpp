#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "qorvex/base/version.h"
#include "support/test.h"

namespace qorvex::gallery {
namespace {

struct Outcome {
  int status;
  QString output, errors;
};

Outcome RunGallery(const QStringList& arguments) {
  QProcess program;
  program.start(QORVEX_GALLERY, arguments);
  program.waitForFinished(120'000);
  return {program.exitCode(), program.readAllStandardOutput(), program.readAllStandardError()};
}

TEST(Gallery, WritesAPictureOfEveryPage) {
  const QTemporaryDir directory;
  const QString folder = directory.filePath("new/pictures");
  const Outcome outcome = RunGallery({"--screenshot", folder});
  EXPECT_EQ(outcome.status, 0);
  QString files;
  QImage before;
  for (const char* page : {"data", "matrix", "distribution", "random", "regression", "tests"}) {
    const QString file = folder + '/' + page + ".png";
    files += file + '\n';
    const QImage picture(file);
    EXPECT_EQ(picture.size(), QSize(1100, 720)) << page;
    EXPECT_NE(picture, before) << page;
    before = picture;
  }
  files += folder + "/preview.png\n";
  EXPECT_EQ(outcome.output, files);

  const std::pair<QStringList, const char*> refused[] = {
      {{"--screenshot", "/dev/null/pictures"}, "cannot create the directory /dev/null/pictures\n"},
      {{"--screenshot", folder, "--language", "klingon"}, "unknown language \"klingon\""},
      {{"--screenshot", folder, "missing.csv"}, "qorvex-gallery: missing.csv: "}};
  for (const auto& [options, message] : refused) {
    const Outcome failed = RunGallery(options);
    EXPECT_EQ(failed.status, 1) << message;
    EXPECT_EQ(failed.output, "") << message;
    EXPECT_TRUE(failed.errors.contains(message)) << failed.errors.toStdString();
  }
}

TEST(Gallery, PrintsItsVersionWithoutADisplay) {
  qunsetenv("QT_QPA_PLATFORM");
  EXPECT_EQ(RunGallery({"--version"}).output, "qorvex-gallery " QORVEX_VERSION "\n");
}

}  // namespace
}  // namespace qorvex::gallery
