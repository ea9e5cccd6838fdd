#include "qorvex/matrix/reduction.h"

#include <atomic>
#include <thread>
#include <utility>

#include "matrix/plain_reduction.h"
#include "qorvex/base/comparisons.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/failing_allocation.h"
#include "support/random_matrices.h"
#include "support/rectangular_check_off.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::MatrixOf;
using testing::PlainReduction;
using testing::SameBits;

// A reduction that kept its residue within the tolerance agrees in every bit of the reduced matrix,
// the inverse and the determinant, and in the rank. Returns whether it did.
template <FloatElement T>
bool AgreesWithPlainLoops(const TQorMatrix<T>& given) {
  auto plain = CopyMatrix(given);
  auto matrix = CopyMatrix(given);
  PlainReduction<T> echelon{plain};
  echelon.Eliminate();
  if (FloatIsPositive(echelon.residue)) return false;
  std::uint32_t rank = 99;
  RowEchelonFormRank(matrix, rank);
  EXPECT_TRUE(SameBits(matrix, plain));
  EXPECT_EQ(rank, echelon.Rank());
  const std::size_t order = given.size();
  if (order != given[0].size()) return true;

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
  return true;
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
    int agreeing = 0;
    for (const auto& [rows, cols] : shapes) {
      SCOPED_TRACE(std::string(name) + ' ' + Int2EStr(rows) + " x " + Int2EStr(cols));
      for (int repetition = 0; repetition < 8; ++repetition) {
        agreeing += AgreesWithPlainLoops(MatrixOf<T>(rows, cols, making));
        if (this->HasFailure()) return;
      }
    }
    EXPECT_GT(agreeing, 50) << name;
  }
  const auto digit = [&](auto...) { return static_cast<T>(engine() % 9); };
  for (const std::size_t order : {2U, 3U, 4U, 6U}) {
    const auto a = MatrixOf<T>(order, order / 2, digit);
    const auto b = MatrixOf<T>(order / 2, order, digit);
    EXPECT_TRUE(AgreesWithPlainLoops(MultiplyMatrices(a, b))) << "of low rank: " << order;
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

// Residue in front of the pivots grows with the size of the elements and the order. Where it would
// spoil the results it is cleared.
TYPED_TEST(ReductionOf, ResidueSpoilsNeitherRankNorInverse) {
  using T = TypeParam;
  Engine engine(11);
  const auto check = [&](std::size_t order, T unit) {
    const auto given = MatrixOf<T>(order, order, [&](auto...) {
      return unit * static_cast<T>(static_cast<int>(engine() % 2001) - 1000);
    });
    auto matrix = CopyMatrix(given);
    TQorMatrix<T> inverse;
    EXPECT_TRUE(MatrixInverse(matrix, inverse));
    const auto product = MultiplyMatrices(Matrix2FloatMatrix(given), Matrix2FloatMatrix(inverse));
    const Extended limit = 3e3L * std::numeric_limits<T>::epsilon();
    const Extended tolerance = std::exchange(QorTolerance, limit);
    EXPECT_TRUE(MatrixIsIdentity(product)) << order;
    QorTolerance = tolerance;
  };
  for (const std::size_t order : {8U, 15U, 33U, 60U}) check(order, 1);
  check(100, T(0.001L));
}

TEST(Reduction, NoResidueStaysWhereItWouldRaiseTheRank) {
  Engine engine(5);
  const std::size_t order = 40;
  for (int repetition = 0; repetition < 20; ++repetition) {
    auto matrix = MatrixOf<Extended>(order, order,
                                     [&](auto...) { return static_cast<int>(engine() % 19) - 9; });
    for (std::size_t j = 0; j < order; ++j) matrix[order - 1][j] = matrix[0][j] - matrix[1][j];
    std::uint32_t rank = 0;
    RowEchelonFormRank(matrix, rank);
    EXPECT_EQ(rank, order - 1);
    for (std::size_t i = 0; i < order; ++i) {
      for (std::size_t j = 0; j < i; ++j) ASSERT_EQ(matrix[i][j], 0) << i << ',' << j;
    }
  }
}

TEST(Reduction, NaNIsNoResidue) {
  // 41 times its reciprocal is less than one, which leaves residue in the second row.
  TQorFloatMatrix matrix{{41, 1, 1}, {-40, 3, 1}, {kNaN, 1, 1}};
  const Extended tolerance = std::exchange(QorTolerance, 1e-18L);
  std::uint32_t rank = 0;
  RowEchelonFormRank(matrix, rank);
  QorTolerance = tolerance;
  EXPECT_EQ(matrix[1][0], 0);
  EXPECT_EQ(rank, 3U);
  EXPECT_TRUE(std::isnan(matrix[2][0]));
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
