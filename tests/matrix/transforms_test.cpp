#include "qorvex/matrix/transforms.h"

#include "support/test.h"

namespace qorvex {

TEST(MatrixTransforms, ComputeInExtendedPrecisionOnRaggedRows) {
  TQorFloatMatrix roots{{4, 2}, {}, {0}};
  SqrtMatrix(roots);
  EXPECT_EQ(roots, (TQorFloatMatrix{{2, std::sqrt(2.0L)}, {}, {0}}));
  TQorDoubleMatrix inverse{{3}, {-0.5, 4}};
  InvMatrix(inverse);
  EXPECT_EQ(inverse, (TQorDoubleMatrix{{static_cast<double>(1 / 3.0L)}, {-2, 0.25}}));
  // Of all doubles with one decimal this is the first whose square differs when rounded once.
  TQorDoubleMatrix squares{{690.9}, {-3}};
  SquareMatrix(squares);
  EXPECT_EQ(squares,
            (TQorDoubleMatrix{{static_cast<double>(static_cast<Extended>(690.9) * 690.9)}, {9}}));
  TQorFloatMatrix natural{{std::exp(1.0L)}, {1, std::numeric_limits<Extended>::denorm_min()}};
  LnMatrix(natural);
  EXPECT_EQ(natural[0][0], 1);
  EXPECT_EQ(natural[1][0], 0);
  EXPECT_NEAR(static_cast<double>(natural[1][1]), -16445 * std::log(2.0), 1e-9);
  TQorDoubleMatrix decimal{{1e15}, {0.001}};
  Log10Matrix(decimal);
  EXPECT_EQ(decimal, (TQorDoubleMatrix{{15}, {-3}}));
}

// Zero is exact here, and what came before the element that raises stays transformed.
TEST(MatrixTransforms, TheFirstBadElementEndsTheWork) {
  struct Case {
    void (*routine)(TQorFloatMatrix&);
    MessageId error;
    TQorFloatMatrix matrix, after;
  };
  const Case cases[] = {
      {SqrtMatrix<Extended>, rsMatrixNeg, {{4, 9}, {16, -1e-20L, 9}}, {{2, 3}, {4, -1e-20L, 9}}},
      {InvMatrix<Extended>, rsMatrixZero, {{0x1p-99L}, {2, -0.0L, 4}}, {{0x1p99L}, {0.5, 0, 4}}},
      {LnMatrix<Extended>, rsMatrixNotPos, {{1}, {1, 0, 1}}, {{0}, {0, 0, 1}}},
      {LnMatrix<Extended>, rsMatrixNotPos, {{1}, {-1, 1}}, {{0}, {-1, 1}}},
      {Log10Matrix<Extended>, rsMatrixNotPos, {{100, -1e-20L}, {1}}, {{2, -1e-20L}, {1}}},
      {Log10Matrix<Extended>, rsMatrixNotPos, {{100, 10}, {-0.0L}}, {{2, 1}, {0}}},
  };
  for (const Case& c : cases) {
    TQorFloatMatrix m = c.matrix;
    EXPECT_MATH_ERROR(c.routine(m), c.error);
    EXPECT_EQ(m, c.after);
  }
}

TEST(MatrixTransforms, NaNPassesAndOnlyAMatrixWithoutRowsIsEmpty) {
  TQorFloatMatrix empty;
  EXPECT_MATH_ERROR(LinearTransformMatrix(empty, 1, 0), rsMatrixIsEmpty);
  for (void (*routine)(TQorFloatMatrix&) :
       {SquareMatrix<Extended>, SqrtMatrix<Extended>, InvMatrix<Extended>, LnMatrix<Extended>,
        Log10Matrix<Extended>}) {
    EXPECT_MATH_ERROR(routine(empty), rsMatrixIsEmpty);
    TQorFloatMatrix m{{}, {kNaN, 1}};
    routine(m);
    EXPECT_TRUE(std::isnan(m[1][0]));
    EXPECT_FALSE(std::isnan(m[1][1]));
  }
}

TEST(MatrixTransforms, LinearMultipliesFirstInTheWidthOfTheConstants) {
  TQorInt64Matrix longs{{3}, {INT64_MAX}};
  LinearTransformMatrix(longs, 2, 1);
  EXPECT_EQ(longs, (TQorInt64Matrix{{7}, {-1}}));
  TQorLIntMatrix ints{{65536, 32768}};
  ints.Append(ints[0]);
  LinearTransformMatrix(ints, 65536, -5);
  EXPECT_EQ(ints[1], (TQorLIntVector{-5 * 65536 - 5, -5 * 65536 - 5}))
      << "a shared row is transformed twice";
  TQorSingleMatrix singles{{1}, {}};
  LinearTransformMatrix(singles, 1 + 0x1p-60L, -1);
  EXPECT_EQ(singles[0][0], 0x1p-60F);
  TQorDoubleMatrix doubles{{0x1p-53 + 0x1p-80}};
  LinearTransformMatrix(doubles, 1, 1);
  EXPECT_EQ(doubles[0][0], 1) << "rounded to 80 bits first";
}

}  // namespace qorvex
