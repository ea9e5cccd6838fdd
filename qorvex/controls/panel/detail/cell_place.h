#pragma once

/// @file
/// CellPlace, a row and a column.

#include <QtGlobal>

namespace qorvex::inline QorvexControls::detail {

/// The row and the column of a cell in its grid, or of an element in its table.
struct CellPlace {
  quint32 row = 0;
  quint32 col = 0;

  friend bool operator==(const CellPlace&, const CellPlace&) = default;
};

}  // namespace qorvex::inline QorvexControls::detail
