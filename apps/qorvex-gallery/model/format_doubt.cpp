#include "apps/qorvex-gallery/model/format_doubt.h"

#include <QCoreApplication>
#include <QFile>
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
  return in.atEnd() || end < 0 ? lines : lines.left(end + 1);
}

QString DoubtIn(const SheetData& sheet) {
  for (std::size_t column = 0; column < sheet.Columns(); ++column) {
    if (!sheet.NumberIn(sheet.Name(column))) continue;
    return QCoreApplication::translate(
               "qorvex::gallery::FormatDialog",
               "The first row was read as names, although it contains the number %1.")
        .arg(Shortened(sheet.Name(column)));
  }
  const char other_sign = sheet.Format().decimal_sign == ',' ? '.' : ',';
  const std::string_view number = FirstText(
      sheet, [other_sign](std::string_view cell) { return apps::IsNumber(cell, other_sign); });
  if (!number.empty()) {
    return QCoreApplication::translate("qorvex::gallery::FormatDialog",
                                       "%1 is a number only with the other decimal sign.")
        .arg(Shortened(number));
  }
  if (sheet.Columns() == 1) {
    const std::string_view text = FirstText(sheet, [](std::string_view cell) {
      return cell.find_first_of(",;\t|") != std::string_view::npos;
    });
    if (!text.empty()) {
      return QCoreApplication::translate("qorvex::gallery::FormatDialog",
                                         "%1 may be several cells.")
          .arg(Shortened(text));
    }
  }
  return {};
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
