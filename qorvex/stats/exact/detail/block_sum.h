#pragma once

#include <cstddef>
#include <optional>
#include <span>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/base/element_types.h"
#include "qorvex/base/export.h"
#include "qorvex/stats/exact/fixed_point.h"

namespace qorvex::exact::detail {

// The sum of floating values whose exponents lie in a range of some dozens: several are added at a
// time, as integers in two units.
template <class T>
class QORVEX_EXPORT BlockSum {
 public:
  // The number of values of a block.
  static constexpr std::size_t kBlock = 256;

  explicit BlockSum(FixedPoint& total, Instructions instructions = BestInstructions())
      : total_(total), instructions_(instructions) {}

  // Adds a block, or returns false and adds nothing.
  [[nodiscard]] bool Add(std::span<const T> block);
  // Adds to the total what has not reached it yet.
  void Flush();

 private:
  // After a block that could not be added, the next ones are not tried.
  static constexpr int kSkippedBlocks = 15;

  FixedPoint& total_;
  Instructions instructions_;
  std::optional<int> range_;  // its exponent
  __int128 high_ = 0;
  __int128 low_ = 0;
  int blocks_to_skip_ = 0;
};

}  // namespace qorvex::exact::detail
