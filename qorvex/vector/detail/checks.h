#pragma once

// The checks that vector routines share.

#include "qorvex/base/errors.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector::detail {

template <class T>
inline void RequireElements(const TQorVector<T>& vector) {
  if (vector.empty()) RaiseMathError(rsVectorIsEmpty);
}

template <class T>
inline void RequireSameLength(const TQorVector<T>& a, const TQorVector<T>& b) {
  if (a.size() != b.size()) RaiseMathError(rsSameDimensions);
}

}  // namespace qorvex::inline QorvexVector::detail
