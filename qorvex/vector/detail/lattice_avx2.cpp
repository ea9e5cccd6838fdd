#include <cstdint>
#include <cstring>
#include <immintrin.h>

#include "qorvex/vector/detail/lattice_sum.h"
#include "qorvex/vector/detail/ordered_terms.h"

#define QORVEX_KERNEL QORVEX_AVX2

namespace qorvex::inline QorvexVector::detail {
namespace {

using Doubles = __m256d;
constexpr std::size_t kLanes = 4;

QORVEX_AVX2 inline Doubles Load(const double* from) {
  return _mm256_loadu_pd(from);
}
QORVEX_AVX2 inline Doubles Load(const float* from) {
  return _mm256_cvtps_pd(_mm_loadu_ps(from));
}
QORVEX_AVX2 inline Doubles Broadcast(double x) {
  return _mm256_set1_pd(x);
}
QORVEX_AVX2 inline Doubles Absolute(Doubles x) {
  return _mm256_andnot_pd(Broadcast(-0.0), x);
}
QORVEX_AVX2 inline Doubles Greater(Doubles x, Doubles y) {
  return _mm256_max_pd(x, y);
}
QORVEX_AVX2 inline Doubles MultiplyAdd(Doubles x, Doubles y, Doubles z) {
  return _mm256_fmadd_pd(x, y, z);
}
QORVEX_AVX2 inline double Sum(Doubles x) {
  double lanes[kLanes];
  std::memcpy(lanes, &x, sizeof lanes);
  return (lanes[0] + lanes[1]) + (lanes[2] + lanes[3]);
}
QORVEX_AVX2 inline std::int64_t Sum(__m256i x) {
  std::int64_t lanes[kLanes];
  std::memcpy(lanes, &x, sizeof lanes);
  return (lanes[0] + lanes[1]) + (lanes[2] + lanes[3]);
}
QORVEX_AVX2 inline std::uint64_t Lanes(Doubles mask) {
  return static_cast<std::uint64_t>(_mm256_movemask_pd(mask));
}
QORVEX_AVX2 inline std::uint64_t Lanes(__m256i mask) {
  return Lanes(_mm256_castsi256_pd(mask));
}
QORVEX_AVX2 inline bool AnyAtLeast(Doubles x, double limit) {
  return Lanes(_mm256_cmp_pd(x, Broadcast(limit), _CMP_GE_OQ)) != 0;
}

// 1.5 * 2^52 and 1.5 * 2^64: sums with smaller numbers are rounded to multiples of 1 and of 2^12.
constexpr double kUnits = 0x1.8p52;
constexpr double kThousands = 0x1.8p64;

// x rounded to an integer, ties to even: `thousands`, a multiple of 2^12, plus `units`, which has
// kUnits added to it; and what is left of x. For |x| < 2^63.
struct Rounded {
  Doubles thousands;
  Doubles units;
  Doubles rest;
};

QORVEX_AVX2 inline Rounded Round(Doubles x) {
  const Doubles thousands = (x + Broadcast(kThousands)) - Broadcast(kThousands);
  const Doubles low = x - thousands;
  const Doubles units = low + Broadcast(kUnits);
  return {thousands, units, low - (units - Broadcast(kUnits))};
}

QORVEX_AVX2 inline std::uint64_t LanesAtHalf(const Rounded& x) {
  return Lanes(_mm256_cmp_pd(Absolute(x.rest), Broadcast(0.5), _CMP_EQ_OQ));
}
QORVEX_AVX2 inline std::uint64_t LanesRoundedUp(const Rounded& x) {
  return Lanes(x.rest);
}
QORVEX_AVX2 inline std::uint64_t OddLanes(const Rounded& x) {
  return Lanes(_mm256_slli_epi64(_mm256_castpd_si256(x.units), 63));
}

class UnitSum {
 public:
  QORVEX_AVX2 void Add(const Rounded& x) {
    thousands_ += x.thousands;
    units_ = _mm256_add_epi64(units_, _mm256_sub_epi64(_mm256_castpd_si256(x.units),
                                                       _mm256_castpd_si256(Broadcast(kUnits))));
  }
  QORVEX_AVX2 std::int64_t Total() const {
    return static_cast<std::int64_t>(Sum(thousands_)) + Sum(units_);
  }

 private:
  Doubles thousands_ = {};
  __m256i units_ = {};
};

}  // namespace
}  // namespace qorvex::inline QorvexVector::detail

#include "qorvex/vector/detail/lattice_kernel.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// Four extended values.
struct Extendeds {
  __m256i mantissa;
  __m256i sign_and_exponent;
};

QORVEX_AVX2 inline Extendeds Load(const Extended* from) {
  const auto pair = [from](int first) QORVEX_AVX2 {
    const auto* const values = reinterpret_cast<const __m128i*>(from) + first;
    return _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(values)),
                                   _mm_loadu_si128(values + 2), 1);
  };
  const __m256i even = pair(0);
  const __m256i odd = pair(1);
  return {_mm256_unpacklo_epi64(even, odd), _mm256_unpackhi_epi64(even, odd)};
}

