#include "apps/qorvex-gallery/column_reader.h"

#include <QCoreApplication>
#include <QFile>
#include <QFileInfo>
#include <algorithm>
#include <limits>
#include <memory>
#include <string_view>
#include <utility>

#include "apps/qorvex/cells.h"
#include "apps/qorvex/input_error.h"
#include "apps/qorvex/row_reader.h"

namespace qorvex::gallery {

namespace {

using cli::InputError;
using cli::InputFault;
using cli::RowReader;

QString FromUtf8(std::string_view text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

[[noreturn]] void RefuseFile(const QString& name, const QFile& file) {
  throw InputError(InputFault::kUnreadable, name.toStdString(), file.errorString().toStdString());
}

bool IsHeader(const RowReader& rows) {
  return std::ranges::any_of(rows.Cells(), cli::IsText);
}

}  // namespace

std::size_t TableHead::FirstOfNumbers() const {
  const auto found = std::ranges::find_if(columns, &Column::holds_numbers);
  return found == columns.end() ? 0 : static_cast<std::size_t>(found - columns.begin());
}

cli::TextInput OpenFile(const QString& path) {
  const QString name = QFileInfo(path).fileName();
  const auto file = std::make_shared<QFile>(path);
  if (!file->open(QIODevice::ReadOnly)) RefuseFile(name, *file);
  return {name.toStdString(), [name, file](char* buffer, std::size_t size) {
            const qint64 count = file->read(buffer, static_cast<qint64>(size));
            if (count < 0) RefuseFile(name, *file);
            return static_cast<std::size_t>(count);
          }};
}

cli::TextInput Observed(cli::TextInput input, std::stop_token stop,
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

TableHead ReadHead(cli::TextInput input) {
  RowReader rows(std::move(input));
  cli::RequireFirstRow(rows);
  const bool has_header = IsHeader(rows);
  TableHead head;
  for (const std::string_view cell : rows.Cells()) {
    const QString number = QString::number(head.columns.size() + 1);
    const QString title =
        has_header && !cell.empty()
            ? FromUtf8(cell)
            : QCoreApplication::translate("qorvex::gallery::DataPage", "Column %1").arg(number);
    head.columns.push_back({title, !has_header});
  }
  if (has_header && rows.Next()) {
    const std::size_t count = std::min(head.columns.size(), rows.Cells().size());
    for (std::size_t i = 0; i < count; ++i)
      head.columns[i].holds_numbers = !cli::IsText(rows.Cells()[i]);
  }
  return head;
}

TableColumn ReadColumn(cli::TextInput input, std::size_t index) {
  RowReader rows(std::move(input));
  cli::RequireFirstRow(rows);
  const std::size_t width = rows.Cells().size();
  const std::size_t first_line = rows.Line();
  if (index >= width) {
    throw InputError(InputFault::kMalformed, rows.Name(),
                     "the file has fewer columns than when it was opened");
  }
  const std::string title = IsHeader(rows) ? std::string(rows.Cells()[index]) : std::string();
  const bool has_row = IsHeader(rows) ? rows.Next() : true;
  const bool has_names = has_row && index > 0 && cli::IsText(rows.Cells()[0]);

  TableColumn column;
  bool any = false;
  const auto append = [&](std::string_view name, Extended value) {
    column.values.Append(value);
    if (has_names) column.row_names.append(FromUtf8(name));
  };
  constexpr Extended null = std::numeric_limits<Extended>::quiet_NaN();
  const auto append_row = [&] {
    cli::RequireWidth(rows, width, first_line);
    const std::string_view cell = rows.Cells()[index];
    const cli::CellPlace place{rows.Name(), rows.Line(), index + 1, title};
    append(rows.Cells()[0], cell.empty() ? null : cli::NumberIn(cell, place));
    any = any || !cell.empty();
  };
  if (has_row) append_row();
  while (rows.Next()) {
    for (std::size_t i = 0; i < rows.BlankLines(); ++i) append({}, null);
    append_row();
  }
  if (!any) {
    throw InputError(InputFault::kNoValues, rows.Name(),
                     cli::ColumnTitle(index + 1, title) + " has no values");
  }
  return column;
}

}  // namespace qorvex::gallery
