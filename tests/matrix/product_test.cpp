#include "qorvex/matrix/product.h"

#include "qorvex/matrix/transpose.h"
#include "qorvex/matrix/vector_product.h"
#include "support/random_matrices.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::MatrixOf;

template <class T>
class Product : public ::testing::Test {};
TYPED_TEST_SUITE(Product, FloatTypes, );

TYPED_TEST(Product, IsBitwiseThatOfPlainLoops) {
  using T = TypeParam;
  Engine engine(20261121);
  for (const auto& [name, element] : testing::ElementFunctions<T>(engine, 1)) {
    for (int repetition = 0; repetition < 100; ++repetition) {
      const std::size_t rows = 1 + engine() % 9;
      const std::size_t inner = 1 + engine() % 9;
      const std::size_t cols = 1 + engine() % 11;
      const auto a = MatrixOf<T>(rows, inner, element);
      const auto b = MatrixOf<T>(inner, cols, element);
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
      const TQorMatrix<T> transpose = TransposeMatrix(b);
      for (std::size_t i = 0; i < rows; ++i) {
        ASSERT_TRUE(testing::SameBits(MultiplyVectorByMatrix(a[i], b), expected[i])) << name;
        ASSERT_TRUE(testing::SameBits(MultiplyMatrixByVector(transpose, a[i]), expected[i]));
      }
    }
  }
}

TEST(ProductOfFloats, AMatrixMayBeBothFactors) {
  TQorFloatMatrix matrix{{1, 2}, {3, 4}};
  EXPECT_EQ(MultiplyMatrices(matrix, matrix), (TQorFloatMatrix{{7, 10}, {15, 22}}));
  matrix[1] = matrix[0];
  EXPECT_EQ(MultiplyMatrices(matrix, matrix), (TQorFloatMatrix{{3, 6}, {3, 6}}));
}

template <class T>
class Transposing : public ::testing::Test {};
TYPED_TEST_SUITE(Transposing, AllTypes);

TYPED_TEST(Transposing, CopiesEveryBit) {
  using T = TypeParam;
  Engine engine(21);
  for (const auto& [rows, cols] : {std::pair{1U, 70U}, {70U, 1U}, {16U, 32U}, {50U, 71U}}) {
    auto m = testing::RandomMatrix<T>(engine, rows, cols);
    if constexpr (FloatElement<T>) m[0][0] = std::numeric_limits<T>::signaling_NaN();
    const TQorMatrix<T> transpose = TransposeMatrix(m);
    ASSERT_EQ(transpose.size(), cols);
    for (std::size_t j = 0; j < cols; ++j) {
      ASSERT_EQ(transpose[j].size(), rows);
      for (std::size_t i = 0; i < rows; ++i)
        ASSERT_EQ(std::memcmp(&transpose[j][i], &m[i][j], std::min<std::size_t>(sizeof(T), 10)), 0);
    }
  }
}

}  // namespace qorvex
