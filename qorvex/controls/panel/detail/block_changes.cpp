#include "qorvex/controls/panel/detail/block_changes.h"

#include <QCoreApplication>
#include <functional>
#include <limits>

#include "qorvex/base_controls/detail/same_element.h"

namespace qorvex::inline QorvexControls::detail {

namespace {

// Gives each element of a range the value that a function finds for it.
BlockChanges PlanEach(const CellTable& table, const TQorCellRange& wanted,
                      const std::function<Extended(quint32 row, quint32 col)>& value) {
  const TQorCellRange range = wanted.Within(table.RowCount(), table.ColCount());
  BlockChanges result;
  if (!HasFewEnough(quint64{range.rows} * range.cols, result)) return result;
  for (quint32 r = 0; r < range.rows; ++r) {
    for (quint32 c = 0; c < range.cols; ++c) {
      const quint32 row = range.row + r;
      const quint32 col = range.col + c;
      AddChange(table.Value(row, col), {row, col, value(row, col)}, result.changes);
    }
  }
  return result;
}

// The line that the others of a range are filled with: its first, or the one before a single one.
quint32 SourceLine(quint32 first, quint32 count) {
  return count == 1 && first > 0 ? first - 1 : first;
}

}  // namespace

void AddChange(Extended before, const ElementChange& change, ElementChanges& changes) {
  if (!QorvexBaseControls::detail::SameElement(before, change.value)) changes.push_back(change);
}

bool HasFewEnough(quint64 values, BlockChanges& result) {
  if (values <= kMaxBlockValues) return true;
  result.refusal =
      QCoreApplication::translate("CellPanel", "Too many values to change: %1.").arg(values);
  return false;
}

void RefuseReadOnly(const CellTable& table, BlockChanges& result) {
  for (const auto& [row, col, value] : result.changes) {
    const bool exists = row < table.RowCount() && col < table.ColCount();
    if (!exists || !table.IsReadOnly(row, col)) continue;
    result.refusal =
        QCoreApplication::translate("CellPanel", "%1 cannot be changed.", "name of a cell")
            .arg(table.CellName(row, col));
    return;
  }
}

BlockChanges PlanDelete(const CellTable& table, const TQorCellRange& range) {
  return PlanEach(table, range,
                  [](quint32, quint32) { return std::numeric_limits<Extended>::quiet_NaN(); });
}

BlockChanges PlanFillDown(const CellTable& table, const TQorCellRange& range) {
  return PlanEach(table, range,
                  [&table, source = SourceLine(range.row, range.rows)](quint32, quint32 col) {
                    return table.Value(source, col);
                  });
}

BlockChanges PlanFillRight(const CellTable& table, const TQorCellRange& range) {
  return PlanEach(table, range,
                  [&table, source = SourceLine(range.col, range.cols)](quint32 row, quint32) {
                    return table.Value(row, source);
                  });
}

}  // namespace qorvex::inline QorvexControls::detail
