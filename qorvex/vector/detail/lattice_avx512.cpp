#include <cstdint>
#include <immintrin.h>

#include "qorvex/base/detail/mask_bits.h"
#include "qorvex/vector/detail/lattice_sum.h"
#include "qorvex/vector/detail/ordered_terms.h"

#define QORVEX_KERNEL QORVEX_AVX512

namespace qorvex::inline QorvexVector::detail {
namespace {

using Doubles = __m512d;
constexpr std::size_t kLanes = 8;

QORVEX_AVX512 inline Doubles Load(const double* from) {
  return _mm512_loadu_pd(from);
}
QORVEX_AVX512 inline Doubles Load(const float* from) {
  return _mm512_cvtps_pd(_mm256_loadu_ps(from));
}
QORVEX_AVX512 inline Doubles Broadcast(double x) {
  return _mm512_set1_pd(x);
}
QORVEX_AVX512 inline Doubles Absolute(Doubles x) {
  return _mm512_abs_pd(x);
}
QORVEX_AVX512 inline Doubles Greater(Doubles x, Doubles y) {
  return _mm512_max_pd(x, y);
}
QORVEX_AVX512 inline Doubles MultiplyAdd(Doubles x, Doubles y, Doubles z) {
  return _mm512_fmadd_pd(x, y, z);
}
QORVEX_AVX512 inline double Sum(Doubles x) {
  return _mm512_reduce_add_pd(x);
}
QORVEX_AVX512 inline bool AnyAtLeast(Doubles x, double limit) {
  return _mm512_cmp_pd_mask(x, Broadcast(limit), _CMP_GE_OQ) != 0;
}

// x rounded to an integer, ties to even, and what is left of it.
struct Rounded {
  __m512i units;
  Doubles rest;
};

QORVEX_AVX512 inline Rounded Round(Doubles x) {
  constexpr int kToNearest = _MM_FROUND_TO_NEAREST_INT | _MM_FROUND_NO_EXC;
  return {_mm512_cvt_roundpd_epi64(x, kToNearest), _mm512_reduce_pd(x, kToNearest)};
}

QORVEX_AVX512 inline std::uint64_t LanesAtHalf(const Rounded& x) {
  return MaskBits(_mm512_cmp_pd_mask(Absolute(x.rest), Broadcast(0.5), _CMP_EQ_OQ));
}
QORVEX_AVX512 inline std::uint64_t LanesRoundedUp(const Rounded& x) {
  return MaskBits(_mm512_movepi64_mask(_mm512_castpd_si512(x.rest)));
}
QORVEX_AVX512 inline std::uint64_t OddLanes(const Rounded& x) {
  return MaskBits(_mm512_test_epi64_mask(x.units, _mm512_set1_epi64(1)));
}

class UnitSum {
 public:
  QORVEX_AVX512 void Add(const Rounded& x) { sum_ = _mm512_add_epi64(sum_, x.units); }
  QORVEX_AVX512 std::int64_t Total() const { return _mm512_reduce_add_epi64(sum_); }

 private:
  __m512i sum_ = {};
};

}  // namespace
}  // namespace qorvex::inline QorvexVector::detail

#include "qorvex/vector/detail/lattice_kernel.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// Eight extended values.
struct Extendeds {
  __m512i mantissa;
  __m512i sign_and_exponent;
};

QORVEX_AVX512 inline Extendeds Load(const Extended* from) {
  const __m512i a = _mm512_loadu_si512(from);
  const __m512i b = _mm512_loadu_si512(from + 4);
  return {_mm512_permutex2var_epi64(a, _mm512_setr_epi64(0, 2, 4, 6, 8, 10, 12, 14), b),
          _mm512_permutex2var_epi64(a, _mm512_setr_epi64(1, 3, 5, 7, 9, 11, 13, 15), b)};
}

// Magnitudes of terms in units of the sum, rounded to integers, ties upwards.
struct RoundedExtendeds {
  __m512i units;
  __mmask8 ties;
  __mmask8 against;  // the terms with the other sign than the sum
  __mmask8 outside;  // the terms that are greater than the sum, or no numbers
};

