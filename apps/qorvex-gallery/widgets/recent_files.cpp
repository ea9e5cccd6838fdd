#include "apps/qorvex-gallery/widgets/recent_files.h"

#include <QDir>
#include <QFileInfo>

namespace qorvex::gallery {

RecentFiles::RecentFiles(QWidget* parent) : QMenu(tr("Open &Recent"), parent) {
  setToolTipsVisible(true);
  SetFiles({});
}

RecentFiles::~RecentFiles() = default;

void RecentFiles::Add(const QString& file) {
  const QString path = QFileInfo(file).absoluteFilePath();
  QStringList files = files_;
  files.removeAll(path);
  files.prepend(path);
  SetFiles(files);
}

void RecentFiles::SetFiles(const QStringList& files) {
  constexpr qsizetype most = 10;
  files_ = files.mid(0, most);
  clear();
  for (const QString& file : files_) {
    QString name = QFileInfo(file).fileName();
    QAction* const action =
        addAction(name.replace(u'&', QStringLiteral("&&")), this, [this, file] { Chosen(file); });
    action->setToolTip(QDir::toNativeSeparators(file));
  }
  setEnabled(!files_.isEmpty());
}

}  // namespace qorvex::gallery
