#include "qorvex/vector/building.h"

#include <algorithm>
#include <cstring>

namespace qorvex::inline QorvexVector {

template <WideElement T>
void AppendValue2Vector(TQorVector<T>& vector, ScalarOf<T> value) {
  vector.Append(value);
}

template <WideElement T>
void AddValue2Vector(TQorVector<T>& vector, ScalarOf<T> value, std::int32_t position) {
  vector.Append(value);
  if (position < 0 || position >= vector.High()) return;
  T* const place = vector.data() + position;
  std::move_backward(place, vector.end() - 1, vector.end());
  *place = value;
}

template <WideElement T>
void DeleteValueFromVector(TQorVector<T>& vector, std::int32_t position) {
  if (position < 0 || position > vector.High()) return;
  if (vector.size() > 1) {
    T* const place = vector.data() + position;
    std::move(place + 1, vector.end(), place);
  }
  vector.SetLength(vector.size() - 1);
}

template <AnyElement T>
void FillVector(TQorVector<T>& vector, ScalarOf<T> value) {
  std::fill(vector.begin(), vector.end(), static_cast<T>(value));
}

template <AnyElement T>
void ClearVector(TQorVector<T>& vector) {
  if (!vector.empty()) std::memset(static_cast<void*>(vector.data()), 0, vector.size() * sizeof(T));
}

template <AnyElement T>
TQorVector<T> CopyVector(VectorView<T> vector) {
  return TQorVector<T>(vector);
}

template <AnyElement T>
TQorVector<T> ReverseVector(VectorView<T> vector) {
  auto result = TQorVector<T>::ForOverwrite(vector.size());
  std::reverse_copy(vector.begin(), vector.end(), result.begin());
  return result;
}

#define QORVEX_INSTANTIATE(T)                                               \
  template void AppendValue2Vector(TQorVector<T>&, ScalarOf<T>);            \
  template void AddValue2Vector(TQorVector<T>&, ScalarOf<T>, std::int32_t); \
  template void DeleteValueFromVector(TQorVector<T>&, std::int32_t);
QORVEX_FOR_WIDE_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T)                            \
  template void FillVector(TQorVector<T>&, ScalarOf<T>); \
  template void ClearVector(TQorVector<T>&);             \
  template TQorVector<T> CopyVector(VectorView<T>);      \
  template TQorVector<T> ReverseVector(VectorView<T>);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
