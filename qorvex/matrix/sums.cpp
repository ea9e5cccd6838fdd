#include "qorvex/matrix/sums.h"

#include "qorvex/base/rounding.h"
#include "qorvex/matrix/detail/checks.h"
#include "qorvex/vector/aggregates.h"
#include "qorvex/vector/detail/integer_arithmetic.h"
#include "qorvex/vector/detail/ordered_sum.h"

namespace qorvex::inline QorvexMatrix {

namespace {

using QorvexVector::detail::Int64Sum;

template <SignedArithmeticElement T>
void AddRow(const TQorVector<T>& row, Extended& sum) {
  if constexpr (FloatElement<T>) {
    sum = QorvexVector::detail::AddValues<T>(sum, row);
  } else {
    for (const T x : row) sum += static_cast<Extended>(x);
  }
}

// The sum of fewer than 2^32 such elements is exact both in int64 and in extended precision.
void AddRow(const TQorLIntVector& row, Extended& sum) {
  Int64Sum row_sum;
  for (const std::int32_t x : row) row_sum.Add(x);
  sum += static_cast<Extended>(row_sum.Value());
}

template <CurrencyElement T>
void AddRow(const TQorVector<T>& row, Int64Sum& sum) {
  for (const T x : row) sum.Add(x.stored());
}

// Counts and adds all elements.
template <AdditiveElement T, class Sum>
void AddRows(const TQorMatrix<T>& matrix, std::uint32_t& count, Sum& sum) {
  detail::RequireRows(matrix);
  std::size_t elements = 0;
  for (const TQorVector<T>& row : matrix) {
    elements += row.size();
    AddRow(row, sum);
  }
  count = static_cast<std::uint32_t>(elements);
  if (elements == 0) RaiseMathError(rsMatrixIsEmpty);
}

}  // namespace

template <SignedArithmeticElement T>
Extended GrandMean(const TQorMatrix<T>& matrix, std::uint32_t& count) {
  Extended sum = 0;
  AddRows(matrix, count, sum);
  return sum / static_cast<Extended>(count);
}

template <CurrencyElement T>
T GrandMean(const TQorMatrix<T>& matrix, std::uint32_t& count) {
  Int64Sum sum;
  AddRows(matrix, count, sum);
  return T(static_cast<typename T::StoredType>(DivideHalfEven(sum.Value(), count)));
}

template <NumericElement T>
requires(!std::same_as<T, std::int32_t>) SumOf<T> SumMatrixRow(const TQorMatrix<T>& matrix,
                                                               std::uint32_t row) {
  const detail::Shape shape = detail::RequireRectangularShape(matrix);
  detail::RequireRow(shape, row);
  detail::RequireLength(matrix[row], shape.cols);
  return SumVector(VectorView<T>(matrix[row]).first(shape.cols));
}

template <NumericElement T>
requires(!std::same_as<T, std::int32_t>) SumOf<T> SumMatrixCol(const TQorMatrix<T>& matrix,
                                                               std::uint32_t col) {
  const detail::Shape shape = detail::RequireRectangularShape(matrix);
  detail::RequireCol(shape, col);
  detail::RequireLengths(matrix, shape.cols);
  if constexpr (FloatElement<T>) {
    // As in SumVector, the sum of a single negative zero is negative zero.
    Extended sum = matrix[0][col];
    for (std::size_t i = 1; i < shape.rows; ++i) sum += static_cast<Extended>(matrix[i][col]);
    return sum;
  } else {
    Int64Sum sum;
    for (const TQorVector<T>& row : matrix) sum.Add(row[col]);
    return sum.Value();
  }
}

#define QORVEX_INSTANTIATE(T) template Extended GrandMean(const TQorMatrix<T>&, std::uint32_t&);
QORVEX_FOR_SIGNED_ARITHMETIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) template T GrandMean(const TQorMatrix<T>&, std::uint32_t&);
QORVEX_FOR_CURRENCY_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                                          \
  template SumOf<T> SumMatrixRow(const TQorMatrix<T>&, std::uint32_t); \
  template SumOf<T> SumMatrixCol(const TQorMatrix<T>&, std::uint32_t);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
QORVEX_INSTANTIATE(std::int64_t)
QORVEX_INSTANTIATE(std::uint32_t)
QORVEX_FOR_NARROW_INTEGER_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
