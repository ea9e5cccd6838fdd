#include "qorvex/matrix/transforms.h"

#include <cmath>

#include "qorvex/base/elementary.h"
#include "qorvex/base/elementary/functions.h"
#include "qorvex/matrix/detail/checks.h"
#include "qorvex/vector/detail/amount_transform.h"
#include "qorvex/vector/detail/element_arithmetic.h"

namespace qorvex::inline QorvexMatrix {

namespace {

// Replaces each element by function(element), computed in extended precision. The first element
// that is invalid raises the error.
template <FloatElement T, class IsInvalid, class Function>
void Replace(TQorMatrix<T>& matrix, IsInvalid is_invalid, MessageId error, Function function) {
  detail::RequireRows(matrix);
  for (TQorVector<T>& row : matrix) {
    for (T& x : row) {
      if (is_invalid(x)) RaiseMathError(error);
      x = static_cast<T>(function(static_cast<Extended>(x)));
    }
  }
}

constexpr auto kIsNegative = [](auto x) { return x < 0; };
constexpr auto kIsZero = [](auto x) { return x == 0; };
constexpr auto kIsNotPositive = [](auto x) { return x <= 0; };

}  // namespace

template <AdditiveElement T>
void LinearTransformMatrix(TQorMatrix<T>& matrix, ScalarOf<FactorOf<T>> multiplier,
                           ScalarOf<FactorOf<T>> offset) {
  detail::RequireRows(matrix);
  for (TQorVector<T>& row : matrix) {
    if constexpr (CurrencyElement<T>) {
      QorvexVector::detail::TransformAmounts<T>(row, multiplier, offset);
    } else {
      for (T& x : row) x = QorvexVector::detail::ProductPlus(x, multiplier, offset);
    }
  }
}

template <FloatElement T>
void SquareMatrix(TQorMatrix<T>& matrix) {
  detail::RequireRows(matrix);
  for (TQorVector<T>& row : matrix) {
    for (T& x : row) x = QorvexVector::detail::Product(x, static_cast<Extended>(x));
  }
}

template <FloatElement T>
void SqrtMatrix(TQorMatrix<T>& matrix) {
  Replace(matrix, kIsNegative, rsMatrixNeg, [](Extended x) { return std::sqrt(x); });
}

template <FloatElement T>
void InvMatrix(TQorMatrix<T>& matrix) {
  Replace(matrix, kIsZero, rsMatrixZero, [](Extended x) { return 1 / x; });
}

template <FloatElement T>
void LnMatrix(TQorMatrix<T>& matrix) {
  Replace(matrix, kIsNotPositive, rsMatrixNotPos, [](Extended x) { return Log(x); });
}

template <FloatElement T>
void Log10Matrix(TQorMatrix<T>& matrix) {
  Replace(matrix, kIsNotPositive, rsMatrixNotPos, QorLog10);
}

#define QORVEX_INSTANTIATE(T) \
  template void LinearTransformMatrix(TQorMatrix<T>&, ScalarOf<FactorOf<T>>, ScalarOf<FactorOf<T>>);
QORVEX_FOR_ADDITIVE_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                 \
  template void SquareMatrix(TQorMatrix<T>&); \
  template void SqrtMatrix(TQorMatrix<T>&);   \
  template void InvMatrix(TQorMatrix<T>&);    \
  template void LnMatrix(TQorMatrix<T>&);     \
  template void Log10Matrix(TQorMatrix<T>&);
QORVEX_FOR_FLOAT_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
