#include "apps/qorvex-gallery/model/matrix_properties.h"

#include <QCoreApplication>
#include <QLocale>
#include <algorithm>
#include <cmath>

#include "apps/qorvex-gallery/model/texts.h"
#include "qorvex/base/errors.h"
#include "qorvex/matrix/building.h"
#include "qorvex/matrix/reduction.h"

namespace qorvex::gallery {

namespace {

// The elimination of a matrix of this size takes some milliseconds, which every edit costs.
constexpr std::size_t kMostEliminated = 200;

QString Text(const char* text) {
  return QCoreApplication::translate("qorvex::gallery::MatrixPage", text);
}

bool AnyElement(const TQorFloatMatrix& matrix, bool (*holds)(Extended)) {
  return std::any_of(matrix.begin(), matrix.end(), [holds](const auto& row) {
    return std::any_of(row.begin(), row.end(), holds);
  });
}

// For a square matrix without an inverse.
QString WhyNoInverse(const TQorFloatMatrix& matrix, std::uint32_t rank) {
  if (AnyElement(matrix, [](Extended x) { return std::isnan(x); })) {
    return Text("none, an element is null");
  }
  if (AnyElement(matrix, [](Extended x) { return std::isinf(x); })) {
    return Text("none, an element is infinite");
  }
  if (rank < matrix.size()) return Text("none, the matrix is singular");
  return Text("none, its elements would be beyond the range");
}

}  // namespace

MatrixProperties PropertiesOf(const TQorFloatMatrix& matrix) {
  const std::size_t rows = matrix.size();
  const std::size_t cols = rows == 0 ? 0 : matrix[0].size();
  if (std::max(rows, cols) > kMostEliminated) {
    const QString too_large = Text("not beyond %L1 rows").arg(kMostEliminated);
    return {too_large, too_large, {}, too_large};
  }
  const bool is_square = rows == cols;
  const QString square_only = Text("of square matrices only");
  const QString dash = ExactTextOrDash({});
  MatrixProperties properties = {
      is_square ? dash : square_only, dash, {}, is_square ? QString() : square_only};
  try {
    TQorFloatMatrix reduced = CopyMatrix(matrix);
    std::uint32_t rank = 0;
    RowEchelonFormRank(reduced, rank);
    properties.rank = QLocale().toString(rank);
    if (is_square) {
      reduced = CopyMatrix(matrix);
      properties.determinant = ExactText(MatrixDeterminant(reduced));
      reduced = CopyMatrix(matrix);
      if (!MatrixInverse(reduced, properties.inverse))
        properties.why_no_inverse = WhyNoInverse(matrix, rank);
    }
  } catch (const EMathError& error) {
    // An element is null, or a figure is out of range.
    properties.why_no_inverse = QString::fromUtf8(error.what());
  }
  return properties;
}

}  // namespace qorvex::gallery
