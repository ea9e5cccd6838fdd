#include "qorvex/matrix/currency_building.h"

#include <algorithm>

#include "qorvex/matrix/detail/new_matrix.h"

namespace qorvex::inline QorvexFinMatrix {

namespace {

template <class T>
Extended StoredInteger(T amount) {
  return static_cast<Extended>(amount.stored());
}

template <class T>
TQorFloatMatrix Converted(const TQorMatrix<T>& matrix, Extended (*convert)(T)) {
  auto result = TQorFloatMatrix::WithLength(matrix.size());
  std::ranges::transform(matrix, result.begin(), [=](const TQorVector<T>& row) {
    auto floats = TQorFloatVector::ForOverwrite(row.size());
    std::ranges::transform(row, floats.begin(), convert);
    return floats;
  });
  return result;
}

}  // namespace

#define QORVEX_DEFINE_CREATION(Suffix, T)                                               \
  TQor##Suffix##Matrix Create##Suffix##Matrix(std::uint32_t rows, std::uint32_t cols) { \
    return QorvexMatrix::detail::NewMatrix<T>(rows, cols);                              \
  }                                                                                     \
  TQor##Suffix##Matrix Create##Suffix##IdentityMatrix(std::uint32_t order) {            \
    return QorvexMatrix::detail::NewIdentityMatrix<T>(order);                           \
  }
QORVEX_DEFINE_CREATION(Curr, QorCurrency)
QORVEX_DEFINE_CREATION(LongCurr, QorLongCurrency)
QORVEX_DEFINE_CREATION(Currency, Currency)
#undef QORVEX_DEFINE_CREATION

TQorFloatMatrix Matrix2FloatMatrix(const TQorCurrMatrix& matrix) {
  return Converted(matrix, StoredInteger<QorCurrency>);
}
TQorFloatMatrix Matrix2FloatMatrix(const TQorLongCurrMatrix& matrix) {
  return Converted(matrix, StoredInteger<QorLongCurrency>);
}
TQorFloatMatrix Matrix2FloatMatrix(const TQorCurrencyMatrix& matrix) {
  return Converted<Currency>(matrix, Currency2Float);
}

}  // namespace qorvex::inline QorvexFinMatrix
