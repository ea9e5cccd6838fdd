#include <immintrin.h>

#include "qorvex/base/detail/mask_bits.h"
#include "qorvex/vector/detail/vector_quicksort.h"

#define QORVEX_VECTOR_CODE QORVEX_AVX512
#include "qorvex/vector/detail/vector_quicksort_body.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

struct Avx512 {
  using Register = __m512i;

  QORVEX_AVX512 static std::size_t Split(__m512i keys, __m512i pivots, std::int64_t* low,
                                         std::int64_t* high) {
    const unsigned above = MaskBits(_mm512_cmpgt_epi64_mask(keys, pivots));
    const __m512i order = _mm512_maskz_cvtepu8_epi64(kAllLanes, OrderOf(above));
    const __m512i divided = _mm512_maskz_permutexvar_epi64(kAllLanes, order, keys);
    _mm512_storeu_si512(low, divided);
    _mm512_storeu_si512(high - 8, divided);
    return 8 - static_cast<std::size_t>(std::popcount(above));
  }

  // A table for sixteen lanes would be too large, so each half is divided.
  QORVEX_AVX512 static std::size_t Split(__m512i keys, __m512i pivots, std::int32_t* low,
                                         std::int32_t* high) {
    const unsigned above = MaskBits(_mm512_cmpgt_epi32_mask(keys, pivots));
    const __m256i first_half = _mm512_maskz_extracti64x4_epi64(kAllLanes, keys, 0);
    const __m256i second_half = _mm512_maskz_extracti64x4_epi64(kAllLanes, keys, 1);
    const std::size_t first = SplitHalf(first_half, above & 0xFF, low, high);
    return first + SplitHalf(second_half, above >> 8, low + first, high - (8 - first));
  }

  QORVEX_AVX512 static bool IsZero(__m512i bits) { return _mm512_test_epi32_mask(bits, bits) == 0; }

 private:
  // Intrinsics without a mask make GCC 12 warn of uninitialized lanes.
  static constexpr __mmask8 kAllLanes = 0xFF;

  QORVEX_AVX512 static __m128i OrderOf(unsigned above) {
    return _mm_loadl_epi64(reinterpret_cast<const __m128i*>(&kMarkedLanesLast[above]));
  }
  QORVEX_AVX512 static std::size_t SplitHalf(__m256i keys, unsigned above, std::int32_t* low,
                                             std::int32_t* high) {
    const __m256i divided = _mm256_permutevar8x32_epi32(keys, _mm256_cvtepu8_epi32(OrderOf(above)));
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(low), divided);
    _mm256_storeu_si256(reinterpret_cast<__m256i*>(high - 8), divided);
    return 8 - static_cast<std::size_t>(std::popcount(above));
  }
};

}  // namespace

template <class Key>
QORVEX_AVX512 void VectorQuickSortAvx512(Key* keys, std::size_t count, KeyForm form,
                                         int most_divisions) {
  SortSegments<Lanes<Avx512, Key>>(keys, count, form, most_divisions);
}

template QORVEX_EXPORT void VectorQuickSortAvx512(std::int32_t*, std::size_t, KeyForm, int);
template QORVEX_EXPORT void VectorQuickSortAvx512(std::int64_t*, std::size_t, KeyForm, int);

}  // namespace qorvex::inline QorvexVector::detail
