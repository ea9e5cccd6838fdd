#include "apps/qorvex-gallery/model/format_doubt.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <algorithm>

#include "apps/common/cells.h"
#include "apps/common/input_error.h"
#include "apps/qorvex-gallery/model/sheet_file.h"
#include "apps/qorvex-gallery/model/table_input.h"

namespace qorvex::gallery {

namespace {

constexpr std::size_t kMostRows = 1000;

// The first text among the cells for which the function holds; empty for none.
template <class Holds>
std::string_view FirstText(const SheetData& sheet, Holds holds) {
  for (std::size_t row = 0; row < std::min(sheet.Rows(), kMostRows); ++row) {
    for (std::size_t column = 0; column < sheet.Columns(); ++column) {
      const std::string_view cell = sheet.Cell(row, column);
      if (sheet.KindOf(cell) == CellKind::kText && holds(cell)) return cell;
    }
  }
  return {};
}

QString Shortened(std::string_view text) {
  return QString::fromStdString(apps::Excerpt(text));
}

}  // namespace

QByteArray FirstLines(const QString& file) {
  constexpr qint64 enough = 1 << 16;
  QFile in(file);
  if (!in.open(QIODevice::ReadOnly)) return {};
  const QByteArray lines = in.read(enough);
  const qsizetype end = lines.lastIndexOf('\n');
  // In UTF-16 the other byte of the line end may follow.
  const int bytes = lines.startsWith("\xFF\xFE") ? 2 : 1;
  return in.atEnd() || end < 0 ? lines : lines.left(end + bytes);
}

QString DoubtIn(const SheetData& sheet) {
  QStringList doubts;
  for (std::size_t column = 0; column < sheet.Columns() && doubts.isEmpty(); ++column) {
    if (!sheet.NumberIn(sheet.Name(column))) continue;
    doubts += QCoreApplication::translate(
                  "qorvex::gallery::FormatDialog",
                  "The first row was read as names, although it contains the number %1.")
                  .arg(Shortened(sheet.Name(column)));
  }
  const char other_sign = sheet.Format().decimal_sign == ',' ? '.' : ',';
  const std::string_view number = FirstText(
      sheet, [other_sign](std::string_view cell) { return apps::IsNumber(cell, other_sign); });
  if (!number.empty()) {
    doubts += QCoreApplication::translate("qorvex::gallery::FormatDialog",
                                          "%1 is a number only with the other decimal sign.")
                  .arg(Shortened(number));
  }
  const std::string_view cells = FirstText(sheet, [](std::string_view cell) {
    return cell.find_first_of(",;\t|") != std::string_view::npos;
  });
  if (sheet.Columns() == 1 && !cells.empty()) {
    doubts +=
        QCoreApplication::translate("qorvex::gallery::FormatDialog", "%1 may be several cells.")
            .arg(Shortened(cells));
  }
  return doubts.join(u'\n');
}

std::optional<apps::TableFormat> OtherFormat(const QString& file) {
  const QByteArray lines = FirstLines(file);
  for (const char delimiter : {';', '\t', ',', '|', ' '}) {
    try {
      const SheetData sheet = ReadSheet(TextInputOf({}, lines), {.delimiter = delimiter});
      if (sheet.Columns() > 1) return sheet.Format();
    } catch (const apps::InputError&) {
      continue;
    }
  }
  return std::nullopt;
}

}  // namespace qorvex::gallery
