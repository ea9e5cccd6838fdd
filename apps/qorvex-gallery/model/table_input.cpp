#include "apps/qorvex-gallery/model/table_input.h"

#include <QFile>
#include <QFileInfo>
#include <memory>
#include <utility>

#include "apps/common/input_error.h"

namespace qorvex::gallery {

namespace {

[[noreturn]] void RefuseFile(const QString& name, const QFile& file) {
  throw apps::InputError(apps::InputFault::kUnreadable, name.toStdString(),
                         file.errorString().toStdString());
}

}  // namespace

apps::TextInput OpenFile(const QString& path) {
  const QString name = QFileInfo(path).fileName();
  const auto file = std::make_shared<QFile>(path);
  if (!file->open(QIODevice::ReadOnly)) RefuseFile(name, *file);
  return {name.toStdString(), [name, file](char* buffer, std::size_t size) {
            const qint64 count = file->read(buffer, static_cast<qint64>(size));
            if (count < 0) RefuseFile(name, *file);
            return static_cast<std::size_t>(count);
          }};
}

apps::TextInput Observed(apps::TextInput input, std::stop_token stop,
                         std::function<void(qint64 bytes)> progress) {
  return {input.name,
          [read = std::move(input.read), stop = std::move(stop), progress = std::move(progress),
           total = qint64{0}](char* buffer, std::size_t size) mutable {
            if (stop.stop_requested()) throw ReadingStopped();
            const std::size_t count = read(buffer, size);
            total += static_cast<qint64>(count);
            progress(total);
            return count;
          }};
}

}  // namespace qorvex::gallery
