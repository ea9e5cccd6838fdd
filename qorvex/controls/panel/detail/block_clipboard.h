#pragma once

/// @file
/// Blocks of elements as text, for the clipboard.

#include <QString>

#include "qorvex/base_controls/custom_edit.h"
#include "qorvex/controls/panel/cell_range.h"
#include "qorvex/controls/panel/detail/change_history.h"

namespace qorvex::inline QorvexControls::detail {

/// The elements with all their digits, in the numbers of the cell's locale; tabs separate columns,
/// and each row ends with a line end. O(elements).
[[nodiscard]] QString BlockText(const CellTable& table, const TQorCustomEdit& cell,
                                const TQorCellRange& block);

/// In which directions a paste may append lines, and what their elements are otherwise.
struct Growth {
  bool rows = false;
  bool cols = false;
  Extended value = 0;
};

/// What pasting a text does.
struct PasteResult {
  LineInsertions lines;    ///< The lines that are appended.
  ElementChanges changes;  ///< The elements that change, with their new values.
  QString refusal;         ///< Why the text cannot be pasted; empty when it can be.
};

/// Pastes a text over the elements from the given one on. A cell reads the numbers; without one
/// there is no room. Lines are appended for what is beyond the end. The text is refused as a whole,
/// in this order: more rows than the table has from there on, more columns, a cell that is not a
/// number. O(length).
[[nodiscard]] PasteResult PlanPaste(const CellTable& table, const TQorCustomEdit* cell,
                                    const QString& text, quint32 first_row, quint32 first_col,
                                    const Growth& growth);

/// The name of the step.
[[nodiscard]] QString TextOfPaste();

/// @{
/// Messages that refuse a block.
[[nodiscard]] QString TooManyValues(quint64 values);
[[nodiscard]] QString OutOfMemory();
[[nodiscard]] QString NotChangeable();
[[nodiscard]] QString NotStored(const QString& cell_name, const QString& text);
/// @}

}  // namespace qorvex::inline QorvexControls::detail
