#pragma once

/// @file
/// TableLoader, which reads tables and shows the progress of long readings.

#include <QString>
#include <QWidget>
#include <functional>

#include "apps/qorvex-gallery/model/background_work.h"
#include "apps/qorvex-gallery/model/sheet_data.h"

class QProgressBar;

namespace qorvex::gallery {

/// A progress bar with a button to cancel, visible only while a large file is read in the
/// background.
class TableLoader : public QWidget {
  Q_OBJECT

 public:
  using Loaded = std::function<void(SheetData sheet)>;
  using Failed = std::function<void(const QString& why)>;

  explicit TableLoader(QWidget* parent = nullptr);
  ~TableLoader() override;

  /// Reads a file in a format, of which it finds what is left open, and calls loaded or failed:
  /// before it returns for a small file, later for a large one. A reading in progress stops first.
  void Load(const QString& file, const QString& title, const apps::TableFormat& format,
            const Loaded& loaded, const Failed& failed);
  /// Stops a reading in progress; neither of its functions is called.
  void Stop();
  [[nodiscard]] bool IsLoading() const noexcept { return work_.IsRunning(); }

 Q_SIGNALS:
  /// A reading in the background has begun.
  void Started();
  /// It has ended: loaded or failed has been called, or it was stopped.
  void Ended();

 private:
  void End();

  QProgressBar* bar_;
  // Declared last: its destructor waits for the thread before the members it reports to are
  // destroyed.
  BackgroundWork work_;
};

}  // namespace qorvex::gallery
