#pragma once

/// @file
/// What deleting, filling and pasting a block of elements changes.

#include <QString>

#include "qorvex/controls/panel/cell_range.h"
#include "qorvex/controls/panel/detail/change_history.h"

namespace qorvex::inline QorvexControls::detail {

/// The most elements that are copied or changed at once.
inline constexpr quint64 kMaxBlockValues = 10'000'000;

/// What a change of a block does.
struct BlockChanges {
  LineInsertions lines;    ///< The lines that are appended.
  ElementChanges changes;  ///< The elements that change, with their new values.
  QString refusal;         ///< Why the block cannot be changed; empty when it can be.
};

/// In which directions a block may append lines, and what their elements are otherwise.
struct Growth {
  bool rows = false;
  bool cols = false;
  Extended value = 0;
};

/// Adds a change of an element to others, unless it changes nothing.
void AddChange(Extended before, const ElementChange& change, ElementChanges& changes);

/// Refuses more elements than can be changed at once; true if there are not.
[[nodiscard]] bool HasFewEnough(quint64 values, BlockChanges& result);

/// Refuses a change of an element that cannot be changed.
void RefuseReadOnly(const CellTable& table, BlockChanges& result);

/// Makes the elements of a range null that the table has. O(elements).
[[nodiscard]] BlockChanges PlanDelete(const CellTable& table, const TQorCellRange& range);

/// @{
/// Fills a range with the values of its first row or column. A single row or column gets the values
/// of the one before it, and the first of the table stays. O(elements).
[[nodiscard]] BlockChanges PlanFillDown(const CellTable& table, const TQorCellRange& range);
[[nodiscard]] BlockChanges PlanFillRight(const CellTable& table, const TQorCellRange& range);
/// @}

}  // namespace qorvex::inline QorvexControls::detail
