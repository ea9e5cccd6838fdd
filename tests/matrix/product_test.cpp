#include "qorvex/matrix/product.h"

#include "qorvex/matrix/building.h"
#include "qorvex/matrix/shape.h"
#include "support/random_matrices.h"
#include "support/rectangular_check_off.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::MatrixOf;

template <class T>
class Product : public ::testing::Test {};
TYPED_TEST_SUITE(Product, FloatTypes, );

TYPED_TEST(Product, AgreesInEveryBitWithThePlainLoops) {
  using T = TypeParam;
  Engine engine(20261121);
  for (const auto& [name, making] : testing::FloatMakings<T>(engine, 1)) {
    for (int repetition = 0; repetition < 100; ++repetition) {
      const std::size_t rows = 1 + engine() % 9;
      const std::size_t inner = 1 + engine() % 9;
      const std::size_t cols = 1 + engine() % 11;
      const auto a = MatrixOf<T>(rows, inner, making);
      const auto b = MatrixOf<T>(inner, cols, making);
      const auto expected = MatrixOf<T>(rows, cols, [&](std::size_t i, std::size_t j) {
        T sum = 0;
        for (std::size_t k = 0; k < inner; ++k) {
          const Extended term = static_cast<Extended>(a[i][k]) * static_cast<Extended>(b[k][j]);
          sum = static_cast<T>(static_cast<Extended>(sum) + term);
        }
        return sum;
      });
      ASSERT_TRUE(testing::SameBits(MultiplyMatrices(a, b), expected))
          << name << ' ' << rows << " x " << inner << " x " << cols;
    }
  }
}

TEST(ProductOfFloats, AMatrixMayBeBothFactors) {
  TQorFloatMatrix matrix{{1, 2}, {3, 4}};
  EXPECT_EQ(MultiplyMatrices(matrix, matrix), (TQorFloatMatrix{{7, 10}, {15, 22}}));
  matrix[1] = matrix[0];
  EXPECT_EQ(MultiplyMatrices(matrix, matrix), (TQorFloatMatrix{{3, 6}, {3, 6}}));
}

TEST(ProductOfFloats, ShapesAreCheckedInOrder) {
  const auto zeros = CreateFloatMatrix;
  const TQorFloatMatrix ragged{{1, 2}, {3}};
  EXPECT_MATH_ERROR(MultiplyMatrices(zeros(0, 0), zeros(2, 2)), rsMatrixRect);
  EXPECT_MATH_ERROR(MultiplyMatrices(zeros(2, 2), ragged), rsMatrixRect);
  EXPECT_MATH_ERROR(MultiplyMatrices(zeros(2, 3), zeros(2, 3)), rsMatrixMult);
  const testing::RectangularCheckOff off;
  EXPECT_MATH_ERROR(MultiplyMatrices(zeros(0, 0), zeros(2, 2)), rsMatrixIsEmpty);
  EXPECT_MATH_ERROR(MultiplyMatrices(zeros(2, 2), zeros(0, 0)), rsMatrixIsEmpty);
  EXPECT_MATH_ERROR(MultiplyMatrices(zeros(2, 0), zeros(1, 2)), rsMatrixMult);
  EXPECT_MATH_ERROR(MultiplyMatrices(zeros(2, 2), ragged), rsMatrixRect);
  EXPECT_MATH_ERROR(MultiplyMatrices(ragged, zeros(2, 2)), rsMatrixRect);
  EXPECT_MATH_ERROR(MultiplyMatrices(ragged, zeros(3, 2)), rsMatrixMult);
  EXPECT_EQ(MultiplyMatrices(zeros(2, 3), zeros(3, 0)), zeros(2, 0));
}

}  // namespace qorvex
