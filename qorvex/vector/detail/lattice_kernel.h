#pragma once

// Adds blocks of floating terms to a LatticeSum. Included by lattice_avx2.cpp and
// lattice_avx512.cpp only, after their operations on registers: a function cannot take the
// instructions that it may use from a template argument, so QORVEX_KERNEL says which. The terms are
// values and products of doubles and singles.

#include <cstdint>
#include <immintrin.h>
#include <optional>

#include "qorvex/vector/detail/lattice_sum.h"
#include "qorvex/vector/detail/ordered_terms.h"

namespace qorvex::inline QorvexVector::detail {
namespace {

// high + low is a term times the scale of the sum, but for the rounding of products, which
// kProductError covers. Exact terms have no low part.
struct ScaledTerms {
  Doubles high;
  Doubles low;
};

// Terms of extended precision are rounded up to three times, each time by at most 2^-64 of the
// term.
constexpr double kProductError = 0x1p-62;
// A low part is computed with an error of less than 2^-50 of its summands, plus 2^-50 from
// underflow. If the low parts of a block add up to less than kMostLow, their errors are less than
// kLowError.
constexpr double kMostLow = 0x1p30;
constexpr double kLowError = 0x1p-19;

template <class T>
QORVEX_KERNEL inline ScaledTerms ScaledAt(const Values<T>& terms, std::size_t i, Doubles scale) {
  return {Load(terms.x + i) * scale, Doubles{}};
}

QORVEX_KERNEL inline ScaledTerms ScaledProduct(Doubles x, Doubles y, Doubles scale) {
  const Doubles scaled_x = x * scale;
  const Doubles product = scaled_x * y;
  return {product, MultiplyAdd(scaled_x, y, -product)};
}

template <class T>
QORVEX_KERNEL inline ScaledTerms ScaledAt(const Squares<T>& terms, std::size_t i, Doubles scale) {
  const Doubles x = Load(terms.x + i);
  return ScaledProduct(x, x, scale);
}

template <class T>
QORVEX_KERNEL inline ScaledTerms ScaledAt(const Products<T>& terms, std::size_t i, Doubles scale) {
  return ScaledProduct(Load(terms.x + i), Load(terms.y + i), scale);
}

// (x - y - z)^2, where z is at most the last bit of y.
QORVEX_KERNEL inline ScaledTerms ScaledSquare(Doubles x, Doubles y, Doubles z, Doubles scale) {
  const Doubles high = x - y;
  const Doubles x_part = high + y;
  const Doubles low = ((x - x_part) - (y - (x_part - high))) - z;
  const Doubles scaled_high = high * scale;
  const Doubles square = scaled_high * high;
  const Doubles rest = MultiplyAdd(scaled_high, high, -square);
  return {square, MultiplyAdd(low * scale, (high + high) + low, rest)};
}

template <class T>
QORVEX_KERNEL inline ScaledTerms ScaledAt(const SquaredDifferences<T>& terms, std::size_t i,
                                          Doubles scale) {
  return ScaledSquare(Load(terms.x + i), Load(terms.y + i), Doubles{}, scale);
}

template <class T>
QORVEX_KERNEL inline ScaledTerms ScaledAt(const SquaredDeviations<T>& terms, std::size_t i,
                                          Doubles scale) {
  return ScaledSquare(Load(terms.x + i), Broadcast(terms.mean_high), Broadcast(terms.mean_low),
                      scale);
}

// The terms of a block whose quotient by the unit is a tie, exactly between two integers; those
// rounded to an odd integer, and those rounded upwards. Bit i is term i.
struct Ties {
  std::uint64_t at = 0;
  std::uint64_t odd = 0;
  std::uint64_t upwards = 0;
};

// What to add to the sum of the rounded terms, because ties must make the sum even. The carry-less
// product with ones gives the parity of all terms up to each, and thereby, for ties that were
// rounded as they stand, that of the sum since the tie before, which made it even.
QORVEX_KERNEL inline std::int64_t Correction(const Ties& ties, bool odd_sum) {
  const __m128i sums = _mm_clmulepi64_si128(_mm_cvtsi64_si128(static_cast<long long>(ties.odd)),
                                            _mm_set1_epi64x(-1), 0);
  const auto parities =
      static_cast<std::uint64_t>(_mm_cvtsi128_si64(sums)) ^ (odd_sum ? ~std::uint64_t{0} : 0);
  const std::uint64_t at_ties = _pext_u64(parities, ties.at);
  const std::uint64_t wrong = _pdep_u64(at_ties ^ (at_ties << 1), ties.at);
  return _mm_popcnt_u64(wrong & ~ties.upwards) - _mm_popcnt_u64(wrong & ties.upwards);
}

template <class Terms>
QORVEX_KERNEL Ties TiesOf(const Terms& terms, std::size_t first, Doubles scale) {
  Ties ties;
  for (std::size_t i = 0; i < LatticeSum::kBlock; i += kLanes) {
    const Rounded rounded = Round(ScaledAt(terms, first + i, scale).high);
    ties.at |= LanesAtHalf(rounded) << i;
    ties.odd |= OddLanes(rounded) << i;
    ties.upwards |= LanesRoundedUp(rounded) << i;
  }
  return ties;
}

template <class Terms>
QORVEX_KERNEL inline std::size_t AddBlocks(LatticeSum& result, const Terms& terms,
                                           std::size_t first, std::size_t blocks) {
  constexpr bool kExact = kExactTerms<Terms>;
  LatticeSum sum = result;
  const std::optional<double> factor = sum.Scale();
  if (!factor) return 0;
  const Doubles scale = Broadcast(*factor);
  std::size_t block = 0;
  for (; block < blocks; ++block, first += LatticeSum::kBlock) {
    UnitSum units;
    Doubles magnitudes[2] = {};
    Doubles lows = {};
    Doubles most_rest = {};
#pragma GCC unroll 16
    for (std::size_t i = 0; i < LatticeSum::kBlock; i += kLanes) {
      const ScaledTerms term = ScaledAt(terms, first + i, scale);
      const Rounded rounded = Round(term.high);
      units.Add(rounded);
      magnitudes[i / kLanes % 2] += Absolute(term.high);
      if constexpr (kExact) {
        most_rest = Greater(most_rest, Absolute(rounded.rest));
      } else {
        const Rounded rest = Round(rounded.rest + term.low);
        units.Add(rest);
        lows += Absolute(term.low);
        most_rest = Greater(most_rest, MultiplyAdd(Absolute(term.high), Broadcast(kProductError),
                                                   Absolute(rest.rest)));
      }
    }
    const double low = kExact ? 0 : Sum(lows);
    const double magnitude = Sum(magnitudes[0] + magnitudes[1]) + low;
    // Not if one of them is NaN.
    if (!(magnitude < 0x1p62 && low < kMostLow)) break;
    std::int64_t total = units.Total();
    if constexpr (kExact) {
      if (AnyAtLeast(most_rest, 0.5)) {
        total += Correction(TiesOf(terms, first, scale), sum.IsOdd());
      }
    } else {
      if (AnyAtLeast(most_rest, 0.5 - kLowError)) break;
    }
    // The factor covers the rounding of the sum of the magnitudes.
    constexpr double kAbove = 1 + 0x1p-40;
    const auto bound = static_cast<std::uint64_t>(static_cast<std::int64_t>(magnitude * kAbove));
    if (!sum.Add(total, bound + 2 * LatticeSum::kBlock)) break;
  }
  result = sum;
  return block;
}

}  // namespace
}  // namespace qorvex::inline QorvexVector::detail
