#pragma once

#include <cstddef>
#include <cstdint>
#include <vector>

#include "qorvex/stats/exact/detail/parts.h"
#include "qorvex/stats/exact/fixed_point.h"

namespace qorvex::exact::detail {

// A fixed-point sum over the whole range of exponents, for values that are scattered over it: one
// signed word for every 32 bits, so that carries wait until 2^30 values have been added. Neal
// (2015), "Fast exact summation using small and large superaccumulators": the small one.
template <std::size_t kFactors>
class DenseChunks {
 public:
  DenseChunks() : chunks_(kCount) {}

  // Must come before that many are added.
  void Prepare(std::size_t count, FixedPoint& total) {
    if (added_ + count > kMaxAdded) Flush(total);
    added_ += count;
  }

  void Add(const Words<kFactors>& mantissa, std::uint32_t exponent, std::uint32_t sign) noexcept {
    const std::uint32_t bit = exponent + kPadding;
    const std::uint32_t shift = bit % 32;
    const auto flip = -static_cast<std::int64_t>(sign);
    std::int64_t* chunk = chunks_.data() + bit / 32;
    std::uint64_t carry = 0;
    for (const Word word : mantissa) {
      const unsigned __int128 shifted = (static_cast<unsigned __int128>(word) << shift) + carry;
      *chunk++ += (static_cast<std::uint32_t>(shifted) ^ flip) - flip;
      *chunk++ += (static_cast<std::uint32_t>(shifted >> 32) ^ flip) - flip;
      carry = static_cast<std::uint64_t>(shifted >> 64);
    }
    *chunk += (static_cast<std::int64_t>(carry) ^ flip) - flip;
  }

  // Adds the sum to the total and is 0 again.
  void Flush(FixedPoint& total) {
    std::vector<std::uint64_t> words(kCount / 2);
    std::int64_t carry = 0;
    const auto next = [&](std::int64_t& chunk) {
      carry += chunk;
      chunk = 0;
      const auto low = static_cast<std::uint32_t>(carry);
      carry >>= 32;
      return low;
    };
    for (std::size_t i = 0; i < words.size(); ++i) {
      const std::uint64_t low = next(chunks_[2 * i]);
      words[i] = low | std::uint64_t{next(chunks_[2 * i + 1])} << 32;
    }
    total += FixedPoint::FromWords({kPosition, words});
    added_ = 0;
  }

 private:
  static constexpr int kWordBits = 64;
  static constexpr std::size_t kMaxAdded = std::size_t{1} << 30;
  // The lowest bit is a whole number of words below the point.
  static constexpr std::int32_t kPosition =
      -static_cast<std::int32_t>(kFactors * kExponentBias / kWordBits + 1);
  static constexpr std::uint32_t kPadding = static_cast<std::uint32_t>(-kPosition * kWordBits) -
                                            static_cast<std::uint32_t>(kFactors) * kExponentBias;
  // An even number, with two words more than the largest product needs.
  static constexpr std::size_t kCount =
      2 * ((kFactors * (0x7FFF + kWordBits) + kPadding) / kWordBits + 3);

  std::vector<std::int64_t> chunks_;
  std::size_t added_ = 0;
};

}  // namespace qorvex::exact::detail
