#pragma once

// A quicksort with vector instructions.

#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/base/export.h"

namespace qorvex::inline QorvexVector::detail {

template <class Key>
inline constexpr bool kHasVectorQuickSort =
    std::is_same_v<Key, std::int32_t> || std::is_same_v<Key, std::int64_t>;

// Sorts in ascending order, in place and in O(n log n). For the keys with kHasVectorQuickSort,
// where the instructions are allowed.
template <class Key>
QORVEX_EXPORT void VectorQuickSortAvx2(Key* keys, std::size_t count);
template <class Key>
QORVEX_EXPORT void VectorQuickSortAvx512(Key* keys, std::size_t count);

}  // namespace qorvex::inline QorvexVector::detail
