#include "qorvex/vector/sorting.h"

#include <algorithm>
#include <new>

#include "qorvex/vector/building.h"
#include "qorvex/vector/detail/key_sort.h"
#include "qorvex/vector/detail/sort_keys.h"

namespace qorvex::inline QorvexVector {

namespace {

// Sorts elements that are not NaN by replacing them in memory with their keys while it sorts.
template <AnyElement T, class Key>
void SortInPlace(T* elements, std::size_t count, bool ascending, detail::KeySorter<Key>& sorter) {
  using Traits = detail::SortKey<T>;
  static_assert(sizeof(Key) == sizeof(T) && alignof(Key) == alignof(T));

  const Key direction = static_cast<Key>(ascending ? Key{0} : ~Key{0});
  for (std::size_t i = 0; i < count; ++i) {
    const Key key = static_cast<Key>(Traits::Read(elements + i) ^ direction);
    ::new (static_cast<void*>(elements + i)) Key(key);
  }
  Key* const keys = std::launder(reinterpret_cast<Key*>(elements));
  sorter.Sort(keys, count);
  for (std::size_t i = 0; i < count; ++i) {
    const Key key = static_cast<Key>(keys[i] ^ direction);
    ::new (static_cast<void*>(keys + i)) T(Traits::Value(key));
  }
}

}  // namespace

template <AnyElement T>
void QSortVector(TQorVector<T>& vector, bool ascending) {
  if (vector.size() < 2) return;
  detail::KeySorter<typename detail::SortKey<T>::Key> sorter(vector.size());
  T* end = vector.end();
  if constexpr (FloatElement<T>) {
    end = std::partition(vector.begin(), end, [](T x) { return x == x; });
  }
  SortInPlace(vector.data(), static_cast<std::size_t>(end - vector.begin()), ascending, sorter);
}

template <AnyElement T>
TQorVector<T> SortedVector(VectorView<T> vector, bool ascending) {
  auto sorted = CopyVector(vector);
  QSortVector(sorted, ascending);
  return sorted;
}

#define QORVEX_INSTANTIATE(T)                      \
  template void QSortVector(TQorVector<T>&, bool); \
  template TQorVector<T> SortedVector(VectorView<T>, bool);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector
