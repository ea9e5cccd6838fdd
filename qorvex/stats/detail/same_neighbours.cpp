#include "qorvex/stats/detail/same_neighbours.h"

#include <algorithm>
#include <bit>
#include <cstring>
#include <immintrin.h>
#include <limits>

#include "qorvex/base/comparisons.h"
#include "qorvex/base/detail/instructions.h"

namespace qorvex::inline QorvexStatistics::detail {

namespace {

// With this reach all pairs are near.
constexpr std::uint64_t kAnyDistance = std::uint64_t{1} << 63;

std::uint64_t Reach() noexcept {
  const Extended tolerance = std::max(4 * std::numeric_limits<Extended>::epsilon(), QorTolerance);
  return tolerance < 0.25L ? static_cast<std::uint64_t>(tolerance * 0x1p64L) + 2 : kAnyDistance;
}

// A bit for each pair of neighbours.
struct Pairs {
  std::uint64_t identical = 0;  // in all bits
  std::uint64_t near = 0;       // the mantissas are within reach, or sign or exponent differ
};

struct Key {
  explicit Key(const Extended* x) noexcept {
    const auto* const bytes = reinterpret_cast<const unsigned char*>(x);
    std::memcpy(&mantissa, bytes, sizeof mantissa);
    std::memcpy(&sign_and_exponent, bytes + sizeof mantissa, sizeof sign_and_exponent);
  }
  std::uint64_t mantissa;
  std::uint16_t sign_and_exponent;
};

// A difference of mantissas lies between -reach and reach if, after the reach is added to it, it is
// at most the width, as an unsigned number.
std::uint64_t Width(std::uint64_t reach) noexcept {
  return reach == kAnyDistance ? ~std::uint64_t{0} : 2 * reach;
}

Pairs Compare(const Extended* x, std::size_t count, std::uint64_t reach) noexcept {
  const std::uint64_t width = Width(reach);
  Pairs pairs;
  Key previous(x - 1);
  for (std::size_t i = 0; i < count; ++i) {
    const Key key(x + i);
    const std::uint64_t difference = key.mantissa - previous.mantissa;
    const bool apart = key.sign_and_exponent != previous.sign_and_exponent;
    const bool near = apart | (difference + reach <= width);
    const bool identical = !apart & (difference == 0);
    pairs.near |= std::uint64_t{near} << i;
    pairs.identical |= std::uint64_t{identical} << i;
    previous = key;
  }
  return pairs;
}

// Two elements that are 32 bytes apart.
QORVEX_AVX2 inline __m256i LoadTwo(const Extended* x) noexcept {
  const auto* const first = reinterpret_cast<const __m128i*>(x);
  return _mm256_inserti128_si256(_mm256_castsi128_si256(_mm_loadu_si128(first)),
                                 _mm_loadu_si128(first + 2), 1);
}

QORVEX_AVX2 inline std::uint64_t SignBits(__m256i lanes) noexcept {
  return static_cast<std::uint64_t>(_mm256_movemask_pd(_mm256_castsi256_pd(lanes)));
}

// The same for 64 elements, four at a time. AVX2 compares signed integers only, so that both sides
// of the comparison have their highest bit flipped.
QORVEX_AVX2 Pairs CompareAvx2(const Extended* x, std::uint64_t reach) noexcept {
  constexpr std::uint64_t top = std::uint64_t{1} << 63;
  const __m256i flipped_reach = _mm256_set1_epi64x(static_cast<std::int64_t>(reach ^ top));
  const __m256i flipped_width = _mm256_set1_epi64x(static_cast<std::int64_t>(Width(reach) ^ top));
  const __m256i used_bytes = _mm256_set1_epi64x(0xFFFF);
  const __m256i zero = _mm256_setzero_si256();
  Pairs pairs;
  for (std::size_t i = 0; i < SameNeighbours::kMostElements; i += 4) {
    const __m256i before = LoadTwo(x + i - 1);
    const __m256i even = LoadTwo(x + i);
    const __m256i odd = LoadTwo(x + i + 1);
    const __m256i difference =
        _mm256_sub_epi64(_mm256_unpacklo_epi64(even, odd), _mm256_unpacklo_epi64(before, even));
    const __m256i changes = _mm256_and_si256(
        used_bytes,
        _mm256_xor_si256(_mm256_unpackhi_epi64(even, odd), _mm256_unpackhi_epi64(before, even)));
    const __m256i together = _mm256_cmpeq_epi64(changes, zero);
    const __m256i distant =
        _mm256_cmpgt_epi64(_mm256_add_epi64(difference, flipped_reach), flipped_width);
    const __m256i equal = _mm256_cmpeq_epi64(difference, zero);
    pairs.near |= (SignBits(_mm256_and_si256(together, distant)) ^ 0xF) << i;
    pairs.identical |= SignBits(_mm256_and_si256(together, equal)) << i;
  }
  return pairs;
}

}  // namespace

SameNeighbours::SameNeighbours() noexcept
    : avx2_(BestInstructions() >= Instructions::kAvx2), reach_(Reach()) {}

std::uint64_t SameNeighbours::operator()(const Extended* x, std::size_t count) const noexcept {
  const Pairs pairs =
      avx2_ && count == kMostElements ? CompareAvx2(x, reach_) : Compare(x, count, reach_);
  std::uint64_t same = pairs.identical;
  for (std::uint64_t open = pairs.near & ~same; open != 0; open &= open - 1) {
    const int i = std::countr_zero(open);
    same |= std::uint64_t{SameFloat(x[i], x[i - 1])} << i;
  }
  return same;
}

}  // namespace qorvex::inline QorvexStatistics::detail
