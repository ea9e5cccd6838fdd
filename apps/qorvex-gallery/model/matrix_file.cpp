#include "apps/qorvex-gallery/model/matrix_file.h"

#include <QFileInfo>
#include <QSaveFile>
#include <algorithm>
#include <cmath>
#include <limits>
#include <string>

#include "apps/common/matrix_reader.h"
#include "apps/qorvex-gallery/model/table_input.h"
#include "qorvex/base/text.h"

namespace qorvex::gallery {

namespace {

// What programs write for a missing number. An empty cell would make a row of one null blank.
constexpr const char* kNull = "NA";

std::string RowText(const TQorFloatVector& row) {
  std::string text;
  for (std::size_t i = 0; i < row.size(); ++i) {
    if (i > 0) text += ',';
    text += std::isnan(row[i]) ? kNull : Float2Str(row[i]);
  }
  return text + '\n';
}

}  // namespace

TQorFloatMatrix ReadMatrixFile(const QString& path, const Proceed& proceed) {
  const auto size = static_cast<std::size_t>(std::max<qint64>(QFileInfo(path).size(), 1));
  return apps::ReadMatrix(Observed(OpenFile(path),
                                   [&proceed, size](std::size_t bytes) {
                                     return proceed(std::min(bytes, size), size);
                                   }),
                          {});
}

QString WriteMatrixFile(const QString& path, const TQorFloatMatrix& matrix) {
  QSaveFile file(path);
  bool is_written = file.open(QIODevice::WriteOnly);
  for (std::size_t row = 0; is_written && row < matrix.size(); ++row)
    is_written = file.write(QByteArray::fromStdString(RowText(matrix[row]))) >= 0;
  return is_written && file.commit() ? QString() : file.errorString();
}

QString MatrixText(const TQorFloatMatrix& matrix) {
  std::string text;
  for (const TQorFloatVector& row : matrix) text += RowText(row);
  return QString::fromStdString(text);
}

TQorFloatMatrix MatrixOf(const QString& text) {
  TQorFloatMatrix matrix;
  for (const QString& row : text.split(u'\n', Qt::SkipEmptyParts)) {
    TQorFloatVector values;
    for (const QString& cell : row.split(u',')) {
      values.Append(cell == kNull ? std::numeric_limits<Extended>::quiet_NaN()
                                  : Str2Float(cell.toStdString()));
    }
    matrix.Append(values);
  }
  return matrix;
}

}  // namespace qorvex::gallery
