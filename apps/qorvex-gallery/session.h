#pragma once

/// @file
/// Session, what the program remembers from one start to the next.

#include <QDir>

namespace qorvex::gallery {

class MainWindow;

/// Remembers the sheet with its unsaved changes, what the pages show, the recent files, the folder
/// of the dialogs, the size of the window and its colours, in two files of a folder: settings and,
/// if the sheet has unsaved changes, a copy of it.
class Session {
 public:
  /// The folder need not exist.
  explicit Session(const QDir& folder) : folder_(folder) {}

  /// Brings back what was saved last. Without that, leaves the window as it is.
  void Restore(MainWindow& window) const;
  /// Saves everything. Returns false if the unsaved changes of the sheet could not be written.
  [[nodiscard]] bool Save(const MainWindow& window) const;

 private:
  [[nodiscard]] QString Settings() const { return folder_.filePath("session.ini"); }
  [[nodiscard]] QString Copy() const { return folder_.filePath("unsaved.csv"); }

  QDir folder_;
};

}  // namespace qorvex::gallery
