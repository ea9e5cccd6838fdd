#include "qorvex/stats/exact/detail/block_sum.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstring>
#include <immintrin.h>

#include "qorvex/stats/exact/detail/integer_sums.h"
#include "qorvex/stats/exact/detail/parts.h"

namespace qorvex::exact::detail {

namespace {

constexpr std::size_t kBlock = BlockSum<double>::kBlock;

// The sum of a block in two units.
struct Sums {
  __int128 high = 0;
  __int128 low = 0;
};

// 2^exponent, for normal results.
double PowerOfTwo(int exponent) noexcept {
  return std::bit_cast<double>(static_cast<std::int64_t>(exponent + 1023) << 52);
}

// How the values of a type are added.
template <class T>
struct Kernel;

// For |x| < 2^E, adding 1.5 * 2^(E + 6) and subtracting it again rounds x to a multiple of
// 2^(E - 46). If no x but 0 is less than 2^(E - 41), the rest is a multiple of 2^(E - 93). Then 64
// of either have sums of no more than 53 bits, and no addition rounds.
template <>
struct Kernel<double> {
  static constexpr int kHighUnit = -46;
  static constexpr int kLowUnit = -93;
  static constexpr int kSplit = 6;
  static constexpr int kRange = 41;
  // The range of E for which none of these powers leaves the format.
  static constexpr int kMost = 900;

  static std::optional<int> RangeFor(std::uint32_t greatest, Instructions) {
    constexpr int kBias = kExponentBias - 53;
    const int range = static_cast<int>(greatest) - kBias;
    if (range >= kMost) return std::nullopt;
    return std::max(range, -kMost);
  }
  static bool Sum(const double* block, int range, Instructions instructions, Sums& sums);
};

// Singles are converted.
template <>
struct Kernel<float> : Kernel<double> {
  static bool Sum(const float* block, int range, Instructions instructions, Sums& sums) {
    std::array<double, kBlock> wide;
    std::copy_n(block, kBlock, wide.begin());
    return Kernel<double>::Sum(wide.data(), range, instructions, sums);
  }
};

// Exponents from E to E + 25: halves of mantissas, shifted, have 57 bits, and 64 of them fit an
// int64. Only with AVX2, because others have no shifts by different counts.
template <>
struct Kernel<Extended> {
  static constexpr int kHighUnit = 32 - kExponentBias;
  static constexpr int kLowUnit = -kExponentBias;
  static constexpr int kRange = 26;

