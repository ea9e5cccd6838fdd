#include "qorvex/matrix/shape.h"

#include "qorvex/matrix/building.h"
#include "qorvex/matrix/properties.h"
#include "support/rectangular_check_off.h"
#include "support/test.h"

namespace qorvex {

struct Dimensions {
  std::uint32_t rows, cols;
  bool rectangular;
  bool operator==(const Dimensions&) const = default;
};

TEST(Shape, DependsOnTheSwitch) {
  const struct {
    TQorFloatMatrix matrix;
    Dimensions checked, unchecked;
    bool is_rectangular;
  } cases[] = {
      {CreateFloatMatrix(0, 3), {0, 0, false}, {0, 0, true}, false},
      {CreateFloatMatrix(3, 0), {3, 0, false}, {3, 0, true}, true},
      {CreateFloatMatrix(2, 3), {2, 3, true}, {2, 3, true}, true},
      {CreateFloatMatrix(3, 3), {3, 3, true}, {3, 3, true}, true},
      {{{1, 2}, {1, 2, 3}}, {2, 0, false}, {2, 2, true}, false},
      {{{}, {1}}, {2, 0, false}, {2, 0, true}, false},
  };
  const auto expect_shapes = [&](const auto dimensions) {
    for (const auto& a : cases) {
      const Dimensions& of_a = a.*dimensions;
      Dimensions d{99, 99, false};
      MatrixDimensions(a.matrix, d.rows, d.cols, d.rectangular);
      EXPECT_EQ(d, of_a);
      EXPECT_EQ(MatrixIsSquare(a.matrix), of_a.rectangular && of_a.rows == of_a.cols);
      EXPECT_EQ(MatrixRows(a.matrix), a.unchecked.rows);
      EXPECT_EQ(MatrixCols(a.matrix), a.unchecked.cols) << "those of the first row";
      EXPECT_EQ(MatrixIsRectangular(a.matrix), a.is_rectangular);
      for (const auto& b : cases) {
        EXPECT_EQ(MatricesSameDimensions(a.matrix, b.matrix),
                  of_a.rectangular && of_a == b.*dimensions);
      }
    }
  };
  using Case = std::remove_cvref_t<decltype(cases[0])>;
  expect_shapes(&Case::checked);
  const testing::RectangularCheckOff off;
  expect_shapes(&Case::unchecked);
}

TEST(Shape, EveryRowCounts) {
  for (std::size_t rows = 1; rows < 20; ++rows) {
    TQorByteMatrix matrix(rows, TQorByteVector(3));
    for (std::size_t row = 1; row < rows; ++row) {
      for (const std::size_t length : {0U, 2U, 4U, 3U}) {
        matrix[row].SetLength(length);
        EXPECT_EQ(MatrixIsRectangular(matrix), length == 3) << rows << ' ' << row;
      }
    }
  }
}

TEST(MatrixBuilding, EveryTypeIsCreated) {
#define QORVEX_EXPECT_CREATED(Suffix)                                                    \
  EXPECT_EQ(Create##Suffix##Matrix(2, 3), (TQor##Suffix##Matrix{{0, 0, 0}, {0, 0, 0}})); \
  EXPECT_EQ(Create##Suffix##IdentityMatrix(2), (TQor##Suffix##Matrix{{1, 0}, {0, 1}}));
  QORVEX_EXPECT_CREATED(Float)
  QORVEX_EXPECT_CREATED(Double)
  QORVEX_EXPECT_CREATED(Single)
  QORVEX_EXPECT_CREATED(Int64)
  QORVEX_EXPECT_CREATED(LWord)
  QORVEX_EXPECT_CREATED(LInt)
  QORVEX_EXPECT_CREATED(Word)
  QORVEX_EXPECT_CREATED(SmallInt)
  QORVEX_EXPECT_CREATED(Byte)
  QORVEX_EXPECT_CREATED(SInt)
#undef QORVEX_EXPECT_CREATED
}

TEST(MatrixBuilding, CopiesShareNothingAndKeepRaggedRows) {
  TQorFloatMatrix source{{1, 2}, {}, {3}};
  source.Append(source[0]);
  for (TQorFloatMatrix copy : {CopyMatrix(source), Matrix2FloatMatrix(source)}) {
    EXPECT_EQ(copy, source);
    EXPECT_FALSE(copy.SharesBufferWith(source));
    copy[0][0] = 9;
    EXPECT_EQ(source[0][0], 1);
    EXPECT_EQ(copy[3][0], 1) << "rows that shared a buffer no longer do";
  }
  EXPECT_EQ(Matrix2FloatMatrix(TQorInt64Matrix{{INT64_MAX}}), (TQorFloatMatrix{{0x1p63L - 1}}));
}

TEST(MatrixProperties, ZeroAndIdentityWithinTheTolerance) {
  EXPECT_EQ(MatrixZeroRows(TQorFloatMatrix{{0, 1e-15L}, {0, 1.1e-15L}, {-1e-16L, 0}}), 2U);
  EXPECT_EQ(MatrixZeroRows(TQorDoubleMatrix{{0, std::nan("")}, {0, 0}}), 1U);
  EXPECT_TRUE(MatrixIsIdentity(TQorFloatMatrix{{1 + 0.9e-15L, -1e-15L}, {1e-15L, 1}}));
  EXPECT_FALSE(MatrixIsIdentity(TQorFloatMatrix{{1, 0}, {1.1e-15L, 1}}));
  EXPECT_FALSE(MatrixIsIdentity(TQorFloatMatrix{{1, 0}, {0, 1 - 2e-15L}}));
  EXPECT_FALSE(MatrixIsIdentity(TQorFloatMatrix{{1, 0}, {kNaN, 1}}));
  EXPECT_FALSE(MatrixIsIdentity(TQorSingleMatrix{{1 + 0x1p-23F}}));
}

}  // namespace qorvex
