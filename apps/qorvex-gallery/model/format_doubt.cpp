#include "apps/qorvex-gallery/model/format_doubt.h"

#include <QCoreApplication>
#include <QFile>
#include <QStringList>
#include <algorithm>
#include <charconv>
#include <cmath>
#include <limits>
#include <system_error>

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

// Whether the cells of a row, from a column on, are whole numbers in this range, each greater than
// the one before.
bool Rises(const SheetData& sheet, std::size_t row, std::size_t column, int least, int greatest) {
  for (; column < sheet.Columns(); ++column) {
    const std::string_view cell = sheet.Cell(row, column);
    int number = -1;
    const auto [end, error] = std::from_chars(cell.data(), cell.data() + cell.size(), number);
    if (error != std::errc() || end != cell.data() + cell.size()) return false;
    if (number < least || number > greatest) return false;
    least = number + 1;
  }
  return true;
}

bool HasFractions(const SheetData& sheet, std::size_t column) {
  for (std::size_t row = 1; row < std::min(sheet.Rows(), kMostRows); ++row) {
    const auto number = sheet.NumberIn(sheet.Cell(row, column));
    if (number && *number != std::trunc(*number)) return true;
  }
  return false;
}

// The first number of a first row that looks like names: years above other numbers, or whole
// numbers above fractions. Names of rows may be beside it. Empty for none.
std::string_view NumberLikeAName(const SheetData& sheet) {
  constexpr int kFirstYear = 1500;
  constexpr int kLastYear = 2199;
  if (sheet.HasNames() || sheet.Columns() < 2 || sheet.Rows() < 2) return {};
  const std::size_t first = sheet.Cell(0, 0).empty() ? 1 : 0;
  const std::string_view number = sheet.Cell(0, first);
  if (Rises(sheet, 0, first, kFirstYear, kLastYear))
    return Rises(sheet, 1, first, kFirstYear, kLastYear) ? std::string_view() : number;
  if (!Rises(sheet, 0, first, 0, std::numeric_limits<int>::max() - 1)) return {};
  for (std::size_t column = first; column < sheet.Columns(); ++column)
    if (!HasFractions(sheet, column)) return {};
  return number;
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
  if (const std::string_view name = NumberLikeAName(sheet); !name.empty()) {
    doubts +=
        QCoreApplication::translate("qorvex::gallery::FormatDialog",
                                    "The first row was read as numbers, although %1 may be a name.")
            .arg(Shortened(name));
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
