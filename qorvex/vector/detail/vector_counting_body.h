// Sorting keys of few values by counting them, over the registers of one instruction set. A source
// that includes this file defines QORVEX_VECTOR_CODE; see vector_network_body.h.
//
// Set::IsZero(bits) tells whether no bit of a register is set.

#include <algorithm>
#include <array>
#include <cstddef>

#include "qorvex/vector/detail/quicksort.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// The values found so far, and how often. Four values and their counts fit in the registers.
template <class L>
class FewValues {
 public:
  using Key = typename L::Key;

  explicit FewValues(Key first) { found_.fill({first, 0}); }

  // Counts whole vectors until one has another value, and returns the number of their keys.
  QORVEX_VECTOR_CODE std::size_t CountVectors(const Key* keys, std::size_t count) {
    using Vector = typename L::Vector;
    Vector values[kMost];
    Vector counts[kMost] = {};
    for (std::size_t k = 0; k < kMost; ++k) values[k] = L::Fill(found_[k].key);
    const std::size_t end = std::min(count, kMostVectors * L::kCount);
    std::size_t i = 0;
    for (; i + L::kCount <= end; i += L::kCount) {
      const Vector several = L::Load(keys + i);
      Vector equal[kMost];
      Vector known{};
      for (std::size_t k = 0; k < kMost; ++k) {
        equal[k] = several == values[k];
        known |= equal[k];
      }
      if (!L::Set::IsZero(reinterpret_cast<typename L::Register>(~known))) break;
      for (std::size_t k = 0; k < kMost; ++k) counts[k] -= equal[k];
    }
    for (std::size_t k = 0; k < size_; ++k) {
      for (std::size_t lane = 0; lane < L::kCount; ++lane) {
        found_[k].count += static_cast<std::size_t>(counts[k][lane]);
      }
    }
    return i;
  }

  // Returns false if there are too many values.
  bool Count(Key key) {
    std::size_t k = 0;
    while (k < size_ && found_[k].key != key) ++k;
    if (k == kMost) return false;
    if (k == size_) found_[size_++] = {key, 0};
    ++found_[k].count;
    return true;
  }

  void Write(Key* keys) {
    InsertionSort(found_.data(), found_.data() + size_);
    for (std::size_t k = 0; k < size_; ++k) {
      keys = std::fill_n(keys, found_[k].count, found_[k].key);
    }
  }

 private:
  struct Value {
    Key key;
    std::size_t count;
    bool operator<(const Value& other) const { return key < other.key; }
  };

  static constexpr std::size_t kMost = 4;
  // Few enough for a count in a lane of 32 bits.
  static constexpr std::size_t kMostVectors = std::size_t{1} << 30;

  std::array<Value, kMost> found_;  // repeats the first value behind the others
  std::size_t size_ = 1;
};

// Returns false without a change if the keys have more values than are counted.
template <class L>
QORVEX_VECTOR_CODE __attribute__((noinline)) bool SortFewValues(typename L::Key* keys,
                                                                std::size_t count) {
  FewValues<L> values(keys[0]);
  for (std::size_t i = 0; i < count;) {
    i += values.CountVectors(keys + i, count - i);
    for (const std::size_t end = std::min(i + L::kCount, count); i < end; ++i) {
      if (!values.Count(keys[i])) return false;
    }
  }
  values.Write(keys);
  return true;
}

}  // namespace

}  // namespace qorvex::inline QorvexVector::detail