QORVEX_AVX512 inline RoundedExtendeds Round(const Extendeds& x, __m512i sign_and_exponent) {
  const __m512i exponent_bits = _mm512_set1_epi64(0x7FFF);
  const __m512i top_bit = _mm512_set1_epi64(INT64_MIN);
  // Shifts by more than 63, or by less than 0, give 0.
  const __m512i shift = _mm512_sub_epi64(_mm512_and_si512(sign_and_exponent, exponent_bits),
                                         _mm512_and_si512(x.sign_and_exponent, exponent_bits));
  const __m512i rest =
      _mm512_sllv_epi64(x.mantissa, _mm512_sub_epi64(_mm512_set1_epi64(64), shift));
  const __m512i units = _mm512_srlv_epi64(x.mantissa, shift);
  const __mmask8 normal = _mm512_test_epi64_mask(x.sign_and_exponent, exponent_bits);
  return {_mm512_mask_add_epi64(units, _mm512_movepi64_mask(rest), units, _mm512_set1_epi64(1)),
          _mm512_cmpeq_epi64_mask(rest, top_bit),
          _mm512_test_epi64_mask(_mm512_xor_si512(x.sign_and_exponent, sign_and_exponent),
                                 _mm512_set1_epi64(0x8000)),
          static_cast<__mmask8>(_mm512_movepi64_mask(shift) |
                                _mm512_mask_testn_epi64_mask(normal, x.mantissa, top_bit))};
}

QORVEX_AVX512 Ties TiesOf(const Values<Extended>& terms, std::size_t first,
                          __m512i sign_and_exponent) {
  Ties ties;
  for (std::size_t i = 0; i < LatticeSum::kBlock; i += kLanes) {
    const RoundedExtendeds x = Round(Load(terms.x + first + i), sign_and_exponent);
    const __mmask8 odd = _mm512_test_epi64_mask(x.units, _mm512_set1_epi64(1));
    ties.at |= std::uint64_t{MaskBits(x.ties)} << i;
    ties.odd |= std::uint64_t{MaskBits(odd)} << i;
    ties.upwards |= (~std::uint64_t{MaskBits(x.against)} & 0xFF) << i;
  }
  return ties;
}

QORVEX_AVX512 std::size_t AddBlocks(LatticeSum& result, const Values<Extended>& terms,
                                    std::size_t first, std::size_t blocks) {
  LatticeSum sum = result;
  if (!sum.IsNormal() || sum.Exponent() < LatticeSum::kLeastExponent) return 0;
  const __m512i sign_and_exponent =
      _mm512_set1_epi64(sum.Exponent() | (sum.IsNegative() ? 0x8000 : 0));
  std::size_t block = 0;
  for (; block < blocks; ++block, first += LatticeSum::kBlock) {
    __m512i units = {};
    __m512i magnitudes = {};
    unsigned ties = 0;
    unsigned outside = 0;
#pragma GCC unroll 8
    for (std::size_t i = 0; i < LatticeSum::kBlock; i += kLanes) {
      const RoundedExtendeds x = Round(Load(terms.x + first + i), sign_and_exponent);
      units = _mm512_add_epi64(
          units, _mm512_mask_sub_epi64(x.units, x.against, _mm512_setzero_si512(), x.units));
      magnitudes =
          _mm512_add_epi64(magnitudes, _mm512_srli_epi64(x.units, LatticeSum::kMagnitudeShift));
      ties |= MaskBits(x.ties);
      outside |= MaskBits(x.outside);
    }
    const auto magnitude = static_cast<std::uint64_t>(_mm512_reduce_add_epi64(magnitudes));
    if (outside != 0 || magnitude > LatticeSum::kMostShifted) break;
    std::int64_t total = _mm512_reduce_add_epi64(units);
    if (ties != 0) total += Correction(TiesOf(terms, first, sign_and_exponent), sum.IsOdd());
    const std::uint64_t bound = (magnitude + LatticeSum::kBlock + 1) << LatticeSum::kMagnitudeShift;
    if (!sum.Add(total, bound)) break;
  }
  result = sum;
  return block;
}

}  // namespace

template <class Terms>
std::size_t AddBlocksAvx512(LatticeSum& sum, const Terms& terms, std::size_t first,
                            std::size_t blocks) noexcept {
  return AddBlocks(sum, terms, first, blocks);
}

#define QORVEX_INSTANTIATE(Terms) \
  template std::size_t AddBlocksAvx512(LatticeSum&, const Terms&, std::size_t, std::size_t);
QORVEX_FOR_LATTICE_TERMS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

}  // namespace qorvex::inline QorvexVector::detail
