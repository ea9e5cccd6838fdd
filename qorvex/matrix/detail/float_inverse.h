#pragma once

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix::detail {

// MatrixInverse for extended elements, with the same bits as the steps of an elimination repeated
// on an identity matrix. No two rows may share a buffer, and result must be an identity matrix.
[[nodiscard]] bool InvertFloats(TQorFloatMatrix& matrix, TQorFloatMatrix& result);

}  // namespace qorvex::inline QorvexMatrix::detail
