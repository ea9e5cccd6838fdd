#include "qorvex/controls/panel/detail/block_clipboard.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include "qorvex/base_controls/detail/same_element.h"
#include "qorvex/controls/detail/block_text.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

QString TooManyRows(std::size_t rows, std::size_t room) {
  return QCoreApplication::translate("CellPanel",
                                     "The block does not fit. Its rows: %1, rows from here on: %2.")
      .arg(rows)
      .arg(room);
}

QString TooManyCols(std::size_t cols, std::size_t room) {
  return QCoreApplication::translate(
             "CellPanel", "The block does not fit. Its columns: %1, columns from here on: %2.")
      .arg(cols)
      .arg(room);
}

// The lines from one on, as many as there can be if the table may grow.
std::size_t RoomFrom(quint32 first, quint32 count, bool may_grow) {
  const quint32 end = may_grow ? std::numeric_limits<quint32>::max() : count;
  return end - std::min(first, end);
}

void AppendLines(LineInsertions& lines, CellAxis axis, quint32 count, std::size_t needed,
                 Extended value) {
  if (needed <= count) return;
  lines.push_back({axis, count, static_cast<quint32>(needed - count), value});
}

}  // namespace

QString BlockText(const CellTable& table, const TQorCustomEdit& cell, const TQorCellRange& block) {
  std::string text;
  TextBlock line(1, std::vector<std::string>(block.cols));
  for (quint32 r = 0; r < block.rows; ++r) {
    for (quint32 c = 0; c < block.cols; ++c) {
      line[0][c] = cell.ExactText(table.Value(block.row + r, block.col + c)).toStdString();
    }
    text += FormatBlock(line);
  }
  return QString::fromStdString(text);
}

PasteResult PlanPaste(const CellTable& table, const TQorCustomEdit* cell, const QString& text,
                      quint32 first_row, quint32 first_col, const Growth& growth) {
  const TextBlock block = ParseBlock(text.toStdString());
  std::size_t width = 0;
  for (const auto& row : block) width = std::max(width, row.size());
  const std::size_t room_below = cell ? RoomFrom(first_row, table.RowCount(), growth.rows) : 0;
  const std::size_t room_beside = RoomFrom(first_col, table.ColCount(), growth.cols);
  if (block.size() > room_below || !cell) return {{}, {}, TooManyRows(block.size(), room_below)};
  if (width > room_beside) return {{}, {}, TooManyCols(width, room_beside)};

  PasteResult result;
  for (std::size_t r = 0; r < block.size(); ++r) {
    for (std::size_t c = 0; c < block[r].size(); ++c) {
      const QString cell_text = QString::fromStdString(block[r][c]);
      const CellReading reading = cell->Read(cell_text);
      const quint32 row = first_row + static_cast<quint32>(r);
      const quint32 col = first_col + static_cast<quint32>(c);
      if (!reading.value) return {{}, {}, table.CellName(row, col) + ": " + reading.refusal};
      const bool exists = row < table.RowCount() && col < table.ColCount();
      const Extended before = exists ? table.Value(row, col) : growth.value;
      if (!QorvexBaseControls::detail::SameElement(before, *reading.value)) {
        result.changes.push_back({row, col, *reading.value});
      }
    }
  }
  AppendLines(result.lines, CellAxis::kRows, table.RowCount(), first_row + block.size(),
              growth.value);
  AppendLines(result.lines, CellAxis::kCols, table.ColCount(), first_col + width, growth.value);
  return result;
}

QString TextOfPaste() {
  return QCoreApplication::translate("CellPanel", "Paste");
}

QString TooManyValues(quint64 values) {
  return QCoreApplication::translate("CellPanel", "Too many values to copy: %1.").arg(values);
}

QString OutOfMemory() {
  return QCoreApplication::translate("CellPanel", "There is not enough memory for these values.");
}

QString NotChangeable() {
  return QCoreApplication::translate("CellPanel", "These values cannot be changed.");
}

QString NotStored(const QString& cell_name, const QString& text) {
  return QCoreApplication::translate("CellPanel", "%1: \"%2\" cannot be stored.",
                                     "name of a cell, its text")
      .arg(cell_name, text);
}

}  // namespace qorvex::inline QorvexControls::detail
