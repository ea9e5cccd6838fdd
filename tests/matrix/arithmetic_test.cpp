#include "qorvex/matrix/arithmetic.h"

#include "qorvex/matrix/transpose.h"
#include "support/random_matrices.h"
#include "support/rectangular_check_off.h"
#include "support/test.h"

namespace qorvex {

using testing::Engine;
using testing::RectangularCheckOff;

TEST(MatrixArithmetic, AddsAndSubtractsElementByElement) {
  TQorDoubleMatrix a{{1, 2, 3}, {4, 5, 6}};
  const TQorDoubleMatrix b{{10, 20, 30}, {-40, 50, 60}};
  const TQorDoubleMatrix sum{{11, 22, 33}, {-36, 55, 66}};
  EXPECT_EQ(AddMatrices(a, b), sum);
  EXPECT_EQ(SubtractMatrices(sum, b), a);
  const TQorDoubleVector first_row = a[0];
  AddToMatrix(a, b);
  EXPECT_EQ(a, sum);
  EXPECT_EQ(first_row, sum[0]) << "seen through every handle of the row";
  SubtractFromMatrix(a, b);
  EXPECT_EQ(a, (TQorDoubleMatrix{{1, 2, 3}, {4, 5, 6}}));
  SubtractFromMatrix(a, a);
  EXPECT_EQ(a, (TQorDoubleMatrix{{0, 0, 0}, {0, 0, 0}}));
}

TEST(MatrixArithmetic, IntegersWrapAndDoublesRoundTwice) {
  EXPECT_EQ(AddMatrices(TQorLIntMatrix{{INT32_MAX}}, {{1}}), (TQorLIntMatrix{{INT32_MIN}}));
  EXPECT_EQ(SubtractMatrices(TQorInt64Matrix{{INT64_MIN}}, {{1}}), (TQorInt64Matrix{{INT64_MAX}}));
  EXPECT_EQ(MultiplyMatrixByConst(TQorLIntMatrix{{65537}}, 65536), (TQorLIntMatrix{{65536}}));
  EXPECT_EQ(MultiplyMatrixByConst(TQorInt64Matrix{{1LL << 40}}, (1LL << 24) + 1),
            (TQorInt64Matrix{{1LL << 40}}));
  // Just above the middle of two doubles, and the middle itself in 80 bits.
  EXPECT_EQ(AddMatrices(TQorDoubleMatrix{{1}}, {{0x1p-53 + 0x1p-80}})[0][0], 1);
  EXPECT_EQ(SubtractMatrices(TQorDoubleMatrix{{1}}, {{-0x1p-53 - 0x1p-80}})[0][0], 1);
}

TEST(MatrixArithmetic, ErrorsComeInOrderAndLeaveTheMatrix) {
  TQorFloatMatrix square{{1, 2}, {3, 4}};
  const TQorFloatMatrix wide{{1, 2, 3}, {4, 5, 6}};
  const TQorFloatMatrix ragged{{1, 2}, {3}};
  const auto expect_error = [](const TQorFloatMatrix& a, const TQorFloatMatrix& b, MessageId id) {
    TQorFloatMatrix target = a;
    EXPECT_MATH_ERROR(AddMatrices(a, b), id);
    EXPECT_MATH_ERROR(SubtractMatrices(a, b), id);
    EXPECT_MATH_ERROR(AddToMatrix(target, b), id);
    EXPECT_MATH_ERROR(SubtractFromMatrix(target, b), id);
  };
  expect_error(TQorFloatMatrix(), square, rsMatrixIsEmpty);
  expect_error({{}, {1}}, wide, rsMatrixIsEmpty);
  expect_error(square, wide, rsSameDimensions);
  expect_error(square, ragged, rsSameDimensions);
  expect_error(ragged, square, rsSameDimensions);
  const RectangularCheckOff off;
  expect_error(square, ragged, rsMatrixRect);
  expect_error(ragged, square, rsMatrixRect);
  EXPECT_EQ(square, (TQorFloatMatrix{{1, 2}, {3, 4}}));
  EXPECT_EQ(ragged, (TQorFloatMatrix{{1, 2}, {3}}));
  AddToMatrix(square, TQorFloatMatrix{{1, 1}, {1, 1, 1}});
  EXPECT_EQ(square, (TQorFloatMatrix{{2, 3}, {4, 5}})) << "longer rows are cut";
}

TEST(MatrixArithmetic, ConstantsScaleRaggedRows) {
  TQorLIntMatrix m{{1, -2}, {}, {3}};
  EXPECT_EQ(MultiplyMatrixByConst(m, -3), (TQorLIntMatrix{{-3, 6}, {}, {-9}}));
  EXPECT_EQ(m, (TQorLIntMatrix{{1, -2}, {}, {3}}));
  m.Append(m[2]);
  const TQorLIntVector shared_row = m[2];
  MultiplyMatrixByConst2(m, 5);
  EXPECT_EQ(m, (TQorLIntMatrix{{5, -10}, {}, {75}, {75}})) << "once for each row of the buffer";
  EXPECT_EQ(shared_row, m[2]);
  EXPECT_EQ(MultiplyMatrixByConst(TQorDoubleMatrix{{1e-300}}, 0x1p1100L)[0][0],
            1e-300 * 0x1p1000 * 0x1p100)
      << "a factor beyond the range of a double";
  TQorDoubleMatrix empty;
  EXPECT_MATH_ERROR(MultiplyMatrixByConst(empty, 1), rsMatrixIsEmpty);
  EXPECT_MATH_ERROR(MultiplyMatrixByConst2(empty, 1), rsMatrixIsEmpty);
}

template <class T>
class Transposing : public ::testing::Test {};
TYPED_TEST_SUITE(Transposing, AllTypes);

TYPED_TEST(Transposing, MovesEveryBit) {
  using T = TypeParam;
  constexpr std::size_t value_bytes = std::min<std::size_t>(sizeof(T), 10);
  Engine engine(21);
  const std::pair<std::size_t, std::size_t> shapes[] = {{1, 1},   {1, 70},  {70, 1},
                                                        {16, 32}, {17, 33}, {50, 71}};
  for (const auto& [rows, cols] : shapes) {
    auto m = testing::RandomMatrix<T>(engine, rows, cols);
    if constexpr (FloatElement<T>) m[0][0] = std::numeric_limits<T>::signaling_NaN();
    const TQorMatrix<T> transpose = TransposeMatrix(m);
    ASSERT_EQ(transpose.size(), cols);
    for (std::size_t j = 0; j < cols; ++j) {
      ASSERT_EQ(transpose[j].size(), rows);
      for (std::size_t i = 0; i < rows; ++i)
        ASSERT_EQ(std::memcmp(&transpose[j][i], &m[i][j], value_bytes), 0) << i << ',' << j;
    }
  }
}

TEST(TransposingShapes, OnlyRectanglesUnlessTheSwitchIsOff) {
  const TQorWordMatrix ragged{{1, 2}, {3}};
  const TQorWordMatrix without_elements[] = {{}, {{}, {}}};
  EXPECT_MATH_ERROR(TransposeMatrix(ragged), rsMatrixRect);
  for (const auto& m : without_elements) EXPECT_MATH_ERROR(TransposeMatrix(m), rsMatrixRect);
  const RectangularCheckOff off;
  EXPECT_MATH_ERROR(TransposeMatrix(ragged), rsMatrixRect);
  for (const auto& m : without_elements) EXPECT_TRUE(TransposeMatrix(m).empty());
  EXPECT_EQ(TransposeMatrix(TQorWordMatrix{{1, 2}, {3, 4, 5}}), (TQorWordMatrix{{1, 3}, {2, 4}}));
}

}  // namespace qorvex
