#include "qorvex/matrix/reduction.h"

#include <atomic>
#include <thread>
#include <utility>

#include "matrix/plain_reduction.h"
#include "qorvex/base/comparisons.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/failing_allocation.h"
#include "support/kept_tolerance.h"
#include "support/random_matrices.h"
#include "support/rectangular_check_off.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::MatrixOf;
using testing::PlainReduction;
using testing::SameBits;

// The reduced matrix, the rank, the inverse and the determinant agree in every bit.
template <FloatElement T>
void ExpectWhatPlainLoopsGive(const TQorMatrix<T>& given) {
  auto plain = CopyMatrix(given);
  auto matrix = CopyMatrix(given);
  PlainReduction<T> echelon{plain};
  echelon.Eliminate();
  std::uint32_t rank = 99;
  RowEchelonFormRank(matrix, rank);
  EXPECT_TRUE(SameBits(matrix, plain));
  EXPECT_EQ(rank, echelon.rank);
  const std::size_t order = given.size();
  if (order != given[0].size()) return;

  plain = CopyMatrix(given);
  matrix = CopyMatrix(given);
  auto plain_inverse = MatrixOf<T>(order, order, [](auto i, auto j) { return T(i == j); });
  TQorMatrix<T> inverse;
  const bool regular = MatrixInverse(matrix, inverse);
  EXPECT_EQ(regular, (PlainReduction<T>{plain, &plain_inverse}.Invert()));
  EXPECT_TRUE(SameBits(matrix, plain));
  EXPECT_TRUE(SameBits(inverse, plain_inverse));

  plain = CopyMatrix(given);
  matrix = CopyMatrix(given);
  EXPECT_TRUE(SameBits(MatrixDeterminant(matrix), PlainReduction<T>{plain}.Determinant()));
}

template <class T>
class ReductionOf : public ::testing::Test {};
TYPED_TEST_SUITE(ReductionOf, FloatTypes, );

TYPED_TEST(ReductionOf, AgreesInEveryBitWithThePlainLoops) {
  using T = TypeParam;
  Engine engine(20261121);
  const std::pair<std::size_t, std::size_t> shapes[] = {{1, 1},  {1, 7},   {7, 1},   {2, 2},
                                                        {3, 5},  {5, 3},   {4, 4},   {15, 15},
                                                        {20, 6}, {17, 17}, {14, 30}, {31, 31}};
  for (const auto& [name, making] : testing::FloatMakings<T>(engine, 8)) {
    for (const auto& [rows, cols] : shapes) {
      SCOPED_TRACE(std::string(name) + ' ' + Int2EStr(rows) + " x " + Int2EStr(cols));
      for (int repetition = 0; repetition < 8; ++repetition) {
        ExpectWhatPlainLoopsGive(MatrixOf<T>(rows, cols, making));
        if (this->HasFailure()) return;
      }
    }
  }
  // Of low rank, so that columns without a pivot lie between the others.
  const auto digit = [&](auto...) { return static_cast<T>(engine() % 3); };
  for (const std::size_t order : {2U, 3U, 4U, 6U, 16U, 33U}) {
    const auto a = MatrixOf<T>(order, order / 2, digit);
    const auto b = MatrixOf<T>(order / 2, order + 5, digit);
    ExpectWhatPlainLoopsGive(MultiplyMatrices(a, b));
    ExpectWhatPlainLoopsGive(MultiplyMatrices(TransposeMatrix(b), TransposeMatrix(a)));
    ExpectWhatPlainLoopsGive(MultiplyMatrices(a, TransposeMatrix(a)));
  }
}

TYPED_TEST(ReductionOf, RowsThatShareABufferArePartedFirst) {
  using T = TypeParam;
  TQorMatrix<T> matrix{{1, 2, 4}, {2, 2, 2}, {}};
  matrix[2] = matrix[0];
  const TQorVector<T> first = matrix[0];
  const TQorVector<T> between = matrix[1];
  auto copy = CopyMatrix(matrix);
  RowEchelonForm(matrix);
  RowEchelonForm(copy);
  EXPECT_EQ(matrix, copy);
  EXPECT_TRUE(first.SharesBufferWith(matrix[0]));
  EXPECT_TRUE(between.SharesBufferWith(matrix[1]));
}

