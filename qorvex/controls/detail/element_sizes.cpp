#include "qorvex/controls/detail/element_sizes.h"

#include <algorithm>

#include "qorvex/controls/detail/shift_keys.h"

namespace qorvex::inline QorvexControls::detail {

ElementSizes::ElementSizes(int usual) : usual_(std::clamp(usual, 0, kLargest)) {}

void ElementSizes::SetUsual(int size) {
  usual_ = std::clamp(size, 0, kLargest);
  largest_.reset();
}

void ElementSizes::Set(std::uint32_t element, int size) {
  const int before = Size(element);
  own_[element] = std::clamp(size, 0, kLargest);
  Adjust(element, before);
}

void ElementSizes::Reset(std::uint32_t element) {
  const int before = Size(element);
  own_.erase(element);
  Adjust(element, before);
}

std::map<std::uint32_t, int> ElementSizes::OwnSizes(std::uint32_t first,
                                                    std::uint32_t count) const {
  return EntriesOf(own_, first, count);
}

void ElementSizes::SetOwnSizes(const std::map<std::uint32_t, int>& sizes) {
  own_.insert(sizes.begin(), sizes.end());
  largest_.reset();
}

void ElementSizes::Replace(std::uint32_t first, std::uint32_t removed, std::uint32_t inserted) {
  ShiftKeys(own_, first, removed, inserted);
  largest_.reset();
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
  if (neighbours == 0) return 0;
  if (!largest_ || largest_->neighbours != neighbours || largest_->count != count) {
    const std::uint32_t last = count - std::min(neighbours, count);
    largest_ = {neighbours, count, FindLargestSum(neighbours, last)};
  }
  return largest_->sum;
}

int ElementSizes::FindLargestSum(std::uint32_t neighbours, std::uint32_t last) const {
  // The window moves on to where the next element with a size of its own enters or leaves it.
  auto enters = own_.lower_bound(neighbours);
  auto leaves = own_.begin();
  int sum = Sum(0, neighbours);
  int largest = sum;
  while (leaves != own_.end()) {
    std::uint64_t first = std::uint64_t{leaves->first} + 1;
    if (enters != own_.end())
      first = std::min<std::uint64_t>(first, enters->first - neighbours + 1);
    if (first > last) break;
    if (leaves->first + 1 == first) sum -= leaves++->second - usual_;
    if (enters != own_.end() && enters->first - neighbours + 1 == first) {
      sum += enters++->second - usual_;
    }
    largest = std::max(largest, sum);
  }
  return largest;
}

int ElementSizes::LargestAround(std::uint32_t element) const {
  const auto& [neighbours, count, sum] = *largest_;
  const std::uint32_t last = count - std::min(neighbours, count);
  int largest = 0;
  for (std::uint32_t first = element - std::min(element, neighbours - 1);
       first <= std::min(element, last); ++first) {
    largest = std::max(largest, Sum(first, neighbours));
  }
  return largest;
}

void ElementSizes::Adjust(std::uint32_t element, int size_before) {
  if (!largest_) return;
  const int around = LargestAround(element);
  const int shrunk = size_before - Size(element);
  if (shrunk > 0 && around + shrunk >= largest_->sum) {
    largest_.reset();
  } else {
    largest_->sum = std::max(largest_->sum, around);
  }
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