// Magnitudes of terms in units of the sum, rounded to integers, ties upwards. The others are masks.
struct RoundedExtendeds {
  __m256i units;
  __m256i ties;
  __m256i against;  // the terms with the other sign than the sum
  __m256i outside;  // the terms that are greater than the sum, or no numbers
};

QORVEX_AVX2 inline RoundedExtendeds Round(const Extendeds& x, __m256i sign_and_exponent) {
  const __m256i zero = _mm256_setzero_si256();
  const __m256i exponent_bits = _mm256_set1_epi64x(0x7FFF);
  const __m256i top_bit = _mm256_set1_epi64x(INT64_MIN);
  // Shifts by more than 63, or by less than 0, give 0.
  const __m256i exponent = _mm256_and_si256(x.sign_and_exponent, exponent_bits);
  const __m256i shift =
      _mm256_sub_epi64(_mm256_and_si256(sign_and_exponent, exponent_bits), exponent);
  const __m256i rest =
      _mm256_sllv_epi64(x.mantissa, _mm256_sub_epi64(_mm256_set1_epi64x(64), shift));
  const __m256i units = _mm256_srlv_epi64(x.mantissa, shift);
  const __m256i against =
      _mm256_slli_epi64(_mm256_xor_si256(x.sign_and_exponent, sign_and_exponent), 48);
  return {
      _mm256_add_epi64(units, _mm256_srli_epi64(rest, 63)), _mm256_cmpeq_epi64(rest, top_bit),
      _mm256_cmpgt_epi64(zero, against),
      _mm256_or_si256(shift, _mm256_andnot_si256(x.mantissa, _mm256_cmpgt_epi64(exponent, zero)))};
}

QORVEX_AVX2 Ties TiesOf(const Values<Extended>& terms, std::size_t first,
                        __m256i sign_and_exponent) {
  Ties ties;
  for (std::size_t i = 0; i < LatticeSum::kBlock; i += kLanes) {
    const RoundedExtendeds x = Round(Load(terms.x + first + i), sign_and_exponent);
    ties.at |= Lanes(x.ties) << i;
    ties.odd |= Lanes(_mm256_slli_epi64(x.units, 63)) << i;
    ties.upwards |= (~Lanes(x.against) & 0xF) << i;
  }
  return ties;
}

QORVEX_AVX2 std::size_t AddBlocks(LatticeSum& result, const Values<Extended>& terms,
                                  std::size_t first, std::size_t blocks) {
  LatticeSum sum = result;
  if (!sum.IsNormal() || sum.Exponent() < LatticeSum::kLeastExponent) return 0;
  const __m256i sign_and_exponent =
      _mm256_set1_epi64x(sum.Exponent() | (sum.IsNegative() ? 0x8000 : 0));
  std::size_t block = 0;
  for (; block < blocks; ++block, first += LatticeSum::kBlock) {
    __m256i units = {};
    __m256i magnitudes = {};
    __m256i ties = {};
    __m256i outside = {};
#pragma GCC unroll 4
    for (std::size_t i = 0; i < LatticeSum::kBlock; i += kLanes) {
      const RoundedExtendeds x = Round(Load(terms.x + first + i), sign_and_exponent);
      // -x is ~x + 1.
      units = _mm256_add_epi64(units,
                               _mm256_sub_epi64(_mm256_xor_si256(x.units, x.against), x.against));
      magnitudes =
          _mm256_add_epi64(magnitudes, _mm256_srli_epi64(x.units, LatticeSum::kMagnitudeShift));
      ties = _mm256_or_si256(ties, x.ties);
      outside = _mm256_or_si256(outside, x.outside);
    }
    const auto magnitude = static_cast<std::uint64_t>(Sum(magnitudes));
    if (Lanes(outside) != 0 || magnitude > LatticeSum::kMostShifted) break;
    std::int64_t total = Sum(units);
    if (Lanes(ties) != 0) total += Correction(TiesOf(terms, first, sign_and_exponent), sum.IsOdd());
    const std::uint64_t bound = (magnitude + LatticeSum::kBlock + 1) << LatticeSum::kMagnitudeShift;
    if (!sum.Add(total, bound)) break;
  }
  result = sum;
  return block;
}

}  // namespace

template <class Terms>
std::size_t AddBlocksAvx2(LatticeSum& sum, const Terms& terms, std::size_t first,
                          std::size_t blocks) noexcept {
  return AddBlocks(sum, terms, first, blocks);
}

#define QORVEX_INSTANTIATE(Terms) \
  template std::size_t AddBlocksAvx2(LatticeSum&, const Terms&, std::size_t, std::size_t);
QORVEX_FOR_LATTICE_TERMS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector::detail
