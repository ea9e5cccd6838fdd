#pragma once

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>

#include "qorvex/stats/exact/detail/lane.h"
#include "qorvex/stats/exact/detail/parts.h"
#include "qorvex/stats/exact/special_counts.h"

namespace qorvex::exact::detail {

// Feeds lanes with blocks of values. Chooses the window of their tables from the first values, and
// leaves the tables for a while if too many values lie outside.
//
// A source is called with an index and returns the parts of that value; source.Value(i) is the
// value itself, asked for only if it is not finite.
template <class Lanes>
class WindowedSum {
 public:
  // The blocks that Add takes.
  static constexpr std::size_t kBlock = 1'024;

  explicit WindowedSum(FixedPoint* totals) : lanes_(totals) {}

  template <class Source>
  void Add(const Source& source, std::size_t begin, std::size_t end, SpecialCounts& special) {
    if (scattered_blocks_ > 0) {
      --scattered_blocks_;
      for (std::size_t i = begin; i < end; ++i) {
        const auto x = source(i);
        if (x.special != 0) {
          special.Add(source.Value(i));
          continue;
        }
        lanes_.ForEachTerm(
            x, [&](auto& lane, const auto& term) { lane.AddScattered(term, x.exponent, x.sign); });
      }
      return;
    }
    if (!first_) first_ = ChooseWindow(source, begin, end);
    if (CountBlock(source, begin, end, special) > kMaxOutliers) {
      FlushCounters();
      scattered_blocks_ = kScatteredBlocks;
    }
  }

  // Adds to the totals what has not reached them yet.
  void Flush() {
    FlushCounters();
    lanes_.ForEach([](auto& lane) { lane.FlushChunks(); });
  }

 private:
  static constexpr std::size_t kMaxOutliers = kBlock / 16;
  static constexpr int kScatteredBlocks = 8;

  // The window for values that resemble the first ones: as many exponents as possible below the
  // greatest, because sums of many terms spread downwards.
  template <class Source>
  static std::uint32_t ChooseWindow(const Source& source, std::size_t begin, std::size_t end) {
    constexpr std::size_t kTried = 64;
    constexpr std::uint32_t kAbove = 16;
    std::uint32_t greatest = 0;
    for (std::size_t i = begin; i < std::min(end, begin + kTried); ++i) {
      const auto x = source(i);
      if (x.special == 0 && x.mantissa != decltype(x.mantissa){}) {
        greatest = std::max(greatest, x.exponent);
      }
    }
    return std::max(greatest + kAbove, kWindow) - (kWindow - 1);
  }

  // Returns the number of values outside the window.
  template <class Source>
  std::size_t CountBlock(const Source& source, std::size_t begin, std::size_t end,
                         SpecialCounts& special) {
    const std::uint32_t first = *first_;
    std::size_t outliers = 0;
    for (std::size_t i = begin; i < end; ++i) {
      const auto x = source(i);
      // Zeros may have any exponent.
      const bool zero = x.mantissa == decltype(x.mantissa){};
      const std::uint32_t index = (zero ? 0 : x.exponent - first) | x.special;
      if (index >= kWindow) [[unlikely]] {
        ++outliers;
        if (x.special != 0) {
          special.Add(source.Value(i));
        } else {
          lanes_.ForEachTerm(
              x, [&](auto& lane, const auto& term) { lane.AddOne(term, x.exponent, x.sign); });
        }
        continue;
      }
      lanes_.ForEachTerm(x, [&](auto& lane, const auto& term) { lane.Count(term, index, x.sign); });
    }
    return outliers;
  }

  void FlushCounters() {
    if (!first_) return;
    lanes_.ForEach([&](auto& lane) { lane.FlushCounters(*first_); });
    first_.reset();
  }

  Lanes lanes_;
  std::optional<std::uint32_t> first_;
  int scattered_blocks_ = 0;
};

}  // namespace qorvex::exact::detail