// What is computed instead of set to zero leaves residue there, which grows from pivot to pivot.
TYPED_TEST(ReductionOf, WritesZerosInFrontOfThePivotsAndBesideTheOnesOfAnInvertedMatrix) {
  using T = TypeParam;
  Engine engine(11);
  const auto is_plus_zero = [](T x) { return x == 0 && !std::signbit(x); };
  for (const std::size_t order : {3U, 8U, 15U, 40U, 100U}) {
    SCOPED_TRACE(order);
    const auto given = MatrixOf<T>(
        order, order, [&](auto...) { return static_cast<T>(static_cast<int>(engine() % 19) - 9); });
    auto matrix = CopyMatrix(given);
    TQorMatrix<T> inverse;
    EXPECT_TRUE(MatrixInverse(matrix, inverse));
    EXPECT_TRUE(MatrixIsIdentity(matrix));
    for (std::size_t i = 0; i < order; ++i) matrix[i][i] = 0;
    for (const auto& row : matrix) EXPECT_TRUE(std::ranges::all_of(row, is_plus_zero));
    const auto product = MultiplyMatrices(Matrix2FloatMatrix(given), Matrix2FloatMatrix(inverse));
    const testing::KeptTolerance kept;
    QorTolerance = 2e3L * std::numeric_limits<T>::epsilon();
    EXPECT_TRUE(MatrixIsIdentity(product));

    // Two rows make a third. Rounding in T may leave a small pivot where exact arithmetic has zero.
    QorTolerance = 1e5L * std::numeric_limits<T>::epsilon();
    matrix = CopyMatrix(given);
    for (std::size_t j = 0; j < order; ++j) matrix[order - 1][j] = matrix[0][j] - matrix[1][j];
    std::uint32_t rank = 0;
    RowEchelonFormRank(matrix, rank);
    EXPECT_EQ(rank, order - 1);
    std::size_t leading_zeros = 0;
    for (const auto& row : matrix) {
      const auto first = std::ranges::find_if_not(row, is_plus_zero) - row.begin();
      EXPECT_GE(static_cast<std::size_t>(first), leading_zeros);
      leading_zeros = std::min(static_cast<std::size_t>(first) + 1, order);
    }
    matrix = CopyMatrix(given);
    matrix[1] = matrix[0];
    EXPECT_EQ(MatrixDeterminant(matrix), 0);
  }
}

// A diagonal matrix and a full one, each with one element that is NaN or infinite.
TYPED_TEST(ReductionOf, RefusesNaNAndInfinityWhereverTheyAre) {
  using T = TypeParam;
  constexpr T values[] = {std::numeric_limits<T>::quiet_NaN(), std::numeric_limits<T>::infinity(),
                          -std::numeric_limits<T>::infinity()};
  for (const std::size_t order : {2U, 3U, 20U}) {
    for (std::size_t place = 0; place < order * order; ++place) {
      const std::size_t row = place / order;
      const std::size_t col = place % order;
      for (const T value : values) {
        SCOPED_TRACE(Int2EStr(order) + ": " + Int2EStr(row) + ',' + Int2EStr(col));
        auto diagonal = MatrixOf<T>(order, order, [](auto i, auto j) { return T(i == j); });
        auto filled = MatrixOf<T>(order, order, [](auto i, auto j) {
          return static_cast<T>(std::min(i, j) + 1) / static_cast<T>(std::max(i, j) + 1);
        });
        diagonal[row][col] = filled[row][col] = value;
        TQorMatrix<T> inverse;
        for (const auto& given : {diagonal, filled}) {
          auto matrix = CopyMatrix(given);
          EXPECT_FALSE(MatrixInverse(matrix, inverse));
        }
        // Above the diagonal no pivot meets the element, unless it is added to the rows below.
        const Extended determinant = MatrixDeterminant(diagonal);
        EXPECT_TRUE(row < col ? determinant == 1 : std::isnan(determinant)) << determinant;
        EXPECT_TRUE(std::isnan(MatrixDeterminant(filled)));
      }
    }
  }
}

