#pragma once

/// @file
/// CellReading, what a text in a cell means.

#include <QString>
#include <optional>

#include "qorvex/base/element_types.h"

namespace qorvex::inline QorvexBaseControls {

/// The value of a text, or the reason why it has none.
struct CellReading {
  std::optional<Extended> value;  ///< NaN is null.
  QString refusal;                ///< A sentence for the user; empty if there is a value.
};

}  // namespace qorvex::inline QorvexBaseControls
