#include "qorvex/matrix/building.h"

#include <algorithm>

#include "qorvex/matrix/conversion.h"
#include "qorvex/matrix/detail/new_matrix.h"
#include "qorvex/vector/building.h"

namespace qorvex::inline QorvexMatrix {

#define QORVEX_DEFINE_CREATION(Suffix, T)                                               \
  TQor##Suffix##Matrix Create##Suffix##Matrix(std::uint32_t rows, std::uint32_t cols) { \
    return detail::NewMatrix<T>(rows, cols);                                            \
  }                                                                                     \
  TQor##Suffix##Matrix Create##Suffix##IdentityMatrix(std::uint32_t order) {            \
    return detail::NewIdentityMatrix<T>(order);                                         \
  }
QORVEX_DEFINE_CREATION(Float, Extended)
QORVEX_DEFINE_CREATION(Double, double)
QORVEX_DEFINE_CREATION(Single, float)
QORVEX_DEFINE_CREATION(Int64, std::int64_t)
QORVEX_DEFINE_CREATION(LWord, std::uint32_t)
QORVEX_DEFINE_CREATION(LInt, std::int32_t)
QORVEX_DEFINE_CREATION(Word, std::uint16_t)
QORVEX_DEFINE_CREATION(SmallInt, std::int16_t)
QORVEX_DEFINE_CREATION(Byte, std::uint8_t)
QORVEX_DEFINE_CREATION(SInt, std::int8_t)
#undef QORVEX_DEFINE_CREATION

template <AnyElement T>
TQorMatrix<T> CopyMatrix(const TQorMatrix<T>& matrix) {
  auto copy = TQorMatrix<T>::WithLength(matrix.size());
  std::ranges::transform(matrix, copy.begin(), CopyVector<T>);
  return copy;
}

template <NumericElement T>
TQorFloatMatrix Matrix2FloatMatrix(const TQorMatrix<T>& matrix) {
  return ConvertMatrix<Extended>(matrix);
}

#define QORVEX_INSTANTIATE(T) template TQorMatrix<T> CopyMatrix(const TQorMatrix<T>&);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) template TQorFloatMatrix Matrix2FloatMatrix(const TQorMatrix<T>&);
QORVEX_FOR_NUMERIC_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexMatrix
