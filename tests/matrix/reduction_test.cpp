#include "qorvex/matrix/reduction.h"

#include <atomic>
#include <thread>
#include <utility>

#include "matrix/plain_reduction.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/failing_allocation.h"
#include "support/kept_tolerance.h"
#include "support/random_matrices.h"
#include "support/table.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::ExpectWhatPlainLoopsGive;
using testing::MatrixOf;
using testing::SameBits;

template <class T>
class ReductionOf : public ::testing::Test {};
TYPED_TEST_SUITE(ReductionOf, FloatTypes, );

TYPED_TEST(ReductionOf, IsBitwiseThatOfPlainLoops) {
  using T = TypeParam;
  Engine engine(20261121);
  const std::pair<std::size_t, std::size_t> shapes[] = {{1, 1},  {1, 7},   {7, 1},   {2, 2},
                                                        {3, 5},  {5, 3},   {4, 4},   {15, 15},
                                                        {20, 6}, {17, 17}, {14, 30}, {31, 31}};
  for (const auto& [name, element] : testing::ElementFunctions<T>(engine, 8)) {
    for (const auto& [rows, cols] : shapes) {
      SCOPED_TRACE(std::string(name) + ' ' + Int2EStr(rows) + " x " + Int2EStr(cols));
      for (int repetition = 0; repetition < 8; ++repetition)
        ExpectWhatPlainLoopsGive(MatrixOf<T>(rows, cols, element));
      if (this->HasFailure()) return;
    }
  }
  // Matrices of low rank, in which columns without a pivot lie between the others.
  const auto digit = [&](auto...) { return static_cast<T>(engine() % 3); };
  for (const std::size_t order : {2U, 3U, 4U, 6U, 16U, 33U}) {
    const auto a = MatrixOf<T>(order, order / 2, digit);
    const auto b = MatrixOf<T>(order / 2, order + 5, digit);
    ExpectWhatPlainLoopsGive(MultiplyMatrices(a, b));
    ExpectWhatPlainLoopsGive(MultiplyMatrices(TransposeMatrix(b), TransposeMatrix(a)));
    ExpectWhatPlainLoopsGive(MultiplyMatrices(a, TransposeMatrix(a)));
  }
}

TYPED_TEST(ReductionOf, RowsThatShareABufferAreSeparatedFirst) {
  using T = TypeParam;
  TQorMatrix<T> matrix{{1, 2, 4}, {2, 2, 2}, {}};
  matrix[2] = matrix[0];
  const TQorVector<T> first = matrix[0];
  auto copy = CopyMatrix(matrix);
  RowEchelonForm(matrix);
  RowEchelonForm(copy);
  EXPECT_EQ(matrix, copy);
  EXPECT_TRUE(first.SharesBufferWith(matrix[0]));
}

TYPED_TEST(ReductionOf, HasTheKnownResultsOfSmallMatrices) {
  using T = TypeParam;
  constexpr T nan = std::numeric_limits<T>::quiet_NaN();
  constexpr T inf = std::numeric_limits<T>::infinity();
  constexpr auto near_one = static_cast<T>(1 + 0.9e-15L);
  const struct {
    TQorMatrix<T> given, echelon;
    Extended determinant;
    bool regular;
  } cases[] = {
      {{{0, 2}, {0, 4}}, {{0, 1}, {0, 0}}, 0, false},
      {{{0, 1}, {1, 0}}, {{1, 0}, {0, 1}}, -1, true},
      // The pivot is the topmost of equal magnitudes. It is not scaled if it is one within the
      // tolerance.
      {{{-2, 1}, {2, 3}}, {{1, -0.5}, {0, 1}}, -8, true},
      {{{near_one, 3}, {0, 1}}, {{near_one, 3}, {0, 1}}, near_one, true},
      {{{0, 4}, {nan, 1}}, {{nan, nan}, {0, 1}}, kNaN, false},
      {{{inf, 0}, {0, 1}}, {{nan, 0}, {0, 1}}, kNaN, false},
      // Elements above the diagonal do not affect the pivots.
      {{{1, nan}, {0, 1}}, {{1, nan}, {0, 1}}, 1, false},
  };
  for (const auto& [given, echelon, determinant, regular] : cases) {
    SCOPED_TRACE(&given - &cases[0].given);
    const auto before = CopyMatrix(given);
    EXPECT_TRUE(SameBits(RowEchelon(given), echelon));
    EXPECT_TRUE(SameBits(Determinant(given) + 0, determinant)) << "except the sign of 0";
    EXPECT_EQ(Inverse(given).has_value(), regular);
    EXPECT_TRUE(SameBits(given, before));
  }
}

TEST(Reduction, FindsNoInverseIfItOverflows) {
  const testing::KeptTolerance kept;
  QorTolerance = 0;
  EXPECT_FALSE(Inverse(TQorSingleMatrix{{1e-20F, 0}, {0, 1e-40F}}));
}

TEST(Reduction, InvertsIntoTheMatrixItself) {
  TQorFloatMatrix matrix{{4}};
  const TQorFloatMatrix handle = matrix;
  EXPECT_TRUE(MatrixInverse(matrix, matrix));
  EXPECT_EQ(matrix, (TQorFloatMatrix{{0.25L}}));
  EXPECT_EQ(handle, (TQorFloatMatrix{{1}}));
}

TEST(Reduction, RunningOutOfMemoryChangesNoElement) {
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

TEST(Reduction, TurnsTheCheckOffAndRestoresItEvenOnSeveralThreads) {
  std::atomic<bool> seen_off = false;
  std::jthread observer([&](const std::stop_token& stop) {
    while (!stop.stop_requested() && !seen_off) seen_off = !QorMatrixRectangularCheck;
  });
  const auto reduce = [&] {
    for (int i = 0; i < 100 || (!seen_off && i < 100'000); ++i) {
      auto matrix = CreateFloatIdentityMatrix(100);
      RowEchelonForm(matrix);
    }
  };
  std::jthread other(reduce);
  reduce();
  other.join();
  EXPECT_TRUE(QorMatrixRectangularCheck);
  EXPECT_TRUE(seen_off);
}

// The tables have the exact inverses and determinants of Hilbert matrices, up to the order whose
// condition exceeds the precision of the elements.
TEST(Reduction, HilbertMatricesKeepAsManyDigitsAsTheirConditionAllows) {
  const testing::Table determinants("tables/hilbert.csv");
  const testing::Table inverses("tables/hilbert_inverse.csv");
  const testing::KeptTolerance kept;
  QorTolerance = 1e-25L;
  std::size_t next = 0;
  for (std::size_t row = 0; row < 12; ++row) {
    const auto order = static_cast<std::size_t>(determinants.Value(row, "n"));
    const auto hilbert = MatrixOf<Extended>(
        order, order, [](auto i, auto j) { return 1 / static_cast<Extended>(i + j + 1); });
    const Extended allowed = determinants.Value(row, "cond2") * 0x1p-63L;
    const Extended determinant = Determinant(hilbert);
    EXPECT_LE(std::fabs(determinant / determinants.Value(row, "det") - 1), allowed) << order;

    const TQorFloatMatrix inverse = Inverse(hilbert).value();
    Extended error = 0;
    Extended largest = 0;
    for (std::size_t i = 0; i < order * order; ++i) {
      const Extended exact = inverses.Value(next++, "inverse_ij");
      error = std::max(error, std::fabs(inverse[i / order][i % order] - exact));
      largest = std::max(largest, std::fabs(exact));
    }
    EXPECT_LE(error / largest, allowed) << order;
  }
}

}  // namespace qorvex