  static std::optional<int> RangeFor(std::uint32_t greatest, Instructions instructions) {
    if (instructions < Instructions::kAvx2) return std::nullopt;
    if (greatest > Elements<Extended>::kGreatest) return std::nullopt;
    return std::max(static_cast<int>(greatest) - (kRange - 1), 1);
  }
  static bool Sum(const Extended* block, int range, Instructions instructions, Sums& sums);
};

// Registers of the baseline and of AVX2.
template <std::size_t kBytes>
struct Registers;
template <>
struct Registers<16> {
  using Doubles __attribute__((vector_size(16))) = double;
  using Integers __attribute__((vector_size(16))) = long long;
};
template <>
struct Registers<32> {
  using Doubles __attribute__((vector_size(32))) = double;
  using Integers __attribute__((vector_size(32))) = long long;
};

// The sums of a block in both units, from registers of kBytes; false if a value is out of range.
template <std::size_t kBytes>
[[gnu::always_inline]] inline bool SumDoubles(const double* values, int exponent, Sums& sums) {
  using Doubles = typename Registers<kBytes>::Doubles;
  using Integers = typename Registers<kBytes>::Integers;
  constexpr std::size_t kLanes = kBytes / sizeof(double);
  constexpr std::size_t kRegisters = 8 / kLanes;  // so that additions need not wait

  const double above = PowerOfTwo(exponent);
  const double least = PowerOfTwo(exponent - Kernel<double>::kRange);
  const double splitter = 1.5 * PowerOfTwo(exponent + Kernel<double>::kSplit);
  Doubles high[kRegisters] = {};
  Doubles low[kRegisters] = {};
  Integers in_range = Integers{} - 1;
  for (std::size_t i = 0; i < kBlock; i += kRegisters * kLanes) {
    for (std::size_t j = 0; j < kRegisters; ++j) {
      Doubles x;
      std::memcpy(&x, values + i + j * kLanes, sizeof x);
      const auto magnitude =
          reinterpret_cast<Doubles>(reinterpret_cast<Integers>(x) & 0x7FFF'FFFF'FFFF'FFFFLL);
      in_range &= (magnitude < above) & ((magnitude >= least) | (x == 0));
      const Doubles part = (x + splitter) - splitter;
      high[j] += part;
      low[j] += x - part;
    }
  }
  for (std::size_t k = 0; k < kLanes; ++k) {
    if (in_range[k] == 0) return false;
  }
  const double high_unit = PowerOfTwo(-Kernel<double>::kHighUnit - exponent);
  const double low_unit = PowerOfTwo(-Kernel<double>::kLowUnit - exponent);
  for (std::size_t j = 0; j < kRegisters; ++j) {
    for (std::size_t k = 0; k < kLanes; ++k) {
      sums.high += static_cast<std::int64_t>(high[j][k] * high_unit);
      sums.low += static_cast<std::int64_t>(low[j][k] * low_unit);
    }
  }
  return true;
}

QORVEX_AVX2 bool SumDoublesAvx2(const double* values, int exponent, Sums& sums) {
  return SumDoubles<32>(values, exponent, sums);
}

QORVEX_AVX2 bool SumExtendedAvx2(const Extended* values, int exponent, Sums& sums) {
  const __m256i zero = _mm256_setzero_si256();
  const __m256i first = _mm256_set1_epi64x(exponent);
  const __m256i most = _mm256_set1_epi64x(Kernel<Extended>::kRange - 1);
  const __m256i exponent_bits = _mm256_set1_epi64x(0x7FFF);
  const __m256i half_bits = _mm256_set1_epi64x(0xFFFF'FFFF);
  __m256i high = zero;
  __m256i low = zero;
  __m256i out_of_range = zero;
  for (std::size_t i = 0; i < kBlock; i += 4) {
    const auto* const pairs = reinterpret_cast<const __m256i*>(values + i);
    const __m256i a = _mm256_loadu_si256(pairs);
    const __m256i b = _mm256_loadu_si256(pairs + 1);
    const __m256i mantissa = _mm256_unpacklo_epi64(a, b);
    const __m256i upper = _mm256_unpackhi_epi64(a, b);
    const __m256i negative = _mm256_cmpgt_epi64(zero, _mm256_slli_epi64(upper, 48));
    const __m256i shift = _mm256_sub_epi64(_mm256_and_si256(upper, exponent_bits), first);
    // A negative shift is out of range, except for zeros, whose exponent is 0.
    const __m256i outside =
        _mm256_or_si256(_mm256_cmpgt_epi64(shift, most), _mm256_cmpgt_epi64(zero, shift));
    const __m256i is_zero = _mm256_cmpeq_epi64(mantissa, zero);
    out_of_range = _mm256_or_si256(out_of_range, _mm256_andnot_si256(is_zero, outside));
    const __m256i x = _mm256_sllv_epi64(_mm256_srli_epi64(mantissa, 32), shift);
    const __m256i y = _mm256_sllv_epi64(_mm256_and_si256(mantissa, half_bits), shift);
    // -x is ~x + 1.
    high = _mm256_add_epi64(high, _mm256_sub_epi64(_mm256_xor_si256(x, negative), negative));
    low = _mm256_add_epi64(low, _mm256_sub_epi64(_mm256_xor_si256(y, negative), negative));
  }
  if (_mm256_testz_si256(out_of_range, out_of_range) == 0) return false;
  alignas(32) std::int64_t lanes[4];
  const auto add = [&lanes](__m256i from, __int128& sum) QORVEX_AVX2 {
    _mm256_store_si256(reinterpret_cast<__m256i*>(lanes), from);
    for (const std::int64_t lane : lanes) sum += lane;
  };
  add(high, sums.high);
  add(low, sums.low);
  return true;
}

bool Kernel<double>::Sum(const double* block, int range, Instructions instructions, Sums& sums) {
  if (instructions >= Instructions::kAvx2) return SumDoublesAvx2(block, range, sums);
  return SumDoubles<16>(block, range, sums);
}

bool Kernel<Extended>::Sum(const Extended* block, int range, Instructions, Sums& sums) {
  return SumExtendedAvx2(block, range, sums);
}

}  // namespace

template <class T>
bool BlockSum<T>::Add(std::span<const T> block) {
  if (block.size() != kBlock || !DoublesAreUsual()) return false;
  if (blocks_to_skip_ > 0) {
    --blocks_to_skip_;
    return false;
  }
  Sums sums;
  if (!range_ || !Kernel<T>::Sum(block.data(), *range_, instructions_, sums)) {
    Flush();
    std::uint32_t greatest = 0;
    for (const T& x : block) greatest = std::max(greatest, Elements<T>::OfNormal(x).Exponent());
    constexpr std::uint32_t kSpare = 1;  // for the next blocks
    range_ = Kernel<T>::RangeFor(greatest + kSpare, instructions_);
    if (!range_ || !Kernel<T>::Sum(block.data(), *range_, instructions_, sums)) {
      range_.reset();
      blocks_to_skip_ = kSkippedBlocks;
      return false;
    }
  }
  high_ += sums.high;
  low_ += sums.low;
  return true;
}

template <class T>
void BlockSum<T>::Flush() {
  if (!range_) return;
  AddToTotal(high_, *range_ + Kernel<T>::kHighUnit, total_);
  AddToTotal(low_, *range_ + Kernel<T>::kLowUnit, total_);
  high_ = low_ = 0;
}

template class BlockSum<Extended>;
template class BlockSum<double>;
template class BlockSum<float>;

}  // namespace qorvex::exact::detail
