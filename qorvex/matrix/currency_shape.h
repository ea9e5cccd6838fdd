#pragma once

/// @file
/// The shape switch of currency matrices.

#include <atomic>

#include "qorvex/base/export.h"

namespace qorvex::inline QorvexFinMatrix {

/// Whether MatrixDimensions, and through it every routine for currency matrices, compares the
/// lengths of all rows. Initially true, and independent of the switch of the same name in the unit
/// QorvexMatrix, so a program that includes QorvexFinMatrix.h writes the name of the unit as well.
extern QORVEX_EXPORT std::atomic<bool> QorMatrixRectangularCheck;

}  // namespace qorvex::inline QorvexFinMatrix
