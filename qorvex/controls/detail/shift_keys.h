#pragma once

/// @file
/// What is kept for a few elements of an axis follows them when others are inserted or deleted.

#include <cstddef>
#include <cstdint>
#include <limits>
#include <map>
#include <utility>

namespace qorvex::inline QorvexControls::detail {

/// Elements from the first one on go, and others come in their place: drops what was kept for those
/// that go, and gives those behind them their new indices. O(entries behind the first).
template <class T>
void ShiftKeys(std::map<std::uint32_t, T>& kept, std::uint32_t first, std::uint32_t removed,
               std::uint32_t inserted) {
  std::map<std::uint32_t, T> moved;
  for (auto place = kept.lower_bound(first); place != kept.end();) {
    auto entry = kept.extract(place++);
    if (entry.key() - first < removed) continue;
    const std::uint64_t key = std::uint64_t{entry.key()} - removed + inserted;
    if (key > std::numeric_limits<std::uint32_t>::max()) continue;
    entry.key() = static_cast<std::uint32_t>(key);
    moved.insert(moved.end(), std::move(entry));
  }
  kept.merge(moved);
}

/// What is kept for the elements from the first one on. O(result).
template <class T>
std::map<std::uint32_t, T> EntriesOf(const std::map<std::uint32_t, T>& kept, std::uint32_t first,
                                     std::uint32_t count) {
  auto end = kept.lower_bound(first);
  while (end != kept.end() && end->first - first < count) ++end;
  return {kept.lower_bound(first), end};
}

/// How much memory the entries take, without what their values point to.
template <class T>
std::int64_t BytesOf(const std::map<std::uint32_t, T>& kept) {
  // A node has three pointers and a colour.
  constexpr std::size_t kNode =
      sizeof(typename std::map<std::uint32_t, T>::value_type) + 4 * sizeof(void*);
  return static_cast<std::int64_t>(kept.size() * kNode);
}

}  // namespace qorvex::inline QorvexControls::detail
