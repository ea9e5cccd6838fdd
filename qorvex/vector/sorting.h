#pragma once

/// @file
/// Sorting vectors in place.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// Sorts the elements ascending or descending, exactly (no tolerance), in the buffer that all
/// handles share. Vectors of fewer than two elements are left alone. NaN of either sign goes to the
/// end, ascending or descending; -0 counts as less than +0, so the result is unique but for the
/// order of different NaNs. For all elements.
///
/// Expected O(n) on keys that spread, O(n log n) on ones that do not; nothing recurses. From some
/// 400 elements on the sort needs memory for as many elements again; running out of it raises
/// std::bad_alloc with the vector unchanged.
///
/// The method is a radix sort of integer keys with a quicksort on an explicit stack for short
/// vectors and for runs that the radix digits do not tell apart (Knuth 1998, "The Art of Computer
/// Programming", volume 3, 5.2.5 and 5.2.2).
template <AnyElement T>
QORVEX_EXPORT void QSortVector(TQorVector<T>& vector, bool ascending);

}  // namespace qorvex::inline QorvexVector
