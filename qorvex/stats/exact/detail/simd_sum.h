#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

#include "qorvex/base/element_types.h"
#include "qorvex/stats/exact/fixed_point.h"

namespace qorvex::exact::detail {

// Which instructions a kernel may use.
enum class Instructions { kBaseline, kAvx2 };

// The best that this processor, and the system, support.
[[nodiscard]] QORVEX_EXPORT Instructions BestInstructions() noexcept;

// The sum of blocks whose values have exponents in a range of a few dozens, several at a time.
template <FloatElement T>
class SimdSum {
 public:
  // The most values of a block.
  static constexpr std::size_t kBlock = 256;

  explicit SimdSum(FixedPoint& total, Instructions instructions = BestInstructions())
      : total_(total), instructions_(instructions) {}

  // Adds a block, or returns false and has done nothing.
  [[nodiscard]] bool Add(std::span<const T> block);
  // Adds to the total what has not reached it yet.
  void Flush();

 private:
  [[nodiscard]] bool TryBlock(std::span<const T> block);
  [[nodiscard]] bool ChooseRange(std::span<const T> block);

  FixedPoint& total_;
  Instructions instructions_;
  int exponent_ = 0;  // of the range
  bool has_range_ = false;
  int rejected_ = 0;  // blocks in sequence
  __int128 high_ = 0;
  __int128 low_ = 0;
};

}  // namespace qorvex::exact::detail
