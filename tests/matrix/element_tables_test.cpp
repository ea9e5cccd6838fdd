// The element types that each routine accepts. Other types must not compile, so that no call
// converts or rounds its arguments implicitly.

#include <cstddef>
#include <list>
#include <vector>

#include "qorvex/matrix/QorvexFinMatrix.h"
#include "qorvex/matrix/QorvexMatrix.h"
#include "support/element_probe.h"
#include "support/test.h"

namespace qorvex {

TEST(MatrixElementTables, RoutinesAcceptTheirElementTypes) {
  ExpectTypes("gdfjuiwsbt", {TYPES_OF(MatrixRows(m)), TYPES_OF(MatrixCols(m))});
  ExpectTypes(
      "gdfjuiwsbtCSL",
      {TYPES_OF(MatrixDimensions(m, i, i, b)), TYPES_OF(MatrixIsRectangular(m)),
       TYPES_OF(MatrixIsSquare(m)), TYPES_OF(MatricesSameDimensions(m, m)), TYPES_OF(CopyMatrix(m)),
       TYPES_OF(Matrix2FloatMatrix(m)), TYPES_OF(TransposeMatrix(m)),
       TYPES_OF(ExtractMatrixRow(m, 0)), TYPES_OF(ExtractMatrixCol(m, 0)),
       TYPES_READ_BY(OverwriteMatrixRow(m, 0, v, x)), TYPES_READ_BY(OverwriteMatrixCol(m, 0, v, x)),
       TYPES_OF(QSortMatrixRowsOnCol(m, 0, true)), TYPES_OF(QSortMatrixColsOnRow(m, 0, true)),
       TYPES_OF(SwapMatrixRows(m, 0, 1)), TYPES_OF(SwapMatrixCols(m, 0, 1))});
  ExpectTypes("gdfjuiwsbtCSL",
              {TYPES_OF(MatrixFromRows(m)), TYPES_READ_BY(MatrixFromRowMajor(v, 1)),
               TYPES_OF(MatrixToRowMajor(m))});
  ExpectTypes("gdfjiCSL",
              {TYPES_OF(AddMatrices(m, m)), TYPES_OF(AddToMatrix(m, m)),
               TYPES_OF(SubtractMatrices(m, m)), TYPES_OF(SubtractFromMatrix(m, m)),
               TYPES_OF(MultiplyMatrixByConst(m, 2)), TYPES_OF(MultiplyMatrixByConst2(m, 2)),
               TYPES_OF(LinearTransformMatrix(m, 2, 1)), TYPES_OF(GrandMean(m, i))});
  ExpectTypes("gdfji", {TYPES_OF(ScaleMatrixRow(m, 0, 2)), TYPES_OF(ScaleMatrixCol(m, 0, 2)),
                        TYPES_OF(AddMatrixRows(m, 0, 1, 2)), TYPES_OF(AddMatrixCols(m, 0, 1, 2))});
  ExpectTypes(
      "gdf", {TYPES_OF(MatrixZeroRows(m)), TYPES_OF(MatrixIsIdentity(m)), TYPES_OF(SquareMatrix(m)),
              TYPES_OF(SqrtMatrix(m)), TYPES_OF(InvMatrix(m)), TYPES_OF(LnMatrix(m)),
              TYPES_OF(Log10Matrix(m)), TYPES_OF(MultiplyMatrices(m, m)),
              TYPES_OF(RowEchelonForm(m)), TYPES_OF(RowEchelonFormRank(m, i)),
              TYPES_OF(MatrixInverse(m, m)), TYPES_OF(MatrixDeterminant(m))});
  ExpectTypes("gdf", {TYPES_OF(Inverse(m)), TYPES_OF(Determinant(m)), TYPES_OF(Rank(m)),
                      TYPES_OF(RowEchelon(m)), TYPES_READ_BY(Solve(m, v)), TYPES_OF(Solve(m, m)),
                      TYPES_READ_BY(MultiplyMatrixByVector(m, v)),
                      TYPES_READ_BY(MultiplyVectorByMatrix(v, m))});
  ExpectTypes("gdfjuwsbt", {TYPES_OF(SumMatrixRow(m, 0)), TYPES_OF(SumMatrixCol(m, 0))});
}

template <class To>
void ExpectExactConversionsFrom(const std::string& types) {
  ExpectTypes(types, {TYPES_READ_BY(ConvertVector<To>(v)), TYPES_OF(ConvertMatrix<To>(m))});
  ExpectTypes("gdfjuiwsbt", {TYPES_READ_BY(NarrowVector<To>(v)), TYPES_OF(NarrowMatrix<To>(m))});
}

TEST(MatrixElementTables, ConversionsThatMayLoseSomethingHaveAnotherName) {
  ExpectExactConversionsFrom<Extended>("gdfjuiwsbt");
  ExpectExactConversionsFrom<double>("dfuiwsbt");
  ExpectExactConversionsFrom<float>("fwsbt");
  ExpectExactConversionsFrom<std::int64_t>("juiwsbt");
  ExpectExactConversionsFrom<std::uint32_t>("uwb");
  ExpectExactConversionsFrom<std::int32_t>("iwsbt");
  ExpectExactConversionsFrom<std::uint16_t>("wb");
  ExpectExactConversionsFrom<std::int16_t>("sbt");
  ExpectExactConversionsFrom<std::uint8_t>("b");
  ExpectExactConversionsFrom<std::int8_t>("t");
  EXPECT_EQ(TYPES_OF(Solve(m, TQorFloatVector())), "g") << "b has the type of the matrix";
}

// Floating-point factors and elements would be truncated.
TEST(MatrixElementTables, IntegersTakeNoFloatingPointValues) {
  ExpectTypes("gdf", {TYPES_OF(ScaleMatrixRow(m, 0, 0.5)), TYPES_OF(ScaleMatrixCol(m, 0, 0.5F)),
                      TYPES_OF(AddMatrixRows(m, 0, 1, 0.5L)), TYPES_OF(AddMatrixCols(m, 0, 1, 0.5)),
                      TYPES_OF(OverwriteMatrixRow(m, 0, v, 0.5)),
                      TYPES_OF(OverwriteMatrixCol(m, 0, v, 0.5))});
  ExpectTypes(
      "gdfCSL",
      {TYPES_OF(MultiplyMatrixByConst(m, 0.5)), TYPES_OF(MultiplyMatrixByConst2(m, 0.5)),
       TYPES_OF(LinearTransformMatrix(m, 0.5, 1)), TYPES_OF(LinearTransformMatrix(m, 1, 0.5))});
  ExpectTypes("", {TYPES_READ_BY(MatrixFromRowMajor(v, 2.5))});
}

// Conversions read through a const reference.
struct MutableRows {
  std::vector<double>* begin();
  std::vector<double>* end();
  [[nodiscard]] std::size_t size() const;
};
static_assert(NestedRange<std::list<std::vector<double>>> && NestedRange<const double[2][3]>);
static_assert(!NestedRange<MutableRows>);

static_assert(std::is_same_v<FactorOf<float>, Extended>);
static_assert(std::is_same_v<FactorOf<QorCurrency>, Extended>);
static_assert(std::is_same_v<FactorOf<std::int64_t>, std::int64_t>);
static_assert(std::is_same_v<FactorOf<std::int32_t>, std::int32_t>);
static_assert(std::is_same_v<decltype(SumMatrixRow(TQorSingleMatrix(), 0)), Extended>);
static_assert(std::is_same_v<decltype(SumMatrixCol(TQorByteMatrix(), 0)), std::int64_t>);

}  // namespace qorvex
