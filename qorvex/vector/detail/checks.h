#pragma once

// The checks that vector routines share.

#include <cmath>

#include "qorvex/base/errors.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector::detail {

template <ContiguousRange Range>
void RequireElements(const Range& vector) {
  if (vector.empty()) RaiseMathError(rsVectorIsEmpty);
}

template <ContiguousRange A, ContiguousRange B>
void RequireSameLength(const A& a, const B& b) {
  if (a.size() != b.size()) RaiseMathError(rsSameDimensions);
}

inline void RequireWeight(Extended weight) {
  if (!(weight >= 0) || std::isinf(weight)) RaiseMathError(rsInvalidWeight);
}

}  // namespace qorvex::inline QorvexVector::detail
