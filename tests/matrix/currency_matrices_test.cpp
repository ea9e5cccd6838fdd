// Where matrices of amounts differ from matrices of integers.

#include "qorvex/matrix/QorvexFinMatrix.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/amounts.h"
#include "support/random_matrices.h"
#include "support/test.h"

namespace qorvex {
namespace {

using testing::Stored;

template <class T>
class AmountMatrices : public ::testing::Test {};
TYPED_TEST_SUITE(AmountMatrices, CurrencyTypes);

// The routines for integers are tested elsewhere.
TYPED_TEST(AmountMatrices, BehaveAsMatricesOfTheStoredIntegers) {
  using T = TypeParam;
  testing::Engine engine(25);
  for (const auto& [rows, cols] : {std::pair(2U, 2U), {3U, 5U}, {40U, 17U}}) {
    const auto given = testing::RandomMatrix<T>(engine, rows, cols);
    EXPECT_EQ(Stored(TransposeMatrix(given)), TransposeMatrix(Stored(given)));
    EXPECT_EQ(ExtractMatrixRow(given, 1), given[1]);
    EXPECT_EQ(ExtractMatrixCol(given, 1), TransposeMatrix(given)[1]);

    auto amounts = CopyMatrix(given);
    auto integers = Stored(given);
    const auto change = [](auto& m) {
      QSortMatrixRowsOnCol(m, 1, true);
      QSortMatrixColsOnRow(m, 0, false);
      SwapMatrixRows(m, 0, 1);
      SwapMatrixCols(m, 0, 1);
      OverwriteMatrixRow(m, 1, {m[0][0]}, m[0][1]);
      OverwriteMatrixCol(m, 0, {m[1][1]}, m[0][1]);
    };
    change(amounts);
    change(integers);
    EXPECT_EQ(Stored(amounts), integers);
  }
}

TEST(CurrencyMatrices, AreCreatedWithZerosOrWithOneUnitOnTheDiagonal) {
  EXPECT_EQ(Stored(CreateCurrIdentityMatrix(2)), (TQorLIntMatrix{{100, 0}, {0, 100}}));
  EXPECT_EQ(Stored(CreateCurrencyIdentityMatrix(1)), (TQorInt64Matrix{{10'000}}));
  EXPECT_EQ(Stored(CreateLongCurrIdentityMatrix(1)), (TQorInt64Matrix{{1'000'000}}));
  EXPECT_EQ(Stored(CreateLongCurrMatrix(1, 2)), (TQorInt64Matrix{{0, 0}}));
  EXPECT_EQ(Stored(CreateCurrencyMatrix(2, 1)), (TQorInt64Matrix{{0}, {0}}));
  EXPECT_TRUE(CreateCurrMatrix(0, 3).empty());
}

TEST(CurrencyMatrices, OnlyCurrencyConvertsToUnits) {
  EXPECT_EQ(Matrix2FloatMatrix(TQorCurrencyMatrix{{Currency(25'000)}, {}}),
            (TQorFloatMatrix{{2.5L}, {}}));
  EXPECT_EQ(Matrix2FloatMatrix(TQorCurrMatrix{{QorCurrency(250)}}), TQorFloatMatrix{{250}});
  EXPECT_EQ(Matrix2FloatMatrix(TQorLongCurrMatrix{{QorLongCurrency(-250)}}),
            TQorFloatMatrix{{-250}});
}

TEST(CurrencyMatrices, ProductsRoundToEvenOrBecomeTheSmallestAmount) {
  TQorCurrMatrix cents = {{QorCurrency(INT32_MAX)}, {QorCurrency(-7), QorCurrency(3)}};
  const TQorLIntMatrix expected{{INT32_MIN}, {-10, 4}};
  EXPECT_EQ(Stored(MultiplyMatrixByConst(cents, 1.5L)), expected);
  MultiplyMatrixByConst2(cents, 1.5L);
  EXPECT_EQ(Stored(cents), expected);
}

TEST(CurrencyMatrices, GrandMeansAreAmountsRoundedToEven) {
  std::uint32_t count = 9;
  EXPECT_EQ(GrandMean(TQorCurrencyMatrix{{Currency(1)}, {Currency(2)}}, count), Currency(2));
  EXPECT_EQ(count, 2U);
  const TQorCurrMatrix largest{{QorCurrency(INT32_MAX), QorCurrency(INT32_MAX)}};
  EXPECT_EQ(GrandMean(largest, count), largest[0][0]) << "sums have 64 bits";
  // The quotient has 62 bits and its remainder is just below a half, which extended precision would
  // round up to a half.
  constexpr auto large = std::int64_t{1} << 61;
  const TQorLongCurrMatrix near_tie = {
      {QorLongCurrency(large + 1), QorLongCurrency(large + 1), QorLongCurrency(large + 2)}};
  EXPECT_EQ(GrandMean(near_tie, count), QorLongCurrency(large + 1));
  EXPECT_MATH_ERROR(GrandMean(TQorCurrMatrix{{}, {}}, count), rsMatrixIsEmpty);
  EXPECT_EQ(count, 0U);
}

TEST(CurrencyMatrices, HaveTheirOwnShapeSwitch) {
  const TQorCurrMatrix money = {{QorCurrency(1), QorCurrency(2)}, {QorCurrency(3)}};
  const TQorLIntMatrix integers = {{1, 2}, {3}};
  EXPECT_FALSE(MatricesSameDimensions(money, money));
  EXPECT_TRUE(QorvexFinMatrix::QorMatrixRectangularCheck.exchange(false));
  EXPECT_TRUE(MatricesSameDimensions(money, money));
  EXPECT_FALSE(MatricesSameDimensions(integers, integers));
  EXPECT_MATH_ERROR(TransposeMatrix(money), rsMatrixRect);
  QorvexFinMatrix::QorMatrixRectangularCheck = true;
}

}  // namespace
}  // namespace qorvex