TYPED_TEST(ReductionOf, TakesTheTopmostNaNForThePivotAndThenInfinity) {
  using T = TypeParam;
  constexpr T nan = std::numeric_limits<T>::quiet_NaN();
  constexpr T inf = std::numeric_limits<T>::infinity();
  const struct {
    TQorMatrix<T> given, echelon;
  } cases[] = {
      {{{nan}, {1}}, {{nan}, {0}}},
      {{{1}, {nan}}, {{nan}, {0}}},
      {{{inf}, {nan}}, {{nan}, {0}}},
      {{{1}, {-inf}}, {{nan}, {0}}},
      {{{inf}, {1}}, {{nan}, {0}}},
      {{{nan, 2}}, {{nan, nan}}},
      {{{2, nan}}, {{1, nan}}},
      {{{0, nan}}, {{0, nan}}},
      {{{inf, 2}}, {{nan, 0}}},
      {{{2, inf}}, {{1, inf}}},
      // Rows whose element is zero are not added to.
      {{{0, 4}, {nan, 1}}, {{nan, nan}, {0, 1}}},
      {{{inf, 1, 2}, {0, 4, 8}, {nan, 1, 1}}, {{nan, nan, nan}, {0, nan, nan}, {0, 0, nan}}},
      {{{0, 2, 4}, {inf, 1, 2}}, {{nan, 0, 0}, {0, 1, 2}}},
  };
  for (const auto& [given, echelon] : cases) {
    auto matrix = CopyMatrix(given);
    std::uint32_t rank = 0;
    RowEchelonFormRank(matrix, rank);
    EXPECT_TRUE(SameBits(matrix, echelon)) << &given - &cases[0].given;
    EXPECT_EQ(rank, std::min(given.size(), given[0].size()));
  }
}

TEST(Reduction, RefusesAnInverseThatOverflows) {
  const testing::KeptTolerance kept;
  QorTolerance = 0;
  TQorSingleMatrix matrix{{1e-20F, 0}, {0, 1e-40F}};
  TQorSingleMatrix inverse;
  EXPECT_FALSE(MatrixInverse(matrix, inverse));
}

TEST(Reduction, TakesThePivotsAndSignsThatHandsWouldTake) {
  const struct {
    TQorFloatMatrix given, echelon;
    Extended determinant;
  } cases[] = {
      {{{0, 2}, {0, 4}}, {{0, 1}, {0, 0}}, 0},
      {{{0, 1}, {1, 0}}, {{1, 0}, {0, 1}}, -1},
      {{{4}}, {{1}}, 4},
      // The topmost of equal magnitudes is the pivot.
      {{{-2, 1}, {2, 3}}, {{1, -0.5L}, {0, 1}}, -8},
      // One that is near enough to one stays what it is.
      {{{1 + 0.9e-15L, 3}, {0, 1}}, {{1 + 0.9e-15L, 3}, {0, 1}}, 1 + 0.9e-15L},
  };
  for (const auto& [given, echelon, determinant] : cases) {
    auto matrix = CopyMatrix(given);
    EXPECT_EQ(MatrixDeterminant(matrix), determinant);
    matrix = CopyMatrix(given);
    RowEchelonForm(matrix);
    EXPECT_EQ(matrix, echelon);
  }
}

TEST(Reduction, InvertsIntoTheMatrixItself) {
  TQorFloatMatrix matrix{{4}};
  const TQorFloatMatrix handle = matrix;
  EXPECT_TRUE(MatrixInverse(matrix, matrix));
  EXPECT_EQ(matrix, (TQorFloatMatrix{{0.25L}}));
  EXPECT_EQ(handle, (TQorFloatMatrix{{1}}));
}

