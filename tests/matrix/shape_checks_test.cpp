// The errors of the matrix routines in their order, and the effects of the shape switch.

#include <functional>
#include <optional>

#include "qorvex/matrix/QorvexMatrix.h"
#include "support/rectangular_check_off.h"
#include "support/test.h"

namespace qorvex {
namespace {

using Matrix = TQorFloatMatrix;
using testing::RectangularCheckOff;

using Error = std::optional<MessageId>;
constexpr std::nullopt_t kNoError = std::nullopt;

Error ErrorOf(const std::function<void()>& work) {
  try {
    work();
  } catch (const EMathError& error) {
    return error.message_id();
  }
  return kNoError;
}

const Matrix kSquare{{1, 2}, {3, 4}};
const Matrix kWide{{1, 2, 3}, {4, 5, 6}};
const Matrix kRagged{{1, 2}, {3}};

struct Errors {
  // For a matrix without rows or columns and, with the shape switch on, for a ragged one.
  Error empty, empty_with_switch_off;
  // For an index beyond the last, or a matrix that is not square.
  Error invalid;
};

using Routine = void (*)(Matrix& m, std::uint32_t index);

// Expects these errors of every routine, and that an error leaves the matrix unchanged.
void ExpectErrors(const Errors& errors, const std::vector<Routine>& routines) {
  for (std::size_t i = 0; i < routines.size(); ++i) {
    const auto expect = [&](const Matrix& given, std::uint32_t index, Error error) {
      Matrix m = CopyMatrix(given);
      EXPECT_EQ(ErrorOf([&] { routines[i](m, index); }), error) << "routine " << i;
      if (error) {
        EXPECT_EQ(m, given);
      }
    };
    const bool needs_square = errors.invalid == rsMatrixSqr;
    for (const Matrix& m : {Matrix(), Matrix{{}, {}}, kRagged}) expect(m, 9, errors.empty);
    if (errors.invalid) expect(needs_square ? kWide : kSquare, 2, errors.invalid);
    expect(kSquare, 1, kNoError);
    const RectangularCheckOff off;
    for (const Matrix& m : {Matrix(), Matrix{{}, {}}}) expect(m, 9, errors.empty_with_switch_off);
    if (errors.invalid && !needs_square) expect(kRagged, 2, errors.invalid);
    expect(kRagged, 1, rsMatrixRect);
  }
}

TEST(MatrixErrors, ComeInOrderAndLeaveTheMatrix) {
  static Matrix result;
  static std::uint32_t rank = 9;
  using Index = std::uint32_t;
  ExpectErrors({rsMatrixIsEmpty, rsMatrixIsEmpty, rsInvalidRow},
               {[](Matrix& m, Index i) { SwapMatrixRows(m, i, 0); },
                [](Matrix& m, Index i) { SwapMatrixRows(m, 0, i); },
                [](Matrix& m, Index i) { ScaleMatrixRow(m, i, 2); },
                [](Matrix& m, Index i) { AddMatrixRows(m, i, 0, 2); },
                [](Matrix& m, Index i) { AddMatrixRows(m, 0, i, 2); },
                [](Matrix& m, Index i) { std::ignore = SumMatrixRow(m, i); }});
  ExpectErrors({rsMatrixIsEmpty, rsMatrixIsEmpty, rsInvalidCol},
               {[](Matrix& m, Index i) { SwapMatrixCols(m, i, 0); },
                [](Matrix& m, Index i) { SwapMatrixCols(m, 0, i); },
                [](Matrix& m, Index i) { ScaleMatrixCol(m, i, 2); },
                [](Matrix& m, Index i) { AddMatrixCols(m, i, 0, 2); },
                [](Matrix& m, Index i) { AddMatrixCols(m, 0, i, 2); },
                [](Matrix& m, Index i) { std::ignore = SumMatrixCol(m, i); }});
  ExpectErrors({rsMatrixIsEmpty, rsMatrixIsEmpty, kNoError},
               {[](Matrix& m, Index) { std::ignore = MatrixZeroRows(m); },
                [](Matrix& m, Index) { RowEchelonForm(m); },
                [](Matrix& m, Index) { RowEchelonFormRank(m, rank); },
                [](Matrix& m, Index) { std::ignore = RowEchelon(m); },
                [](Matrix& m, Index) { std::ignore = Solve(kSquare, m); }});
  EXPECT_EQ(rank, 0U);
  ExpectErrors({rsMatrixIsEmpty, rsMatrixIsEmpty, rsMatrixSqr},
               {[](Matrix& m, Index) { std::ignore = MatrixIsIdentity(m); },
                [](Matrix& m, Index) { std::ignore = MatrixInverse(m, result); },
                [](Matrix& m, Index) { std::ignore = MatrixDeterminant(m); },
                [](Matrix& m, Index) { std::ignore = Inverse(m); },
                [](Matrix& m, Index) {
                  std::ignore = Solve(m, {1, 2});
                },
                [](Matrix& m, Index) { std::ignore = Solve(m, m); }});
  ExpectErrors({rsMatrixRect, kNoError, kNoError},
               {[](Matrix& m, Index) { std::ignore = TransposeMatrix(m); }});
  ExpectErrors({kNoError, kNoError, rsInvalidRow},
               {[](Matrix& m, Index i) { std::ignore = ExtractMatrixRow(m, i); },
                [](Matrix& m, Index i) { OverwriteMatrixRow(m, i, {}, 0); },
                [](Matrix& m, Index i) { QSortMatrixColsOnRow(m, i, true); }});
  ExpectErrors({kNoError, kNoError, rsInvalidCol},
               {[](Matrix& m, Index i) { std::ignore = ExtractMatrixCol(m, i); },
                [](Matrix& m, Index i) { OverwriteMatrixCol(m, i, {}, 0); },
                [](Matrix& m, Index i) { QSortMatrixRowsOnCol(m, i, true); }});
}

TEST(MatrixErrors, OfTwoMatricesComeInOrderAndLeaveTheFirst) {
  const Matrix high{{1, 2}, {3, 4}, {5, 6}};
  const struct {
    Matrix a, b;
    Error sum, sum_with_switch_off, product, product_with_switch_off;
  } cases[] = {
      {{}, kSquare, rsMatrixIsEmpty, rsMatrixIsEmpty, rsMatrixRect, rsMatrixIsEmpty},
      {kSquare, {}, rsSameDimensions, rsSameDimensions, rsMatrixRect, rsMatrixIsEmpty},
      {{{}, {1}}, kWide, rsMatrixIsEmpty, rsMatrixIsEmpty, rsMatrixRect, rsMatrixMult},
      {kSquare, kWide, rsSameDimensions, rsSameDimensions, kNoError, kNoError},
      {kWide, kWide, kNoError, kNoError, rsMatrixMult, rsMatrixMult},
      {kSquare, kRagged, rsSameDimensions, rsMatrixRect, rsMatrixRect, rsMatrixRect},
      {kRagged, kSquare, rsSameDimensions, rsMatrixRect, rsMatrixRect, rsMatrixRect},
      {kRagged, high, rsSameDimensions, rsSameDimensions, rsMatrixRect, rsMatrixMult},
  };
  for (const auto& each : cases) {
    Matrix a = CopyMatrix(each.a);
    const auto expect_errors = [&](Error of_sum, Error of_product) {
      EXPECT_EQ(ErrorOf([&] { std::ignore = AddMatrices(a, each.b); }), of_sum);
      EXPECT_EQ(ErrorOf([&] { std::ignore = SubtractMatrices(a, each.b); }), of_sum);
      EXPECT_EQ(ErrorOf([&] { AddToMatrix(a, each.b); }), of_sum);
      EXPECT_EQ(ErrorOf([&] { SubtractFromMatrix(a, each.b); }), of_sum);
      EXPECT_EQ(ErrorOf([&] { std::ignore = MultiplyMatrices(a, each.b); }), of_product);
      EXPECT_EQ(a, each.a);
    };
    expect_errors(each.sum, each.product);
    const RectangularCheckOff off;
    expect_errors(each.sum_with_switch_off, each.product_with_switch_off);
  }
}

TEST(MatrixErrors, OfAMatrixAndAnArrayOfAnotherLength) {
  const std::vector<Extended> two{1, 2};
  EXPECT_MATH_ERROR(Solve(kSquare, {1, 2, 3}), rsSameDimensions);
  EXPECT_MATH_ERROR(Solve(kSquare, Matrix{{1, 2}}), rsSameDimensions);
  EXPECT_MATH_ERROR(MultiplyMatrixByVector(kWide, two), rsMatrixMult);
  EXPECT_MATH_ERROR(MultiplyVectorByMatrix({1, 2, 3}, kWide), rsMatrixMult);
  EXPECT_MATH_ERROR(MultiplyMatrixByVector(kRagged, two), rsMatrixRect);
  EXPECT_MATH_ERROR(MultiplyVectorByMatrix(two, Matrix()), rsMatrixRect);
  EXPECT_MATH_ERROR(MatrixToRowMajor(kRagged), rsMatrixRect);
  EXPECT_MATH_ERROR(MatrixFromRowMajor(two, 3), rsMatrixRect);
  EXPECT_MATH_ERROR(MatrixFromRowMajor(two, 0), rsMatrixRect);
  const RectangularCheckOff off;
  EXPECT_MATH_ERROR(MultiplyMatrixByVector(kRagged, two), rsMatrixRect);
  EXPECT_MATH_ERROR(MultiplyVectorByMatrix(two, Matrix()), rsMatrixIsEmpty);
  EXPECT_MATH_ERROR(MatrixToRowMajor(kRagged), rsMatrixRect);
}

TEST(MatrixErrors, ElementwiseRoutinesRejectOnlyAMatrixWithoutRows) {
  Matrix empty;
  Matrix without_columns{{}, {}};
  for (void (*routine)(Matrix&) :
       {+[](Matrix& m) { std::ignore = MultiplyMatrixByConst(m, 2); },
        +[](Matrix& m) { MultiplyMatrixByConst2(m, 2); },
        +[](Matrix& m) { LinearTransformMatrix(m, 1, 0); }, SquareMatrix<Extended>,
        SqrtMatrix<Extended>, InvMatrix<Extended>, LnMatrix<Extended>, Log10Matrix<Extended>}) {
    EXPECT_MATH_ERROR(routine(empty), rsMatrixIsEmpty);
    routine(without_columns);
  }
}

TEST(ShapeSwitch, WhenOffTheFirstRowDeterminesTheNumberOfColumns) {
  const RectangularCheckOff off;
  const TQorLIntMatrix longer{{3, 2}, {1, 7, 9}};
  EXPECT_EQ(TransposeMatrix(longer), (TQorLIntMatrix{{3, 1}, {2, 7}}));
  EXPECT_TRUE(TransposeMatrix(TQorLIntMatrix{{}, {}}).empty());
  EXPECT_EQ(AddMatrices(TQorLIntMatrix{{1, 2}, {3, 4}}, longer), (TQorLIntMatrix{{4, 4}, {4, 11}}));
  EXPECT_EQ(ExtractMatrixRow(longer, 1), (TQorLIntVector{1, 7}));
  EXPECT_EQ(SumMatrixRow(TQorByteMatrix{{1, 2}, {3}, {4, 5, 6}}, 2), 9);
  EXPECT_EQ(SumMatrixCol(TQorByteMatrix{{1, 2}, {3, 4, 5}}, 1), 6);
  EXPECT_EQ(MatrixZeroRows(TQorFloatMatrix{{0}, {0, 5}}), 1U) << "all elements of a row count";
  TQorLIntMatrix m = CopyMatrix(longer);
  OverwriteMatrixRow(m, 1, {8, 8, 8}, 0);
  EXPECT_EQ(m, (TQorLIntMatrix{{3, 2}, {8, 8, 9}}));
  m = CopyMatrix(longer);
  QSortMatrixRowsOnCol(m, 0, true);
  EXPECT_EQ(m, (TQorLIntMatrix{{1, 7}, {3, 2, 9}}));
  QSortMatrixColsOnRow(m, 1, true);
  EXPECT_EQ(m, (TQorLIntMatrix{{7, 1}, {2, 3, 9}}));
  TQorLIntMatrix shorter{{1, 2}, {3, 4}, {5}};
  AddMatrixRows(shorter, 0, 1, 1);
  EXPECT_EQ(shorter, (TQorLIntMatrix{{4, 6}, {3, 4}, {5}})) << "only the two rows are checked";
}

}  // namespace
}  // namespace qorvex
