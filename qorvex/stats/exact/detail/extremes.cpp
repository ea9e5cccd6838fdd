#include "qorvex/stats/exact/detail/extremes.h"

#include <immintrin.h>

#include "qorvex/base/detail/instructions.h"

namespace qorvex::exact::detail {

namespace {

template <class T>
using RangeOf = KeyRange<decltype(OrderKey(T()))>;

template <class T>
RangeOf<T> NoKeys() noexcept {
  return {OrderKey(std::numeric_limits<T>::infinity()),
          OrderKey(-std::numeric_limits<T>::infinity())};
}

template <class T>
void AddKeys(std::span<const T> values, RangeOf<T>& range) noexcept {
  auto [least, greatest] = range;
  for (const T& x : values) {
    const auto key = OrderKey(x);
    least = key < least ? key : least;
    greatest = key > greatest ? key : greatest;
  }
  range = {least, greatest};
}

// Four keys at a time.
QORVEX_AVX2 void AddKeysAvx2(std::span<const Extended> values, RangeOf<Extended>& range) noexcept {
  const __m256i zero = _mm256_setzero_si256();
  __m256i least = _mm256_set1_epi64x(range.least);
  __m256i greatest = _mm256_set1_epi64x(range.greatest);
  std::size_t i = 0;
  // Loading two keys reads two bytes of the next value.
  for (; i + 4 < values.size(); i += 4) {
    const char* const bytes = reinterpret_cast<const char*>(values.data() + i) + 2;
    const __m256i low = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(bytes));
    const __m256i high =
        _mm256_loadu_si256(reinterpret_cast<const __m256i*>(bytes + 2 * sizeof(Extended)));
    const __m256i bits = _mm256_unpacklo_epi64(low, high);
    const __m256i negative = _mm256_cmpgt_epi64(zero, bits);
    const __m256i key = _mm256_xor_si256(bits, _mm256_srli_epi64(negative, 1));
    least = _mm256_blendv_epi8(least, key, _mm256_cmpgt_epi64(least, key));
    greatest = _mm256_blendv_epi8(greatest, key, _mm256_cmpgt_epi64(key, greatest));
  }
  std::int64_t least_keys[4];
  std::int64_t greatest_keys[4];
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(least_keys), least);
  _mm256_storeu_si256(reinterpret_cast<__m256i*>(greatest_keys), greatest);
  for (const std::int64_t key : least_keys) range.least = key < range.least ? key : range.least;
  for (const std::int64_t key : greatest_keys) {
    range.greatest = key > range.greatest ? key : range.greatest;
  }
  AddKeys(values.subspan(i), range);
}

// A register of 16 bytes at a time. NaN compares false, and is left out.
template <class T>
void AddKeysSse2(std::span<const T> values, RangeOf<T>& range) noexcept {
  using Vector __attribute__((vector_size(16))) = T;
  constexpr std::size_t kLanes = sizeof(Vector) / sizeof(T);
  Vector least[2];
  Vector greatest[2];
  for (std::size_t j = 0; j < 2; ++j) {
    least[j] = Vector{} + range.least;
    greatest[j] = Vector{} + range.greatest;
  }
  std::size_t i = 0;
  for (; i + 2 * kLanes <= values.size(); i += 2 * kLanes) {
    for (std::size_t j = 0; j < 2; ++j) {
      Vector x;
      std::memcpy(&x, values.data() + i + j * kLanes, sizeof x);
      least[j] = x < least[j] ? x : least[j];
      greatest[j] = x > greatest[j] ? x : greatest[j];
    }
  }
  for (std::size_t j = 0; j < 2; ++j) {
    for (std::size_t k = 0; k < kLanes; ++k) {
      const T keys[] = {least[j][k], greatest[j][k]};
      AddKeys(std::span<const T>(keys), range);
    }
  }
  AddKeys(values.subspan(i), range);
}

}  // namespace

template <FloatElement T>
KeyRange<decltype(OrderKey(T()))> KeyRangeOf(std::span<const T> values) noexcept {
  RangeOf<T> range = NoKeys<T>();
  if constexpr (!std::is_same_v<T, Extended>) {
    AddKeysSse2(values, range);
  } else if (BestInstructions() >= Instructions::kAvx2) {
    AddKeysAvx2(values, range);
  } else {
    AddKeys(values, range);
  }
  return range;
}

template RangeOf<Extended> KeyRangeOf(std::span<const Extended>) noexcept;
template RangeOf<double> KeyRangeOf(std::span<const double>) noexcept;
template RangeOf<float> KeyRangeOf(std::span<const float>) noexcept;

}  // namespace qorvex::exact::detail
