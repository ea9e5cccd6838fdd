#include <immintrin.h>

#include "qorvex/vector/detail/vector_quicksort.h"

#define QORVEX_VECTOR_CODE QORVEX_AVX2
#include "qorvex/vector/detail/vector_quicksort_body.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

struct Avx2 {
  using Register = __m256i;

  QORVEX_AVX2 static std::size_t Split(__m256i keys, __m256i pivots, std::int32_t* low,
                                       std::int32_t* high) {
    return SplitLanes(keys, _mm256_cmpgt_epi32(keys, pivots), low, high - 8);
  }
  QORVEX_AVX2 static std::size_t Split(__m256i keys, __m256i pivots, std::int64_t* low,
                                       std::int64_t* high) {
    return SplitLanes(keys, _mm256_cmpgt_epi64(keys, pivots), low, high - 4) / 2;
  }

  QORVEX_AVX2 static bool IsZero(__m256i bits) { return _mm256_testz_si256(bits, bits) != 0; }

 private:
  // Divides eight lanes of 32 bits, which belong together in pairs if the keys have 64 bits.
  QORVEX_AVX2 static std::size_t SplitLanes(__m256i keys, __m256i above, void* low, void* high) {
    const auto mask = static_cast<unsigned>(_mm256_movemask_ps(_mm256_castsi256_ps(above)));
    const __m128i* const order = reinterpret_cast<const __m128i*>(&kMarkedLanesLast[mask]);
    const __m256i divided =
        _mm256_permutevar8x32_epi32(keys, _mm256_cvtepu8_epi32(_mm_loadl_epi64(order)));
    _mm256_storeu_si256(static_cast<__m256i*>(low), divided);
    _mm256_storeu_si256(static_cast<__m256i*>(high), divided);
    return 8 - static_cast<std::size_t>(std::popcount(mask));
  }
};

}  // namespace

template <class Key>
QORVEX_AVX2 void VectorQuickSortAvx2(Key* keys, std::size_t count, KeyForm form,
                                     int most_divisions) {
  SortSegments<Lanes<Avx2, Key>>(keys, count, form, most_divisions);
}

template QORVEX_EXPORT void VectorQuickSortAvx2(std::int32_t*, std::size_t, KeyForm, int);
template QORVEX_EXPORT void VectorQuickSortAvx2(std::int64_t*, std::size_t, KeyForm, int);

}  // namespace qorvex::inline QorvexVector::detail
