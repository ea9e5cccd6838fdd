#include "qorvex/vector/allocation.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <compare>
#include <cstddef>
#include <limits>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

#include "qorvex/base/detail/binary_parts.h"
#include "qorvex/base/errors.h"
#include "qorvex/vector/detail/checks.h"

namespace qorvex::inline QorvexFinVector {

namespace {

using QorvexGlobals::detail::BinaryParts;
using QorvexGlobals::detail::PartsOf;
using UInt128 = unsigned __int128;

// Large integers of a fixed number of words, the least significant word first.
using Words = std::span<std::uint64_t>;
using ConstWords = std::span<const std::uint64_t>;

// number += value * 2^shift
void AddShifted(Words number, UInt128 value, std::size_t shift) {
  const std::size_t bits = shift % 64;
  const UInt128 low = value << bits;
  const UInt128 high = bits == 0 ? 0 : value >> (128 - bits);
  UInt128 carry = 0;
  std::size_t i = shift / 64;
  for (const UInt128 addend : {low & ~std::uint64_t{0}, low >> 64, high}) {
    carry += addend + number[i];
    number[i++] = static_cast<std::uint64_t>(carry);
    carry >>= 64;
  }
  for (; carry != 0; ++i) carry = ++number[i] == 0 ? 1 : 0;
}

// number -= factor * other, which is not larger than the number.
void SubtractProduct(Words number, std::uint64_t factor, ConstWords other) {
  UInt128 borrow = 0;
  for (std::size_t i = 0; i < number.size(); ++i) {
    if (i < other.size()) borrow += UInt128{factor} * other[i];
    const auto subtrahend = static_cast<std::uint64_t>(borrow);
    borrow = (borrow >> 64) + (number[i] < subtrahend ? 1 : 0);
    number[i] -= subtrahend;
  }
}

// For numbers with the same number of words.
std::strong_ordering Compare(ConstWords x, ConstWords y) {
  return std::lexicographical_compare_three_way(x.rbegin(), x.rend(), y.rbegin(), y.rend());
}

// number / 2^shift, without the bits above 2^128.
UInt128 Shifted(ConstWords number, std::size_t shift) {
  const std::size_t first = shift / 64;
  const std::size_t bits = shift % 64;
  const auto word = [&](std::size_t i) { return UInt128{i < number.size() ? number[i] : 0}; };
  const UInt128 low = word(first) | word(first + 1) << 64;
  return bits == 0 ? low : low >> bits | word(first + 2) << (128 - bits);
}

// Adds 1 to a number of shares: those with the largest remainders, and of equal ones the first.
void AddToLargest(Words shares, std::size_t count, ConstWords remainders) {
  const std::size_t words = remainders.size() / shares.size();
  std::vector<std::size_t> order(shares.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  const auto last = order.begin() + static_cast<std::ptrdiff_t>(count);
  std::ranges::nth_element(order, last, [=](std::size_t i, std::size_t j) {
    const std::strong_ordering comparison =
        Compare(remainders.subspan(i * words, words), remainders.subspan(j * words, words));
    return comparison != 0 ? comparison > 0 : i < j;
  });
  for (auto i = order.begin(); i != last; ++i) ++shares[*i];
}

// The magnitude in proportion to the weights, each share rounded down, and what that leaves of the
// magnitude added to the shares with the largest remainders.
std::vector<std::uint64_t> SharesOf(std::uint64_t magnitude, std::span<const BinaryParts> weights) {
  const std::size_t n = weights.size();
  int lowest = std::numeric_limits<int>::max();
  int highest = std::numeric_limits<int>::min();
  for (const BinaryParts& weight : weights) {
    if (weight.significand == 0) continue;
    lowest = std::min(lowest, weight.exponent);
    highest = std::max(highest, weight.exponent);
  }
  if (lowest > highest) RaiseMathError(rsWeightsZero);
  const auto shift_of = [lowest](const BinaryParts& weight) {
    return weight.significand == 0 ? 0 : static_cast<std::size_t>(weight.exponent - lowest);
  };

  // All numbers are integers in units of 2^lowest. The largest is the product of the magnitude and
  // the total; AddShifted needs two more words.
  const auto range = static_cast<std::size_t>(highest - lowest);
  const std::size_t size = (range + 128 + static_cast<std::size_t>(std::bit_width(n))) / 64 + 3;
  std::vector<std::uint64_t> total(size);
  for (const BinaryParts& weight : weights) AddShifted(total, weight.significand, shift_of(weight));
  std::size_t used = size;
  while (total[used - 1] == 0) --used;
  const std::size_t bits = 64 * used - static_cast<std::size_t>(std::countl_zero(total[used - 1]));
  // The leading 64 bits of the total, rounded up, give quotients that are too small by a few units
  // at most.
  const std::size_t cut = bits > 64 ? bits - 64 : 0;
  const UInt128 divisor = Shifted(total, cut) + (cut > 0 ? 1 : 0);

  std::vector<std::uint64_t> shares(n);
  std::vector<std::uint64_t> remainders(n * used);
  std::vector<std::uint64_t> dividend(size);
  std::uint64_t left = magnitude;
  for (std::size_t i = 0; i < n; ++i) {
    std::ranges::fill(dividend, 0);
    AddShifted(dividend, UInt128{magnitude} * weights[i].significand, shift_of(weights[i]));
    shares[i] = static_cast<std::uint64_t>(Shifted(dividend, cut) / divisor);
    SubtractProduct(dividend, shares[i], total);
    for (; Compare(dividend, total) >= 0; ++shares[i]) SubtractProduct(dividend, 1, total);
    std::copy_n(dividend.begin(), used, remainders.begin() + static_cast<std::ptrdiff_t>(i * used));
    left -= shares[i];
  }

  AddToLargest(shares, left, remainders);
  return shares;
}

template <AnyElement Weight>
BinaryParts PartsOfWeight(Weight weight) {
  if constexpr (FloatElement<Weight>) {
    QorvexVector::detail::RequireWeight(weight);
    return PartsOf(Extended{weight});
  } else if constexpr (CurrencyElement<Weight>) {
    return PartsOfWeight(std::int64_t{weight.stored()});
  } else {
    if (std::cmp_less(weight, 0)) RaiseMathError(rsInvalidWeight);
    return PartsOf(std::int64_t{weight});
  }
}

}  // namespace

template <CurrencyElement C, AnyElement Weight>
TQorVector<C> Allocate(C amount, VectorView<Weight> weights) {
  using Stored = typename C::StoredType;
  if (weights.empty()) RaiseMathError(rsVectorIsEmpty);
  std::vector<BinaryParts> parts_of_weights(weights.size());
  std::ranges::transform(weights, parts_of_weights.begin(), PartsOfWeight<Weight>);
  const std::vector<std::uint64_t> shares =
      SharesOf(PartsOf(std::int64_t{amount.stored()}).significand, parts_of_weights);
  auto parts = TQorVector<C>::ForOverwrite(shares.size());
  std::ranges::transform(shares, parts.begin(), [amount](std::uint64_t share) {
    return C(static_cast<Stored>(amount.stored() < 0 ? 0 - share : share));
  });
  return parts;
}

#define QORVEX_INSTANTIATE(Weight)                                                        \
  template TQorCurrencyVector Allocate<Currency, Weight>(Currency, VectorView<Weight>);   \
  template TQorCurrVector Allocate<QorCurrency, Weight>(QorCurrency, VectorView<Weight>); \
  template TQorLongCurrVector Allocate<QorLongCurrency, Weight>(QorLongCurrency,          \
                                                                VectorView<Weight>);
QORVEX_FOR_ALL_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexFinVector
