// What vectors of amounts do otherwise than vectors of integers.

#include <limits>
#include <random>
#include <tuple>

#include "qorvex/vector/QorvexFinVector.h"
#include "support/kept_tolerance.h"
#include "support/test.h"

namespace qorvex {
namespace {

__extension__ typedef __int128 Int128;

constexpr auto kLargest32 = std::numeric_limits<std::int32_t>::max();
constexpr auto kSmallest32 = std::numeric_limits<std::int32_t>::min();
constexpr auto kLargest64 = std::numeric_limits<std::int64_t>::max();
constexpr auto kSmallest64 = std::numeric_limits<std::int64_t>::min();

template <class T>
class AmountVectors : public ::testing::Test {};
using Currencies = ::testing::Types<Currency, QorCurrency, QorLongCurrency>;
TYPED_TEST_SUITE(AmountVectors, Currencies);

// Stored integers over the whole range, some of them equal.
template <class T>
TQorVector<T> RandomAmounts(std::mt19937_64& engine, std::size_t n) {
  auto amounts = TQorVector<T>::WithLength(n);
  for (T& x : amounts) x = T(static_cast<typename T::StoredType>(engine()));
  for (std::size_t i = 3; i < n; i += 5) amounts[i] = amounts[i - 3];
  return amounts;
}

template <class T>
TQorVector<typename T::StoredType> Stored(const TQorVector<T>& amounts) {
  auto stored = TQorVector<typename T::StoredType>::WithLength(amounts.size());
  for (std::size_t i = 0; i < amounts.size(); ++i) stored[i] = amounts[i].stored();
  return stored;
}

// The routines of integers are tested on their own.
TYPED_TEST(AmountVectors, DoWithStoredIntegersWhatIntegerVectorsDo) {
  using T = TypeParam;
  std::mt19937_64 engine(6);
  for (const std::size_t n : {1U, 2U, 9U, 400U}) {
    TQorVector<T> amounts = RandomAmounts<T>(engine, n);
    const TQorVector<T> others = RandomAmounts<T>(engine, n);
    auto stored = Stored(amounts);
    const auto other_stored = Stored(others);
    EXPECT_EQ(MinVector(amounts).stored(), MinVector(stored));
    EXPECT_EQ(MaxVector(amounts).stored(), MaxVector(stored));
    EXPECT_EQ(Stored(ReverseVector(amounts)), ReverseVector(stored));
    EXPECT_EQ(Stored(AddVectors(amounts, others)), AddVectors(stored, other_stored));
    EXPECT_EQ(Stored(SubtractVectors(amounts, others)), SubtractVectors(stored, other_stored));
    EXPECT_EQ(SumVector(amounts).stored(), static_cast<typename T::StoredType>(SumVector(stored)));
    for (const bool ascending : {true, false}) {
      EXPECT_EQ(Vector2RankVector(amounts, ascending), Vector2RankVector(stored, ascending));
      EXPECT_EQ(Vector2Rank(amounts, 0, ascending), Vector2Rank(stored, 0, ascending));
      EXPECT_EQ(Vector2RankValue(amounts, T(7), ascending), -1);
      QSortVector(amounts, ascending);
      QSortVector(stored, ascending);
      EXPECT_EQ(Stored(amounts), stored);
    }
    AddToVector(amounts, others);
    SubtractFromVector(amounts, others);
    EXPECT_EQ(Stored(amounts), stored);
    AppendValue2Vector(amounts, T(5));
    AddValue2Vector(amounts, T(6), 0);
    DeleteValueFromVector(amounts, 1);
    FillVector(amounts, MaxVector(amounts));
    EXPECT_EQ(amounts.size(), n + 1);
    ClearVector(amounts);
    EXPECT_TRUE(VectorZero(amounts));
  }
  EXPECT_MATH_ERROR(SumVector(TQorVector<T>()), rsVectorIsEmpty);
  TQorVector<T> empty;
  EXPECT_MATH_ERROR(LinearTransformVector(empty, 1, 0), rsVectorIsEmpty);
}

TEST(CurrencyVectors, SumsWrapInTheElementsWidth) {
  EXPECT_EQ(SumVector(TQorCurrVector{QorCurrency(kLargest32), QorCurrency(1)}),
            QorCurrency(kSmallest32));
  EXPECT_EQ(SumVector(TQorCurrencyVector{Currency(kLargest64), Currency(1)}),
            Currency(kSmallest64));
}

// Amounts of a cent of a cent are within the tolerance or not; the other currencies have none.
TEST(CurrencyVectors, SignsOfCurrencyAreJudgedWithinTheTolerance) {
  const testing::KeptTolerance kept;
  const auto signs = [](const auto& v) {
    return std::tuple(VectorZero(v), VectorNonZero(v), VectorPositive(v), VectorNonNegative(v));
  };
  const TQorCurrencyVector small = {Currency(1)};
  const TQorCurrencyVector small_debt = {Currency(-1)};
  EXPECT_EQ(signs(small), std::tuple(false, true, true, true));
  EXPECT_EQ(signs(small_debt), std::tuple(false, true, false, false));
  QorTolerance = 0.001L;
  EXPECT_EQ(signs(small), std::tuple(true, false, false, true));
  EXPECT_EQ(signs(small_debt), std::tuple(true, false, false, true));
  EXPECT_EQ(signs(TQorLongCurrVector{QorLongCurrency(1)}), std::tuple(false, true, true, true));
  EXPECT_EQ(signs(TQorCurrVector{QorCurrency(-1)}), std::tuple(false, true, false, false));
  QorTolerance = 1;
  EXPECT_EQ(Vector2RankValue(TQorCurrVector{QorCurrency(1)}, QorCurrency(2), true), -1)
      << "ranks have no tolerance";
}

// dividend / divisor, rounded half to even, as an amount or the smallest one.
template <class T>
T Rounded(Int128 dividend, Int128 divisor) {
  Int128 quotient = dividend / divisor;
  const Int128 twice = 2 * (dividend % divisor);
  const Int128 size = twice < 0 ? -twice : twice;
  if (size > divisor || (size == divisor && quotient % 2 != 0)) quotient += dividend < 0 ? -1 : 1;
  const auto stored = static_cast<typename T::StoredType>(quotient);
  return T(stored == quotient ? stored : std::numeric_limits<typename T::StoredType>::min());
}

// numerator / denominator * amount + intercept, which is in stored units.
template <class T>
T Transformed(T amount, int numerator, int denominator, std::int64_t intercept) {
  return Rounded<T>(Int128{amount.stored()} * numerator + Int128{intercept} * denominator,
                    denominator);
}

// Slopes and intercepts that extended precision holds exactly.
TEST(CurrencyVectors, LinearTransformationsRoundAmountsToEven) {
  TQorCurrencyVector amounts = {Currency(100'000), Currency(1), Currency(3), Currency(kLargest64)};
  LinearTransformVector(amounts, 2, 0.5L);
  EXPECT_EQ(amounts, (TQorCurrencyVector{Currency(205'000), Currency(5'002), Currency(5'006),
                                         Currency(kSmallest64)}));

  std::mt19937_64 engine(8);
  for (int i = 0; i < 20'000; ++i) {
    // Amounts of which 62 bits serve, so that slope * stored + intercept has 64 at most.
    TQorCurrencyVector v = {Currency(static_cast<std::int64_t>(engine()) >> (3 + engine() % 50))};
    TQorCurrVector w = {QorCurrency(static_cast<std::int32_t>(engine()))};
    const Currency before = v[0];
    const QorCurrency short_before = w[0];
    LinearTransformVector(v, -1.5L, 2);
    ASSERT_EQ(v[0], Transformed(before, -3, 2, 20'000)) << before.stored();
    LinearTransformVector(w, 3, -7);
    ASSERT_EQ(w[0], Transformed(short_before, 3, 1, -700)) << short_before.stored();
  }
}

template <class To, class From>
void ExpectExact(const TQorVector<From>& amounts, const TQorVector<To>& converted) {
  for (std::size_t i = 0; i < amounts.size(); ++i)
    EXPECT_EQ(converted[i], Rounded<To>(Int128{amounts[i].stored()} * To::kScale, From::kScale));
}

// Ends of the ranges, where 32 bits end, and what lies beside ties.
TEST(CurrencyVectors, ConversionsAreExactAtTheBoundaries) {
  TQorCurrencyVector amounts;
  for (const std::int64_t centre :
       {std::int64_t{0}, kSmallest64, kLargest64, kSmallest64 / 100, kLargest64 / 100,
        std::int64_t{kSmallest32} * 100, std::int64_t{kLargest32} * 100,
        std::int64_t{kSmallest32} * 10'000, std::int64_t{kLargest32} * 10'000}) {
    for (std::int64_t offset = -15'100; offset <= 15'100; offset += 25) {
      for (const std::int64_t beside : {-1, 0, 1}) {
        std::int64_t stored = 0;
        if (!__builtin_add_overflow(centre, offset + beside, &stored))
          AppendValue2Vector(amounts, Currency(stored));
      }
    }
  }
  TQorLongCurrVector millionths;
  for (const Currency x : amounts) AppendValue2Vector(millionths, QorLongCurrency(x.stored()));
  ExpectExact(amounts, Vector2QorCurrVector(amounts));
  ExpectExact(amounts, Vector2QorLongCurrVector(amounts));
  ExpectExact(millionths, Vector2QorCurrVector(millionths));
  ExpectExact(millionths, Vector2QorCurrencyVector(millionths));
}

TEST(CurrencyVectors, ConvertElementByElement) {
  const TQorFloatVector floats = {1.23456L, -0.125L, 1e30L, kNaN};
  EXPECT_EQ(Vector2QorCurrencyVector(floats),
            (TQorCurrencyVector{Currency(12'346), Currency(-1'250), Currency(kSmallest64),
                                Currency(kSmallest64)}));
  EXPECT_EQ(Vector2QorCurrVector(floats),
            (TQorCurrVector{QorCurrency(123), QorCurrency(-12), QorCurrency(kSmallest32),
                            QorCurrency(kSmallest32)}));
  EXPECT_EQ(Vector2QorLongCurrVector(floats)[0], QorLongCurrency(1'234'560));

  const TQorCurrencyVector amounts = {Currency(15'050), Currency(-250), Currency(150)};
  EXPECT_EQ(Vector2QorCurrVector(amounts),
            (TQorCurrVector{QorCurrency(150), QorCurrency(-2), QorCurrency(2)}));
  EXPECT_EQ(Vector2QorLongCurrVector(amounts)[1], QorLongCurrency(-25'000));
  EXPECT_EQ(Vector2FloatVector(amounts), (TQorFloatVector{1.505L, -0.025L, 0.015L}));
  const TQorCurrVector cents = {QorCurrency(150)};
  EXPECT_EQ(Vector2QorCurrencyVector(cents), TQorCurrencyVector{Currency(15'000)});
  EXPECT_EQ(Vector2QorLongCurrVector(cents), TQorLongCurrVector{QorLongCurrency(1'500'000)});
  EXPECT_EQ(Vector2FloatVector(cents), TQorFloatVector{1.5L});
  const TQorLongCurrVector millionths = {QorLongCurrency(5'000), QorLongCurrency(15'000)};
  EXPECT_EQ(Vector2QorCurrVector(millionths), (TQorCurrVector{QorCurrency(0), QorCurrency(2)}));
  EXPECT_EQ(Vector2QorCurrencyVector(millionths),
            (TQorCurrencyVector{Currency(50), Currency(150)}));
  EXPECT_EQ(Vector2FloatVector(millionths), (TQorFloatVector{0.005L, 0.015L}));
  const TQorCurrencyVector copy = Vector2QorCurrencyVector(amounts);
  EXPECT_EQ(copy, amounts);
  EXPECT_FALSE(copy.SharesBufferWith(amounts));
}

// Both units name the same routines.
TEST(CurrencyVectors, UnitsNameTheirRoutines) {
  const TQorCurrVector cents = {QorCurrency(3), QorCurrency(4)};
  EXPECT_EQ(QorvexFinVector::SumVector(cents), QorCurrency(7));
  EXPECT_EQ(qorvex::SumVector(cents), QorCurrency(7));
  EXPECT_EQ(qorvex::SumVector(TQorLIntVector{3, 4}), 7);
}

}  // namespace
}  // namespace qorvex
