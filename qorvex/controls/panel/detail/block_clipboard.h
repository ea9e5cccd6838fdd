#pragma once

/// @file
/// Blocks of elements as text, for the clipboard.

#include <QString>

#include "qorvex/base_controls/custom_edit.h"
#include "qorvex/controls/panel/cell_range.h"
#include "qorvex/controls/panel/detail/block_changes.h"

namespace qorvex::inline QorvexControls::detail {

/// The elements with all their digits, in the numbers of the cell's locale; tabs separate columns,
/// and each row ends with a line end. O(elements).
[[nodiscard]] QString BlockText(const CellTable& table, const TQorCustomEdit& cell,
                                const TQorCellRange& block);

/// Pastes a text over a range: as often as it covers the range exactly, or else once, from its
/// first element on. A cell reads the numbers; without one there is no room. Lines are appended for
/// what is beyond the end. The text is refused as a whole, in this order: more rows than there is
/// room for from there on, more columns, too many values, a cell that is not a number. O(length +
/// elements).
[[nodiscard]] BlockChanges PlanPaste(const CellTable& table, const TQorCustomEdit* cell,
                                     const QString& text, const TQorCellRange& target,
                                     const Growth& growth);

/// @{
/// Messages that refuse a block.
[[nodiscard]] QString TooManyToCopy(quint64 values);
[[nodiscard]] QString OutOfMemory();
[[nodiscard]] QString NotChangeable();
[[nodiscard]] QString NotNull();
[[nodiscard]] QString NotStored(const QString& cell_name, const QString& text);
/// @}

}  // namespace qorvex::inline QorvexControls::detail
