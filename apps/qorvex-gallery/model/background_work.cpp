#include "apps/qorvex-gallery/model/background_work.h"

#include <QPromise>
#include <QtConcurrent/QtConcurrentRun>
#include <exception>
#include <utility>

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
      // QtConcurrent alone would hide it in a QUnhandledException.
      promise.setException(std::current_exception());
    }
  }));
}

void BackgroundWork::Stop() {
  running_ = false;
  watcher_.cancel();
  try {
    watcher_.waitForFinished();
  } catch (const std::exception&) {
    // Raised before the work was asked to stop; what it would have reported is no longer wanted.
  }
}

void BackgroundWork::Finish() {
  // Stopped work finishes as well.
  if (!std::exchange(running_, false)) return;
  const auto done = std::exchange(done_, {});
  const auto failed = std::exchange(failed_, {});
  try {
    // Raises what the work has raised.
    watcher_.waitForFinished();
  } catch (const std::exception& error) {
    return failed(QString::fromUtf8(error.what()));
  }
  done();
}

}  // namespace qorvex::gallery
