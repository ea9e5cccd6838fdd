#include "qorvex/stats/exact/fixed_point.h"

#include <algorithm>
#include <bit>
#include <cstddef>

#include "qorvex/base/errors.h"

namespace qorvex::exact {

namespace {

constexpr int kWordBits = 64;

constexpr std::uint64_t SignWord(bool negative) noexcept {
  return negative ? ~std::uint64_t{0} : 0;
}

// The magnitude of positions. Totals are as long as their positions are apart.
constexpr std::int64_t kMaxPosition = std::int64_t{1} << 24;
constexpr std::int64_t kMaxExponent = kMaxPosition * kWordBits;

void RequireUpTo(std::int64_t largest, std::int64_t value) {
  if (value < -largest || value > largest) throw EOverflow();
}

// Two of these can be added without overflow.
constexpr bool HasRoom(std::uint64_t highest) noexcept {
  const std::uint64_t top_bits = highest >> (kWordBits - 2);
  return top_bits == 0 || top_bits == 3;
}

// a + b + carry. The carry becomes the one that is left.
constexpr std::uint64_t AddCarry(std::uint64_t a, std::uint64_t b, bool& carry) noexcept {
  std::uint64_t sum = 0;
  const bool first = __builtin_add_overflow(a, b, &sum);
  const bool second = __builtin_add_overflow(sum, std::uint64_t{carry}, &sum);
  carry = first || second;
  return sum;
}

}  // namespace

inline void FixedPoint::Reserve(std::int32_t first, std::int32_t end) {
  const std::size_t size = words_.Size();
  if (size == 0) position_ = first;
  const std::int32_t old_end = position_ + static_cast<std::int32_t>(size);
  if (size > 0 && !HasRoom(words_[size - 1])) end = std::max(end, old_end + 1);
  if (first < position_ || end > old_end) Grow(first, end);
}

void FixedPoint::Grow(std::int32_t first, std::int32_t end) {
  const std::size_t size = words_.Size();
  const std::int32_t old_end = position_ + static_cast<std::int32_t>(size);
  const bool negative = IsNegative();
  const auto below = static_cast<std::size_t>(std::max(position_ - first, 0));
  const auto above = static_cast<std::size_t>(std::max(end - old_end, 0));
  words_.Resize(below + size + above);
  std::uint64_t* const words = words_.Data();
  if (below > 0) {
    std::copy_backward(words, words + size, words + size + below);
    std::fill_n(words, below, 0);
    position_ = first;
  }
  std::fill_n(words + below + size, above, SignWord(negative));
}

void FixedPoint::Add(std::span<const std::uint64_t> magnitude, std::int64_t exponent,
                     bool negative) {
  while (!magnitude.empty() && magnitude.back() == 0) {
    magnitude = magnitude.first(magnitude.size() - 1);
  }
  if (magnitude.empty()) return;
  RequireUpTo(kMaxExponent, exponent);
  const auto first = static_cast<std::int32_t>(exponent >> 6);
  const int shift = static_cast<int>(exponent & 63);
  const int bits = shift + static_cast<int>(std::bit_width(magnitude.back()));
  const auto count = static_cast<std::int32_t>(magnitude.size());
  Reserve(first, first + count - 1 + (bits + 2 + kWordBits - 1) / kWordBits);

  // Subtracts as it adds: -x is ~x + 1, and the words above are those of a negative number.
  const std::uint64_t flip = SignWord(negative);
  std::uint64_t* const words = words_.Data() + (first - position_);
  const std::size_t size = words_.Size() - static_cast<std::size_t>(first - position_);
  bool carry = negative;
  std::uint64_t below = 0;
  std::size_t i = 0;
  for (; i < magnitude.size(); ++i) {
    const std::uint64_t word = shift == 0 ? magnitude[i] : magnitude[i] << shift | below;
    below = shift == 0 ? 0 : magnitude[i] >> (kWordBits - shift);
    words[i] = AddCarry(words[i], word ^ flip, carry);
  }
  if (i < size) {
    words[i] = AddCarry(words[i], below ^ flip, carry);
    ++i;
  }
  // Nothing is left to do where the sign and the carry cancel.
  for (; i < size && carry != negative; ++i) words[i] = AddCarry(words[i], flip, carry);
}

FixedPoint& FixedPoint::operator+=(const FixedPoint& other) {
  AddWords(other, false);
  return *this;
}

FixedPoint& FixedPoint::operator-=(const FixedPoint& other) {
  AddWords(other, true);
  return *this;
}

void FixedPoint::AddWords(const FixedPoint& other, bool negate) {
  const std::size_t count = other.words_.Size();
  if (count == 0) return;
  const std::uint64_t flip = SignWord(negate);
  const std::uint64_t extension = SignWord(other.IsNegative()) ^ flip;
  const bool room = HasRoom(other.words_[count - 1]);
  Reserve(other.position_, other.position_ + static_cast<std::int32_t>(count) + (room ? 0 : 1));
  std::size_t to = static_cast<std::size_t>(other.position_ - position_);
  bool carry = negate;
  for (std::size_t i = 0; i < count; ++i, ++to) {
    words_[to] = AddCarry(words_[to], other.words_[i] ^ flip, carry);
  }
  const bool unchanged = extension != 0;  // by this carry
  for (; to < words_.Size() && carry != unchanged; ++to) {
    words_[to] = AddCarry(words_[to], extension, carry);
  }
}

int FixedPoint::Sign() const {
  if (IsNegative()) return -1;
  return ShortestWords().words.empty() ? 0 : 1;
}

FixedPoint::Words FixedPoint::ShortestWords() const {
  std::span<const std::uint64_t> words = words_.View();
  std::int32_t position = position_;
  while (!words.empty() && words.front() == 0) {
    words = words.subspan(1);
    ++position;
  }
  if (words.empty()) return {};
  // The highest word is superfluous if it only repeats the sign of the one below.
  const std::uint64_t sign = SignWord(IsNegative());
  while (words.size() > 1 && words.back() == sign &&
         words[words.size() - 2] >> (kWordBits - 1) == (sign & 1)) {
    words = words.first(words.size() - 1);
  }
  return {position, words};
}

Dyadic FixedPoint::Value() const {
  const Words shortest = ShortestWords();
  if (shortest.words.empty()) return {};
  const std::int64_t exponent = std::int64_t{kWordBits} * shortest.position;
  if (!IsNegative()) return Dyadic(BigInteger::FromLimbs(shortest.words), exponent);
  Limbs magnitude(shortest.words);
  bool carry = true;
  for (std::size_t i = 0; i < magnitude.Size(); ++i) {
    magnitude[i] = AddCarry(~magnitude[i], 0, carry);
  }
  return Dyadic(BigInteger::FromLimbs(magnitude.View(), true), exponent);
}

FixedPoint FixedPoint::FromWords(const Words& words) {
  RequireUpTo(kMaxPosition, words.position);
  FixedPoint total;
  total.position_ = words.position;
  total.words_ = Limbs(words.words);
  const Words shortest = total.ShortestWords();
  FixedPoint result;
  result.position_ = shortest.position;
  result.words_ = Limbs(shortest.words);
  return result;
}

bool operator==(const FixedPoint& a, const FixedPoint& b) {
  const FixedPoint::Words x = a.ShortestWords();
  const FixedPoint::Words y = b.ShortestWords();
  return x.position == y.position && std::ranges::equal(x.words, y.words);
}

}  // namespace qorvex::exact
