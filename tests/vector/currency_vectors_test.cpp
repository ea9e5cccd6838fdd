// Where vectors of amounts differ from vectors of integers.

#include <array>
#include <span>
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
  EXPECT_MATH_ERROR(LinearTransformVector(empty, 1, 0), rsVectorIsEmpty);
}

TEST(CurrencyVectors, OnlyTheSignsOfCurrencyHaveATolerance) {
  const testing::KeptTolerance kept;
  const auto signs = [](const auto& v) {
    return std::tuple(VectorZero(v), VectorNonZero(v), VectorPositive(v), VectorNonNegative(v));
  };
  const TQorCurrencyVector small_debt = {Currency(-1)};
  EXPECT_EQ(signs(TQorCurrencyVector{Currency(1)}), std::tuple(false, true, true, true));
  EXPECT_EQ(signs(small_debt), std::tuple(false, true, false, false));
  QorTolerance = 0.001L;
  EXPECT_EQ(signs(small_debt), std::tuple(true, false, false, true));
  QorTolerance = 1;
  EXPECT_EQ(signs(TQorLongCurrVector{QorLongCurrency(1)}), std::tuple(false, true, true, true));
  EXPECT_EQ(signs(TQorCurrVector{QorCurrency(-1)}), std::tuple(false, true, false, false));
}

// Sums of some amounts are out of range; that of all is at most at the end of the range.
TYPED_TEST(AmountVectors, RaiseOnlyIfTheSumIsOutOfRange) {
  using T = TypeParam;
  using Stored = typename T::StoredType;
  constexpr T largest = std::numeric_limits<T>::max();
  constexpr T smallest = std::numeric_limits<T>::min();
  constexpr T cent(Stored{1});
  EXPECT_EQ(CheckedSum(TQorVector<T>{largest, largest, -largest, cent, -cent}), largest);
  EXPECT_EQ(CheckedSum(std::vector<T>{-cent, -largest}), smallest);
  EXPECT_ERROR(CheckedSum(std::array{largest, cent}), EOverflow, rsAmountOverflow);
  EXPECT_ERROR(CheckedSum(std::array{smallest, cent, -cent, -cent}), EOverflow, rsAmountOverflow);
  EXPECT_MATH_ERROR(CheckedSum(std::span<const T>()), rsVectorIsEmpty);
}

// Like many views: makes each text when it is read, and cannot be read through a const reference.
struct LongTexts {
  struct Iterator {
    using value_type = std::string;
    using difference_type = std::ptrdiff_t;
    std::string operator*() const { return std::string(40, '0') + std::to_string(number); }
    Iterator& operator++() { return ++number, *this; }
    void operator++(int) { ++number; }
    bool operator==(const Iterator&) const = default;
    int number;
  };
  Iterator begin() { return {1}; }
  Iterator end() { return {3}; }
};

TEST(CurrencyVectors, FromTextOrNotAtAll) {
  EXPECT_EQ(Text2QorCurrencyVector({"0.0347", " 12.495"}),
            (TQorCurrencyVector{Currency(347), Currency(124'950)}));
  EXPECT_EQ(Text2QorCurrVector(std::vector<std::string>{"1.125", "-7"}),
            (TQorCurrVector{QorCurrency(112), QorCurrency(-700)}));
  EXPECT_EQ(Text2QorLongCurrVector(std::array{"1e-6"}), TQorLongCurrVector{QorLongCurrency(1)});
  EXPECT_TRUE(Text2QorCurrVector(std::vector<std::string_view>()).empty());
  EXPECT_EQ(Text2QorCurrVector(LongTexts()), (TQorCurrVector{QorCurrency(100), QorCurrency(200)}));
  try {
    static_cast<void>(Text2QorCurrVector({"1.25", "12.5O", "x"}));
    ADD_FAILURE();
  } catch (const EConvertError& error) {
    EXPECT_STREQ(error.what(), "\"12.5O\" is not a number");
  }
  EXPECT_ERROR(Text2QorCurrVector({"1", "3e7"}), EConvertError, rsNumberTooLarge);
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
    // Only Currency: the other amounts are divided by their scale first, which may miss a tie.
    if constexpr (std::same_as<T, Currency>) ExpectTransformed(T(stored >> (3 + i % 50)), -6, 8);
  }
  ExpectTransformed(std::numeric_limits<T>::max(), 8, 2);
}

// The conversions of single amounts are tested with the base.
TEST(CurrencyVectors, ConvertElementByElement) {
  const TQorFloatVector floats{1.25L, -7};
  const TQorCurrVector cents{QorCurrency(125), QorCurrency(-700)};
  const TQorCurrencyVector amounts{Currency(12'500), Currency(-70'000)};
  const TQorLongCurrVector millionths{QorLongCurrency(1'250'000), QorLongCurrency(-7'000'000)};
  EXPECT_EQ(Vector2QorCurrVector(floats), cents);
  EXPECT_EQ(Vector2QorCurrVector(std::span(amounts)), cents);
  EXPECT_EQ(Vector2QorCurrVector(millionths), cents);
  EXPECT_EQ(Vector2QorCurrencyVector(std::vector{1.25L, -7.0L}), amounts);
  EXPECT_EQ(Vector2QorCurrencyVector(cents), amounts);
  EXPECT_EQ(Vector2QorCurrencyVector(millionths), amounts);
  EXPECT_EQ(Vector2QorLongCurrVector(floats), millionths);
  EXPECT_EQ(Vector2QorLongCurrVector(cents), millionths);
  EXPECT_EQ(Vector2QorLongCurrVector(amounts), millionths);
  EXPECT_EQ(Vector2FloatVector(cents), floats);
  EXPECT_EQ(Vector2FloatVector(amounts), floats);
  EXPECT_EQ(Vector2FloatVector(millionths), floats);
  EXPECT_FALSE(Vector2QorCurrencyVector(amounts).SharesBufferWith(amounts));
}

}  // namespace
}  // namespace qorvex
