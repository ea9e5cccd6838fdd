#include "qorvex/base/elementary/detail/wide256.h"

#include <algorithm>
#include <bit>

namespace qorvex::elementary {

namespace {

using Words = Wide256::Words;

// Brings the top bit of a mantissa to its place.
Wide256 Normalised256(Words words, std::int64_t exponent, bool negative) {
  int moved = 0;
  while (words[3] == 0 && moved < 4) {
    words = {0, words[0], words[1], words[2]};
    ++moved;
  }
  if (moved == 4) return {};
  const int zeros = std::countl_zero(words[3]);
  if (zeros > 0)
    for (std::size_t i = 3; i > 0; --i) words[i] = words[i] << zeros | words[i - 1] >> (64 - zeros);
  if (zeros > 0) words[0] <<= zeros;
  return {words, exponent - 64 * moved - zeros, negative};
}

// words / 2^count, cut off.
Words ShiftedRight(const Words& words, std::int64_t count) {
  Words shifted{};
  if (count >= 256) return shifted;
  const auto whole = static_cast<std::size_t>(count / 64);
  const int bits = static_cast<int>(count % 64);
  for (std::size_t i = 0; i + whole < 4; ++i) {
    shifted[i] = words[i + whole] >> bits;
    if (bits > 0 && i + whole + 1 < 4) shifted[i] |= words[i + whole + 1] << (64 - bits);
  }
  return shifted;
}

// sum += addend; returns the carry.
bool AddTo(Words& sum, const Words& addend) {
  UInt128 carry = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    carry += UInt128{sum[i]} + addend[i];
    sum[i] = Low(carry);
    carry >>= 64;
  }
  return carry != 0;
}

// difference -= subtrahend, modulo 2^256.
void SubtractFrom(Words& difference, const Words& subtrahend) {
  std::uint64_t borrow = 0;
  for (std::size_t i = 0; i < 4; ++i) {
    const UInt128 rest = UInt128{difference[i]} - subtrahend[i] - borrow;
    difference[i] = Low(rest);
    borrow = High(rest) & 1;
  }
}

bool IsLess(const Words& a, const Words& b) {
  return std::lexicographical_compare(a.rbegin(), a.rend(), b.rbegin(), b.rend());
}

}  // namespace

constinit const Wide256 kPi256{
    {0x020bbea63b139b22, 0x29024e088a67cc74, 0xc4c6628b80dc1cd1, 0xc90fdaa22168c234}, 1};
constinit const Wide256 kLn2Of256{
    {0x8a0d175b8baafa2b, 0x40f343267298b62d, 0xc9e3b39803f2f6af, 0xb17217f7d1cf79ab}, -1};

Wide256::Wide256(const Wide& x)
    : mantissa{0, 0, Low(x.mantissa), High(x.mantissa)},
      exponent(x.exponent),
      negative(x.negative) {}

Wide256::Wide256(std::int64_t x) {
  const auto bits = static_cast<std::uint64_t>(x);
  *this = Normalised256({0, 0, 0, x < 0 ? 0 - bits : bits}, 63, x < 0);
}

Wide Wide256::Leading() const {
  return {Join(mantissa[3], mantissa[2]), exponent, negative};
}

Wide256 ScaledBy(const Wide256& x, std::int64_t k) {
  return x.IsZero() ? x : Wide256{x.mantissa, x.exponent + k, x.negative};
}

Wide256 operator+(const Wide256& a, const Wide256& b) {
  if (b.IsZero()) return a;
  if (a.IsZero()) return b;
  const bool b_larger =
      a.exponent != b.exponent ? a.exponent < b.exponent : IsLess(a.mantissa, b.mantissa);
  const Wide256& large = b_larger ? b : a;
  const Wide256& small = b_larger ? a : b;
  const Words aligned = ShiftedRight(small.mantissa, large.exponent - small.exponent);
  Words sum = large.mantissa;
  if (large.negative != small.negative) {
    SubtractFrom(sum, aligned);
    return Normalised256(sum, large.exponent, large.negative);
  }
  if (!AddTo(sum, aligned)) return {sum, large.exponent, large.negative};
  sum = ShiftedRight(sum, 1);
  sum[3] |= kTopBit;
  return {sum, large.exponent + 1, large.negative};
}

