#include "qorvex/matrix/solve.h"

#include "qorvex/base/comparisons.h"
#include "qorvex/matrix/conversion.h"
#include "qorvex/matrix/product.h"
#include "qorvex/matrix/transpose.h"
#include "support/kept_tolerance.h"
#include "support/random_matrices.h"
#include "support/test.h"

namespace qorvex {

using testing::MatrixOf;

template <class T>
class SolveOf : public ::testing::Test {};
TYPED_TEST_SUITE(SolveOf, FloatTypes, );

// Products of small integers are exact, so the solution is known. Without the refinement some of
// its elements would be off in the last bits.
TYPED_TEST(SolveOf, FindsTheIntegersThatTheRightSidesWereMadeOf) {
  using T = TypeParam;
  testing::Engine engine(17);
  const auto digit = [&](auto...) { return static_cast<T>(static_cast<int>(engine() % 19) - 9); };
  const auto nonzero = [&](auto...) { return digit() * 2 + 1; };
  for (const std::size_t order : {1U, 2U, 3U, 7U, 13U, 14U, 40U}) {
    const auto a = MatrixOf<T>(order, order, digit);
    const auto x = MatrixOf<T>(order, 3, nonzero);
    const auto b = MultiplyMatrices(a, x);
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
  // The splitting of the products overflows; the solution is then not refined.
  EXPECT_EQ(Solve(Matrix{{0x1p16383L}}, {0x1p16382L}).value()[0], 0.5L);
}

}  // namespace qorvex
