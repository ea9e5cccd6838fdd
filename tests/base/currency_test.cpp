#include "qorvex/base/currency.h"

#include <functional>
#include <random>
#include <utility>

#include "qorvex/base/rounding.h"
#include "support/amounts.h"
#include "support/test.h"

namespace qorvex {

using testing::Int128;
using testing::NearestAmount;

static_assert(!std::is_convertible_v<std::int64_t, Currency>);
static_assert(sizeof(QorCurrency) == 4 && sizeof(Currency) == 8 && sizeof(QorLongCurrency) == 8);
static_assert(!std::is_constructible_v<Currency, double> &&
              !std::is_constructible_v<QorCurrency, float> &&
              !std::is_constructible_v<QorLongCurrency, Extended>);

template <class C>
constexpr bool kHasItsLimits = [] {
  using Limits = std::numeric_limits<C>;
  using Stored = typename C::StoredType;
  return Limits::is_exact && !Limits::is_integer && Limits::is_modulo && !Limits::traps &&
         Limits::max() == C(std::numeric_limits<Stored>::max()) &&
         Limits::min() == -Limits::min() && Limits::lowest() == Limits::min() &&
         Limits::max() + Limits::epsilon() == Limits::min();
}();
static_assert(kHasItsLimits<QorCurrency> && kHasItsLimits<Currency> &&
              kHasItsLimits<QorLongCurrency>);

// Whether a number of units is a constant, which it is while it is in range.
template <class C, std::int64_t units>
concept ConstantUnits = requires {
  typename std::integral_constant<decltype(C().stored()), C::Units(units).stored()>;
};
static_assert(QorCurrency::Units(-21'474'836L) == QorCurrency(-2'147'483'600));
static_assert(QorLongCurrency::Units(3U) == QorLongCurrency(3'000'000));
static_assert(ConstantUnits<Currency, 922'337'203'685'477>);
static_assert(!ConstantUnits<Currency, 922'337'203'685'478>);

TEST(Currency, UnitsBeyondTheRangeBecomeTheSmallestAmount) {
  std::uint64_t units = 922'337'203'685'478;
  EXPECT_EQ(Currency::Units(units), Currency(INT64_MIN));
  EXPECT_EQ(Currency::Units(--units), Currency(9'223'372'036'854'770'000));
}

// Expects what integers of 128 bits give.
template <class From, class To>
void ExpectExact(From amount, To converted) {
  if (converted == NearestAmount<To>(Int128{amount.stored()} * To::kScale, From::kScale)) return;
  FAIL() << amount << " became " << converted;  // Much faster than an expectation for each amount.
}

void ExpectExactConversions(std::int64_t stored) {
  if (std::in_range<std::int32_t>(stored)) {
    const QorCurrency cents(static_cast<std::int32_t>(stored));
    ExpectExact(cents, QorCurrency2Currency(cents));
    ExpectExact(cents, QorCurrency2QorLongCurrency(cents));
    ExpectExact(cents, Float2QorCurrency(Currency2Float(cents)));
  }
  const Currency amount(stored);
  ExpectExact(amount, Currency2QorCurrency(amount));
  ExpectExact(amount, Currency2QorLongCurrency(amount));
  ExpectExact(amount, Float2Currency(Currency2Float(amount)));
  const QorLongCurrency millionths(stored);
  ExpectExact(millionths, QorLongCurrency2QorCurrency(millionths));
  ExpectExact(millionths, QorLongCurrency2Currency(millionths));
  ExpectExact(millionths, Float2QorLongCurrency(Currency2Float(millionths)));
}

// At the ends of the 32-bit and 64-bit ranges, at ties and next to them, and at random.
TEST(Currency, ConversionsRoundToEvenOrGiveTheSmallestAmount) {
  constexpr Int128 ends[] = {0,         INT64_MIN,         INT64_MIN / 100,
                             INT32_MIN, INT32_MIN * 100LL, INT32_MIN * 10'000LL};
  for (const Int128 end : ends) {
    for (int offset = -15'101; offset <= 15'101; ++offset) {
      for (const Int128 x : {end + offset, -1 - end - offset})
        if (x == static_cast<std::int64_t>(x)) ExpectExactConversions(static_cast<std::int64_t>(x));
    }
  }
  std::mt19937_64 engine(11);
  for (int i = 0; i < 500'000; ++i)
    ExpectExactConversions(static_cast<std::int64_t>(engine()) >> (i % 64));
}

TEST(Currency, ConvertsFloatingValuesInUnits) {
  EXPECT_EQ(Currency2Float(Currency(12'345)), 1.2345L);
  EXPECT_EQ(Currency2Float(QorCurrency(-150)), -1.5L);
  EXPECT_EQ(Currency2Float(QorLongCurrency(1)), 1e-6L);
  EXPECT_EQ(Float2QorCurrency(0.125L), QorCurrency(12));
  EXPECT_EQ(Float2QorCurrency(0.015L), QorCurrency(2)) << "a tie only after rounding, up";
  EXPECT_EQ(Float2QorCurrency(0.025L), QorCurrency(2)) << "a tie only after rounding, down";
  EXPECT_EQ(Float2QorCurrency(kNaN), QorCurrency(INT32_MIN));
  EXPECT_TRUE(SameCurrency(Currency(3), Currency(3)) && !SameCurrency(Currency(3), Currency(4)));
}

static_assert(!std::is_invocable_v<std::plus<>, Currency, QorCurrency> &&
              !std::is_invocable_v<std::plus<>, Currency, int> &&
              !std::is_invocable_v<std::multiplies<>, Currency, double> &&
              !std::is_invocable_v<std::multiplies<>, Currency, Currency>);
static_assert(QorCurrency(1250) * 3 - QorCurrency(50) == QorCurrency(3700));

TEST(RoundToInteger, MarksWhatDoesNotFit) {
  EXPECT_EQ(RoundToInteger<std::int32_t>(2147483647.4L), 2147483647);
  EXPECT_EQ(RoundToInteger<std::int32_t>(2147483647.5L), INT32_MIN);
  EXPECT_EQ(RoundToInteger<std::int64_t>(9223372036854775807.5L), INT64_MIN);
  EXPECT_EQ(RoundToInteger<std::int64_t>(9223372036854775806.5L), INT64_MAX - 1);
  EXPECT_EQ(RoundToInteger<std::uint32_t>(-0.5L), 0U);
}

// From 2^62 to 2^63 the products in extended precision keep only halves, so they may be ties where
// the exact products are not.
TEST(RoundProduct, RoundsAsTheExactProductDoes) {
  std::mt19937_64 engine(12);
  for (int i = 0; i < 100'000; ++i) {
    const std::int64_t factor = i % 2 == 0 ? 10'000 : 1'000'000;
    // Values of 64 bits, down from a little above 2^63 / factor.
    const Extended value = (0x1p63L + 0x1p50L) / static_cast<Extended>(factor) *
                               (1 - static_cast<Extended>(engine() % 1024) * 0x1p-11L) +
                           static_cast<Extended>(engine() % 1024) * 0x1p-21L;
    int exponent = 0;
    const auto digits = static_cast<std::uint64_t>(std::ldexp(std::frexp(value, &exponent), 64));
    const Int128 product = Int128{digits} * factor;
    const Int128 divisor = Int128{1} << (64 - exponent);
    if (product < divisor << 62) continue;
    const auto rounded = [=](Extended x) { return RoundProduct<std::int64_t>(x, factor); };
    ASSERT_EQ(rounded(value), NearestAmount<Currency>(product, divisor).stored());
    ASSERT_EQ(rounded(-value), NearestAmount<Currency>(-product, divisor).stored());
  }
}

}  // namespace qorvex
