// Sums, products with constants and transforms, most of which are compared with the vector
// routines.

#include "qorvex/matrix/QorvexMatrix.h"
#include "qorvex/vector/QorvexVector.h"
#include "support/random_matrices.h"
#include "support/test.h"

namespace qorvex {

template <class T>
class Elementwise : public ::testing::Test {};
using AdditiveTypes = ::testing::Types<Extended, double, float, std::int64_t, std::int32_t,
                                       Currency, QorCurrency, QorLongCurrency>;
TYPED_TEST_SUITE(Elementwise, AdditiveTypes);

TYPED_TEST(Elementwise, SumsAndLinearTransformsAgreeWithThoseOfTheRows) {
  using T = TypeParam;
  testing::Engine engine(26);
  const auto a = testing::RandomMatrix<T>(engine, 3, 50);
  const auto b = testing::RandomMatrix<T>(engine, 3, 50);
  const auto sum = AddMatrices(a, b);
  const auto difference = SubtractMatrices(a, b);
  auto in_place = CopyMatrix(a);
  const auto first_row = in_place[0];
  AddToMatrix(in_place, b);
  EXPECT_EQ(in_place, sum);
  EXPECT_EQ(first_row, sum[0]) << "seen through every handle of the row";
  in_place = CopyMatrix(a);
  SubtractFromMatrix(in_place, b);
  EXPECT_EQ(in_place, difference);
  auto transformed = CopyMatrix(a);
  transformed[1].SetLength(7);
  LinearTransformMatrix(transformed, 3, -7);
  for (std::size_t i = 0; i < 3; ++i) {
    EXPECT_EQ(sum[i], AddVectors(a[i], b[i]));
    EXPECT_EQ(difference[i], SubtractVectors(a[i], b[i]));
    if constexpr (!std::same_as<T, std::int32_t>) {
      auto row = CopyVector(a[i]);
      row.SetLength(transformed[i].size());
      LinearTransformVector(row, 3, -7);
      EXPECT_EQ(transformed[i], row);
    }
  }
}

TEST(ElementwiseProducts, AcceptRaggedRowsAndWrap) {
  TQorLIntMatrix m{{1, -2}, {}, {65537}};
  EXPECT_EQ(MultiplyMatrixByConst(m, -65536), (TQorLIntMatrix{{-65536, 131072}, {}, {-65536}}));
  EXPECT_EQ(m, (TQorLIntMatrix{{1, -2}, {}, {65537}}));
  m.Append(m[0]);
  MultiplyMatrixByConst2(m, 5);
  EXPECT_EQ(m, (TQorLIntMatrix{{25, -50}, {}, {327685}, {25, -50}})) << "once for each of its rows";
  LinearTransformMatrix(m, 65536, -5);
  EXPECT_EQ(m[2], (TQorLIntVector{5 * 65536 - 5}));
  EXPECT_EQ(MultiplyMatrixByConst(TQorInt64Matrix{{1LL << 40}}, (1LL << 24) + 1),
            (TQorInt64Matrix{{1LL << 40}}));
}

TEST(ElementwiseProducts, HaveExtendedFactorsForFloatingElements) {
  EXPECT_EQ(MultiplyMatrixByConst(TQorDoubleMatrix{{1e-300}}, 0x1p1100L)[0][0],
            1e-300 * 0x1p1000 * 0x1p100);
  TQorSingleMatrix singles{{1}};
  LinearTransformMatrix(singles, 1 + 0x1p-60L, -1);
  EXPECT_EQ(singles[0][0], 0x1p-60F);
}

TEST(MatrixTransforms, ComputeInExtendedPrecisionAndAcceptNaN) {
  const std::pair<void (*)(TQorDoubleMatrix&), Extended> cases[] = {
      {SquareMatrix<double>, 2731 * 2731},
      {SqrtMatrix<double>, std::sqrt(2731.0L)},
      {InvMatrix<double>, 1 / 2731.0L},
      {LnMatrix<double>, std::log(2731.0L)},
      {Log10Matrix<double>, std::log10(2731.0L)}};
  for (const auto& [transform, expected] : cases) {
    TQorDoubleMatrix m{{2731}, {}, {std::nan("")}};
    transform(m);
    EXPECT_EQ(m[0][0], static_cast<double>(expected));
    EXPECT_TRUE(std::isnan(m[2][0]));
  }
}

// Unlike those of vectors these checks are exact, and earlier elements are already transformed.
TEST(MatrixTransforms, StopAtTheFirstInvalidElement) {
  const struct {
    void (*routine)(TQorFloatMatrix&);
    MessageId error;
    TQorFloatMatrix matrix, after;
  } cases[] = {
      {SqrtMatrix<Extended>, rsMatrixNeg, {{4, 9}, {16, -1e-20L, 9}}, {{2, 3}, {4, -1e-20L, 9}}},
      {InvMatrix<Extended>, rsMatrixZero, {{0x1p-99L}, {2, -0.0L, 4}}, {{0x1p99L}, {0.5, 0, 4}}},
      {LnMatrix<Extended>, rsMatrixNotPos, {{1}, {1, 0, 1}}, {{0}, {0, 0, 1}}},
      {Log10Matrix<Extended>, rsMatrixNotPos, {{100, 10}, {-0.0L}}, {{2, 1}, {0}}},
  };
  for (const auto& c : cases) {
    TQorFloatMatrix m = c.matrix;
    EXPECT_MATH_ERROR(c.routine(m), c.error);
    EXPECT_EQ(m, c.after);
  }
}

}  // namespace qorvex
