#include "qorvex/vector/detail/amount_transform.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstddef>
#include <cstring>
#include <immintrin.h>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/vector/detail/element_arithmetic.h"
#include "qorvex/vector/detail/registers.h"

// In extended precision the result is round(slope * x + intercept) for the stored integer x, with
// relative errors of a few 2^-64 on the way. So it can be computed in doubles, with relative errors
// of a few 2^-53, unless the value is nearly as far from one integer as from the next. Such amounts
// are computed again in extended precision, as are large and infinite values.

namespace qorvex::inline QorvexVector::detail {

namespace {

// One bit of an integer for each amount.
constexpr std::size_t kBlock = 64;
// After a block in which many amounts had to be computed again, the next ones are not tried.
constexpr int kMany = 16;
constexpr int kSkippedBlocks = 15;

// int32 amounts as doubles; and doubles rounded to int32, out of range to its smallest value.
[[gnu::always_inline]] inline void Load(const std::int32_t* stored,
                                        Register<double, 16>& x) noexcept {
  x = _mm_cvtepi32_pd(_mm_loadl_epi64(reinterpret_cast<const __m128i*>(stored)));
}
[[gnu::always_inline]] inline void Round(const Register<double, 16>& x, std::int32_t* results,
                                         Register<double, 16>& rounded) noexcept {
  const __m128i integers = _mm_cvtpd_epi32(x);
  _mm_storel_epi64(reinterpret_cast<__m128i*>(results), integers);
  rounded = _mm_cvtepi32_pd(integers);
}
QORVEX_AVX2 inline void Load(const std::int32_t* stored, Register<double, 32>& x) noexcept {
  x = _mm256_cvtepi32_pd(_mm_loadu_si128(reinterpret_cast<const __m128i*>(stored)));
}
QORVEX_AVX2 inline void Round(const Register<double, 32>& x, std::int32_t* results,
                              Register<double, 32>& rounded) noexcept {
  const __m128i integers = _mm256_cvtpd_epi32(x);
  _mm_storeu_si128(reinterpret_cast<__m128i*>(results), integers);
  rounded = _mm256_cvtepi32_pd(integers);
}

// The same for int64 amounts. Adding 1.5 * 2^52 rounds a double below 2^51 to an integer, which is
// then in the low bits of the sum. The other way round, it makes doubles of integers, or doubles
// beyond 2^51 of those out of range.
constexpr double kRounder = 0x1.8p52;
constexpr std::uint64_t kRounderBits = 0x4338'0000'0000'0000;

template <class Doubles>
[[gnu::always_inline]] inline void Load(const std::int64_t* stored, Doubles& x) noexcept {
  using Integers = Register<std::uint64_t, sizeof(Doubles)>;
  Integers integers;
  std::memcpy(&integers, stored, sizeof integers);
  x = reinterpret_cast<Doubles>(integers + kRounderBits) - kRounder;
}
template <class Doubles>
[[gnu::always_inline]] inline void Round(const Doubles& x, std::int64_t* results,
                                         Doubles& rounded) noexcept {
  using Integers = Register<std::uint64_t, sizeof(Doubles)>;
  const Doubles sum = x + kRounder;
  rounded = sum - kRounder;
  const Integers integers = reinterpret_cast<Integers>(sum) - kRounderBits;
  std::memcpy(results, &integers, sizeof integers);
}

inline unsigned SignBits(const Register<long long, 16>& x) noexcept {
  return static_cast<unsigned>(_mm_movemask_pd(reinterpret_cast<__m128d>(x)));
}
QORVEX_AVX2 inline unsigned SignBits(const Register<long long, 32>& x) noexcept {
  return static_cast<unsigned>(_mm256_movemask_pd(reinterpret_cast<__m256d>(x)));
}

// Replaces a block by its results, in registers of kBytes, and stores the originals. Returns which
// results are not certain.
template <std::size_t kBytes, class Stored>
[[gnu::always_inline]] inline std::uint64_t Estimate(Stored* stored, Stored* originals,
                                                     double slope, double intercept) noexcept {
  using Doubles = Register<double, kBytes>;
  using Integers = Register<long long, kBytes>;
  constexpr std::size_t kCount = kBytes / sizeof(double);
  constexpr long long kMagnitude = 0x7FFF'FFFF'FFFF'FFFF;
  // Both computations together are wrong by less than 2^-51 of the magnitudes of the two terms. An
  // amount of 2^51 or more is uncertain even if the slope is small.
  constexpr double kError = 0x1p-50;
  const double error_of_amount = std::max(std::fabs(slope) * kError, 0x1p-52);
  const double most = 0.5 - std::fabs(intercept) * kError;

  std::uint64_t certain = 0;
  for (std::size_t i = 0; i < kBlock; i += kCount) {
    std::memcpy(originals + i, stored + i, kCount * sizeof(Stored));
    Doubles x;
    Load(stored + i, x);
    const Doubles value = x * slope + intercept;
    Doubles rounded;
    Round(value, stored + i, rounded);
    const auto magnitude = reinterpret_cast<Doubles>(reinterpret_cast<Integers>(x) & kMagnitude);
    const auto distance =
        reinterpret_cast<Doubles>(reinterpret_cast<Integers>(value - rounded) & kMagnitude);
    const Integers is_certain = distance < most - magnitude * error_of_amount;
    certain |= std::uint64_t{SignBits(is_certain)} << i;
  }
  return ~certain;
}

template <class Stored>
QORVEX_AVX2 std::uint64_t EstimateAvx2(Stored* stored, Stored* originals, double slope,
                                       double intercept) noexcept {
  return Estimate<32>(stored, originals, slope, intercept);
}

template <class Stored>
std::uint64_t EstimateBaseline(Stored* stored, Stored* originals, double slope,
                               double intercept) noexcept {
  return Estimate<16>(stored, originals, slope, intercept);
}

template <CurrencyElement T>
void TransformDirectly(std::span<T> amounts, Extended slope, Extended intercept) noexcept {
  for (T& x : amounts) x = LinearTransform(x, slope, intercept);
}

}  // namespace

template <CurrencyElement T>
void TransformAmounts(std::span<T> amounts, Extended slope, Extended intercept) noexcept {
  using Stored = typename T::StoredType;
  static_assert(sizeof(T) == sizeof(Stored));
  if (!DoublesAreUsual()) return TransformDirectly(amounts, slope, intercept);
  const auto estimate =
      BestInstructions() >= Instructions::kAvx2 ? EstimateAvx2<Stored> : EstimateBaseline<Stored>;
  const auto near_slope = static_cast<double>(slope);
  const auto near_intercept = static_cast<double>(intercept * static_cast<Extended>(T::kScale));
  int blocks_to_skip = 0;
  for (; amounts.size() >= kBlock; amounts = amounts.subspan(kBlock)) {
    const auto block = amounts.first(kBlock);
    if (blocks_to_skip > 0) {
      --blocks_to_skip;
      TransformDirectly(block, slope, intercept);
      continue;
    }
    Stored originals[kBlock];
    auto* const stored = reinterpret_cast<Stored*>(block.data());
    std::uint64_t uncertain = estimate(stored, originals, near_slope, near_intercept);
    int repeated = 0;
    for (; uncertain != 0; uncertain &= uncertain - 1, ++repeated) {
      const auto i = static_cast<std::size_t>(std::countr_zero(uncertain));
      block[i] = LinearTransform(T(originals[i]), slope, intercept);
    }
    if (repeated > kMany) blocks_to_skip = kSkippedBlocks;
  }
  TransformDirectly(amounts, slope, intercept);
}

template void TransformAmounts(std::span<Currency>, Extended, Extended) noexcept;
template void TransformAmounts(std::span<QorCurrency>, Extended, Extended) noexcept;
template void TransformAmounts(std::span<QorLongCurrency>, Extended, Extended) noexcept;

}  // namespace qorvex::inline QorvexVector::detail
