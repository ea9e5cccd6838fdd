#include "qorvex/vector/detail/amount_transform.h"

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

// Adding 1.5 * 2^52 rounds a double below 2^51 to an integer, which is then in the low bits.
constexpr double kRounder = 0x1.8p52;
constexpr long long kRounderBits = 0x4338'0000'0000'0000;
constexpr long long kRange = 1LL << 51;

inline int SignBits(const Register<long long, 16>& x) noexcept {
  return _mm_movemask_pd(reinterpret_cast<__m128d>(x));
}
QORVEX_AVX2 inline int SignBits(const Register<long long, 32>& x) noexcept {
  return _mm256_movemask_pd(reinterpret_cast<__m256d>(x));
}

// Computes a block in registers of kBytes. Returns which results are not certain.
template <std::size_t kBytes, class Stored>
[[gnu::always_inline]] inline std::uint64_t Estimate(const Stored* stored, double slope,
                                                     double intercept, Stored* results) noexcept {
  using Doubles = Register<double, kBytes>;
  using Integers = Register<long long, kBytes>;
  constexpr std::size_t kCount = kBytes / sizeof(double);
  using Narrow = Register<Stored, kCount * sizeof(Stored)>;
  constexpr long long kMagnitude = 0x7FFF'FFFF'FFFF'FFFF;
  const auto magnitude = [](const Doubles& x, Doubles& result) __attribute__((always_inline)) {
    result = reinterpret_cast<Doubles>(reinterpret_cast<Integers>(x) & kMagnitude);
  };
  // The errors of both computations are less than 2^-51 of the terms' magnitudes.
  constexpr double kError = 0x1p-50;
  const double intercept_magnitude = std::fabs(intercept);

  std::uint64_t uncertain = 0;
  for (std::size_t i = 0; i < kBlock; i += kCount) {
    Narrow narrow;
    std::memcpy(&narrow, stored + i, sizeof narrow);
    Doubles x;
    Integers in_range = Integers{} - 1;
    if constexpr (sizeof(Stored) == 4) {
      x = __builtin_convertvector(narrow, Doubles);
    } else {
      const auto integers = reinterpret_cast<Integers>(narrow);
      x = reinterpret_cast<Doubles>(integers + kRounderBits) - kRounder;
      in_range = (integers >= -kRange) & (integers < kRange);
    }
    const Doubles product = x * slope;
    const Doubles value = product + intercept;
    const Doubles shifted = value + kRounder;
    const Doubles rounded = shifted - kRounder;
    Doubles distance;
    magnitude(value - rounded, distance);
    Doubles terms;
    magnitude(product, terms);
    terms += intercept_magnitude;
    Integers certain = in_range & (distance < 0.5 - terms * kError);
    if constexpr (sizeof(Stored) == 4) certain &= (rounded >= -0x1p31) & (rounded < 0x1p31);
    uncertain |= static_cast<std::uint64_t>(SignBits(~certain)) << i;
    const Integers integers = reinterpret_cast<Integers>(shifted) - kRounderBits;
    narrow = __builtin_convertvector(integers, Narrow);
    std::memcpy(results + i, &narrow, sizeof narrow);
  }
  return uncertain;
}

template <class Stored>
QORVEX_AVX2 std::uint64_t EstimateAvx2(const Stored* stored, double slope, double intercept,
                                       Stored* results) noexcept {
  return Estimate<32>(stored, slope, intercept, results);
}

template <class Stored>
std::uint64_t EstimateBaseline(const Stored* stored, double slope, double intercept,
                               Stored* results) noexcept {
  return Estimate<16>(stored, slope, intercept, results);
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
    Stored results[kBlock];
    std::uint64_t uncertain = estimate(reinterpret_cast<const Stored*>(block.data()), near_slope,
                                       near_intercept, results);
    if (std::popcount(uncertain) > kMany) blocks_to_skip = kSkippedBlocks;
    for (; uncertain != 0; uncertain &= uncertain - 1) {
      const auto i = static_cast<std::size_t>(std::countr_zero(uncertain));
      results[i] = LinearTransform(block[i], slope, intercept).stored();
    }
    std::memcpy(static_cast<void*>(block.data()), results, sizeof results);
  }
  TransformDirectly(amounts, slope, intercept);
}

template void TransformAmounts(std::span<Currency>, Extended, Extended) noexcept;
template void TransformAmounts(std::span<QorCurrency>, Extended, Extended) noexcept;
template void TransformAmounts(std::span<QorLongCurrency>, Extended, Extended) noexcept;

}  // namespace qorvex::inline QorvexVector::detail
