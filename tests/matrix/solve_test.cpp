#include "qorvex/matrix/solve.h"

#include "qorvex/base/comparisons.h"
#include "qorvex/matrix/arithmetic.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/conversion.h"
#include "qorvex/matrix/product.h"
#include "qorvex/matrix/reduction.h"
#include "qorvex/matrix/row_operations.h"
#include "qorvex/matrix/transpose.h"
#include "support/kept_tolerance.h"
#include "support/random_matrices.h"
#include "support/test.h"

namespace qorvex {

using testing::MatrixOf;

template <class T>
class SolveOf : public ::testing::Test {};
TYPED_TEST_SUITE(SolveOf, FloatTypes, );

// A system with a known solution, as products of small integers are exact. Without the refinement
// some elements of the solution would be off in the last bits.
template <class T>
struct IntegerSystem {
  IntegerSystem(testing::Engine& engine, std::size_t order) {
    const auto digit = [&](auto...) { return static_cast<T>(static_cast<int>(engine() % 19) - 9); };
    a = MatrixOf<T>(order, order, digit);
    x = MatrixOf<T>(order, 3, [&](auto...) { return digit() * 2 + 1; });
    b = MultiplyMatrices(a, x);
  }
  TQorMatrix<T> a, x, b;
};

TYPED_TEST(SolveOf, FindsTheIntegersThatTheRightSidesWereMadeOf) {
  using T = TypeParam;
  testing::Engine engine(17);
  for (const std::size_t order : {1U, 2U, 3U, 7U, 13U, 14U, 40U}) {
    const IntegerSystem<T> system(engine, order);
    const auto& [a, x, b] = system;
    ASSERT_EQ(Solve(a, b).value(), x) << order;
    const TQorVector<T> right_side = TransposeMatrix(b)[1];
    ASSERT_EQ(Solve(a, right_side).value(), TransposeMatrix(x)[1]) << order;
  }
}

TYPED_TEST(SolveOf, RoundsOnlyTheSolution) {
  using T = TypeParam;
  testing::Engine engine(18);
  const auto real = testing::ElementFunctions<T>(engine, 1).front().second;
  const auto a = MatrixOf<T>(20, 20, real);
  const auto b = MatrixOf<T>(20, 2, real);
  EXPECT_EQ(Solve(a, b).value(),
            NarrowMatrix<T>(Solve(ConvertMatrix<Extended>(a), ConvertMatrix<Extended>(b)).value()));
}

// Hilbert matrices of integers: the elements are multiples of 1 / (i + j + 1). Their condition of
// 1.5e10 costs an elimination ten digits.
TEST(Solve, RefinementRestoresTheDigitsThatTheConditionCosts) {
  const auto a = MatrixOf<Extended>(
      8, 8, [](auto i, auto j) { return static_cast<Extended>(360360 / (i + j + 1)); });
  const auto x = MatrixOf<Extended>(
      8, 1, [](auto i, auto) { return i % 2 == 0 ? static_cast<Extended>(i + 1) : -3; });
  const auto solution = Solve(a, MultiplyMatrices(a, x)).value();
  for (std::size_t i = 0; i < 8; ++i)
    EXPECT_LE(std::fabs(solution[i][0] / x[i][0] - 1), 2e-18L) << i;
}

TEST(Solve, RefinesNearTheEndOfTheRange) {
  testing::Engine engine(19);
  for (int i = 0; i < 20; ++i) {
    auto [a, x, b] = IntegerSystem<Extended>(engine, 8);
    ASSERT_EQ(Solve(a, MultiplyMatrixByConst(b, 0x1p16360L)).value(),
              MultiplyMatrixByConst(x, 0x1p16360L));
    ScaleMatrixRow(a, 0, 0x1p16370L);
    ScaleMatrixRow(b, 0, 0x1p16370L);
    ASSERT_EQ(Solve(a, b).value(), x);
  }
}

TEST(Solve, RefusesWhatTheInverseRefuses) {
  const TQorFloatMatrix near_pivots{{1, 1e20L}, {1e-20L, 0}};
  EXPECT_FALSE(Inverse(near_pivots));
  EXPECT_FALSE(Solve(near_pivots, {1, 1}));
  testing::Engine engine(20);
  const auto power = [&] { return std::pow(10.0L, static_cast<int>(engine() % 31) - 15); };
  int solved = 0;
  for (int i = 0; i < 2000; ++i) {
    const std::size_t order = i < 1900 ? 2 + engine() % 5 : 13 + engine() % 5;
    auto a = testing::RandomMatrix<Extended>(engine, order, order);
    for (std::uint32_t k = 0; k < order; ++k) {
      ScaleMatrixRow(a, k, power());
      ScaleMatrixCol(a, k, power());
    }
    if (!Solve(a, a[0])) continue;
    ++solved;
    ASSERT_TRUE(Inverse(a)) << i;
  }
  EXPECT_GT(solved, 500);
  EXPECT_LT(solved, 1500);
}

// From order 8 on, rows are reduced by panels of columns.
TEST(Solve, LeavesItsArgumentsAloneWhetherOrNotThereIsASolution) {
  testing::Engine engine(21);
  for (const std::size_t order : {3U, 8U, 19U}) {
    auto [a, x, b] = IntegerSystem<Extended>(engine, order);
    b[1] = b[0];
    const auto a_before = CopyMatrix(a);
    const auto b_before = CopyMatrix(b);
    EXPECT_TRUE(Solve(a, b));
    EXPECT_TRUE(Solve(a, a[0]));
    EXPECT_TRUE(b[1].SharesBufferWith(b[0]));
    EXPECT_EQ(b, b_before);
    EXPECT_EQ(a, a_before);
    for (std::size_t i = 0; i < order; ++i) {
      for (const Extended value : {kNaN, kInfinity}) {
        auto broken = CopyMatrix(a);
        broken[i][order - 1 - i] = value;
        EXPECT_FALSE(Solve(broken, b)) << order << ' ' << i << ' ' << value;
      }
    }
    // Rank order - 1: the last row is the sum of two others, or the same as another.
    for (std::size_t j = 0; j < order; ++j) a[order - 1][j] = a[0][j] + a[1][j];
    EXPECT_FALSE(Solve(a, b)) << order;
    a[order - 1] = a[0];
    EXPECT_FALSE(Solve(a, b)) << order;
    EXPECT_TRUE(a[order - 1].SharesBufferWith(a[0]));
  }
}

TEST(Solve, TakesRightSidesInBraces) {
  const TQorDoubleMatrix a{{2, 0}, {0, 4}};
  EXPECT_EQ(Solve(a, {2, 8}).value(), (TQorDoubleVector{1, 2}));
  EXPECT_EQ(Solve(a, {{2}, {8}}).value(), (TQorDoubleMatrix{{1}, {2}}));
  EXPECT_EQ(Solve(a, {{2, 4}, {8, 4}}).value(), (TQorDoubleMatrix{{1, 2}, {2, 1}}));
  EXPECT_MATH_ERROR(static_cast<void>(Solve(a, {})), rsMatrixIsEmpty);
}

TEST(Solve, FindsNoSolutionThatIsNotUniqueOrNotFinite) {
  using Matrix = TQorFloatMatrix;
  EXPECT_FALSE(Solve(Matrix{{1, 2}, {2, 4}}, {1, 2}));
  EXPECT_FALSE(Solve(Matrix{{1e-16L}}, {1})) << "zero within the tolerance";
  EXPECT_FALSE(Solve(Matrix{{1, kNaN}, {0, 1}}, {1, 1}));
  EXPECT_FALSE(Solve(Matrix{{kInfinity}}, {1}));
  EXPECT_FALSE(Solve(Matrix{{1, 2}, {3, 4}}, {1, kNaN}));
  EXPECT_FALSE(Solve(Matrix{{2}}, Matrix{{1, kInfinity, 1}}));
  EXPECT_FALSE(Solve(TQorSingleMatrix{{1e-10F}}, {1e30F})) << "beyond the range of float";
  // Beside a pivot, small elements count.
  EXPECT_EQ(Solve(Matrix{{1, 0x1p60L}, {0x1p-56L, 32}}, {0x1p60L + 1, 32 + 0x1p-56L}).value(),
            (TQorFloatVector{1, 1}));
  const testing::KeptTolerance kept;
  QorTolerance = 0;
  EXPECT_EQ(Solve(Matrix{{1e-16L}}, {1e-16L}).value()[0], 1);
  EXPECT_EQ(Solve(Matrix{{0x1p16383L}}, {0x1p16382L}).value()[0], 0.5L);
  EXPECT_FALSE(Solve(Matrix{{0x1p-16440L}}, {0x1p-16440L})) << "no reciprocal";
}

}  // namespace qorvex
