#pragma once

// The indices of elements in sorted order.

#include <cstddef>
#include <memory>

#include "qorvex/vector/detail/key_sort.h"
#include "qorvex/vector/detail/sort_keys.h"

namespace qorvex::inline QorvexVector::detail {

// Sorts records with an element's key in the high bits and its index in the low bits, so elements
// with equal keys stay in the order of their indices. NaN is last in both orders. The constructor
// allocates all memory.
template <AnyElement T>
class SortedIndices {
 public:
  // element_at(i) returns a reference to the element with index i.
  template <class ElementAt>
  SortedIndices(std::size_t count, bool ascending, ElementAt element_at)
      : index_bits_(BitWidth(count)),
        direction_(static_cast<Key>(ascending ? Key{0} : Traits::kKeyMask)),
        records_(std::make_unique_for_overwrite<Record[]>(count)) {
    for (std::size_t i = 0; i < count; ++i) {
      records_[i] = static_cast<Record>(DirectedKey(element_at(i))) << index_bits_ | i;
    }
    KeySorter<Record>(count).Sort(records_.get(), count);
  }

  [[nodiscard]] std::size_t Index(std::size_t position) const noexcept {
    return static_cast<std::size_t>(records_[position] & ((Record{1} << index_bits_) - 1));
  }

  [[nodiscard]] T Value(std::size_t position) const noexcept {
    const auto key = static_cast<Key>(records_[position] >> index_bits_);
    return Traits::Value(static_cast<Key>(key ^ direction_));
  }

 private:
  using Traits = SortKey<T>;
  using Key = typename Traits::Key;
  using Record = UInt128;

  Key DirectedKey(const T& element) const noexcept {
    if constexpr (FloatElement<T>) {
      // The largest key is NaN in both orders.
      if (element != element) return Traits::kKeyMask;
    }
    return static_cast<Key>(Traits::Read(&element) ^ direction_);
  }

  int index_bits_;
  Key direction_;
  std::unique_ptr<Record[]> records_;
};

}  // namespace qorvex::inline QorvexVector::detail
