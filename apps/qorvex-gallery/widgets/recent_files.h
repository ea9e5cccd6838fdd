#pragma once

/// @file
/// RecentFiles, a menu of the files that were opened or saved last.

#include <QMenu>
#include <QStringList>

namespace qorvex::gallery {

/// The last ten files, the newest first.
class RecentFiles : public QMenu {
  Q_OBJECT

 public:
  explicit RecentFiles(QWidget* parent = nullptr);
  ~RecentFiles() override;

  /// Puts a file first.
  void Add(const QString& file);
  /// @{
  /// All files.
  [[nodiscard]] const QStringList& Files() const noexcept { return files_; }
  void SetFiles(const QStringList& files);
  /// @}

 Q_SIGNALS:
  /// The user has chosen a file.
  void Chosen(const QString& file);

 private:
  QStringList files_;
};

}  // namespace qorvex::gallery
