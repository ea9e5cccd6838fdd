#pragma once

/// @file
/// Session, what the program remembers from one start to the next.

#include <QDir>
#include <QLockFile>

namespace qorvex::gallery {

class MainWindow;

/// Remembers the sheet with its unsaved changes, what the pages show, the recent files, the folder
/// of the dialogs, the size of the window and its colours, in two files of a folder: settings and,
/// if the sheet has unsaved changes, a copy of it. One program at a time uses the folder.
class Session {
 public:
  /// The folder need not exist.
  explicit Session(const QDir& folder);

  /// Takes the folder, until the session is destroyed. Returns false if another program has it, or
  /// if it cannot be written: then nothing can be brought back or saved.
  [[nodiscard]] bool Begin();
  /// Brings back what was saved last. Without that, leaves the window as it is. A copy of the sheet
  /// that cannot be read is put aside.
  void Restore(MainWindow& window) const;
  /// Saves everything; while the file of the last session is being read, the sheet and the pages
  /// stay as they were saved before. Returns false if the unsaved changes of the sheet could not be
  /// written.
  [[nodiscard]] bool Save(const MainWindow& window) const;

 private:
  [[nodiscard]] QString Settings() const { return folder_.filePath("session.ini"); }
  [[nodiscard]] QString Copy() const { return folder_.filePath("unsaved.csv"); }

  QDir folder_;
  QLockFile lock_;
};

}  // namespace qorvex::gallery
