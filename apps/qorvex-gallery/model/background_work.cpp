#include "apps/qorvex-gallery/model/background_work.h"

#include <QPromise>
#include <QtConcurrent/QtConcurrentRun>
#include <exception>
#include <utility>

#include "apps/qorvex-gallery/model/error_text.h"

namespace qorvex::gallery {

BackgroundWork::BackgroundWork(QObject* parent) : QObject(parent) {
  connect(&watcher_, &QFutureWatcherBase::progressValueChanged, this, &BackgroundWork::Progressed);
  connect(&watcher_, &QFutureWatcherBase::finished, this, &BackgroundWork::Finish);
}

BackgroundWork::~BackgroundWork() {
  Stop();
}

void BackgroundWork::Start(std::function<void(const Proceed&)> work, std::function<void()> done,
                           std::function<void(const QString&)> failed) {
  Stop();
  running_ = true;
  done_ = std::move(done);
  failed_ = std::move(failed);
  watcher_.setFuture(QtConcurrent::run([work = std::move(work)](QPromise<void>& promise) {
    promise.setProgressRange(0, 1000);
    try {
      work([&promise](std::size_t done_so_far, std::size_t total) {
        promise.setProgressValue(static_cast<int>(1000 * done_so_far / total));
        return !promise.isCanceled();
      });
    } catch (...) {
      // QtConcurrent itself would wrap it in a QUnhandledException, without its text.
      promise.setException(std::current_exception());
    }
  }));
}

void BackgroundWork::Stop() {
  running_ = false;
  // Releases what they hold, such as a large sample.
  done_ = {};
  failed_ = {};
  watcher_.cancel();
  try {
    watcher_.waitForFinished();
  } catch (const std::exception&) {
    // Thrown before the work was cancelled; its result is no longer wanted.
  }
}

void BackgroundWork::Abandon() {
  running_ = false;
  done_ = {};
  failed_ = {};
  watcher_.cancel();
  watcher_.setFuture(QFuture<void>());
}

void BackgroundWork::Finish() {
  // The watcher also reports that stopped work has finished.
  if (!std::exchange(running_, false)) return;
  const auto done = std::exchange(done_, {});
  const auto failed = std::exchange(failed_, {});
  try {
    // Rethrows the exception of the work.
    watcher_.waitForFinished();
  } catch (const std::exception& error) {
    return failed(ErrorText(error));
  }
  done();
}

}  // namespace qorvex::gallery
