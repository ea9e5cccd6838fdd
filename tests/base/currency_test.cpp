#include "qorvex/base/currency.h"

#include <random>

#include "qorvex/base/rounding.h"
#include "qorvex/base/swap.h"
#include "support/test.h"

namespace qorvex {

constexpr std::int64_t kSmallest64 = std::numeric_limits<std::int64_t>::min();
constexpr std::int64_t kLargest64 = std::numeric_limits<std::int64_t>::max();
constexpr std::int32_t kSmallest32 = std::numeric_limits<std::int32_t>::min();

static_assert(!std::is_convertible_v<std::int64_t, Currency>);
static_assert(!std::is_same_v<TQorCurrencyVector, TQorLongCurrVector>);
static_assert(sizeof(QorCurrency) == 4 && sizeof(Currency) == 8 && sizeof(QorLongCurrency) == 8);

static_assert(!std::is_constructible_v<Currency, double> &&
              !std::is_constructible_v<QorCurrency, float> &&
              !std::is_constructible_v<QorLongCurrency, Extended>);

template <class C>
constexpr bool kHasItsLimits = [] {
  using Limits = std::numeric_limits<C>;
  using Stored = typename C::StoredType;
  return Limits::is_specialized && Limits::is_signed && Limits::is_exact && !Limits::is_integer &&
         Limits::digits10 == std::numeric_limits<Stored>::digits10 &&
         Limits::is_modulo && !Limits::traps &&
         Limits::max() == C(std::numeric_limits<Stored>::max()) &&
         Limits::min() == -Limits::min() && Limits::lowest() == Limits::min() &&
         Limits::max() + Limits::epsilon() == Limits::min();
}();
static_assert(kHasItsLimits<QorCurrency> && kHasItsLimits<Currency> &&
              kHasItsLimits<QorLongCurrency>);

// Whether so many units are a constant.
template <class C, std::int64_t units>
concept ConstantUnits = requires {
  typename std::integral_constant<decltype(C().stored()), C::Units(units).stored()>;
};
static_assert(Currency::Units(12) == Currency(120'000));
static_assert(QorCurrency::Units(-21'474'836L) == QorCurrency(-2'147'483'600));
static_assert(QorLongCurrency::Units(3U) == QorLongCurrency(3'000'000));
static_assert(ConstantUnits<Currency, 922'337'203'685'477>);
static_assert(!ConstantUnits<Currency, 922'337'203'685'478>);
static_assert(ConstantUnits<QorCurrency, 21'474'836> && !ConstantUnits<QorCurrency, 21'474'837>);
static_assert(!ConstantUnits<QorLongCurrency, -9'223'372'036'855>);

TEST(Currency, UnitsBeyondTheRangeBecomeTheSmallestAmount) {
  std::uint64_t units = 922'337'203'685'478;
  EXPECT_EQ(Currency::Units(units), Currency(kSmallest64));
  EXPECT_EQ(Currency::Units(--units), Currency(9'223'372'036'854'770'000));
}

TEST(Currency, ConvertsBetweenAllScales) {
  const QorCurrency cents(100);
  const Currency amount(10'000);
  const QorLongCurrency millionths(1'000'000);
  EXPECT_EQ(QorCurrency2Currency(cents), amount);
  EXPECT_EQ(QorCurrency2QorLongCurrency(cents), millionths);
  EXPECT_EQ(Currency2QorCurrency(amount), cents);
  EXPECT_EQ(Currency2QorLongCurrency(amount), millionths);
  EXPECT_EQ(QorLongCurrency2Currency(millionths), amount);
  EXPECT_EQ(QorLongCurrency2QorCurrency(millionths), cents);
  EXPECT_EQ(Currency2Float(Currency(12'345)), 1.2345L);
  EXPECT_EQ(Currency2Float(QorCurrency(-150)), -1.5L);
  EXPECT_EQ(Currency2Float(QorLongCurrency(1)), 1e-6L);
  EXPECT_EQ(Float2Currency(1.23456L), Currency(12'346));
  EXPECT_EQ(Float2QorCurrency(-2.5L), QorCurrency(-250));
  EXPECT_EQ(Float2QorLongCurrency(0.0000015L), QorLongCurrency(2));
  EXPECT_TRUE(SameCurrency(amount, amount) && !SameCurrency(amount, Currency(10'001)));
}

TEST(Currency, RoundsTiesToEvenAndMarksOverflowWithTheSmallestAmount) {
  const std::pair<int, int> roundings[] = {{50, 0},    {150, 2},   {250, 2}, {-50, 0},
                                           {-150, -2}, {-250, -2}, {151, 2}, {149, 1}};
  for (const auto& [stored, cents] : roundings)
    EXPECT_EQ(Currency2QorCurrency(Currency(stored)), QorCurrency(cents)) << stored;
  EXPECT_EQ(Float2QorCurrency(0.125L), QorCurrency(12));
  EXPECT_EQ(Float2QorCurrency(0.015L), QorCurrency(2)) << "a tie but for rounding, up";
  EXPECT_EQ(Float2QorCurrency(0.025L), QorCurrency(2)) << "down";
  EXPECT_EQ(Currency2QorCurrency(Currency(kLargest64)), QorCurrency(kSmallest32));
  EXPECT_EQ(Currency2QorLongCurrency(Currency(kLargest64)), QorLongCurrency(kSmallest64));
  EXPECT_EQ(Float2Currency(1e16L), Currency(kSmallest64));
  EXPECT_EQ(Float2QorCurrency(kNaN), QorCurrency(kSmallest32));
}

TEST(Currency, WideningAndBackIsExact) {
  std::mt19937_64 engine(11);
  for (std::int64_t i = 0; i < 10'000; ++i) {
    const auto any = static_cast<std::int64_t>(engine());
    for (const std::int64_t stored : {any, any >> 2, kLargest64 - i, kSmallest64 + i}) {
      ASSERT_EQ(Float2Currency(Currency2Float(Currency(stored))).stored(), stored);
      ASSERT_EQ(Float2QorLongCurrency(Currency2Float(QorLongCurrency(stored))).stored(), stored);
    }
    const QorCurrency amount(static_cast<std::int32_t>(engine()));
    ASSERT_EQ(Currency2QorCurrency(QorCurrency2Currency(amount)), amount);
    ASSERT_EQ(QorLongCurrency2QorCurrency(QorCurrency2QorLongCurrency(amount)), amount);
    ASSERT_EQ(Float2QorCurrency(Currency2Float(amount)), amount);
  }
}

template <class X, class Y>
concept Summable = requires(X x, Y y) {
  x + y;
};
template <class X, class Y>
concept Multipliable = requires(X x, Y y) {
  x* y;
};
static_assert(!Summable<Currency, QorCurrency> && !Summable<Currency, int>);
static_assert(!Multipliable<Currency, double> && !Multipliable<Currency, Currency>);
static_assert(QorCurrency(1250) * 3 - QorCurrency(50) == QorCurrency(3700));

template <class C>
void ExpectWrappingArithmetic() {
  using Stored = typename C::StoredType;
  constexpr Stored smallest = std::numeric_limits<Stored>::min();
  constexpr Stored largest = std::numeric_limits<Stored>::max();
  std::vector<Stored> values{smallest, smallest + 1, -7, -1, 0, 1, 100, largest - 1, largest};
  std::mt19937_64 engine(12);
  for (int i = 0; i < 30; ++i) values.push_back(static_cast<Stored>(engine()));
  for (const Stored x : values) {
    EXPECT_EQ((-C(x)).stored(), static_cast<Stored>(-static_cast<__int128>(x)));
    for (const Stored y : values) {
      const auto wide = static_cast<__int128>(x);
      EXPECT_EQ((C(x) + C(y)).stored(), static_cast<Stored>(wide + y));
      EXPECT_EQ((C(x) - C(y)).stored(), static_cast<Stored>(wide - y));
      EXPECT_EQ((C(x) * y).stored(), static_cast<Stored>(wide * y));
      EXPECT_EQ((std::int64_t{y} * C(x)).stored(), static_cast<Stored>(wide * y));
    }
  }
}

TEST(Currency, ArithmeticIsExactAndWrapsInTheStoredWidth) {
  ExpectWrappingArithmetic<QorCurrency>();
  ExpectWrappingArithmetic<Currency>();
  ExpectWrappingArithmetic<QorLongCurrency>();
}

TEST(RoundToInteger, RoundsTiesToEvenAndMarksWhatDoesNotFit) {
  EXPECT_EQ(RoundToInteger<std::int32_t>(2.5L), 2);
  EXPECT_EQ(RoundToInteger<std::int32_t>(-3.5L), -4);
  EXPECT_EQ(RoundToInteger<std::int32_t>(2147483647.4L), 2147483647);
  EXPECT_EQ(RoundToInteger<std::int32_t>(2147483647.5L), kSmallest32);
  EXPECT_EQ(RoundToInteger<std::int64_t>(9223372036854775807.0L), kLargest64);
  EXPECT_EQ(RoundToInteger<std::int64_t>(9223372036854775808.0L), kSmallest64);
  EXPECT_EQ(RoundToInteger<std::int64_t>(9223372036854775807.5L), kSmallest64);
  EXPECT_EQ(RoundToInteger<std::int64_t>(9223372036854775806.5L), kLargest64 - 1);
  EXPECT_EQ(RoundToInteger<std::int64_t>(-9223372036854775808.0L), kSmallest64);
  EXPECT_EQ(RoundToInteger<std::uint32_t>(-0.5L), 0U);
  EXPECT_EQ(RoundToInteger<std::uint32_t>(4294967295.0L), 4294967295U);
}

// Products around 2^62 and 2^63, rounded in integers of 128 bits. Those in extended precision keep
// halves there and are ties where the exact products are not.
TEST(RoundProduct, TakesTheExactProductWhereOnlyHalvesAreLeft) {
  std::mt19937_64 engine(12);
  for (int i = 0; i < 100'000; ++i) {
    const std::int64_t factor = i % 2 == 0 ? 10'000 : 1'000'000;
    // Values of 64 bits, down from a little above 2^63 / factor.
    const Extended value = (0x1p63L + 0x1p50L) / static_cast<Extended>(factor) *
                               (1 - static_cast<Extended>(engine() % 1024) * 0x1p-11L) +
                           static_cast<Extended>(engine() % 1024) * 0x1p-21L;
    int exponent = 0;
    const auto digits = static_cast<std::uint64_t>(std::ldexp(std::frexp(value, &exponent), 64));
    const int places = 64 - exponent;
    const unsigned __int128 product =
        static_cast<unsigned __int128>(digits) * static_cast<std::uint64_t>(factor);
    const auto half = static_cast<unsigned __int128>(1) << (places - 1);
    auto rounded = product >> places;
    const auto rest = product - (rounded << places);
    if (rest > half || (rest == half && rounded % 2 == 1)) ++rounded;
    const bool fits = rounded <= static_cast<std::uint64_t>(kLargest64);
    if (product < static_cast<unsigned __int128>(1) << (62 + places)) continue;
    ASSERT_EQ(RoundProduct<std::int64_t>(value, factor),
              fits ? static_cast<std::int64_t>(rounded) : kSmallest64);
    ASSERT_EQ(RoundProduct<std::int64_t>(-value, factor),
              fits ? -static_cast<std::int64_t>(rounded) : kSmallest64);
  }
}

TEST(SwapXY, ExchangesBits) {
  Extended x = -0.0L;
  Extended y = kInfinity;
  SwapXY(x, y);
  EXPECT_TRUE(std::isinf(x) && std::signbit(y));
  Currency a(1);
  Currency b(2);
  SwapXY(a, b);
  SwapXY(a, a);
  EXPECT_EQ(a, Currency(2));
}

}  // namespace qorvex
