#include "apps/qorvex-gallery/screenshots.h"

#include <QApplication>
#include <QDialog>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTabWidget>
#include <algorithm>
#include <cstdio>

#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/model/background_work.h"
#include "apps/qorvex-gallery/model/format_doubt.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "apps/qorvex-gallery/widgets/format_dialog.h"

namespace qorvex::gallery {

namespace {

// Waits until no page has work in the background and all queued events have been handled.
void WaitUntilIdle(const MainWindow& window) {
  const QList<BackgroundWork*> works = window.findChildren<BackgroundWork*>();
  QElapsedTimer quiet;
  quiet.start();
  while (quiet.elapsed() < 200) {
    QApplication::processEvents(QEventLoop::AllEvents, 20);
    if (std::ranges::any_of(works, &BackgroundWork::IsRunning)) quiet.restart();
  }
}

bool Write(QWidget& widget, const QString& file) {
  if (!widget.grab().save(file)) {
    std::fprintf(stderr, "qorvex-gallery: cannot write %s\n", qPrintable(file));
    return false;
  }
  std::printf("%s\n", qPrintable(file));
  return true;
}

// The choice of the form of a file, for a file in doubt.
bool WritePreview(MainWindow& window, const QString& file) {
  const QByteArray lines(
      "station,2023,2024\nNorth,\"11,5\",\"12,1\"\nSouth,\"13,25\",NA\nEast,\"9,75\",10\n");
  const SheetData sheet = ReadSheet(TextInputOf({}, lines), {});
  FormatDialog dialog(QStringLiteral("stations.csv"), lines, sheet.Format(), DoubtIn(sheet),
                      &window);
  dialog.setAttribute(Qt::WA_DontShowOnScreen);
  dialog.show();
  WaitUntilIdle(window);
  return Write(dialog, file);
}

}  // namespace

bool WriteScreenshots(MainWindow& window, const QString& directory) {
  QTabWidget& pages = *window.Pages();
  if (!QDir().mkpath(directory)) {
    std::fprintf(stderr, "qorvex-gallery: cannot create the directory %s\n", qPrintable(directory));
    return false;
  }
  // The layout is that of a window that is shown.
  window.setAttribute(Qt::WA_DontShowOnScreen);
  window.show();
  WaitUntilIdle(window);
  // A file whose form is in doubt is read in the form that was found.
  for (QDialog* const dialog : window.findChildren<QDialog*>()) dialog->accept();
  WaitUntilIdle(window);
  if (!window.ReadingError().isEmpty()) {
    std::fprintf(stderr, "qorvex-gallery: %s\n", qPrintable(window.ReadingError()));
    return false;
  }
  for (int i = 0; i < pages.count(); ++i) {
    pages.setCurrentIndex(i);
    WaitUntilIdle(window);
    if (!Write(window, QDir(directory).filePath(pages.widget(i)->objectName() + ".png")))
      return false;
  }
  return WritePreview(window, QDir(directory).filePath("preview.png"));
}

}  // namespace qorvex::gallery
