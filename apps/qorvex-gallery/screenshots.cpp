#include "apps/qorvex-gallery/screenshots.h"

#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QPixmap>
#include <QTabWidget>
#include <algorithm>
#include <cstdio>

#include "apps/qorvex-gallery/main_window.h"
#include "apps/qorvex-gallery/pages/data_page.h"
#include "apps/qorvex-gallery/widgets/background_task.h"

namespace qorvex::gallery {

namespace {

// Until no page works any more, and what they have queued is done.
void Settle(const MainWindow& window) {
  const QList<BackgroundTask*> tasks = window.findChildren<BackgroundTask*>();
  const auto* const data = window.findChild<DataPage*>();
  QElapsedTimer quiet;
  quiet.start();
  while (quiet.elapsed() < 200) {
    QApplication::processEvents(QEventLoop::AllEvents, 20);
    const auto is_running = [](const BackgroundTask* task) { return task->Running(); };
    const bool reads = data != nullptr && data->IsReading();
    if (reads || std::any_of(tasks.begin(), tasks.end(), is_running)) quiet.restart();
  }
}

}  // namespace

bool WriteScreenshots(MainWindow& window, const QString& directory) {
  QTabWidget& pages = *window.Pages();
  if (!QDir().mkpath(directory)) {
    std::fprintf(stderr, "qorvex-gallery: cannot make the directory %s\n", qPrintable(directory));
    return false;
  }
  // Laid out as if it were shown.
  window.setAttribute(Qt::WA_DontShowOnScreen);
  window.show();
  for (int i = 0; i < pages.count(); ++i) {
    pages.setCurrentIndex(i);
    Settle(window);
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
