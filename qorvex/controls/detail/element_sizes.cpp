#include "qorvex/controls/detail/element_sizes.h"

#include <algorithm>

#include "qorvex/controls/detail/shift_keys.h"

namespace qorvex::inline QorvexControls::detail {

ElementSizes::ElementSizes(int usual) : usual_(std::clamp(usual, 0, kLargest)) {}

void ElementSizes::SetUsual(int size) {
  usual_ = std::clamp(size, 0, kLargest);
}

void ElementSizes::Set(std::uint32_t element, int size) {
  own_[element] = std::clamp(size, 0, kLargest);
}

void ElementSizes::Reset(std::uint32_t element) {
  own_.erase(element);
}

std::map<std::uint32_t, int> ElementSizes::OwnSizes(std::uint32_t first,
                                                    std::uint32_t count) const {
  return EntriesOf(own_, first, count);
}

void ElementSizes::SetOwnSizes(const std::map<std::uint32_t, int>& sizes) {
  own_.insert(sizes.begin(), sizes.end());
}

void ElementSizes::Replace(std::uint32_t first, std::uint32_t removed, std::uint32_t inserted) {
  ShiftKeys(own_, first, removed, inserted);
}

int ElementSizes::Size(std::uint32_t element) const {
  if (own_.empty()) return usual_;
  const auto own = own_.find(element);
  return own == own_.end() ? usual_ : own->second;
}

int ElementSizes::Sum(std::uint32_t first, std::uint32_t neighbours) const {
  int sum = static_cast<int>(neighbours) * usual_;
  for (auto own = own_.lower_bound(first); own != own_.end(); ++own) {
    if (own->first - first >= neighbours) break;
    sum += own->second - usual_;
  }
  return sum;
}

int ElementSizes::LargestSum(std::uint32_t neighbours, std::uint32_t count) const {
  const std::uint32_t last = count - std::min(neighbours, count);
  int largest = Sum(0, neighbours);
  // The first of the largest windows begins behind a small element, or ends with a large one.
  for (const auto& own : own_) {
    const std::uint32_t element = own.first;
    if (element < last) largest = std::max(largest, Sum(element + 1, neighbours));
    if (element >= neighbours && element - neighbours < last) {
      largest = std::max(largest, Sum(element - neighbours + 1, neighbours));
    }
  }
  return largest;
}

std::uint32_t ElementSizes::Fitting(std::uint32_t first, std::uint32_t count, int room) const {
  std::uint32_t fitting = 0;
  const auto fits = [&](std::uint32_t element) {
    if (fitting == kMaxEdits || Size(element) > room) return false;
    room -= Size(element);
    ++fitting;
    return true;
  };
  std::uint32_t end = first;
  while (end < count && fits(end)) ++end;
  while (end >= count && first > 0 && fits(first - 1)) --first;
  return std::max(fitting, 1U);
}

}  // namespace qorvex::inline QorvexControls::detail
