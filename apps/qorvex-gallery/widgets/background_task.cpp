#include "apps/qorvex-gallery/widgets/background_task.h"

#include <exception>
#include <utility>

namespace qorvex::gallery {

BackgroundTask::BackgroundTask(QObject* parent) : QObject(parent) {}

BackgroundTask::~BackgroundTask() {
  Cancel();
  if (thread_.joinable()) thread_.join();
}

void BackgroundTask::Start(Work work) {
  if (Running()) return;
  cancelled_ = false;
  thousandths_ = 0;
  thread_ = std::thread([this, work = std::move(work)] {
    QString error;
    try {
      work(*this);
    } catch (const std::exception& exception) {
      error = QString::fromUtf8(exception.what());
    }
    QMetaObject::invokeMethod(
        this, [this, error] { Finish(error); }, Qt::QueuedConnection);
  });
}

bool BackgroundTask::Proceed(std::size_t done, std::size_t total) {
  const int thousandths = static_cast<int>(1000 * done / total);
  if (thousandths != thousandths_) {
    thousandths_ = thousandths;
    QMetaObject::invokeMethod(
        this, [this, thousandths] { Q_EMIT Progressed(thousandths); }, Qt::QueuedConnection);
  }
  return !cancelled_;
}

void BackgroundTask::Finish(const QString& error) {
  thread_.join();
  Q_EMIT Finished(error, cancelled_);
}

}  // namespace qorvex::gallery
