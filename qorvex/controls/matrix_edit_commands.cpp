// The commands of the editors of matrices.

#include <QCoreApplication>
#include <memory>
#include <utility>

#include "qorvex/base/errors.h"
#include "qorvex/controls/custom_matrix_edit.h"
#include "qorvex/controls/panel/detail/panel_parts.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/reduction.h"
#include "qorvex/matrix/row_operations.h"
#include "qorvex/matrix/shape.h"
#include "qorvex/matrix/transforms.h"
#include "qorvex/matrix/transpose.h"

namespace qorvex::inline QorvexMatrixEdit {

void TQorCustomMatrixEdit::MatrixCommand(
    const QString& text, const std::function<void(TQorFloatMatrix& matrix)>& command) {
  Command([&] {
    // The command works on a copy; exchanging it with the old matrix undoes the command.
    const auto other = std::make_shared<TQorFloatMatrix>(CopyMatrix(FullStore()));
    command(*other);
    // A matrix without rows has no number of columns.
    if (NoOfRows() == 0) return;
    ExchangeStore(*other);
    const auto bytes =
        static_cast<qint64>(MatrixRows(*other) * MatrixCols(*other) * sizeof(Extended));
    Parts().history.RecordCommand(text, bytes, [this, other] { ExchangeStore(*other); });
  });
}

void TQorCustomMatrixEdit::ExchangeStore(TQorFloatMatrix& other) {
  FullStore();
  Take(other);
}

void TQorCustomMatrixEdit::SwapRows(quint32 first, quint32 second) {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Swap Rows"),
                [=](TQorFloatMatrix& matrix) { SwapMatrixRows(matrix, first, second); });
}

void TQorCustomMatrixEdit::SwapColumns(quint32 first, quint32 second) {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Swap Columns"),
                [=](TQorFloatMatrix& matrix) { SwapMatrixCols(matrix, first, second); });
}

void TQorCustomMatrixEdit::LinearTransform(Extended slope, Extended intercept) {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Linear Transformation"),
                [=](TQorFloatMatrix& matrix) { LinearTransformMatrix(matrix, slope, intercept); });
}

void TQorCustomMatrixEdit::Sqr() {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Squares"),
                [](TQorFloatMatrix& matrix) { SquareMatrix(matrix); });
}

void TQorCustomMatrixEdit::Sqrt() {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Square Roots"),
                [](TQorFloatMatrix& matrix) { SqrtMatrix(matrix); });
}

void TQorCustomMatrixEdit::Invert() {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Reciprocals"),
                [](TQorFloatMatrix& matrix) { InvMatrix(matrix); });
}

void TQorCustomMatrixEdit::Ln() {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Natural Logarithms"),
                [](TQorFloatMatrix& matrix) { LnMatrix(matrix); });
}

void TQorCustomMatrixEdit::Log10() {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Common Logarithms"),
                [](TQorFloatMatrix& matrix) { Log10Matrix(matrix); });
}

void TQorCustomMatrixEdit::Transpose() {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Transpose"),
                [](TQorFloatMatrix& matrix) { matrix = TransposeMatrix(matrix); });
}

void TQorCustomMatrixEdit::RowReduce() {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Row Reduction"),
                [](TQorFloatMatrix& matrix) { RowEchelonForm(matrix); });
}

void TQorCustomMatrixEdit::ScaleRow(quint32 row, Extended factor) {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Scale Row"),
                [=](TQorFloatMatrix& matrix) { ScaleMatrixRow(matrix, row, factor); });
}

void TQorCustomMatrixEdit::ScaleCol(quint32 col, Extended factor) {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Scale Column"),
                [=](TQorFloatMatrix& matrix) { ScaleMatrixCol(matrix, col, factor); });
}

void TQorCustomMatrixEdit::AddRows(quint32 target, quint32 source, Extended factor) {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Add Rows"),
                [=](TQorFloatMatrix& matrix) { AddMatrixRows(matrix, target, source, factor); });
}

void TQorCustomMatrixEdit::AddCols(quint32 target, quint32 source, Extended factor) {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Add Columns"),
                [=](TQorFloatMatrix& matrix) { AddMatrixCols(matrix, target, source, factor); });
}

void TQorCustomMatrixEdit::Inverse() {
  MatrixCommand(QCoreApplication::translate("CellPanel", "Inverse"), [](TQorFloatMatrix& matrix) {
    TQorFloatMatrix inverse;
    if (!MatrixInverse(matrix, inverse)) RaiseMathError(rsNoInvert);
    matrix = inverse;
  });
}

void TQorCustomMatrixEdit::Replace(const TQorFloatMatrix& matrix) {
  if (matrix.empty() || matrix[0].empty()) RaiseMathError(rsMatrixIsEmpty);
  if (!MatrixIsRectangular(matrix)) RaiseMathError(rsMatrixRect);
  // An empty matrix has no shape that undo could restore.
  if (NoOfRows() == 0 && !VirtualMode()) return setMatrix(matrix);
  MatrixCommand(QCoreApplication::translate("CellPanel", "Replace Matrix"),
                [&matrix](TQorFloatMatrix& other) { other = CopyMatrix(matrix); });
}

}  // namespace qorvex::inline QorvexMatrixEdit
