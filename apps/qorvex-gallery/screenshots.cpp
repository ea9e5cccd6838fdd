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
    const QString file = QDir(directory).filePath(pages.widget(i)->objectName() + ".png");
    if (!window.grab().save(file)) {
      std::fprintf(stderr, "qorvex-gallery: cannot write %s\n", qPrintable(file));
      return false;
    }
    std::printf("%s\n", qPrintable(file));
  }
  return true;
}

}  // namespace qorvex::gallery
