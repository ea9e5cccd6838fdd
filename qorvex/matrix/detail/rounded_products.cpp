#include "qorvex/matrix/detail/rounded_products.h"

#include <bit>
#include <cstdint>
#include <cstring>
#include <immintrin.h>
#include <limits>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/base/detail/mask_bits.h"

namespace qorvex::inline QorvexMatrix::detail {

namespace {

constexpr std::size_t kEight = 8;

// Not inlined, because x87 loops are slow in functions for other instructions.
template <class T>
[[gnu::noinline]] void AddInExtended(T* target, const T* source, std::size_t count,
                                     T factor) noexcept {
  AddElements(target, source, count, static_cast<Extended>(factor));
}

// The same for the elements whose bits are set.
template <class T>
[[gnu::noinline]] void AddSelectedInExtended(T* target, const T* source, unsigned selected,
                                             T factor) noexcept {
  for (; selected != 0; selected &= selected - 1) {
    const int i = std::countr_zero(selected);
    AddElements(target + i, source + i, 1, static_cast<Extended>(factor));
  }
}

// Doubles. Let x be the exact value of a * k + c. A fused multiply-add yields u, which is x rounded
// once. The result required is x rounded to extended precision on the way, product and sum, and can
// only differ from u if x is almost halfway between u and another double. So the rest x - u is
// computed:
//
//   d = c - u and its error e (Knuth's TwoSum); rest = (a * k + d) + e.
//
// Its own error is negligible unless u is less than 2^-990 or so. The two roundings to extended
// precision change x by no more than 2^-64 (|a * k| + |x|), where |a * k| is about |d| and |x|
// about |u|. If u plus the rest still rounds to u when the rest is increased by more than that, u
// is the result. The margin for the product is twice as large as it must be, because below a power
// of two the distance between doubles is half of that above. That for the sum is a share of the
// rest: near halfway the rest is at least some 2^-54 |u|, so that 2^-10 of it exceeds 2^-64 |x|.
//
// Elements that fail the test, about one in 500, are computed in extended precision. So are NaN and
// infinities, which fail it because inf - inf is NaN.
constexpr double kProductMargin = 0x1.1p-63;
constexpr double kSumMargin = 1 + 0x1.1p-10;
// Bits of the exponent, of which numbers from 2^-991 on have at least one.
constexpr std::int64_t kExponentBits = 0x7E00'0000'0000'0000;

// Computes eight elements of the target.
[[gnu::always_inline]] QORVEX_AVX512 inline void AddEight(double* result, const double* target,
                                                          const double* source, double factor) {
  const __m512d k = _mm512_set1_pd(factor);
  const __m512d a = _mm512_loadu_pd(source);
  const __m512d c = _mm512_loadu_pd(target);
  const __m512d u = _mm512_fmadd_pd(a, k, c);
  const __m512d d = _mm512_sub_pd(c, u);
  const __m512d minus_u = _mm512_sub_pd(d, c);
  const __m512d error =
      _mm512_sub_pd(_mm512_sub_pd(c, _mm512_sub_pd(d, minus_u)), _mm512_add_pd(u, minus_u));
  const __m512d rest = _mm512_add_pd(_mm512_fmadd_pd(a, k, d), error);
  // d with the sign of the rest.
  const __m512d product = _mm512_castsi512_pd(
      _mm512_ternarylogic_epi64(_mm512_set1_epi64(std::numeric_limits<std::int64_t>::min()),
                                _mm512_castpd_si512(rest), _mm512_castpd_si512(d), 0xCA));
  const __m512d margin = _mm512_fmadd_pd(product, _mm512_set1_pd(kProductMargin), rest);
  const __m512d moved = _mm512_fmadd_pd(margin, _mm512_set1_pd(kSumMargin), u);
  const __mmask8 in_range =
      _mm512_test_epi64_mask(_mm512_castpd_si512(u), _mm512_set1_epi64(kExponentBits));
  const __mmask8 certain = _mm512_mask_cmp_pd_mask(in_range, moved, u, _CMP_EQ_OQ);
  if (certain == 0xFF) [[likely]] {
    _mm512_storeu_pd(result, u);
    return;
  }
  // A zero that is added to zero is certain too, and frequent in some matrices.
  const __m512d zero = _mm512_setzero_pd();
  const __mmask8 zeros =
      _mm512_mask_cmp_pd_mask(_mm512_cmp_pd_mask(u, zero, _CMP_EQ_OQ), c, zero, _CMP_EQ_OQ);
  const auto uncertain = static_cast<__mmask8>(~(certain | zeros));
  double sums[kEight];
  _mm512_storeu_pd(sums, c);
  AddSelectedInExtended(sums, source, MaskBits(uncertain), factor);
  _mm512_storeu_pd(result, _mm512_mask_loadu_pd(u, uncertain, sums));
}

// Singles. The product of two is exact as a double. The sum, rounded to a double, can only be
// rounded to another single than the one rounded to extended precision if it is halfway between two
// singles: then its 29 last bits are 1 and zeros. Subnormal results, which have fewer bits, are
// computed in extended precision too.
constexpr std::int64_t kRoundedBits = 0x1FFF'FFFF;
constexpr std::int64_t kHalfway = 0x1000'0000;
constexpr double kLeastNormal = 0x1p-126;

[[gnu::always_inline]] QORVEX_AVX512 inline void AddEight(float* result, const float* target,
                                                          const float* source, float factor) {
  const __m512d sum = _mm512_fmadd_pd(__builtin_convertvector(_mm256_loadu_ps(source), __m512d),
                                      _mm512_set1_pd(static_cast<double>(factor)),
                                      __builtin_convertvector(_mm256_loadu_ps(target), __m512d));
  const __m256 rounded = __builtin_convertvector(sum, __m256);
  const __m512i rest = _mm512_and_si512(_mm512_castpd_si512(sum), _mm512_set1_epi64(kRoundedBits));
  const __mmask8 halfway = _mm512_cmpeq_epi64_mask(rest, _mm512_set1_epi64(kHalfway));
  const __mmask8 small =
      _mm512_cmp_pd_mask(_mm512_abs_pd(sum), _mm512_set1_pd(kLeastNormal), _CMP_LT_OQ);
  if ((halfway | small) == 0) [[likely]] {
    _mm256_storeu_ps(result, rounded);
    return;
  }
  const __mmask8 not_zero = _mm512_cmp_pd_mask(sum, _mm512_setzero_pd(), _CMP_NEQ_UQ);
  const auto uncertain = static_cast<__mmask8>(halfway | (small & not_zero));
  float sums[kEight];
  std::memcpy(sums, target, sizeof sums);
  AddSelectedInExtended(sums, source, MaskBits(uncertain), factor);
  _mm256_storeu_ps(result, _mm256_mask_loadu_ps(rounded, uncertain, sums));
}

// The sums of four products in double precision. Returns the bits of those that are halfway between
// singles, or small but not zero.
[[gnu::always_inline]] QORVEX_AVX2 inline unsigned SumFour(__m256d& sum, const float* target,
                                                           const float* source, float factor) {
  sum = _mm256_fmadd_pd(_mm256_cvtps_pd(_mm_loadu_ps(source)),
                        _mm256_set1_pd(static_cast<double>(factor)),
                        _mm256_cvtps_pd(_mm_loadu_ps(target)));
  const __m256i rest = _mm256_and_si256(_mm256_castpd_si256(sum), _mm256_set1_epi64x(kRoundedBits));
  const __m256i halfway = _mm256_cmpeq_epi64(rest, _mm256_set1_epi64x(kHalfway));
  const __m256d magnitude = _mm256_andnot_pd(_mm256_set1_pd(-0.0), sum);
  const __m256d small =
      _mm256_and_pd(_mm256_cmp_pd(magnitude, _mm256_set1_pd(kLeastNormal), _CMP_LT_OQ),
                    _mm256_cmp_pd(sum, _mm256_setzero_pd(), _CMP_NEQ_UQ));
  return static_cast<unsigned>(
      _mm256_movemask_pd(_mm256_or_pd(_mm256_castsi256_pd(halfway), small)));
}

[[gnu::always_inline]] QORVEX_AVX2 inline void AddEightInHalves(float* result, const float* target,
                                                                const float* source, float factor) {
  __m256d low;
  __m256d high;
  const unsigned uncertain =
      SumFour(low, target, source, factor) | SumFour(high, target + 4, source + 4, factor) << 4;
  float sums[kEight];
  if (uncertain != 0) [[unlikely]] {
    std::memcpy(sums, target, sizeof sums);
    AddSelectedInExtended(sums, source, uncertain, factor);
  }
  _mm_storeu_ps(result, _mm256_cvtpd_ps(low));
  _mm_storeu_ps(result + 4, _mm256_cvtpd_ps(high));
  for (unsigned left = uncertain; left != 0; left &= left - 1) {
    const int i = std::countr_zero(left);
    result[i] = sums[i];
  }
}

// Each of these computes the last eight elements first and stores them last, because they may
// overlap the eight before.

template <class T>
QORVEX_AVX512 void AddAvx512(T* target, const T* source, std::size_t count, T factor) {
  T last[kEight];
  const std::size_t rest = count - kEight;
  AddEight(last, target + rest, source + rest, factor);
  for (std::size_t i = 0; i < rest; i += kEight)
    AddEight(target + i, target + i, source + i, factor);
  std::memcpy(target + rest, last, sizeof last);
}

QORVEX_AVX2 void AddAvx2(float* target, const float* source, std::size_t count, float factor) {
  float last[kEight];
  const std::size_t rest = count - kEight;
  AddEightInHalves(last, target + rest, source + rest, factor);
  for (std::size_t i = 0; i < rest; i += kEight) {
    AddEightInHalves(target + i, target + i, source + i, factor);
  }
  std::memcpy(target + rest, last, sizeof last);
}

}  // namespace

// With the fewer lanes of AVX2 the test would use up what they gain.
void AddRoundedProducts(double* target, const double* source, std::size_t count,
                        double factor) noexcept {
  if (BestInstructions() >= Instructions::kAvx512 && DoublesAreUsual()) {
    return AddAvx512(target, source, count, factor);
  }
  AddInExtended(target, source, count, factor);
}

void AddRoundedProducts(float* target, const float* source, std::size_t count,
                        float factor) noexcept {
  switch (DoublesAreUsual() ? BestInstructions() : Instructions::kBaseline) {
    case Instructions::kAvx512:
      return AddAvx512(target, source, count, factor);
    case Instructions::kAvx2:
      return AddAvx2(target, source, count, factor);
    case Instructions::kBaseline:
      return AddInExtended(target, source, count, factor);
  }
}

}  // namespace qorvex::inline QorvexMatrix::detail
