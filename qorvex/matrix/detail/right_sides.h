#pragma once

// The right-hand sides of linear systems, and the sums of products that solving them takes.
//
// Each addition to a sum has to wait for the one before. So four right-hand sides are solved at a
// time, whose sums are independent. Each sum still adds its products one by one, in the same order.

#include <bit>
#include <cstddef>
#include <cstdint>

#include "qorvex/base/special/extended_pair.h"
#include "qorvex/matrix/detail/split_pairs.h"

namespace qorvex::inline QorvexMatrix::detail {

// An element of the solutions of four right-hand sides. Pair is SplitPair or PlainPair.
template <class Pair>
struct FourSides {
  static constexpr std::size_t kCount = 2 * kPair;
  Pair pairs[2];

  // Returns false if a value cannot be stored exactly.
  [[nodiscard]] bool Store(const Extended* values) noexcept {
    return pairs[0].Store(values) && pairs[1].Store(values + kPair);
  }
};

// The same for a single right-hand side.
struct OneSide {
  static constexpr std::size_t kCount = 1;
  Extended value;

  [[nodiscard]] bool Store(const Extended* values) noexcept {
    value = *values;
    return true;
  }
};

// sums[side] += factors[k] * x[k] of that side for k ascending.
template <class Pair>
inline void AddProducts(Extended* sums, const Extended* factors, const FourSides<Pair>* x,
                        std::size_t count) noexcept {
  Extended sum0 = sums[0];
  Extended sum1 = sums[1];
  Extended sum2 = sums[2];
  Extended sum3 = sums[3];
  for (std::size_t k = 0; k < count; ++k) {
    const Extended factor = factors[k];
    sum0 += x[k].pairs[0][0] * factor;
    sum1 += x[k].pairs[0][1] * factor;
    sum2 += x[k].pairs[1][0] * factor;
    sum3 += x[k].pairs[1][1] * factor;
  }
  sums[0] = sum0;
  sums[1] = sum1;
  sums[2] = sum2;
  sums[3] = sum3;
}

inline void AddProducts(Extended* sum, const Extended* factors, const OneSide* x,
                        std::size_t count) noexcept {
  for (std::size_t k = 0; k < count; ++k) *sum += x[k].value * factors[k];
}

// A factor as special::ExactProduct splits it: two numbers of 32 bits each.
struct Halves {
  double high;
  double low;

  // Returns false for values other than zero whose magnitude is below 2^-900 or from 2^1000 on, and
  // for NaN.
  [[nodiscard]] bool Store(Extended x) noexcept {
    constexpr Extended splitter = 0x1p32L + 1;
    const Extended scaled = splitter * x;
    const Extended upper = scaled - (scaled - x);
    high = static_cast<double>(upper);
    low = static_cast<double>(x - upper);
    const std::uint64_t exponent = std::bit_cast<std::uint64_t>(high) >> 52U & 0x7FFU;
    return exponent - (1023U - 900U) < 1900U || x == 0;
  }
};

// sum += a[j] * x[j] for j ascending; the errors of the products and the sums are added to errors.
// The same operations as those of special::ExactProduct and special::ExactSum, with the factors
// split beforehand. They are volatile so that the compiler reloads them: kept in registers, of
// which there are eight, they would displace the sums.
inline void AddExactProducts(Extended& sum, Extended& errors, const volatile Halves* a,
                             const volatile Halves* x, std::size_t count) noexcept {
  Extended total = sum;
  Extended total_errors = errors;
  for (std::size_t j = 0; j < count; ++j) {
    const Extended product =
        (Extended(a[j].high) + Extended(a[j].low)) * (Extended(x[j].high) + Extended(x[j].low));
    Extended error = product - Extended(a[j].high) * Extended(x[j].high);
    error -= Extended(a[j].low) * Extended(x[j].high);
    error -= Extended(a[j].high) * Extended(x[j].low);
    error = Extended(a[j].low) * Extended(x[j].low) - error;
    const special::ExtendedPair partial = special::ExactSum(total, product);
    total = partial.hi;
    total_errors += partial.lo + error;
  }
  sum = total;
  errors = total_errors;
}

}  // namespace qorvex::inline QorvexMatrix::detail
