#include "apps/qorvex-gallery/model/file_writing.h"

#include <QFileInfo>
#include <QSaveFile>
#include <stdexcept>

namespace qorvex::gallery {

void WriteFile(const QString& path, const QByteArray& bytes) {
  QSaveFile file(path);
  if (file.open(QIODevice::WriteOnly)) file.write(bytes);
  if (!file.commit()) {
    throw std::runtime_error(
        QStringLiteral("%1: %2").arg(QFileInfo(path).fileName(), file.errorString()).toStdString());
  }
}

}  // namespace qorvex::gallery
