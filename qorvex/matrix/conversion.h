#pragma once

/// @file
/// Matrices from nested ranges, and conversions from one numeric element type to another.
///
/// - Rows are anything with a size whose elements are contiguous ranges: another matrix,
///   std::vector<std::vector<double>>, double[2][3], std::list<std::span<const float>>.
/// - Row lengths are kept: rows may be empty or differ in length, and no rows give an empty matrix.
/// - Every row of the result has its own buffer.
/// - O(number of elements).

#include <concepts>
#include <cstddef>
#include <ranges>

#include "qorvex/vector/conversion.h"

namespace qorvex::inline QorvexMatrix {

/// A range of contiguous ranges, such as a matrix or a vector of vectors. It must be readable
/// through a const reference.
template <class Range>
concept NestedRange = std::ranges::sized_range<const Range> &&
    ContiguousRange<std::ranges::range_value_t<const Range>>;

/// The element type of a nested range.
template <NestedRange Rows>
using NestedElementOf = ElementOf<std::ranges::range_value_t<const Rows>>;

/// @cond internal
namespace detail {

template <class T, class Rows, class Convert>
TQorMatrix<T> ConvertedRows(const Rows& rows, Convert convert) {
  auto matrix = TQorMatrix<T>::WithLength(static_cast<std::size_t>(std::ranges::size(rows)));
  TQorVector<T>* converted = matrix.data();
  for (const auto& row : rows) *converted++ = convert(row);
  return matrix;
}

}  // namespace detail
/// @endcond

/// A matrix with the elements of the rows. For all element types. (A list in braces is a matrix
/// without this function: TQorDoubleMatrix{{1, 2}, {3, 4}}.)
template <NestedRange Rows>
requires AnyElement<NestedElementOf<Rows>>
[[nodiscard]] TQorMatrix<NestedElementOf<Rows>> MatrixFromRows(const Rows& rows) {
  using T = NestedElementOf<Rows>;
  return detail::ConvertedRows<T>(
      rows, [](const auto& row) { return TQorVector<T>(VectorView<T>(row)); });
}

/// The same values as elements of type To, for types that hold them all, row by row as in
/// ConvertVector: ConvertMatrix<double>(single_matrix). No errors.
template <NumericElement To, NestedRange Rows>
requires ConvertsExactlyTo<NestedElementOf<Rows>, To>
[[nodiscard]] TQorMatrix<To> ConvertMatrix(const Rows& rows) {
  return detail::ConvertedRows<To>(rows, [](const auto& row) { return ConvertVector<To>(row); });
}

/// The values rounded to elements of type To, row by row as in NarrowVector, with its errors:
/// NarrowMatrix<float>(matrix). For all pairs of numeric element types.
template <NumericElement To, NestedRange Rows>
requires NumericElement<NestedElementOf<Rows>>
[[nodiscard]] TQorMatrix<To> NarrowMatrix(const Rows& rows) {
  return detail::ConvertedRows<To>(rows, [](const auto& row) { return NarrowVector<To>(row); });
}

}  // namespace qorvex::inline QorvexMatrix
