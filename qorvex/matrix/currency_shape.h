#pragma once

/// @file
/// The shape switch of currency matrices.

#include <atomic>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexFinMatrix {

/// Whether MatrixDimensions, and with it every routine for currency matrices, compares the lengths
/// of all rows. Initially true. It is independent of the switch of the same name in the unit
/// QorvexMatrix, so programs that include QorvexFinMatrix.h must qualify the name with the unit.
extern QORVEX_EXPORT std::atomic<bool> QorMatrixRectangularCheck;

}  // namespace qorvex::inline QorvexFinMatrix
