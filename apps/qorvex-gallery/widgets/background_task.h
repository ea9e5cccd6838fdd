#pragma once

/// @file
/// BackgroundTask, long work beside the user interface.

#include <QObject>
#include <QString>
#include <atomic>
#include <functional>
#include <thread>

namespace qorvex::gallery {

/// Runs one piece of work at a time on a thread of its own. The signals come on the thread of the
/// object, which cancels the work and waits for it when it goes.
class BackgroundTask : public QObject {
  Q_OBJECT

 public:
  /// Calls Proceed now and then, and returns when that gives false.
  using Work = std::function<void(BackgroundTask& task)>;

  explicit BackgroundTask(QObject* parent = nullptr);
  ~BackgroundTask() override;

  /// Starts the work, unless some is running.
  void Start(Work work);
  /// Asks the work to end.
  void Cancel() { cancelled_ = true; }
  [[nodiscard]] bool Running() const noexcept { return thread_.joinable(); }

  /// For the work: tells how much is done, and returns whether to go on.
  bool Proceed(std::size_t done, std::size_t total);

 Q_SIGNALS:
  /// So many thousandths are done.
  void Progressed(int thousandths);
  /// The work has ended, with what its exception said or with nothing.
  void Finished(const QString& error, bool cancelled);

 private:
  void Finish(const QString& error);

  std::thread thread_;
  std::atomic<bool> cancelled_ = false;
  int thousandths_ = 0;
};

}  // namespace qorvex::gallery
