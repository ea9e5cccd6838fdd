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
  EXPECT_EQ(Currency2QorCurrency(Currency(kLargest64)), QorCurrency(kSmallest32));
  EXPECT_EQ(Currency2QorLongCurrency(Currency(kLargest64)), QorLongCurrency(kSmallest64));
  EXPECT_EQ(Float2Currency(1e16L), Currency(kSmallest64));
  EXPECT_EQ(Float2QorCurrency(kNaN), QorCurrency(kSmallest32));
}

TEST(Currency, WideningAndBackIsExact) {
  std::mt19937_64 engine(11);
  for (int i = 0; i < 10'000; ++i) {
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
