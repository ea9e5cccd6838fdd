#include "qorvex/base/currency_arithmetic.h"

#include <array>
#include <random>
#include <unordered_map>

#include "qorvex/base/currency_literals.h"
#include "support/amounts.h"
#include "support/test.h"

namespace qorvex {
namespace {

using detail::LiteralFault;
using testing::Int128;

static_assert(12.50_currency == Currency(125'000) && .5_currency == Currency(5'000));
static_assert(-1'250.7_currency == Currency(-12'507'000) && 3._currency == Currency(30'000));
static_assert(0.01_qor_currency == QorCurrency(1) && 0_qor_currency == QorCurrency());
static_assert(21'474'836.47_qor_currency == QorCurrency(INT32_MAX));
static_assert(9'223'372'036'854.775807_qor_long_currency == QorLongCurrency(INT64_MAX));

// Constants with a fault do not compile.
TEST(CurrencyLiterals, RefuseWhatIsNotExactlyAnAmount) {
  const std::pair<const char*, LiteralFault> cases[] = {
      {"12.34", LiteralFault::kNone},
      {"12.340", LiteralFault::kTooManyDecimals},
      {"21474836.48", LiteralFault::kOutOfRange},
      {"21474837", LiteralFault::kOutOfRange},
      {"99999999999999999999999999", LiteralFault::kOutOfRange},
      {"1e2", LiteralFault::kNotPlainDecimal},
      {"1.5e1", LiteralFault::kNotPlainDecimal},
      {"010", LiteralFault::kNotPlainDecimal},
      {"012.5", LiteralFault::kNotPlainDecimal},
      {"00.5", LiteralFault::kNotPlainDecimal},
      {"0x10", LiteralFault::kNotPlainDecimal},
  };
  for (const auto& [text, fault] : cases)
    EXPECT_EQ(detail::ReadAmountLiteral<QorCurrency>(text).fault, fault) << text;
}

static_assert(DivideAmount(10.00_qor_currency, 3).remainder == 0.01_qor_currency);

// The ends of the range and numbers of every size.
template <class Stored>
std::vector<Stored> Values() {
  using Limits = std::numeric_limits<Stored>;
  std::vector<Stored> values{Limits::min(),     Limits::min() + 1, -1, 0, 1,
                             Limits::max() - 1, Limits::max()};
  std::mt19937_64 engine(14);
  for (unsigned i = 0; i < 40; ++i)
    values.push_back(
        static_cast<Stored>(static_cast<Stored>(engine()) >> (i % 8 * sizeof(Stored))));
  return values;
}

// Expects an amount with this stored integer, or EOverflow if that is out of range.
template <class Routine>
void ExpectStored(Int128 expected, Routine routine) {
  const auto stored = static_cast<typename decltype(routine())::StoredType>(expected);
  if (expected == stored) {
    ASSERT_EQ(routine().stored(), stored);
  } else {
    EXPECT_ERROR(routine(), EOverflow, rsAmountOverflow);
  }
}

template <class C>
class AmountsOf : public ::testing::Test {};
TYPED_TEST_SUITE(AmountsOf, CurrencyTypes);

TYPED_TEST(AmountsOf, AreExactOrWrapOrRaise) {
  using C = TypeParam;
  using Stored = typename C::StoredType;
  for (const Stored x : Values<Stored>()) {
    const Int128 wide = x;
    EXPECT_EQ((-C(x)).stored(), static_cast<Stored>(-wide));
    EXPECT_EQ(abs(C(x)).stored(), static_cast<Stored>(x < 0 ? -wide : wide));
    for (const Stored y : Values<Stored>()) {
      EXPECT_EQ((C(x) + C(y)).stored(), static_cast<Stored>(wide + y));
      EXPECT_EQ((C(x) - C(y)).stored(), static_cast<Stored>(wide - y));
      EXPECT_EQ((C(x) * y).stored(), static_cast<Stored>(wide * y));
      EXPECT_EQ((std::int64_t{y} * C(x)).stored(), static_cast<Stored>(wide * y));
      ExpectStored(wide + y, [=] { return CheckedAdd(C(x), C(y)); });
      ExpectStored(wide - y, [=] { return CheckedSubtract(C(x), C(y)); });
      ExpectStored(wide * y, [=] { return CheckedMultiply(C(x), y); });
      if (y == 0) {
        EXPECT_ERROR(DivideAmount(C(x), y), EZeroDivide, rsDivideByZero);
        EXPECT_ERROR(DivideAmount(C(x), C(y)), EZeroDivide, rsDivideByZero);
        continue;
      }
      const Int128 quotient = wide / y;
      const C remainder(static_cast<Stored>(wide % y));
      ExpectStored(quotient, [=] { return DivideAmount(C(x), y).quotient; });
      if (quotient == static_cast<Stored>(quotient)) {
        EXPECT_EQ(DivideAmount(C(x), y).remainder, remainder);
      }
      if (quotient == static_cast<std::int64_t>(quotient)) {
        EXPECT_TRUE(DivideAmount(C(x), C(y)).quotient == quotient &&
                    DivideAmount(C(x), C(y)).remainder == remainder);
      } else {
        EXPECT_ERROR(DivideAmount(C(x), C(y)), EOverflow, rsAmountOverflow);
      }
    }
    EXPECT_EQ(DivideAmount(C(x), UINT64_MAX), (AmountDivision<C, C>{C(), C(x)}));
  }
}

TEST(CurrencyArithmetic, AmountsAreKeysOfUnorderedContainers) {
  const std::unordered_map<Currency, int> counts{{1_currency, 3}, {2_currency, 5}};
  EXPECT_TRUE(counts.at(2_currency) == 5 && !counts.contains(3_currency));
}

// dividend / divisor, for each mode from the floor and what is above it.
std::array<Int128, 6> RoundedQuotients(Int128 dividend, Int128 divisor) {
  if (divisor < 0) return RoundedQuotients(-dividend, -divisor);
  Int128 floor = dividend / divisor;
  if (floor * divisor > dividend) --floor;
  const Int128 above = dividend - floor * divisor;
  const Int128 up = above == 0 ? floor : floor + 1;
  const Int128 nearest = above < divisor - above ? floor : up;
  const bool tie = above != 0 && above == divisor - above;
  const bool negative = dividend < 0;
  return {tie && floor % 2 == 0 ? floor : nearest,
          tie && negative ? floor : nearest,
          negative ? up : floor,
          negative ? floor : up,
          floor,
          up};
}

constexpr RoundingMode kModes[] = {RoundingMode::kToNearestEven, RoundingMode::kToNearestAway,
                                   RoundingMode::kTowardZero,    RoundingMode::kAwayFromZero,
                                   RoundingMode::kDown,          RoundingMode::kUp};

TYPED_TEST(AmountsOf, AreMultipliedWithOneRounding) {
  using C = TypeParam;
  using Stored = typename C::StoredType;
  std::vector<std::int64_t> integers{INT64_MIN, -200, -8, -3, -1, 1, 2, 7, 16, 1000, INT64_MAX};
  for (const Stored x : Values<Stored>()) {
    for (const std::int64_t numerator : integers) {
      for (const std::int64_t denominator : integers) {
        const auto expected = RoundedQuotients(Int128{x} * numerator, denominator);
        for (const RoundingMode mode : kModes) {
          const Int128 rounded = expected[static_cast<std::size_t>(mode)];
          ExpectStored(rounded, [=] { return MultiplyAmount(C(x), numerator, denominator, mode); });
          // Powers of two are exact as factors.
          if (denominator != 16 && denominator != -8) continue;
          ExpectStored(rounded, [=] {
            const auto factor =
                static_cast<Extended>(numerator) / static_cast<Extended>(denominator);
            return MultiplyAmount(C(x), factor, mode);
          });
        }
      }
    }
    for (const RoundingMode mode : kModes) {
      EXPECT_EQ(MultiplyAmount(C(x), UINT64_MAX, UINT64_MAX, mode), C(x));
      ExpectStored(Int128{x} * UINT64_MAX,
                   [=] { return MultiplyAmount(C(x), UINT64_MAX, 1, mode); });
      ExpectStored(RoundedQuotients(x, UINT64_MAX)[static_cast<std::size_t>(mode)],
                   [=] { return MultiplyAmount(C(x), 1, UINT64_MAX, mode); });
    }
  }
  EXPECT_ERROR(MultiplyAmount(C(0), UINT64_MAX, 0, RoundingMode::kUp), EZeroDivide, rsDivideByZero);
}

TEST(CurrencyArithmetic, ExtendedFactorsOfEverySize) {
  const struct {
    Extended factor;
    std::int64_t stored;
    RoundingMode mode;
    std::int64_t expected;
  } cases[] = {
      {1e-4950L, 1, RoundingMode::kUp, 1},
      {1e-4950L, INT64_MIN, RoundingMode::kAwayFromZero, -1},
      {1e-4950L, INT64_MIN, RoundingMode::kToNearestAway, 0},
      {1e4932L, 0, RoundingMode::kUp, 0},
      {0x1p-64L, INT64_MIN, RoundingMode::kToNearestAway, -1},
      {0x1p-64L, INT64_MIN, RoundingMode::kToNearestEven, 0},
      {0x1p-64L, INT64_MAX, RoundingMode::kToNearestAway, 0},
      {0x1p63L, -1, RoundingMode::kDown, INT64_MIN},
      {-0x1p62L, 2, RoundingMode::kUp, INT64_MIN},
      {1 + 0x1p-63L, INT64_MAX, RoundingMode::kDown, INT64_MAX},
      // 0.045 is rounded down to double precision, and up to extended precision.
      {0.045, 100, RoundingMode::kToNearestAway, 4},
      {0.045L, 100, RoundingMode::kToNearestEven, 5},
      {-0.0L, 7, RoundingMode::kDown, 0},
  };
  for (const auto& [factor, stored, mode, expected] : cases)
    EXPECT_EQ(MultiplyAmount(Currency(stored), factor, mode), Currency(expected)) << factor;
  for (const Extended factor : {0x1p63L, 1e4932L, -1e4932L, 0x1p127L})
    EXPECT_ERROR(MultiplyAmount(Currency(1), factor, RoundingMode::kTowardZero), EOverflow,
                 rsAmountOverflow);
  for (const Extended factor : {kNaN, kInfinity})
    EXPECT_ERROR(MultiplyAmount(Currency(), factor, RoundingMode::kUp), EInvalidOp, rsInvalidOp);
}

TEST(CurrencyArithmetic, RoundsToAnotherType) {
  const auto cents = [](std::int64_t stored, RoundingMode mode) {
    return RoundAmount<QorCurrency>(QorLongCurrency(stored), mode);
  };
  for (const RoundingMode mode : kModes) {
    for (const std::int64_t x : {16'395'050, -16'395'050, 16'395'000, -5, 10'000}) {
      const Int128 rounded = RoundedQuotients(x, 10'000)[static_cast<std::size_t>(mode)];
      EXPECT_EQ(cents(x, mode).stored(), rounded);
    }
    EXPECT_ERROR(cents(INT64_MAX, mode), EOverflow, rsAmountOverflow);
    EXPECT_EQ(RoundAmount<Currency>(-12.34_qor_currency, mode), -12.34_currency);
  }
}

}  // namespace
}  // namespace qorvex
