#pragma once

// The indices of elements in sorted order.

#include <algorithm>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/dyn_array.h"
#include "qorvex/base/vector_types.h"
#include "qorvex/vector/detail/key_sort.h"
#include "qorvex/vector/detail/sort_keys.h"

namespace qorvex::inline QorvexVector::detail {

// Sorts records of eight bytes: the leading bits of an element's key, counted from the smallest
// key, above its index. Runs of records with equal leading bits are sorted again by the bits that
// follow (at most twice, if there are less than 2^31 elements). Elements with equal keys stay in
// the order of their indices. NaN is last in both orders. The constructor allocates all memory:
// eight bytes for an element, or 16 without vector instructions.
template <AnyElement T>
class SortedIndices {
 public:
  // element_at(i) returns a reference to the element with index i.
  template <class ElementAt>
  SortedIndices(std::size_t count, bool ascending, ElementAt element_at)
      : index_bits_(BitWidth(count)), records_(DynArray<std::int64_t>::ForOverwrite(count)) {
    if (count == 0) return;
    KeySorter<std::int64_t> sorter(count);
    const auto direction = static_cast<Key>(ascending ? Key{0} : Traits::kKeyMask);
    const auto key_at = [&](std::size_t i) { return DirectedKey(element_at(i), direction); };
    Key smallest = key_at(0);
    Key largest = smallest;
    for (std::size_t i = 0; i < count; ++i) {
      const Key key = key_at(i);
      smallest = std::min(smallest, key);
      largest = std::max(largest, key);
      records_[i] = static_cast<std::int64_t>(i);
    }
    const auto distance_at = [&](std::size_t i) { return static_cast<Key>(key_at(i) - smallest); };
    SortBits(records_.data(), records_.data() + count,
             BitWidth(static_cast<Key>(largest - smallest)), distance_at, sorter);
  }

  [[nodiscard]] std::size_t Index(std::size_t position) const noexcept {
    return IndexOf(records_.data()[position]);
  }

  // Fetches the item that belongs to a position soon after this one.
  template <class Item>
  void Prefetch(std::size_t position, const Item* items) const noexcept {
    constexpr std::size_t distance = 24;
    if (position + distance < records_.size())
      __builtin_prefetch(items + Index(position + distance));
  }

 private:
  using Traits = SortKey<T>;
  using Key = typename Traits::Key;

  static constexpr int kRecordBits = 63;

  static Key DirectedKey(const T& element, Key direction) noexcept {
    if constexpr (FloatElement<T>) {
      // The largest key is NaN in both orders.
      if (element != element) return Traits::kKeyMask;
    }
    return static_cast<Key>(Traits::Read(&element) ^ direction);
  }

  [[nodiscard]] std::size_t IndexOf(std::int64_t record) const noexcept {
    return static_cast<std::size_t>(record) & ((std::size_t{1} << index_bits_) - 1);
  }

  template <class DistanceAt>
  [[nodiscard]] bool HaveEqualKeys(const std::int64_t* first, const std::int64_t* last,
                                   const DistanceAt& distance_at) const {
    return last - first == 1 || std::all_of(first + 1, last, [&](std::int64_t record) {
             return distance_at(IndexOf(record)) == distance_at(IndexOf(*first));
           });
  }

  // Sorts records of elements whose distances differ at most in the given number of low bits.
  template <class DistanceAt>
  void SortBits(std::int64_t* first, std::int64_t* last, int bits, const DistanceAt& distance_at,
                KeySorter<std::int64_t>& sorter) {
    const int unsorted_bits = std::max(0, bits + index_bits_ - kRecordBits);
    const auto mask = static_cast<std::uint64_t>(-1) >> (64 - std::max(1, bits - unsorted_bits));
    for (std::int64_t* record = first; record != last; ++record) {
      const std::size_t index = IndexOf(*record);
      const auto leading = static_cast<std::uint64_t>(distance_at(index) >> unsorted_bits) & mask;
      *record = static_cast<std::int64_t>(leading << index_bits_ | index);
    }
    sorter.Sort(first, static_cast<std::size_t>(last - first));
    if (unsorted_bits == 0) return;
    for (std::int64_t* run = first; run != last;) {
      std::int64_t* end = run + 1;
      while (end != last && *end >> index_bits_ == *run >> index_bits_) ++end;
      if (!HaveEqualKeys(run, end, distance_at))
        SortBits(run, end, unsorted_bits, distance_at, sorter);
      run = end;
    }
  }

  int index_bits_;
  DynArray<std::int64_t> records_;
};

}  // namespace qorvex::inline QorvexVector::detail
