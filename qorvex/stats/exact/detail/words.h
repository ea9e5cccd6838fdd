#pragma once

// Products and counters of a fixed number of words.

#include <array>
#include <cstddef>
#include <cstdint>
#include <immintrin.h>

namespace qorvex::exact::detail {

// The type that the carry intrinsics take: unlike uint64_t, which is unsigned long.
using Word = unsigned long long;
static_assert(sizeof(Word) == sizeof(std::uint64_t));

template <std::size_t kSize>
using Words = std::array<Word, kSize>;

inline Words<2> Square(Words<1> x) noexcept {
  const unsigned __int128 square = static_cast<unsigned __int128>(x[0]) * x[0];
  return {static_cast<Word>(square), static_cast<Word>(square >> 64)};
}

template <std::size_t kSize>
inline Words<kSize + 1> Multiply(const Words<kSize>& x, Word factor) noexcept {
  Words<kSize + 1> product;
  Word high = 0;
  for (std::size_t i = 0; i < kSize; ++i) {
    const unsigned __int128 part = static_cast<unsigned __int128>(x[i]) * factor + high;
    product[i] = static_cast<Word>(part);
    high = static_cast<Word>(part >> 64);
  }
  product[kSize] = high;
  return product;
}

inline Words<4> Square(const Words<2>& x) noexcept {
  const Words<2> low = Square(Words<1>{x[0]});
  const Words<2> high = Square(Words<1>{x[1]});
  const unsigned __int128 mixed = static_cast<unsigned __int128>(x[0]) * x[1];
  const Word twice[3] = {static_cast<Word>(mixed) << 1, static_cast<Word>(mixed >> 63),
                         static_cast<Word>(mixed >> 127)};
  Words<4> square;
  square[0] = low[0];
  unsigned char carry = _addcarry_u64(0, low[1], twice[0], &square[1]);
  carry = _addcarry_u64(carry, high[0], twice[1], &square[2]);
  _addcarry_u64(carry, high[1], twice[2], &square[3]);
  return square;
}

// A sum of magnitudes of kSize words. The highest word counts carries, so 2^64 can be added.
template <std::size_t kSize>
struct Counter {
  Words<kSize + 1> words = {};

  void Add(const Words<kSize>& x) noexcept {
    unsigned char carry = 0;
    for (std::size_t i = 0; i < kSize; ++i) {
      carry = _addcarry_u64(carry, words[i], x[i], &words[i]);
    }
    words[kSize] += carry;
  }
  [[nodiscard]] bool IsZero() const noexcept {
    Word any = 0;
    for (const Word word : words) any |= word;
    return any == 0;
  }
};

}  // namespace qorvex::exact::detail
