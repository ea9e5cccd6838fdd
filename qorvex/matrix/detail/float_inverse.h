#pragma once

#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexMatrix::detail {

// MatrixInverse for extended elements, with the same bits as the steps of an elimination repeated
// on an identity matrix, which the result must be. No two rows of the matrix may share a buffer.
[[nodiscard]] bool InvertFloats(TQorFloatMatrix& matrix, TQorFloatMatrix& result);

}  // namespace qorvex::inline QorvexMatrix::detail
