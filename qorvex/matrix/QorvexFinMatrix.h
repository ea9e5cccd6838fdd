#pragma once

/// @file
/// Unit QorvexFinMatrix: matrices of the three currencies.
///
/// The routines are templates of the unit QorvexMatrix; the element type selects the version for
/// amounts.
///
/// - They work on the stored integers, exactly and wrapping around. MultiplyMatrixByConst,
///   LinearTransformMatrix, GrandMean and Matrix2FloatMatrix state where amounts are treated
///   differently.
/// - There are no row reductions, element-wise functions or matrix products of money.

#include "qorvex/base/errors.h"
#include "qorvex/matrix/access.h"
#include "qorvex/matrix/arithmetic.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/conversion.h"
#include "qorvex/matrix/currency_building.h"
#include "qorvex/matrix/currency_shape.h"
#include "qorvex/matrix/row_major.h"
#include "qorvex/matrix/row_operations.h"
#include "qorvex/matrix/shape.h"
#include "qorvex/matrix/sorting.h"
#include "qorvex/matrix/sums.h"
#include "qorvex/matrix/transforms.h"
#include "qorvex/matrix/transpose.h"

namespace qorvex::inline QorvexFinMatrix {

using QorvexMatrix::AddMatrices;
using QorvexMatrix::AddToMatrix;
using QorvexMatrix::CopyMatrix;
using QorvexMatrix::ExtractMatrixCol;
using QorvexMatrix::ExtractMatrixRow;
using QorvexMatrix::GrandMean;
using QorvexMatrix::LinearTransformMatrix;
using QorvexMatrix::MatricesSameDimensions;
using QorvexMatrix::MatrixDimensions;
using QorvexMatrix::MatrixFromRowMajor;
using QorvexMatrix::MatrixFromRows;
using QorvexMatrix::MatrixIsRectangular;
using QorvexMatrix::MatrixIsSquare;
using QorvexMatrix::MatrixToRowMajor;
using QorvexMatrix::MultiplyMatrixByConst;
using QorvexMatrix::MultiplyMatrixByConst2;
using QorvexMatrix::OverwriteMatrixCol;
using QorvexMatrix::OverwriteMatrixRow;
using QorvexMatrix::QSortMatrixColsOnRow;
using QorvexMatrix::QSortMatrixRowsOnCol;
using QorvexMatrix::SubtractFromMatrix;
using QorvexMatrix::SubtractMatrices;
using QorvexMatrix::SwapMatrixCols;
using QorvexMatrix::SwapMatrixRows;
using QorvexMatrix::TransposeMatrix;

}  // namespace qorvex::inline QorvexFinMatrix