Wide256 operator*(const Wide256& a, const Wide256& b) {
  if (a.IsZero() || b.IsZero()) return {};
  std::array<std::uint64_t, 8> product{};
  for (std::size_t i = 0; i < 4; ++i) {
    std::uint64_t carry = 0;
    for (std::size_t j = 0; j < 4; ++j) {
      const UInt128 part = Multiply(a.mantissa[i], b.mantissa[j]) + product[i + j] + carry;
      product[i + j] = Low(part);
      carry = High(part);
    }
    product[i + 4] = carry;
  }
  return Normalised256({product[4], product[5], product[6], product[7]},
                       a.exponent + b.exponent + 1, a.negative != b.negative);
}

// A quotient of 128 bits, and the quotient of what it leaves.
Wide256 operator/(const Wide256& a, const Wide256& b) {
  const Wide256 quotient = a.Leading() / b.Leading();
  return quotient + (a - quotient * b).Leading() / b.Leading();
}

Wide256 DividedBy(const Wide256& x, std::uint64_t divisor) {
  Words quotient{};
  UInt128 rest = 0;
  for (std::size_t i = 4; i-- > 0;) {
    const UInt128 part = rest << 64 | x.mantissa[i];
    quotient[i] = Low(part / divisor);
    rest = part % divisor;
  }
  // Another word, which normalising shifts in.
  const auto last = Low((rest << 64) / divisor);
  const int zeros = quotient[3] != 0 ? std::countl_zero(quotient[3]) : 64;
  Wide256 result = Normalised256(quotient, x.exponent, x.negative);
  if (zeros == 64) result.mantissa[0] = last;
  if (zeros > 0 && zeros < 64) result.mantissa[0] |= last >> (64 - zeros);
  return result;
}

std::int64_t NearestInteger(const Wide256& x) {
  if (x.IsZero() || x.exponent < -1) return 0;
  const Words doubled = ShiftedRight(x.mantissa, 254 - x.exponent);
  const auto magnitude = static_cast<std::int64_t>((doubled[0] + 1) / 2);
  return x.negative ? -magnitude : magnitude;
}

namespace {

// x = k ln 2 + y with |y| < 0.35, and e^y - 1.
struct ReducedExp {
  std::int64_t k;
  Wide256 expm1;
};
ReducedExp ReduceAndExpand(const Wide256& x) {
  constexpr Wide inverse_ln2{Join(0xb8aa3b295c17f0bb, 0xbe87fed0691d3e88), 0};
  const std::int64_t k = NearestInteger(x * inverse_ln2);
  // y = 2^8 r with |r| < 2^-9.5.
  constexpr int doublings = 8;
  const Wide256 r = ScaledBy(x - Wide256(k) * kLn2Of256, -doublings);
  // e^r - 1 by Taylor's series, whose terms after r^20 are below r 2^-254.
  constexpr int terms = 20;
  const Wide256 one = 1;
  Wide256 sum = one;
  for (int n = terms; n > 1; --n) sum = one + DividedBy(r * sum, static_cast<std::uint64_t>(n));
  sum = r * sum;
  // e^(2 r) - 1 = u (u + 2) for u = e^r - 1.
  const Wide256 two = 2;
  for (int i = 0; i < doublings; ++i) sum = sum * (sum + two);
  return {k, sum};
}

}  // namespace

Wide256 Exp(const Wide256& x) {
  const ReducedExp reduced = ReduceAndExpand(x);
  return ScaledBy(reduced.expm1 + 1, reduced.k);
}

Wide256 Expm1(const Wide256& x) {
  const ReducedExp reduced = ReduceAndExpand(x);
  return reduced.k == 0 ? reduced.expm1 : ScaledBy(reduced.expm1 + 1, reduced.k) - 1;
}

Binary80 NearestBits(const Wide256& x) noexcept {
  if (x.IsZero()) return SignedZero(false);
  // The middle of the last 56 bits.
  constexpr std::uint64_t unit = std::uint64_t{1} << 56;
  Words words = x.mantissa;
  std::int64_t exponent = x.exponent;
  if (AddTo(words, {unit / 2, 0, 0, 0})) {
    words = {0, 0, 0, kTopBit};
    ++exponent;
  }
  const bool is_rest = (words[0] / unit | words[1]) != 0;
  // One bit stands for all that follow.
  return NearestBits(Wide{Join(words[3], words[2] | (is_rest ? 1 : 0)), exponent, x.negative});
}

}  // namespace qorvex::elementary
