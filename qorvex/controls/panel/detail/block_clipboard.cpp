#include "qorvex/controls/panel/detail/block_clipboard.h"

#include <QCoreApplication>
#include <algorithm>
#include <limits>
#include <string>
#include <vector>

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

BlockChanges PlanPaste(const CellTable& table, const TQorCustomEdit* cell, const QString& text,
                       const TQorCellRange& target, const Growth& growth) {
  const TextBlock block = ParseBlock(text.toStdString());
  if (block.empty()) return {};
  const std::size_t rows = block.size();
  std::size_t cols = 0;
  for (const auto& row : block) cols = std::max(cols, row.size());
  const std::size_t room_below = cell ? RoomFrom(target.row, table.RowCount(), growth.rows) : 0;
  const std::size_t room_beside = RoomFrom(target.col, table.ColCount(), growth.cols);
  if (rows > room_below || !cell) return {{}, {}, TooManyRows(rows, room_below)};
  if (cols > room_beside) return {{}, {}, TooManyCols(cols, room_beside)};

  const bool covers = !target.IsEmpty() && target.rows % rows == 0 && target.cols % cols == 0;
  const quint64 height = covers ? target.rows : rows;
  const quint64 width = covers ? target.cols : cols;
  BlockChanges result;
  if (!HasFewEnough(height * width, result)) return result;
  const auto change = [&](quint32 row, quint32 col, Extended value) {
    const bool exists = row < table.RowCount() && col < table.ColCount();
    AddChange(exists ? table.Value(row, col) : growth.value, {row, col, value}, result.changes);
  };
  for (std::size_t r = 0; r < rows; ++r) {
    for (std::size_t c = 0; c < block[r].size(); ++c) {
      const QString cell_text = QString::fromStdString(block[r][c]);
      const CellReading reading = cell->Read(cell_text);
      const auto row = static_cast<quint32>(target.row + r);
      const auto col = static_cast<quint32>(target.col + c);
      if (!reading.value) return {{}, {}, table.CellName(row, col) + ": " + reading.refusal};
      for (quint64 down = 0; r + down < height; down += rows) {
        for (quint64 right = 0; c + right < width; right += cols) {
          change(static_cast<quint32>(row + down), static_cast<quint32>(col + right),
                 *reading.value);
        }
      }
    }
  }
  AppendLines(result.lines, CellAxis::kRows, table.RowCount(), target.row + height, growth.value);
  AppendLines(result.lines, CellAxis::kCols, table.ColCount(), target.col + width, growth.value);
  return result;
}

QString TooManyToCopy(quint64 values) {
  return QCoreApplication::translate("CellPanel", "Too many values to copy: %1.").arg(values);
}

QString OutOfMemory() {
  return QCoreApplication::translate("CellPanel", "There is not enough memory for these values.");
}

QString NotChangeable() {
  return QCoreApplication::translate("CellPanel", "These values cannot be changed.");
}

QString NotNull() {
  return QCoreApplication::translate("CellPanel", "These values cannot be empty.");
}

QString NotStored(const QString& cell_name, const QString& text) {
  return QCoreApplication::translate("CellPanel", "%1: \"%2\" cannot be stored.",
                                     "name of a cell, its text")
      .arg(cell_name, text);
}

}  // namespace qorvex::inline QorvexControls::detail
