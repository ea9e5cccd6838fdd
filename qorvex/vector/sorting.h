#pragma once

/// @file
/// Sorting vectors in place, and sorted copies.

#include "qorvex/base/export.h"
#include "qorvex/base/vector_types.h"

namespace qorvex::inline QorvexVector {

/// Sorts the elements in ascending or descending order. The change is seen through every handle of
/// the buffer.
///
/// - Comparisons are exact, without tolerance. -0 sorts before +0.
/// - NaN, of either sign, is last in both orders. The order of different NaNs is unspecified.
/// - n = 0 and n = 1: nothing happens.
/// - O(n) for elements that are in either order already and for elements of one byte, else at most
///   O(n log n). The depth of the stack does not depend on the data.
/// - Memory: Extended elements, if there are more than 16, take 24 bytes each (32 on a processor
///   without AVX2). Elements of four and eight bytes are sorted in place; without AVX2, 400 or more
///   take as much memory as they have, and so do elements of two bytes on every processor. If an
///   allocation fails, std::bad_alloc is thrown and the vector is unchanged.
/// - Method: a quicksort or a radix sort of integer keys (Blacher, Giesen, Sanders and Wassenberg
///   2022, "Vectorized and performance-portable quicksort"; Knuth 1998, "The Art of Computer
///   Programming", volume 3, 5.2.5 and 5.2.2).
/// - For all element types.
template <AnyElement T>
QORVEX_EXPORT void QSortVector(TQorVector<T>& vector, bool ascending);

/// @{
/// A new vector with the elements in the order of QSortVector, for routines that expect sorted
/// elements: GetMedian(SortedVector(data)). n = 0 gives an empty result. For all element types.
template <AnyElement T>
[[nodiscard]] QORVEX_EXPORT TQorVector<T> SortedVector(VectorView<T> vector, bool ascending = true);
template <ContiguousRange Range>
requires AnyElement<ElementOf<Range>>
[[nodiscard]] TQorVector<ElementOf<Range>> SortedVector(const Range& vector,
                                                        bool ascending = true) {
  return SortedVector<ElementOf<Range>>(vector, ascending);
}
/// @}

}  // namespace qorvex::inline QorvexVector
