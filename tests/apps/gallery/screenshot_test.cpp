#include <QDir>
#include <QImage>
#include <QProcess>
#include <QTemporaryDir>

#include "support/test.h"

namespace qorvex::gallery {
namespace {

// The answer of the program, with its exit status at the end.
QString Answer(const QStringList& arguments) {
  QProcess program;
  program.setProcessChannelMode(QProcess::MergedChannels);
  program.start(QORVEX_GALLERY, arguments);
  program.waitForFinished(120'000);
  return program.readAll() + QString::number(program.exitCode());
}

TEST(Screenshot, ShowsEveryPage) {
  const QTemporaryDir directory;
  const QString folder = directory.filePath("new/pictures");
  QString expected;
  const QStringList pages = {"data", "matrix", "distribution", "random", "regression"};
  for (const QString& page : pages) expected += folder + '/' + page + ".png\n";
  EXPECT_EQ(Answer({"--screenshot", folder}), expected + '0');
  QImage before;
  for (const QString& page : pages) {
    const QImage picture(folder + '/' + page + ".png");
    EXPECT_EQ(picture.size(), QSize(1100, 720)) << page.toStdString();
    EXPECT_NE(picture, before) << page.toStdString();
    before = picture;
  }
}

TEST(Screenshot, SaysWhereItCannotWrite) {
  EXPECT_EQ(Answer({"--screenshot", "/dev/null/pictures"}),
            "qorvex-gallery: cannot make the directory /dev/null/pictures\n1");
}

}  // namespace
}  // namespace qorvex::gallery
