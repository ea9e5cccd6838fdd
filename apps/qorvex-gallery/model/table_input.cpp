#include "apps/qorvex-gallery/model/table_input.h"

#include <QFile>
#include <QFileInfo>
#include <algorithm>
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

apps::TextInput TextInputOf(const QString& name, const QByteArray& text) {
  return {name.toStdString(), [text, at = std::size_t{0}](char* buffer, std::size_t size) mutable {
            const std::size_t count = std::min(size, static_cast<std::size_t>(text.size()) - at);
            std::copy_n(text.constData() + at, count, buffer);
            at += count;
            return count;
          }};
}

apps::TextInput Observed(apps::TextInput input, std::function<bool(std::size_t bytes)> proceed) {
  return {input.name, [read = std::move(input.read), proceed = std::move(proceed),
                       total = std::size_t{0}](char* buffer, std::size_t size) mutable {
            if (!proceed(total)) throw ReadingStopped();
            const std::size_t count = read(buffer, size);
            total += count;
            return count;
          }};
}

}  // namespace qorvex::gallery
