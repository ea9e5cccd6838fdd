#include "qorvex/base/exact/big_integer.h"

#include <algorithm>
#include <bit>

namespace qorvex::exact {

namespace {

__extension__ typedef unsigned __int128 DoubleLimb;

std::strong_ordering CompareMagnitudes(const Limbs& a, const Limbs& b) {
  if (a.Size() != b.Size()) return a.Size() <=> b.Size();
  for (std::size_t i = a.Size(); i-- > 0;) {
    if (a[i] != b[i]) return a[i] <=> b[i];
  }
  return std::strong_ordering::equal;
}

// a += b
void AddMagnitude(Limbs& a, const Limbs& b) {
  const std::size_t size = b.Size();
  if (a.Size() < size) a.Resize(size);
  std::uint64_t carry = 0;
  std::size_t i = 0;
  for (; i < size; ++i) {
    const DoubleLimb sum = DoubleLimb{a[i]} + b[i] + carry;
    a[i] = static_cast<std::uint64_t>(sum);
    carry = static_cast<std::uint64_t>(sum >> 64);
  }
  for (; carry != 0 && i < a.Size(); ++i) carry = ++a[i] == 0 ? 1 : 0;
  if (carry != 0) {
    a.Resize(i + 1);
    a[i] = carry;
  }
}

// result = larger - smaller. The result may be either of them.
void SubtractMagnitude(const Limbs& larger, const Limbs& smaller, Limbs& result) {
  const std::size_t size = larger.Size();
  const std::size_t common = smaller.Size();
  if (result.Size() < size) result.Resize(size);
  std::uint64_t borrow = 0;
  for (std::size_t i = 0; i < size; ++i) {
    const DoubleLimb difference = DoubleLimb{larger[i]} - (i < common ? smaller[i] : 0) - borrow;
    result[i] = static_cast<std::uint64_t>(difference);
    borrow = static_cast<std::uint64_t>(difference >> 64) & 1;
  }
  result.Trim();
}

}  // namespace

BigInteger BigInteger::FromLimbs(std::span<const std::uint64_t> magnitude, bool negative) {
  BigInteger result;
  result.limbs_ = Limbs(magnitude);
  result.limbs_.Trim();
  result.negative_ = negative;
  return result;
}

BigInteger BigInteger::PowerOfTen(unsigned exponent) {
  // 10^19 is the largest power in a limb.
  BigInteger result = 1;
  for (; exponent >= 19; exponent -= 19) result *= BigInteger(10000000000000000000U);
  std::uint64_t rest = 1;
  for (; exponent > 0; --exponent) rest *= 10;
  return result *= BigInteger(rest);
}

std::size_t BigInteger::BitLength() const {
  const std::size_t size = limbs_.Size();
  return size == 0 ? 0 : 64 * size - static_cast<std::size_t>(std::countl_zero(limbs_[size - 1]));
}

std::size_t BigInteger::TrailingZeros() const {
  if (limbs_.Size() == 0) return 0;
  std::size_t i = 0;
  while (limbs_[i] == 0) ++i;
  return 64 * i + static_cast<std::size_t>(std::countr_zero(limbs_[i]));
}

BigInteger BigInteger::operator-() const {
  BigInteger result = *this;
  result.negative_ = !negative_;
  return result;
}

void BigInteger::Add(const BigInteger& b, bool negate) {
  const bool b_negative = b.negative_ != negate;
  if (negative_ == b_negative) {
    AddMagnitude(limbs_, b.limbs_);
  } else if (CompareMagnitudes(limbs_, b.limbs_) >= 0) {
    SubtractMagnitude(limbs_, b.limbs_, limbs_);
  } else {
    SubtractMagnitude(b.limbs_, limbs_, limbs_);
    negative_ = b_negative;
  }
}

BigInteger& BigInteger::operator+=(const BigInteger& other) {
  Add(other, false);
  return *this;
}

BigInteger& BigInteger::operator-=(const BigInteger& other) {
  Add(other, true);
  return *this;
}

BigInteger operator*(const BigInteger& a, const BigInteger& b) {
  BigInteger result;
  const std::size_t a_size = a.limbs_.Size();
  const std::size_t b_size = b.limbs_.Size();
  if (a_size == 0 || b_size == 0) return result;
  result.limbs_.Resize(a_size + b_size);
  std::uint64_t* const product = result.limbs_.Data();
  const std::uint64_t* const b_limbs = b.limbs_.Data();
  for (std::size_t i = 0; i < a_size; ++i) {
    const std::uint64_t factor = a.limbs_[i];
    std::uint64_t carry = 0;
    for (std::size_t j = 0; j < b_size; ++j) {
      const DoubleLimb term = DoubleLimb{factor} * b_limbs[j] + product[i + j] + carry;
      product[i + j] = static_cast<std::uint64_t>(term);
      carry = static_cast<std::uint64_t>(term >> 64);
    }
    product[i + b_size] = carry;
  }
  result.limbs_.Trim();
  result.negative_ = a.negative_ != b.negative_;
  return result;
}

BigInteger& BigInteger::operator<<=(std::size_t count) {
  const std::size_t size = limbs_.Size();
  if (size == 0 || count == 0) return *this;
  const std::size_t whole = count / 64;
  const std::size_t bits = count % 64;
  limbs_.Resize(size + whole + 1);
  std::uint64_t* const limbs = limbs_.Data();
  for (std::size_t i = size + 1; i-- > 0;) {
    const std::uint64_t upper = i < size ? limbs[i] << bits : 0;
    const std::uint64_t lower = bits > 0 && i > 0 ? limbs[i - 1] >> (64 - bits) : 0;
    limbs[i + whole] = upper | lower;
  }
  std::fill_n(limbs, whole, 0);
  limbs_.Trim();
  return *this;
}

BigInteger& BigInteger::operator>>=(std::size_t count) {
  const std::size_t size = limbs_.Size();
  const std::size_t whole = std::min(count / 64, size);
  const std::size_t bits = count % 64;
  std::uint64_t* const limbs = limbs_.Data();
  for (std::size_t i = whole; i < size; ++i) {
    const std::uint64_t upper = bits > 0 && i + 1 < size ? limbs[i + 1] << (64 - bits) : 0;
    limbs[i - whole] = limbs[i] >> bits | upper;
  }
  limbs_.Resize(size - whole);
  limbs_.Trim();
  return *this;
}

bool operator==(const BigInteger& a, const BigInteger& b) {
  return (a <=> b) == 0;
}

std::strong_ordering operator<=>(const BigInteger& a, const BigInteger& b) {
  if (a.Sign() != b.Sign()) return a.Sign() <=> b.Sign();
  return a.Sign() < 0 ? CompareMagnitudes(b.limbs_, a.limbs_)
                      : CompareMagnitudes(a.limbs_, b.limbs_);
}

}  // namespace qorvex::exact
