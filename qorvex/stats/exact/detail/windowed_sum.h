#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <type_traits>

#include "qorvex/stats/exact/detail/lane.h"
#include "qorvex/stats/exact/detail/parts.h"
#include "qorvex/stats/exact/special_counts.h"

namespace qorvex::exact::detail {

// Feeds lanes with blocks of values from Products. Chooses the window of their tables from the
// first values, and leaves the tables for a while if too many values lie outside.
template <class Lanes>
class WindowedSum {
 public:
  // The values that Add is meant for at a time.
  static constexpr std::size_t kBlock = 1'024;

  explicit WindowedSum(FixedPoint* totals) : lanes_(totals) {}

  template <class Values>
  void Add(const Values& values, std::size_t begin, std::size_t end, SpecialCounts& special) {
    if (scattered_ > 0) {
      scattered_ -= std::min(scattered_, end - begin);
      AddScattered(values, begin, end, special);
      return;
    }
    if (count_ == 0) ChooseWindow(values, begin, end);
    if (AddToCounters(values, begin, end, special) > (end - begin) / kMaxOutliers) {
      FlushCounters();
      scattered_ = kScattered;
    }
  }

  // Adds to the totals what has not reached them yet.
  void Flush() {
    FlushCounters();
    lanes_.ForEach([](auto& lane) { lane.FlushChunks(); });
  }

 private:
  // Up to one of 16 values may be added to the totals.
  static constexpr std::size_t kMaxOutliers = 16;
  static constexpr std::size_t kScattered = 8'192;
  // More go to the chunks, because far outliers make long totals, through which carries run far.
  static constexpr std::size_t kFewOutliers = 128;

  // The window for values that resemble the first ones: most of it below the greatest, because the
  // exponents of most samples spread downwards.
  template <class Values>
  void ChooseWindow(const Values& values, std::size_t begin, std::size_t end) {
    constexpr std::size_t kTried = 64;
    constexpr std::uint32_t kAbove = 16;
    std::uint32_t greatest = 0;
    for (std::size_t i = begin; i < std::min(end, begin + kTried); ++i) {
      const auto x = values(i);
      if (!x.IsZero() && values.IsFinite(i)) greatest = std::max(greatest, x.Exponent());
    }
    const std::uint32_t last = std::min(greatest + kAbove, Values::kGreatest);
    first_ = std::max(last, Values::kLeast + kWindow - 1) - (kWindow - 1);
    count_ = std::min(kWindow, Values::kGreatest + 1 - first_);
  }

  // Returns the number of values outside the window.
  template <class Values>
  std::size_t AddToCounters(const Values& values, std::size_t begin, std::size_t end,
                            SpecialCounts& special) {
    const std::uint32_t first = 2 * first_;
    const std::uint32_t count = 2 * count_;
    const Values local = values;  // nothing that is written can be part of it
    std::size_t outliers = 0;
    const auto add = [&]<int kTurn>(std::size_t i, std::integral_constant<int, kTurn>)
        __attribute__((always_inline)) {
      bool normal = true;
      const auto x = local.Normal(i, normal);
      // A single zero may have any exponent; among factors it is not normal. Without a branch,
      // because zeros come irregularly.
      const std::uint32_t index = (x.key - first) & (x.IsZero() ? 0 : ~0U);
      if (!normal || index >= count) [[unlikely]] {
        if (AddOutlier(values, i, special)) ++outliers;
        return;
      }
      lanes_.ForEachTerm(x.mantissa, [index](auto& lane, const auto& term) {
        lane.template Count<kTurn>(term, index);
      });
    };
    std::size_t i = begin;
    for (; i + 1 < end; i += 2) {
      add(i, std::integral_constant<int, 0>());
      add(i + 1, std::integral_constant<int, 1>());
    }
    if (i < end) add(i, std::integral_constant<int, 0>());
    return outliers;
  }

  // Returns whether it took long.
  template <class Values>
  [[gnu::noinline]] bool AddOutlier(const Values& values, std::size_t i, SpecialCounts& special) {
    if (!values.IsFinite(i)) {
      special.Add(values.Kind(i));
      return true;
    }
    const auto x = values(i);
    if (x.IsZero()) return false;
    const bool few = outliers_ < kFewOutliers;
    if (few) ++outliers_;
    lanes_.ForEachTerm(x.mantissa, [&](auto& lane, const auto& term) {
      if (few) {
        lane.AddOne(term, x.key);
      } else {
        lane.PrepareForScattered(1);
        lane.AddScattered(term, x.key);
      }
    });
    return true;
  }

  template <class Values>
  void AddScattered(const Values& values, std::size_t begin, std::size_t end,
                    SpecialCounts& special) {
    lanes_.ForEach([&](auto& lane) { lane.PrepareForScattered(end - begin); });
    for (std::size_t i = begin; i < end; ++i) {
      if (!values.IsFinite(i)) [[unlikely]] {
        special.Add(values.Kind(i));
        continue;
      }
      const auto x = values(i);
      lanes_.ForEachTerm(x.mantissa,
                         [&](auto& lane, const auto& term) { lane.AddScattered(term, x.key); });
    }
  }

  void FlushCounters() {
    if (count_ == 0) return;
    lanes_.ForEach([&](auto& lane) { lane.FlushCounters(first_); });
    count_ = 0;
  }

  Lanes lanes_;
  std::uint32_t first_ = 0;  // the window: its first exponent, and their number or 0
  std::uint32_t count_ = 0;
  std::size_t scattered_ = 0;  // values that will not be tried with the tables
  std::size_t outliers_ = 0;   // that have been added to the totals
};

}  // namespace qorvex::exact::detail
