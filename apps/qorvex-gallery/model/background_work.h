#pragma once

/// @file
/// BackgroundWork, which keeps long work from blocking the user interface.

#include <QFutureWatcher>
#include <QObject>
#include <QString>
#include <cstddef>
#include <functional>

namespace qorvex::gallery {

/// Reports how much is done; false when the work should stop.
using Proceed = std::function<bool(std::size_t done, std::size_t total)>;

/// Runs one piece of work at a time on another thread.
class BackgroundWork : public QObject {
  Q_OBJECT

 public:
  explicit BackgroundWork(QObject* parent = nullptr);
  /// Stops the work.
  ~BackgroundWork() override;

  /// Starts the work, which calls proceed regularly and returns soon after it gives false. Then
  /// calls done on the thread of this object, or failed with the text of the exception that the
  /// work has thrown. Stops other work first.
  void Start(std::function<void(const Proceed& proceed)> work, std::function<void()> done,
             std::function<void(const QString& why)> failed);
  /// Stops the work and waits until it has ended; neither done nor failed is called.
  void Stop();
  /// Tells the work to stop and forgets it without waiting, so it may use only what it owns.
  void Abandon();
  [[nodiscard]] bool IsRunning() const noexcept { return running_; }

 Q_SIGNALS:
  /// How many thousandths are done.
  void Progressed(int thousandths);

 private:
  void Finish();

  bool running_ = false;
  std::function<void()> done_;
  std::function<void(const QString&)> failed_;
  QFutureWatcher<void> watcher_;
};

}  // namespace qorvex::gallery