TEST(Reduction, RefusesWhatHasNoShapeAndRestoresTheSwitch) {
  TQorFloatMatrix empty;
  TQorFloatMatrix ragged{{1, 2}, {3}};
  TQorFloatMatrix wide{{1, 2, 3}, {4, 5, 6}};
  TQorFloatMatrix inverse{{7}};
  const auto expect_errors = [&](TQorFloatMatrix& matrix, MessageId id) {
    std::uint32_t rank = 9;
    EXPECT_MATH_ERROR(RowEchelonForm(matrix), id);
    EXPECT_MATH_ERROR(RowEchelonFormRank(matrix, rank), id);
    EXPECT_MATH_ERROR(MatrixInverse(matrix, inverse), id);
    EXPECT_MATH_ERROR(MatrixDeterminant(matrix), id);
    EXPECT_EQ(rank, 0U);
  };
  expect_errors(empty, rsMatrixIsEmpty);
  expect_errors(ragged, rsMatrixIsEmpty);
  EXPECT_MATH_ERROR(MatrixInverse(wide, inverse), rsMatrixSqr);
  EXPECT_MATH_ERROR(MatrixDeterminant(wide), rsMatrixSqr);
  EXPECT_EQ(inverse, (TQorFloatMatrix{{7}}));
  EXPECT_TRUE(QorMatrixRectangularCheck);

  // With the switch off a short row is still not read beyond its end.
  const testing::RectangularCheckOff off;
  expect_errors(ragged, rsMatrixRect);
  EXPECT_EQ(ragged, (TQorFloatMatrix{{1, 2}, {3}}));
  RowEchelonForm(wide);
  EXPECT_FALSE(QorMatrixRectangularCheck);
}

TEST(Reduction, LackOfMemoryChangesNoElement) {
  Engine engine(5);
  const auto given = testing::RandomMatrix<Extended>(engine, 14, 14);
  auto matrix = CopyMatrix(given);
  matrix[4] = matrix[2];
  const auto before = CopyMatrix(matrix);
  TQorFloatMatrix inverse{{7}};
  testing::ExpectFailuresChangeNothing(
      [&] { static_cast<void>(MatrixInverse(matrix, inverse)); },
      [&] { return matrix == before && inverse[0][0] == 7 && QorMatrixRectangularCheck; });
}

TEST(Reduction, SwitchesTheCheckOffAndRestoresItAlsoWhenThreadsReduceTogether) {
  std::atomic<bool> seen_off = false;
  std::atomic<bool> done = false;
  std::thread observer([&] {
    while (!done && !seen_off) seen_off = !QorMatrixRectangularCheck;
  });
  const auto reduce = [&] {
    for (int i = 0; i < 100 || (!seen_off && i < 100'000); ++i) {
      auto matrix = CreateFloatIdentityMatrix(100);
      RowEchelonForm(matrix);
    }
  };
  std::thread other(reduce);
  reduce();
  other.join();
  EXPECT_TRUE(QorMatrixRectangularCheck);
  done = true;
  observer.join();
  EXPECT_TRUE(seen_off);
}

// Exact inverses and determinants of Hilbert matrices, up to the order whose condition exceeds the
// precision of the elements.
TEST(Reduction, HilbertMatricesKeepTheDigitsThatTheirConditionLeaves) {
  const testing::Table determinants("tables/hilbert.csv");
  const testing::Table inverses("tables/hilbert_inverse.csv");
  std::size_t next = 0;
  for (std::size_t row = 0; row < 12; ++row) {
    const auto order = static_cast<std::size_t>(determinants.Value(row, "n"));
    const auto hilbert = MatrixOf<Extended>(
        order, order, [](auto i, auto j) { return 1 / static_cast<Extended>(i + j + 1); });
    const Extended allowed = determinants.Value(row, "cond2") * 0x1p-63L;
    auto matrix = CopyMatrix(hilbert);
    const Extended determinant = MatrixDeterminant(matrix);
    EXPECT_LE(std::fabs(determinant / determinants.Value(row, "det") - 1), allowed) << order;

    const Extended tolerance = std::exchange(QorTolerance, 1e-25L);
    matrix = CopyMatrix(hilbert);
    TQorFloatMatrix inverse;
    EXPECT_TRUE(MatrixInverse(matrix, inverse));
    QorTolerance = tolerance;
    // The table has the elements in the order of rows.
    Extended error = 0;
    Extended largest = 0;
    for (const TQorFloatVector& inverse_row : inverse) {
      for (const Extended element : inverse_row) {
        ASSERT_EQ(inverses.Value(next, "n"), order);
        const Extended exact = inverses.Value(next++, "inverse_ij");
        error = std::max(error, std::fabs(element - exact));
        largest = std::max(largest, std::fabs(exact));
      }
    }
    EXPECT_LE(error / largest, allowed) << order;
  }
}

}  // namespace qorvex
