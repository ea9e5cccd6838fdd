#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

#include "qorvex/base/vector_types.h"
#include "qorvex/stats/exact/detail/words.h"
#include "qorvex/stats/exact/fixed_point.h"
#include "qorvex/vector/detail/integer_sum.h"
#include "qorvex/vector/detail/registers.h"

namespace qorvex::exact::detail {

// Adds sum * 2^exponent.
inline void AddToTotal(__int128 sum, int exponent, FixedPoint& total) {
  const auto bits = static_cast<unsigned __int128>(sum);
  const unsigned __int128 magnitude = sum < 0 ? 0 - bits : bits;
  const std::array<std::uint64_t, 2> words = {static_cast<std::uint64_t>(magnitude),
                                              static_cast<std::uint64_t>(magnitude >> 64)};
  total.Add(words, exponent, sum < 0);
}

template <std::size_t kSize>
inline void AddToTotal(const Counter<kSize>& counter, bool negative, FixedPoint& total) {
  std::array<std::uint64_t, kSize + 1> words;
  for (std::size_t i = 0; i <= kSize; ++i) words[i] = counter.words[i];
  total.Add(words, 0, negative);
}

// The exact sum. Up to 32 bits, int64 sums of parts do not wrap around.
template <IntegerElement T>
inline __int128 SumIntegers(std::span<const T> values) {
  if constexpr (sizeof(T) == sizeof(std::int64_t)) {
    return QorvexVector::detail::ExactIntegerSum(values);
  } else {
    constexpr std::size_t kMost = std::size_t{1} << 31;
    __int128 sum = 0;
    for (std::size_t i = 0; i < values.size(); i += kMost) {
      sum +=
          QorvexVector::detail::IntegerSum(values.subspan(i, std::min(kMost, values.size() - i)));
    }
    return sum;
  }
}

// Adds the squares and higher powers of integers to their totals.
template <int kPowerSums, IntegerElement T>
inline void AddHigherPowers(std::span<const T> values, FixedPoint* totals) {
  Counter<2> second;
  Counter<3> third[2];
  Counter<4> fourth;
  for (const T x : values) {
    const auto bits = static_cast<Word>(x);
    const Word magnitude = x < 0 ? 0 - bits : bits;
    const Words<2> square = Square(Words<1>{magnitude});
    second.Add(square);
    if constexpr (kPowerSums > 2) {
      third[x < 0 ? 1 : 0].Add(Multiply(square, magnitude));
      fourth.Add(Square(square));
    }
  }
  AddToTotal(second, false, totals[1]);
  if constexpr (kPowerSums > 2) {
    AddToTotal(third[0], false, totals[2]);
    AddToTotal(third[1], true, totals[2]);
    AddToTotal(fourth, false, totals[3]);
  }
}

// Adds the powers of integers, or of the stored integers of amounts, to the totals.
template <int kPowerSums, class T>
inline void AddIntegerPowers(VectorView<T> values, FixedPoint* totals) {
  const auto numbers = QorvexVector::detail::Numbers(values);
  AddToTotal(SumIntegers(numbers), 0, totals[0]);
  if constexpr (kPowerSums > 1) AddHigherPowers<kPowerSums>(numbers, totals);
}

}  // namespace qorvex::exact::detail
