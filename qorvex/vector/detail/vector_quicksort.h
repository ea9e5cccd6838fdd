#pragma once

// A quicksort with vector instructions.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <type_traits>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexVector::detail {

template <class Key>
inline constexpr bool kHasVectorQuickSort =
    std::is_same_v<Key, std::int32_t> || std::is_same_v<Key, std::int64_t>;

enum class KeyForm {
  kInteger,
  kFloatBits  // of the floating format of the same size, sorted by their values, with -0 before +0
};

// Converts the bits of floating numbers into signed integers in the order of the numbers, or back:
// flips the bits behind a sign that is set.
template <class Key>
void FlipNegatives(Key* keys, std::size_t count) {
  constexpr int sign_bit = 8 * sizeof(Key) - 1;
  for (std::size_t i = 0; i < count; ++i) {
    keys[i] ^= (keys[i] >> sign_bit) & std::numeric_limits<Key>::max();
  }
}

// Sorts in ascending order and in place. A segment that has been divided most_divisions times is
// sorted by a heap sort. For the keys with kHasVectorQuickSort, where the instructions are allowed.
template <class Key>
QORVEX_EXPORT void VectorQuickSortAvx2(Key* keys, std::size_t count, KeyForm form,
                                       int most_divisions);
template <class Key>
QORVEX_EXPORT void VectorQuickSortAvx512(Key* keys, std::size_t count, KeyForm form,
                                         int most_divisions);

}  // namespace qorvex::inline QorvexVector::detail
