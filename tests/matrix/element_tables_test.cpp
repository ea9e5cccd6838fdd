// Which element types each routine exists for. What a table leaves out must not compile, so that no
// call converts, rounds or wraps in a width that nobody chose.

#include "qorvex/matrix/QorvexMatrix.h"
#include "support/element_probe.h"
#include "support/test.h"

namespace qorvex {

TEST(MatrixElementTables, ShapeAndBuilding) {
  EXPECT_EQ(TYPES_OF(MatrixRows(m)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(MatrixCols(m)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(MatrixDimensions(m, i, i, b)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(MatrixIsRectangular(m)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(MatrixIsSquare(m)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(MatricesSameDimensions(m, m)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(CopyMatrix(m)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(Matrix2FloatMatrix(m)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(MatrixZeroRows(m)), "gdf");
  EXPECT_EQ(TYPES_OF(MatrixIsIdentity(m)), "gdf");
}

TEST(MatrixElementTables, Arithmetic) {
  EXPECT_EQ(TYPES_OF(AddMatrices(m, m)), "gdfji");
  EXPECT_EQ(TYPES_OF(AddToMatrix(m, m)), "gdfji");
  EXPECT_EQ(TYPES_OF(SubtractMatrices(m, m)), "gdfji");
  EXPECT_EQ(TYPES_OF(SubtractFromMatrix(m, m)), "gdfji");
  EXPECT_EQ(TYPES_OF(MultiplyMatrixByConst(m, 2)), "gdfji");
  EXPECT_EQ(TYPES_OF(MultiplyMatrixByConst2(m, 2)), "gdfji");
  EXPECT_EQ(TYPES_OF(LinearTransformMatrix(m, 2, 1)), "gdfji");
  EXPECT_EQ(TYPES_OF(SquareMatrix(m)), "gdf");
  EXPECT_EQ(TYPES_OF(SqrtMatrix(m)), "gdf");
  EXPECT_EQ(TYPES_OF(InvMatrix(m)), "gdf");
  EXPECT_EQ(TYPES_OF(LnMatrix(m)), "gdf");
  EXPECT_EQ(TYPES_OF(Log10Matrix(m)), "gdf");
  EXPECT_EQ(TYPES_OF(GrandMean(m, i)), "gdfji");
  EXPECT_EQ(TYPES_OF(SumMatrixRow(m, 0)), "gdfjuwsbt");
  EXPECT_EQ(TYPES_OF(SumMatrixCol(m, 0)), "gdfjuwsbt");

  static_assert(std::is_same_v<FactorOf<float>, Extended>);
  static_assert(std::is_same_v<FactorOf<std::int64_t>, std::int64_t>);
  static_assert(std::is_same_v<FactorOf<std::int32_t>, std::int32_t>);
  static_assert(std::is_same_v<decltype(SumMatrixRow(TQorSingleMatrix(), 0)), Extended>);
  static_assert(std::is_same_v<decltype(SumMatrixCol(TQorByteMatrix(), 0)), std::int64_t>);
}

TEST(MatrixElementTables, MovingElements) {
  EXPECT_EQ(TYPES_OF(TransposeMatrix(m)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(ExtractMatrixRow(m, 0)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(ExtractMatrixCol(m, 0)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(OverwriteMatrixRow(m, 0, v, 0)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(OverwriteMatrixCol(m, 0, v, 0)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(QSortMatrixRowsOnCol(m, 0, true)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(QSortMatrixColsOnRow(m, 0, true)), "gdfjuiwsbt");
}

TEST(MatrixElementTables, RowOperationsAndReduction) {
  EXPECT_EQ(TYPES_OF(SwapMatrixRows(m, 0, 1)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(SwapMatrixCols(m, 0, 1)), "gdfjuiwsbt");
  EXPECT_EQ(TYPES_OF(ScaleMatrixRow(m, 0, 2)), "gdfji");
  EXPECT_EQ(TYPES_OF(ScaleMatrixCol(m, 0, 2)), "gdfji");
  EXPECT_EQ(TYPES_OF(AddMatrixRows(m, 0, 1, 2)), "gdfji");
  EXPECT_EQ(TYPES_OF(AddMatrixCols(m, 0, 1, 2)), "gdfji");
  EXPECT_EQ(TYPES_OF(MultiplyMatrices(m, m)), "gdf");
  EXPECT_EQ(TYPES_OF(RowEchelonForm(m)), "gdf");
  EXPECT_EQ(TYPES_OF(RowEchelonFormRank(m, i)), "gdf");
  EXPECT_EQ(TYPES_OF(MatrixInverse(m, m)), "gdf");
  EXPECT_EQ(TYPES_OF(MatrixDeterminant(m)), "gdf");
}

}  // namespace qorvex
