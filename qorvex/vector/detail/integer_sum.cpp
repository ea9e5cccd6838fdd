#include "qorvex/vector/detail/integer_sum.h"

#include <algorithm>
#include <concepts>
#include <cstring>
#include <limits>
#include <type_traits>

#include "qorvex/base/detail/instructions.h"
#include "qorvex/vector/detail/integer_arithmetic.h"
#include "qorvex/vector/detail/registers.h"

namespace qorvex::inline QorvexVector::detail {

namespace {

// The lanes in which elements are added: twice as wide, so that each holds two elements, or 64 bits
// of sums that wrap around.
template <std::unsigned_integral Element>
struct WideLane;
template <>
struct WideLane<std::uint8_t> {
  using Type = std::uint16_t;
};
template <>
struct WideLane<std::uint16_t> {
  using Type = std::uint32_t;
};
template <>
struct WideLane<std::uint32_t> {
  using Type = std::uint64_t;
};
template <>
struct WideLane<std::uint64_t> {
  using Type = std::uint64_t;
};

// Terms of a sum, in the width of the elements, from registers of unsigned elements or from single
// elements extended to 64 bits.
struct Itself {
  template <class X>
  [[gnu::always_inline]] static void Apply(X&, const X&) noexcept {}
};
struct Product {
  template <class X>
  [[gnu::always_inline]] static void Apply(X& x, const X& y) noexcept {
    x *= y;
  }
};
struct SquaredDifference {
  template <class X>
  [[gnu::always_inline]] static void Apply(X& x, const X& y) noexcept {
    x -= y;
    x *= x;
  }
};

// Adds the terms of pairs of elements, in registers of kBytes.
//
// A lane adds its lower and its upper element. Signed elements are first made unsigned: flipping
// the sign bit adds 2^(bits - 1), which the sum of all elements then contains that often.
template <std::size_t kBytes, class Term, IntegerElement T>
[[gnu::always_inline]] inline std::int64_t SumTerms(const T* a, const T* b,
                                                    std::size_t count) noexcept {
  using Element = std::make_unsigned_t<T>;
  using Lane = typename WideLane<Element>::Type;
  using Elements = Register<Element, kBytes>;
  using Lanes = Register<Lane, kBytes>;
  constexpr bool kIsWide = std::is_same_v<Element, Lane>;
  constexpr std::size_t kElements = kBytes / sizeof(Element);
  constexpr Element kFlip =
      !kIsWide && std::signed_integral<T> ? Element{1} << (8 * sizeof(Element) - 1) : 0;
  // Lanes of 2k bits hold 2^(k - 1) sums of two elements of k bits.
  constexpr std::size_t kRegistersPerRound =
      std::min<std::size_t>(std::numeric_limits<Element>::max() / 2, 1 << 30);

  const auto add = [ a, b ](std::size_t i, Lanes & sums) __attribute__((always_inline)) {
    Elements x;
    Elements y;
    std::memcpy(&x, a + i, kBytes);
    std::memcpy(&y, b + i, kBytes);
    Term::Apply(x, y);
    x ^= kFlip;
    const auto lanes = reinterpret_cast<Lanes>(x);
    if constexpr (kIsWide) {
      sums += lanes;
    } else {
      constexpr Lane kLower = std::numeric_limits<Element>::max();
      sums += (lanes & kLower) + (lanes >> (8 * sizeof(Element)));
    }
  };
  std::uint64_t sum = 0;
  std::size_t i = 0;
  while (i + kElements <= count) {
    Lanes sums[2] = {};  // so that additions need not wait
    const std::size_t end = i + std::min((count - i) / kElements, kRegistersPerRound) * kElements;
    for (; i + 2 * kElements <= end; i += 2 * kElements) {
      add(i, sums[0]);
      add(i + kElements, sums[1]);
    }
    for (; i < end; i += kElements) add(i, sums[0]);
    sums[0] += sums[1];
    for (std::size_t k = 0; k < kBytes / sizeof(Lane); ++k) sum += sums[0][k];
  }
  sum -= std::uint64_t{kFlip} * i;
  for (; i < count; ++i) {
    auto x = static_cast<std::uint64_t>(a[i]);
    Term::Apply(x, static_cast<std::uint64_t>(b[i]));
    sum += static_cast<std::uint64_t>(static_cast<T>(x));
  }
  return static_cast<std::int64_t>(sum);
}

template <class Term, IntegerElement T>
QORVEX_AVX2 std::int64_t SumTermsAvx2(const T* a, const T* b, std::size_t count) noexcept {
  return SumTerms<32, Term>(a, b, count);
}

template <class Term, IntegerElement T>
QORVEX_AVX512 std::int64_t SumTermsAvx512(const T* a, const T* b, std::size_t count) noexcept {
  return SumTerms<64, Term>(a, b, count);
}

template <class Term, IntegerElement T>
std::int64_t SumTerms(std::span<const T> a, std::span<const T> b) noexcept {
  switch (BestInstructions()) {
    case Instructions::kAvx512:
      return SumTermsAvx512<Term>(a.data(), b.data(), a.size());
    case Instructions::kAvx2:
      return SumTermsAvx2<Term>(a.data(), b.data(), a.size());
    case Instructions::kBaseline:
      break;
  }
  return SumTerms<16, Term>(a.data(), b.data(), a.size());
}

// The sums of the lower and of the upper halves, of which the upper ones are signed.
template <std::size_t kBytes>
[[gnu::always_inline]] inline Int128 SumHalves(const std::int64_t* values,
                                               std::size_t count) noexcept {
  using Lanes = Register<std::uint64_t, kBytes>;
  constexpr std::size_t kElements = kBytes / sizeof(std::int64_t);
  constexpr std::uint64_t kLower = 0xFFFF'FFFF;
  constexpr std::uint64_t kFlip = std::uint64_t{1} << 63;
  Lanes lower = {};
  Lanes upper = {};
  std::size_t i = 0;
  for (; i + kElements <= count; i += kElements) {
    Lanes x;
    std::memcpy(&x, values + i, kBytes);
    lower += x & kLower;
    upper += (x ^ kFlip) >> 32;
  }
  Int128 sum = -(static_cast<Int128>(i) << 63);
  for (std::size_t k = 0; k < kElements; ++k) {
    sum += static_cast<Int128>(lower[k]) + (static_cast<Int128>(upper[k]) << 32);
  }
  for (; i < count; ++i) sum += values[i];
  return sum;
}

QORVEX_AVX2 Int128 SumHalvesAvx2(const std::int64_t* values, std::size_t count) noexcept {
  return SumHalves<32>(values, count);
}

}  // namespace

template <IntegerElement T>
std::int64_t IntegerSum(std::span<const T> values) noexcept {
  return SumTerms<Itself>(values, values);
}

template <IntegerElement T>
std::int64_t IntegerProductSum(std::span<const T> a, std::span<const T> b) noexcept {
  return SumTerms<Product>(a, b);
}

template <IntegerElement T>
std::int64_t IntegerSquaredDifferenceSum(std::span<const T> a, std::span<const T> b) noexcept {
  return SumTerms<SquaredDifference>(a, b);
}

Int128 ExactIntegerSum(std::span<const std::int64_t> values) noexcept {
  // 2^32 halves fit a lane.
  constexpr std::size_t kMost = std::size_t{1} << 32;
  Int128 sum = 0;
  for (std::size_t i = 0; i < values.size(); i += kMost) {
    const auto part = values.subspan(i, std::min(kMost, values.size() - i));
    sum += BestInstructions() >= Instructions::kAvx2 ? SumHalvesAvx2(part.data(), part.size())
                                                     : SumHalves<16>(part.data(), part.size());
  }
  return sum;
}

#define QORVEX_INSTANTIATE(T) template std::int64_t IntegerSum(std::span<const T>) noexcept;
QORVEX_FOR_WIDE_INTEGER_ELEMENTS(QORVEX_INSTANTIATE)
QORVEX_FOR_NARROW_INTEGER_ELEMENTS(QORVEX_INSTANTIATE)
#undef QORVEX_INSTANTIATE

#define QORVEX_INSTANTIATE(T) \
  template std::int64_t IntegerProductSum(std::span<const T>, std::span<const T>) noexcept;
QORVEX_FOR_WIDE_INTEGER_ELEMENTS(QORVEX_INSTANTIATE)
QORVEX_INSTANTIATE(std::uint16_t)
QORVEX_INSTANTIATE(std::int16_t)
#undef QORVEX_INSTANTIATE

template std::int64_t IntegerSquaredDifferenceSum(std::span<const std::int32_t>,
                                                  std::span<const std::int32_t>) noexcept;

}  // namespace qorvex::inline QorvexVector::detail
