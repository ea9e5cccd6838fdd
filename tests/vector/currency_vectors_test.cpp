// Where vectors of amounts differ from vectors of integers.

#include <tuple>

#include "qorvex/vector/QorvexFinVector.h"
#include "support/amounts.h"
#include "support/kept_tolerance.h"
#include "support/random_vectors.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Int128;
using testing::NearestAmount;
using testing::Stored;

template <class T>
class AmountVectors : public ::testing::Test {};
TYPED_TEST_SUITE(AmountVectors, CurrencyTypes);

// The routines for integers are tested elsewhere.
TYPED_TEST(AmountVectors, BehaveAsVectorsOfTheStoredIntegers) {
  using T = TypeParam;
  testing::Engine engine(6);
  for (const std::size_t n : {1U, 2U, 9U, 400U}) {
    auto amounts = testing::RandomVector<T>(engine, n);
    amounts[n / 2] = amounts[0];
    const auto others = testing::RandomVector<T>(engine, n);
    auto stored = Stored(amounts);
    EXPECT_EQ(MinVector(amounts).stored(), MinVector(stored));
    EXPECT_EQ(MaxVector(amounts).stored(), MaxVector(stored));
    EXPECT_EQ(Stored(ReverseVector(amounts)), ReverseVector(stored));
    EXPECT_EQ(Stored(AddVectors(amounts, others)), AddVectors(stored, Stored(others)));
    EXPECT_EQ(Stored(SubtractVectors(amounts, others)), SubtractVectors(stored, Stored(others)));
    EXPECT_EQ(SumVector(amounts).stored(), static_cast<typename T::StoredType>(SumVector(stored)))
        << "wraps around in the element's width";
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
    AppendValue2Vector(amounts, T(5));
    AddValue2Vector(amounts, T(6), 0);
    DeleteValueFromVector(amounts, 0);
    stored.Append(5);
    EXPECT_EQ(Stored(amounts), stored);
    FillVector(amounts, T(7));
    EXPECT_EQ(amounts[n], T(7));
    ClearVector(amounts);
    EXPECT_TRUE(VectorZero(amounts));
  }
  TQorVector<T> empty;
  EXPECT_MATH_ERROR(SumVector(empty), rsVectorIsEmpty);
  EXPECT_MATH_ERROR(LinearTransformVector(empty, 1, 0), rsVectorIsEmpty);
}

TEST(CurrencyVectors, OnlyTheSignsOfCurrencyHaveATolerance) {
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
  QorTolerance = 1;
  EXPECT_EQ(signs(TQorLongCurrVector{QorLongCurrency(1)}), std::tuple(false, true, true, true));
  EXPECT_EQ(signs(TQorCurrVector{QorCurrency(-1)}), std::tuple(false, true, false, false));
  EXPECT_EQ(Vector2RankValue(TQorCurrVector{QorCurrency(1)}, QorCurrency(2), true), -1);
}

// Slope and intercept, in quarters, are exact in extended precision, and so is the result.
template <class T>
void ExpectTransformed(T amount, int slope, int intercept) {
  TQorVector<T> v = {amount};
  LinearTransformVector(v, slope * 0.25L, intercept * 0.25L);
  const Int128 transformed = Int128{amount.stored()} * slope + Int128{T::kScale} * intercept;
  ASSERT_EQ(v[0], NearestAmount<T>(transformed, 4)) << amount;
}

TYPED_TEST(AmountVectors, AreTransformedInUnits) {
  using T = TypeParam;
  using Stored = typename T::StoredType;
  testing::Engine engine(8);
  for (int i = 0; i < 20'000; ++i) {
    const auto stored = static_cast<Stored>(engine());
    ExpectTransformed(T(static_cast<Stored>(stored >> (sizeof(T) == 4 ? 0 : 12))), 12, -29);
  }
  ExpectTransformed(std::numeric_limits<T>::max(), 8, 2);
}

// Only for Currency: the other amounts are divided by their scale first, which may miss a tie.
TEST(CurrencyVectors, LinearTransformationsRoundTiesToEven) {
  testing::Engine engine(8);
  for (int i = 0; i < 20'000; ++i) {
    const auto stored = static_cast<std::int64_t>(engine()) >> (3 + engine() % 50);
    ExpectTransformed(Currency(stored), -6, 8);
  }
}

// The conversions of single amounts are tested with the base.
template <class From, class To>
void ExpectConverted(const TQorVector<From>& vector, const TQorVector<To>& converted,
                     std::type_identity_t<To (*)(From)> convert) {
  ASSERT_EQ(converted.size(), vector.size());
  for (std::size_t i = 0; i < vector.size(); ++i) EXPECT_EQ(converted[i], convert(vector[i]));
}

TEST(CurrencyVectors, ConvertElementByElement) {
  const TQorFloatVector floats = {1.2345678L, -0.125L, 1e30L, kNaN};
  ExpectConverted(floats, Vector2QorCurrVector(floats), Float2QorCurrency);
  ExpectConverted(floats, Vector2QorCurrencyVector(floats), Float2Currency);
  ExpectConverted(floats, Vector2QorLongCurrVector(floats), Float2QorLongCurrency);
  const TQorCurrVector cents = {QorCurrency(150), QorCurrency(-7)};
  ExpectConverted(cents, Vector2QorCurrencyVector(cents), QorCurrency2Currency);
  ExpectConverted(cents, Vector2QorLongCurrVector(cents), QorCurrency2QorLongCurrency);
  ExpectConverted(cents, Vector2FloatVector(cents), Currency2Float);
  const TQorCurrencyVector amounts = {Currency(15'050), Currency(-250), Currency(150)};
  ExpectConverted(amounts, Vector2QorCurrVector(amounts), Currency2QorCurrency);
  ExpectConverted(amounts, Vector2QorLongCurrVector(amounts), Currency2QorLongCurrency);
  ExpectConverted(amounts, Vector2FloatVector(amounts), Currency2Float);
  const TQorLongCurrVector millionths = {QorLongCurrency(5'000), QorLongCurrency(15'050)};
  ExpectConverted(millionths, Vector2QorCurrVector(millionths), QorLongCurrency2QorCurrency);
  ExpectConverted(millionths, Vector2QorCurrencyVector(millionths), QorLongCurrency2Currency);
  ExpectConverted(millionths, Vector2FloatVector(millionths), Currency2Float);
  const TQorCurrencyVector copy = Vector2QorCurrencyVector(amounts);
  EXPECT_EQ(copy, amounts);
  EXPECT_FALSE(copy.SharesBufferWith(amounts));
}

}  // namespace
}  // namespace qorvex
