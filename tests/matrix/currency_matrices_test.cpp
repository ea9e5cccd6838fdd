// What matrices of amounts do otherwise than matrices of integers.

#include <limits>
#include <random>
#include <utility>

#include "qorvex/matrix/QorvexFinMatrix.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/test.h"

namespace qorvex {
namespace {

template <class T>
class AmountMatrices : public ::testing::Test {};
using Currencies = ::testing::Types<Currency, QorCurrency, QorLongCurrency>;
TYPED_TEST_SUITE(AmountMatrices, Currencies);

template <class T>
TQorMatrix<T> RandomAmounts(std::mt19937_64& engine, std::size_t rows, std::size_t cols) {
  auto matrix = TQorMatrix<T>::WithLength(rows);
  for (TQorVector<T>& row : matrix) {
    row = TQorVector<T>::WithLength(cols);
    for (T& x : row) x = T(static_cast<typename T::StoredType>(engine() >> engine() % 60));
  }
  return matrix;
}

template <class T>
TQorMatrix<typename T::StoredType> Stored(const TQorMatrix<T>& matrix) {
  using Integer = typename T::StoredType;
  auto stored = TQorMatrix<Integer>::WithLength(matrix.size());
  for (std::size_t i = 0; i < matrix.size(); ++i) {
    stored[i] = TQorVector<Integer>::WithLength(matrix[i].size());
    for (std::size_t j = 0; j < matrix[i].size(); ++j) stored[i][j] = matrix[i][j].stored();
  }
  return stored;
}

// The routines of integers are tested on their own.
TYPED_TEST(AmountMatrices, DoWithStoredIntegersWhatIntegerMatricesDo) {
  using T = TypeParam;
  using Integer = typename T::StoredType;
  std::mt19937_64 engine(25);
  for (const auto& [rows, cols] : {std::pair(2U, 2U), {3U, 5U}, {40U, 17U}}) {
    const TQorMatrix<T> a = RandomAmounts<T>(engine, rows, cols);
    const TQorMatrix<T> b = RandomAmounts<T>(engine, rows, cols);
    EXPECT_EQ(Stored(AddMatrices(a, b)), AddMatrices(Stored(a), Stored(b)));
    EXPECT_EQ(Stored(SubtractMatrices(a, b)), SubtractMatrices(Stored(a), Stored(b)));
    EXPECT_EQ(Stored(TransposeMatrix(a)), TransposeMatrix(Stored(a)));
    EXPECT_EQ(ExtractMatrixRow(a, 1), a[1]);
    EXPECT_EQ(ExtractMatrixCol(a, 1), TransposeMatrix(a)[1]);

    TQorMatrix<T> changed = CopyMatrix(a);
    TQorMatrix<Integer> stored = Stored(a);
    const auto expect_same = [&] { EXPECT_EQ(Stored(changed), stored); };
    QSortMatrixRowsOnCol(changed, 1, true);
    QSortMatrixRowsOnCol(stored, 1, true);
    expect_same();
    QSortMatrixColsOnRow(changed, 0, false);
    QSortMatrixColsOnRow(stored, 0, false);
    expect_same();
    SwapMatrixRows(changed, 0, 1);
    SwapMatrixCols(changed, 0, 1);
    SwapMatrixRows(stored, 0, 1);
    SwapMatrixCols(stored, 0, 1);
    expect_same();
    AddToMatrix(changed, b);
    SubtractFromMatrix(changed, b);
    expect_same();
    OverwriteMatrixRow(changed, 1, TQorVector<T>{T(3)}, T(4));
    OverwriteMatrixCol(changed, 0, TQorVector<T>{T(5)}, T(6));
    OverwriteMatrixRow(stored, 1, TQorVector<Integer>{3}, 4);
    OverwriteMatrixCol(stored, 0, TQorVector<Integer>{5}, 6);
    expect_same();
  }
}

TEST(CurrencyMatrices, IdentityHoldsOneUnit) {
  EXPECT_EQ(Stored(CreateCurrIdentityMatrix(2)), (TQorLIntMatrix{{100, 0}, {0, 100}}));
  EXPECT_EQ(Stored(CreateCurrencyIdentityMatrix(1)), (TQorInt64Matrix{{10'000}}));
  EXPECT_EQ(Stored(CreateLongCurrIdentityMatrix(1)), (TQorInt64Matrix{{1'000'000}}));
  EXPECT_EQ(Stored(CreateLongCurrMatrix(1, 2)), (TQorInt64Matrix{{0, 0}}));
  EXPECT_TRUE(CreateCurrMatrix(0, 3).empty());
}

// Only Currency converts to units.
TEST(CurrencyMatrices, FloatMatricesScaleCurrencyAlone) {
  EXPECT_EQ(Matrix2FloatMatrix(TQorCurrencyMatrix{{Currency(25'000)}, {}}),
            (TQorFloatMatrix{{2.5L}, {}}));
  EXPECT_EQ(Matrix2FloatMatrix(TQorCurrMatrix{{QorCurrency(250)}}), TQorFloatMatrix{{250}});
  EXPECT_EQ(Matrix2FloatMatrix(TQorLongCurrMatrix{{QorLongCurrency(-250)}}),
            TQorFloatMatrix{{-250}});
}

TEST(CurrencyMatrices, ProductsRoundToEvenOrBecomeTheSmallestAmount) {
  constexpr auto largest = std::numeric_limits<std::int32_t>::max();
  constexpr auto smallest = std::numeric_limits<std::int32_t>::min();
  const TQorCurrencyMatrix amount = {{Currency(1)}};
  EXPECT_EQ(MultiplyMatrixByConst(amount, 0.5L)[0][0], Currency(0));
  EXPECT_EQ(MultiplyMatrixByConst(amount, 1.5L)[0][0], Currency(2));
  TQorCurrMatrix cents = {{QorCurrency(largest)}, {QorCurrency(-7), QorCurrency(3)}};
  MultiplyMatrixByConst2(cents, 1.5L);
  EXPECT_EQ(Stored(cents), (TQorLIntMatrix{{smallest}, {-10, 4}}));
  TQorCurrencyMatrix empty;
  EXPECT_MATH_ERROR(MultiplyMatrixByConst(empty, 1), rsMatrixIsEmpty);
  EXPECT_MATH_ERROR(LinearTransformMatrix(empty, 1, 0), rsMatrixIsEmpty);
}

TEST(CurrencyMatrices, LinearTransformationsAreInUnits) {
  TQorCurrencyMatrix amounts = {{Currency(0), Currency(-1)}, {Currency(5)}};
  LinearTransformMatrix(amounts, 1, 1);
  EXPECT_EQ(Stored(amounts), (TQorInt64Matrix{{10'000, 9'999}, {10'005}}));
  TQorCurrMatrix cents = {{QorCurrency(200)}};
  LinearTransformMatrix(cents, 0.25L, 0.125L);
  EXPECT_EQ(cents[0][0], QorCurrency(62)) << "0.625 has a tie of cents";
  TQorLongCurrMatrix millionths = {{QorLongCurrency(3)}};
  LinearTransformMatrix(millionths, 2, -1);
  EXPECT_EQ(millionths[0][0], QorLongCurrency(-999'994));
}

TEST(CurrencyMatrices, GrandMeansAreAmountsRoundedToEven) {
  constexpr auto largest = std::numeric_limits<std::int32_t>::max();
  std::uint32_t count = 9;
  EXPECT_EQ(GrandMean(TQorCurrencyMatrix{{Currency(1)}, {Currency(2)}}, count), Currency(2));
  EXPECT_EQ(count, 2U);
  EXPECT_EQ(GrandMean(TQorCurrencyMatrix{{Currency(-1), Currency(-2), Currency(-2)}}, count),
            Currency(-2));
  EXPECT_EQ(GrandMean(TQorCurrMatrix{{QorCurrency(largest), QorCurrency(largest)}}, count),
            QorCurrency(largest))
      << "sums have 64 bits";
  // The quotient has 62 bits and a remainder just below a half, which 64 bits would round to it.
  constexpr auto large = std::int64_t{1} << 61;
  const TQorLongCurrMatrix near_tie = {
      {QorLongCurrency(large + 1), QorLongCurrency(large + 1), QorLongCurrency(large + 2)}};
  EXPECT_EQ(GrandMean(near_tie, count), QorLongCurrency(large + 1));
  EXPECT_MATH_ERROR(GrandMean(TQorCurrMatrix{{}, {}}, count), rsMatrixIsEmpty);
  EXPECT_EQ(count, 0U);
}

// The switch of one unit is none of the other's.
TEST(CurrencyMatrices, HaveAShapeSwitchOfTheirOwn) {
  const TQorCurrMatrix money = {{QorCurrency(1), QorCurrency(2)}, {QorCurrency(3)}};
  const TQorLIntMatrix integers = {{1, 2}, {3}};
  ASSERT_TRUE(QorvexFinMatrix::QorMatrixRectangularCheck);
  const auto rectangular = [](const auto& matrix) {
    std::uint32_t rows = 0;
    std::uint32_t cols = 0;
    bool is_rectangular = false;
    MatrixDimensions(matrix, rows, cols, is_rectangular);
    return is_rectangular;
  };
  QorvexFinMatrix::QorMatrixRectangularCheck = false;
  EXPECT_TRUE(rectangular(money));
  EXPECT_FALSE(rectangular(integers));
  EXPECT_MATH_ERROR(TransposeMatrix(money), rsMatrixRect);
  QorvexFinMatrix::QorMatrixRectangularCheck = true;
  QorvexMatrix::QorMatrixRectangularCheck = false;
  EXPECT_FALSE(rectangular(money));
  EXPECT_TRUE(rectangular(integers));
  QorvexMatrix::QorMatrixRectangularCheck = true;
}

}  // namespace
}  // namespace qorvex
